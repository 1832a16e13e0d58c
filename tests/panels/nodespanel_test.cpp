// The Nodes panel: the fill of the chosen node, its commits, and the move of a node through its
// spins.
#include "currentmodel.h"
#include "nodetable.h"
#include "panelfixture.h"
#include "viewsettings.h"

#include <QPushButton>
#include <QSpinBox>

namespace {

MoxBuilder FileWithNodes(const std::vector<Node>& nodes) {
    MoxBuilder file;
    file.nodes = nodes;
    file.root = {0, kNoElement};
    file.streams = {StreamBytes().Hardpoint(27, 0).End().bytes};
    return file;
}

TEST_F(PanelTest, NodesFillShowsTheChosenNodeAndWritesNothing) {
    model& current = Open(FileWithNodes({Node{1, 2, 3, 0}, Node{4, 5, -32768, 2}}));
    current.WriteInfo(kNodesTab);
    EXPECT_EQ(Text("txt_4_x"), "3");
    Find<QSpinBox>("upd_4_node").setValue(1);
    EXPECT_EQ(current.m_currnode, 1);
    EXPECT_EQ(Text("txt_4_node"), "1");
    EXPECT_EQ(Text("txt_4_x"), "-32767");
    EXPECT_EQ(Text("txt_4_y"), "4");
    EXPECT_EQ(Text("txt_4_b"), "2");
    EXPECT_EQ(current.Files[0].Nodes[1].X, -32768);

    current.m_currnode = -1;
    Enter("txt_4_y", "77");
    current.WriteInfo(kNodesTab);
    EXPECT_EQ(Text("txt_4_y"), "77");
    EXPECT_EQ(current.Files[0].Nodes[1].Y, 77);
}

TEST_F(PanelTest, MoveNodeStepsTheShownNodeInsideTheSpinRange) {
    model& current = Open(FileWithNodes({Node{0, 0, 0, 0}, Node{10, 20, 32760, 0}}));
    Find<QSpinBox>("upd_4_node").setValue(1);
    MoveNode(current, 0, kAxisY, -25);
    MoveNode(current, 0, kAxisX, 100);
    const Node& moved = current.Files[0].Nodes[1];
    EXPECT_EQ(moved.Y, -15);
    EXPECT_EQ(moved.X, 32767);
    EXPECT_EQ(Text("txt_4_x"), "32767");
    EXPECT_EQ(current.Files[0].Nodes[0].X, 0);
}

TEST_F(PanelTest, NodeTableButtonsShowTheTableTheyLeave) {
    // Node 1 is named by no corner.
    model& current = Open(FileWithNodes({Node{1, 1, 1, 0}, Node{5, 6, 7, 1}}));
    Find<QPushButton>("cmd_4_add").click();
    EXPECT_EQ(current.Files[0].NumNodes, 3);
    EXPECT_EQ(Text("txt_4_node"), "2");
    EXPECT_EQ(Text("txt_4_x"), "0");
    EXPECT_EQ(Text("txt_4_b"), "0");

    host.answers = {MessageAnswer::Yes};
    Find<QPushButton>("cmd_4_zero").click();
    EXPECT_EQ(host.messages.back(), "Do you want to set all 2 unused nodes to ZERO?");
    EXPECT_EQ(current.Files[0].Nodes[1].X, 0);

    host.answers = {MessageAnswer::Yes};
    Find<QPushButton>("cmd_3_unused").click();
    EXPECT_EQ(host.messages.back(), "Do you want to delete all 2 unused nodes?");
    EXPECT_EQ(current.Files[0].NumNodes, 1);
    EXPECT_EQ(Find<QSpinBox>("upd_4_node").value(), 0);
    EXPECT_EQ(Find<QSpinBox>("upd_4_node").maximum(), 0);
    EXPECT_EQ(Text("txt_4_x"), "1");
}

} // namespace
