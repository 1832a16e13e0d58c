// The Nodes panel: the fill of the chosen node, its commits, and the node table's buttons.
#include "currentmodel.h"
#include "panelfixture.h"
#include "viewsettings.h"

namespace {

TEST_F(PanelTest, NodesFillShowsTheChosenNodeAndWritesNothing) {
    MoxBuilder file = SmallFile();
    file.nodes = {Node{1, 2, 3, 0}, Node{4, 5, -32768, 2}};
    model& current = Open(file);
    current.WriteInfo(kNodesTab);
    EXPECT_EQ(Text("txt_4_x"), "3");
    Spin("upd_4_node").setValue(1);
    EXPECT_EQ(current.m_currnode, 1);
    const QStringList shown = {Text("txt_4_node"), Text("txt_4_x"), Text("txt_4_y"),
                               Text("txt_4_b")};
    EXPECT_EQ(shown, QStringList({"1", "-32767", "4", "2"}));
    EXPECT_EQ(current.Files[0].Nodes[1].X, -32768);

    current.m_currnode = -1;
    Enter("txt_4_y", "77");
    current.WriteInfo(kNodesTab);
    EXPECT_EQ(std::make_pair(Text("txt_4_y"), current.Files[0].Nodes[1].Y),
              std::make_pair(QString("77"), int16_t{77}));
}

TEST_F(PanelTest, NodeTableButtonsShowTheTableTheyLeave) {
    // Node 1 is named by no corner.
    MoxBuilder file = SmallFile();
    file.nodes = {Node{1, 1, 1, 0}, Node{5, 6, 7, 1}};
    model& current = Open(file);
    Click("cmd_4_add");
    EXPECT_EQ(current.Files[0].NumNodes, 3);
    EXPECT_EQ(QStringList({Text("txt_4_node"), Text("txt_4_x"), Text("txt_4_b")}),
              QStringList({"2", "0", "0"}));

    host.answers = {MessageAnswer::Yes};
    Click("cmd_4_zero");
    EXPECT_EQ(host.messages.back(), "Do you want to set all 2 unused nodes to ZERO?");
    EXPECT_EQ(current.Files[0].Nodes[1].X, 0);

    host.answers = {MessageAnswer::Yes};
    Click("cmd_3_unused");
    EXPECT_EQ(host.messages.back(), "Do you want to delete all 2 unused nodes?");
    EXPECT_EQ(std::make_tuple(current.Files[0].NumNodes, Spin("upd_4_node").value(),
                              Spin("upd_4_node").maximum(), Text("txt_4_x")),
              std::make_tuple(int16_t{1}, 0, 0, QString("1")));
}

} // namespace
