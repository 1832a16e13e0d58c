// The Centre Mover panel, driven through its widgets: the running total of the moves and its
// undo, the dimensions in model units and metres after a rescale, and the rescale itself.
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
        OpenSpanAndLength();
    }
    void OpenSpanAndLength() {
        MoxBuilder file;
        // Span 1000 (Y -500 to 500), length 501 (X -200 to 301).
        file.nodes = {Node{-500, 0, -200, 0}, Node{500, 100, 301, 0}, Node{0, -3, 7, 0}};
        file.root = {0, kNoElement};
        file.streams = {StreamBytes().ColouredPoly({0, 1, 2}, 1).End().bytes};
        Open(file);
    }
    Node& NodeAt(int n) { return CurrentModel().Files[0].Nodes[n]; }
    // Each letter one action: X and y a step up of upd_5_x and down of upd_5_y, A and U the
    // buttons APPLY and UNDO, T a showing of the tab.
    void Do(char action) {
        if (action == 'A' || action == 'U')
            Click(action == 'A' ? "cmd_5_apply" : "cmd_5_undo");
        else if (action == 'T')
            Panels().centreMover().TabShown();
        else
            QTest::keyClick(&Spin(action == 'X' ? "upd_5_x" : "upd_5_y"),
                            action == 'X' ? Qt::Key_Up : Qt::Key_Down);
    }
};

struct TotalCase {
    std::string actions;
    int16_t startX; // X of node 2 before the actions
    int movedX;     // how far node 2 ends from where it started
    int spinX;      // what upd_5_x shows at the end
    std::size_t messages;
};

TEST_F(CentreMoverTest, RunningTotalAndItsUndo) {
    const TotalCase cases[] = {
        {"XXXXX", 7, 5, 5, 0},
        {"XXXXXU", 7, 0, 0, 0},
        {"XXXXXyyU", 7, 0, 0, 0},
        {"XXXXXAU", 7, 5, 0, 0},
        {"XXXXXTU", 7, 5, 0, 0},
        // A step beyond 16 bits moves nothing and says so.
        {"XX", 32767, 0, 0, 2},
    };
    for (const TotalCase& c : cases) {
        OpenSpanAndLength();
        NodeAt(2).X = c.startX;
        const Node before = NodeAt(2);
        const Node first = NodeAt(0);
        for (const char action : c.actions)
            Do(action);
        EXPECT_EQ(NodeAt(2).X - before.X, c.movedX) << c.actions;
        EXPECT_EQ(NodeAt(2).Y, before.Y) << c.actions;
        EXPECT_EQ(NodeAt(0).X - first.X, c.movedX) << c.actions << ": every node moves";
        EXPECT_EQ(Text("txt_5_x").toInt(), c.spinX) << c.actions;
        EXPECT_EQ(host.messages.size(), c.messages) << c.actions;
        if (!host.messages.empty()) {
            EXPECT_EQ(host.messages[0], "Moving the model by 1 along X would take X of node 2 to "
                                        "32768, beyond the range of a coordinate (-32768 to "
                                        "32767). Nothing was moved.");
        }
        host.messages.clear();
        Click("cmd_5_apply");
    }
}

TEST_F(CentreMoverTest, DimensionsInUnitsAndMetres) {
    const auto shown = [this] {
        return QStringList({Text("txt_5_span"), Text("txt_5_realspan"), Text("txt_5_length"),
                            Text("txt_5_reallength")});
    };
    Panels().centreMover().TabShown();
    EXPECT_EQ(shown(), QStringList({"1000", "44.8 m", "501", "22.44 m"}));
    Find<QLineEdit>("txt_5_scale").setText("200");
    Click("cmd_5_scale");
    EXPECT_EQ(shown(), QStringList({"2000", "89.6 m", "1002", "44.89 m"}));
    Click("cmd_5_scale"); // a second press scales again
    EXPECT_EQ(shown(), QStringList({"4000", "179.2 m", "2004", "89.78 m"}));
}

// The nodes of each row stand along X; the factor is typed as a percentage.
TEST_F(CentreMoverTest, ScaleRoundsHalvesToEvenAndRefusesOverflowWhole) {
    struct Row {
        const char* percent;
        std::vector<int16_t> before, after;
        std::vector<MessageAnswer> answers;
        const char* message;
    };
    const Row rows[] = {
        {"50", {3, 5, 7, -3, 4}, {2, 2, 4, -2, 2}, {}, ""},
        {"100", {3, -32768, 32767}, {3, -32768, 32767}, {}, ""},
        {"200",
         {5, 20000, 30000},
         {5, 20000, 30000},
         {},
         "Scaling by 2 would take X of node 1 to 40000, beyond the range of a coordinate "
         "(-32768 to 32767). Nothing was scaled."},
        {"0",
         {5, -7},
         {5, -7},
         {MessageAnswer::No},
         "Scaling by 0 puts every node of this file at the origin. Do you want to scale it?"},
        {"-100",
         {5, -7},
         {-5, 7},
         {MessageAnswer::Yes},
         "Scaling by -1 mirrors every node of this file through the origin. Do you want to scale "
         "it?"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.percent);
        MoxBuilder file = SmallFile(0);
        for (const int16_t x : row.before)
            file.nodes.push_back(Node{int16_t(-x), 1, x, 0});
        Open(file);
        host.messages.clear();
        host.answers.assign(row.answers.begin(), row.answers.end());
        Find<QLineEdit>("txt_5_scale").setText(row.percent);
        Click("cmd_5_scale");
        std::vector<int16_t> xs;
        for (int n = 0; n < CurrentModel().Files[0].NumNodes; ++n)
            xs.push_back(NodeAt(n).X);
        EXPECT_EQ(xs, row.after);
        EXPECT_EQ(host.messages, row.message[0] == 0 ? std::vector<std::string>{}
                                                     : std::vector<std::string>{row.message});
    }
}

} // namespace
