#include "cornerlist.h"
#include "deleteelement.h"
#include "duplicateelement.h"
#include "editedmodel.h"
#include "kindandmove.h"
#include "piggybacknumber.h"
#include "recordinghost.h"

#include <gtest/gtest.h>

#include <functional>
#include <tuple>

namespace {

constexpr const char* kPints =
    "Cannot Delete Any More Pints.  Hmm. Pints.  Beer.  No wonder this thing never gets finished!";

const Piggyback& At(const model& m, int16_t number) {
    return *FindPiggyback(m.Files[0], number);
}

std::vector<uint8_t> Corners(const std::vector<uint8_t>& list, int crn) {
    return {list.begin(), list.begin() + std::min<size_t>(crn, list.size())};
}

} // namespace

TEST(ElementEdit, CornerAndKindOperationsKeepTheListsInStepWithinTheirLimits) {
    using Operation = std::function<void(model&)>;
    const auto remove = [](int16_t k) -> Operation {
        return [k](model& m) { DeleteNodeFromElement(m, k); };
    };
    const auto swap = [](int16_t a, int16_t b) -> Operation {
        return [a, b](model& m) { SwapNodes(m, a, b); };
    };
    const Operation add = [](model& m) { AddNodeToElement(m); };
    const char* noCorner = "This piggyback has no corner to delete.";
    const char* full =
        "This piggyback already has 255 corners, the most one can hold. No corner was added.";
    const auto kinds = [](std::vector<int16_t> indexes) -> Operation {
        return [indexes](model& m) {
            for (const int16_t index : indexes)
                ChangeType(m, index);
        };
    };
    struct Row {
        int16_t number;
        Operation operation;
        uint8_t type;
        std::vector<uint8_t> nodes, xMap;
        const char* message;
    };
    // The piggyback, the operation, its kind, corners' nodes and X maps afterwards, the message.
    const Row rows[] = {
        {0, remove(0), 3, {0, 1, 2}, {}, kPints}, // a triangle keeps its three corners
        {1, remove(1), 4, {0, 2, 3}, {10, 12, 13}, ""},
        {1, remove(4), 4, {0, 1, 2, 3}, {10, 11, 12, 13}, ""},
        {100, remove(0), 255, {}, {}, noCorner},
        {1, add, 4, {0, 1, 2, 3, 0}, {10, 11, 12, 13, 0}, ""},
        {300, add, 3, std::vector<uint8_t>(255, 1), {}, full},
        {1, swap(3, 0), 4, {3, 1, 2, 0}, {13, 11, 12, 10}, ""},
        {1, swap(3, 4), 4, {0, 1, 2, 3}, {10, 11, 12, 13}, ""},
        // A line keeps two corners; as a polygon again it has three, their maps as they were.
        {2, kinds({0}), 1, {0, 1}, {1, 3}, ""},
        {2, kinds({0, 4}), 5, {0, 1, 2}, {1, 3, 5}, ""},
        // Colours become the X map and stay through NULL, past the last kind; no kind changes
        // nothing.
        {1, kinds({4, 9, -1}), 255, {0, 1, 2, 3}, {10, 11, 12, 13}, ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE("row " + std::to_string(&row - rows));
        RecordingHost host;
        model m = LoadedModel(EditedElements());
        m.m_currelem = row.number;
        row.operation(m);
        const Piggyback& item = At(m, row.number);
        EXPECT_EQ(item.Type, row.type);
        EXPECT_EQ(Corners(item.NodeList, item.CRN), row.nodes);
        if (!row.xMap.empty()) {
            EXPECT_EQ(Corners(item.XMap, item.CRN), row.xMap);
        }
        EXPECT_EQ(host.messages, Shown(row.message));
    }
}

TEST(ElementEdit, DeleteElementRenumbersEveryRootAndPartByte) {
    struct Row {
        int elements;
        ChildPair root;
        std::vector<ChildPair> children;
        int16_t number;
        ChildPair rootAfter;
        std::vector<ChildPair> childrenAfter;
    };
    const ChildPair none{255, 255};
    const Row rows[] = {
        {2, {0, 255}, {{1, 255}, none}, 0, none, {none}},
        {6, {5, 255}, {}, 201, {4, 255}, {none, none, none, none, none}},
        {2, {1, 0}, {none, none}, 5, {0, 255}, {none}},
        {4, {0, 0}, {{1, 2}, {3, 255}, {0, 3}, {255, 1}}, 100, {0, 0}, {{255, 1}, {0, 2}, none}},
        {1, {0, 255}, {none}, 0, {0, 255}, {none}},
    };
    for (const Row& row : rows) {
        RecordingHost host;
        MoxBuilder b;
        b.nodes.resize(1);
        b.streams.assign(row.elements, StreamBytes().Hardpoint(25, 0).Hardpoint(26, 0).End().bytes);
        b.root = row.root;
        b.children = row.children;
        model m = LoadedModel(b);
        Delete_Element(m, row.number);
        const FileRecord after = ReadBack(m);
        EXPECT_EQ(after.Root, row.rootAfter) << row.number;
        EXPECT_EQ(std::vector<ChildPair>(after.PART.begin(), after.PART.end() - 1),
                  row.childrenAfter);
        for (int e = 0; e < m.Files[0].NumElements; ++e)
            EXPECT_EQ(m.Files[0].Elements[e].Items[1].Number, MakeNumber(e, 1));
    }
}

TEST(ElementEdit, DeletingTheLastOneMovesTheSelectionBack) {
    RecordingHost host;
    model m = LoadedModel(EditedElements());
    host.spins["upd_3_elem"] = 2;
    m.m_currelem = 200;
    Delete_Piggyback(m, m.m_currelem);
    EXPECT_EQ(m.m_currelem, 200) << "position 0 stays selected";
    EXPECT_EQ(At(m, 200).Type, 1) << "the line moved up";
    EXPECT_EQ(At(m, 201).Number, 201);
    m.m_currelem = 201;
    Delete_Piggyback(m, m.m_currelem);
    EXPECT_EQ(m.m_currelem, 200);
    EXPECT_EQ(host.spins["upd_3_pb"], 0);

    m.m_currelem = 300;
    const size_t mark = host.calls.size();
    Delete_Element(m, m.m_currelem);
    EXPECT_EQ(m.m_currelem, 200);
    EXPECT_EQ(host.CallsWithoutEvents(mark),
              (std::vector<std::string>{"spin upd_3_pb: 0", "spin upd_3_elem: 2"}));
}

TEST(ElementEdit, DuplicatesGoLastWithoutDisplayCodeAndStopAtTheNumberLimits) {
    RecordingHost host;
    model m = LoadedModel(EditedElements());
    const std::vector<uint8_t> before = SavedBytes(m.Files[0]);
    Duplicate_Element(m, true, 100);
    EXPECT_EQ(m.Files[0].Elements[1].Count, 2);
    EXPECT_EQ(SavedBytes(m.Files[0]), before) << "a NULL copy is never saved";

    Duplicate_Element(m, true, 200);
    Duplicate_Element(m, false, 200);
    const FileRecord after = ReadBack(m);
    EXPECT_EQ(after.Elements[2].Items[3].COD, 0);
    EXPECT_EQ(CornerPositions(after, 203), CornerPositions(after, 200));
    EXPECT_EQ(after.NumElements, 5);
    EXPECT_EQ(CornerPositions(after, 400), CornerPositions(after, 200));
    EXPECT_EQ(std::tuple(after.NRM[4].X, after.NRM[4].Y, after.PART[4]),
              std::tuple(0, 16384, ChildPair{0, 0}));

    MoxBuilder full;
    full.nodes.resize(1);
    full.streams.assign(255, StreamBytes().Hardpoint(25, 0).End().bytes);
    StreamBytes hundred;
    for (int j = 0; j < 100; ++j)
        hundred.Hardpoint(25, 0);
    full.streams[0] = hundred.End().bytes;
    model limit = LoadedModel(full);
    const std::vector<uint8_t> limitBefore = SavedBytes(limit.Files[0]);
    Duplicate_Element(limit, true, 5);
    Duplicate_Element(limit, false, 5);
    EXPECT_EQ(SavedBytes(limit.Files[0]), limitBefore);
    EXPECT_EQ(host.messages.size(), 2u);
}

TEST(ElementEdit, MoveElementMovesPerCornerAndShortensAMoveThatWouldOverflow) {
    struct Row {
        int32_t axis;
        int16_t dist;
        int16_t node0X, node1X;
    };
    // Node 0 stands at X 32000 and is named twice, node 1 at X 100 once.
    const Row rows[] = {{30000, 10, 32020, 110},
                        {30000, 1000, 32766, 483},
                        {30000, -10, 31980, 90},
                        {30003, 10, 32000, 100}};
    for (const Row& row : rows) {
        MoxBuilder b;
        b.nodes = {Node{0, 0, 32000, 0}, Node{0, 0, 100, 0}};
        b.streams = {StreamBytes().ColouredPoly({0, 1, 0}, 7).End().bytes};
        model m = LoadedModel(b);
        MoveElement(m, 0, row.axis, row.dist);
        EXPECT_EQ(m.Files[0].Nodes[0].X, row.node0X) << row.dist;
        EXPECT_EQ(m.Files[0].Nodes[1].X, row.node1X) << row.dist;
    }
}
