// The Centre Mover panel, driven through its widgets: the running total of the moves and its
// undo, and the dimensions in model units and metres after a rescale.
#include "centremoverpanel.h"
#include "currentmodel.h"
#include "panelfixture.h"

#include <QTest>

#include <string>
#include <vector>

namespace {

class CentreMoverTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        MoxBuilder file;
        // Span 1000 (Y -500 to 500), length 501 (X -200 to 301).
        file.nodes = {Node{-500, 0, -200, 0}, Node{500, 100, 301, 0}, Node{0, -3, 7, 0}};
        file.root = {0, kNoElement};
        file.streams = {StreamBytes().ColouredPoly({0, 1, 2}, 1).End().bytes};
        Open(file);
    }
    Node& NodeAt(int n) { return CurrentModel().Files[0].Nodes[n]; }
    // "x+" and "y-" step a spin, "apply", "undo" and "tab" are the buttons and a showing of the
    // tab.
    void Do(const std::string& action) {
        if (action == "apply" || action == "undo")
            Click(("cmd_5_" + action).c_str());
        else if (action == "tab")
            panels->centreMover().TabShown();
        else
            QTest::keyClick(&Spin(action[0] == 'x' ? "upd_5_x" : "upd_5_y"),
                            action[1] == '+' ? Qt::Key_Up : Qt::Key_Down);
    }
};

struct TotalCase {
    const char* what;
    std::vector<std::string> actions;
    int16_t startX; // X of node 2 before the actions
    int movedX;     // how far node 2 ends from where it started
    int movedY;
    int spinX; // what upd_5_x shows at the end
    std::size_t messages;
};

TEST_F(CentreMoverTest, RunningTotalAndItsUndo) {
    const std::vector<std::string> fiveUp(5, "x+");
    const auto then = [&](std::vector<std::string> more) {
        more.insert(more.begin(), fiveUp.begin(), fiveUp.end());
        return more;
    };
    const TotalCase cases[] = {
        {"five steps up", fiveUp, 7, 5, 0, 5, 0},
        {"five steps up, UNDO", then({"undo"}), 7, 0, 0, 0, 0},
        {"both axes, UNDO", then({"y-", "y-", "undo"}), 7, 0, 0, 0, 0},
        {"APPLY, UNDO", then({"apply", "undo"}), 7, 5, 0, 0, 0},
        {"a change of tab, UNDO", then({"tab", "undo"}), 7, 5, 0, 0, 0},
        {"a step beyond 16 bits", {"x+", "x+"}, 32767, 0, 0, 0, 2},
    };
    for (const TotalCase& c : cases) {
        SetUp();
        NodeAt(2).X = c.startX;
        const Node before = NodeAt(2);
        const Node first = NodeAt(0);
        for (const std::string& action : c.actions)
            Do(action);
        EXPECT_EQ(NodeAt(2).X - before.X, c.movedX) << c.what;
        EXPECT_EQ(NodeAt(2).Y - before.Y, c.movedY) << c.what;
        EXPECT_EQ(NodeAt(0).X - first.X, c.movedX) << c.what << ": every node moves";
        EXPECT_EQ(Text("txt_5_x").toInt(), c.spinX) << c.what;
        EXPECT_EQ(host.messages.size(), c.messages) << c.what;
        host.messages.clear();
        Click("cmd_5_apply");
    }
}

TEST_F(CentreMoverTest, DimensionsInUnitsAndMetres) {
    panels->centreMover().TabShown();
    EXPECT_EQ(Text("txt_5_span"), "1000");
    EXPECT_EQ(Text("txt_5_realspan"), "44.8 m");
    EXPECT_EQ(Text("txt_5_length"), "501");
    EXPECT_EQ(Text("txt_5_reallength"), "22.44 m");
    Find<QLineEdit>("txt_5_scale").setText("200");
    Click("cmd_5_scale");
    EXPECT_EQ(Text("txt_5_span"), "2000");
    EXPECT_EQ(Text("txt_5_reallength"), "44.89 m");
    Click("cmd_5_scale");
    EXPECT_EQ(Text("txt_5_span"), "4000") << "a second press scales again";
    EXPECT_EQ(Text("txt_5_realspan"), "179.2 m");
}

} // namespace
