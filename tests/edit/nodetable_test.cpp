#include "editedmodel.h"
#include "nodetable.h"
#include "recordinghost.h"

#include <gtest/gtest.h>

namespace {

// Nodes 0 to 6 at distinct places; no corner names 0, 2 or 4.
MoxBuilder SparseNodes() {
    MoxBuilder b;
    for (int16_t n = 0; n < 7; ++n)
        b.nodes.push_back(Node{int16_t(10 * n), int16_t(-n), int16_t(100 + n), 0});
    b.streams = {StreamBytes().ColouredPoly({5, 3, 1}, 7).End().bytes,
                 StreamBytes().Line(3, 6, 9).Prefix(148, 1).Raw({0xFF}).bytes};
    return b;
}

} // namespace

TEST(NodeTable, RemoveNodesAsksThenZeroesOrCompactsKeepingEveryCornerInPlace) {
    struct Row {
        bool zero;
        MessageAnswer answer;
        uint8_t corner; // the third corner of piggyback 0
        const char* question;
        bool changes;
    };
    const char* remove =
        "question question [Delete Nodes?]: Do you want to delete all 3 unused nodes?";
    const char* zero =
        "question question [Zero Nodes?]: Do you want to set all 3 unused nodes to ZERO?";
    const MessageAnswer yes = MessageAnswer::Yes, no = MessageAnswer::No;
    const Row rows[] = {
        {false, yes, 1, remove, true},
        {false, no, 1, remove, false},
        {true, yes, 1, zero, true},
        {true, no, 1, zero, false},
        // A corner naming a node past the table leaves the file alone, without a question.
        {false, yes, 9, "", false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE("row " + std::to_string(&row - rows));
        RecordingHost host;
        host.answers = {row.answer};
        MoxBuilder b = SparseNodes();
        b.streams[0] = StreamBytes().ColouredPoly({5, 3, row.corner}, 7).End().bytes;
        model m = LoadedModel(b);
        const FileRecord before = m.Files[0];
        RemoveNodes(m, row.zero);
        EXPECT_EQ(host.calls, Shown(row.question));
        if (!row.changes) {
            EXPECT_EQ(SavedBytes(m.Files[0]), SavedBytes(before));
            continue;
        }
        const FileRecord after = ReadBack(m);
        EXPECT_EQ(after.NumNodes, row.zero ? 7 : 4);
        for (const int16_t number : {0, 100})
            EXPECT_EQ(CornerPositions(after, number), CornerPositions(before, number));
        if (row.zero) {
            EXPECT_EQ(after.Elements[0].Items[0].NodeList, before.Elements[0].Items[0].NodeList);
            EXPECT_EQ(after.Nodes[4].X, 0);
            EXPECT_EQ(after.Nodes[4].Z, 0);
        }
    }
}

TEST(NodeTable, AddNodeIsRefusedPastNode255) {
    RecordingHost host;
    MoxBuilder full;
    full.nodes.resize(256);
    full.streams = {StreamBytes().Hardpoint(25, 255).End().bytes};
    model limit = LoadedModel(full);
    AddNode(limit);
    EXPECT_EQ(limit.Files[0].NumNodes, 256);
    EXPECT_NE(host.messages.back().find("256 nodes"), std::string::npos);
}

TEST(NodeTable, MoveNodeStopsTheNodesTabSpinAtTheEndOfItsRange) {
    RecordingHost host;
    host.spins = {{"upd_4_y", 32760}};
    model m = LoadedModel(SparseNodes());
    MoveNode(m, 3, 30001, 100);
    EXPECT_EQ(host.spins["upd_4_y"], 32767);
}
