#include "model.h"

#include <gtest/gtest.h>

namespace {

FileRecord FileWithNodes(std::vector<Node> nodes, std::vector<Part> parts = {}) {
    FileRecord file;
    file.NumNodes = static_cast<int16_t>(nodes.size());
    file.Nodes = std::move(nodes);
    file.Nodes.push_back(Node{});
    file.NumParts = static_cast<int16_t>(parts.size() + 1);
    file.Parts = std::move(parts);
    file.Parts.push_back(Part{});
    file.Loaded = true;
    return file;
}

model FamilyModel() {
    model m;
    m.M_Type = kMoxLoaded;
    m.Files.resize(kFileSlots);
    return m;
}

Part Pivot(int16_t y, int16_t z, int16_t x) {
    Part part;
    part.Y = y;
    part.Z = z;
    part.X = x;
    return part;
}

} // namespace

TEST(ModelMeasures, RangeAlwaysHoldsTheOrigin) {
    model m = FamilyModel();
    m.Files[0] = FileWithNodes({{10, 20, 30, 0}, {15, 25, 50, 0}});
    EXPECT_EQ(m.GetLength(true, 0), 0) << "all X positive: the smallest is still 0";
    EXPECT_EQ(m.GetLength(true, 1), 50);
    EXPECT_EQ(m.GetLength(true, 2), 50);
    EXPECT_EQ(m.GetSpan(true, 1), 15);
    EXPECT_EQ(m.GetHeight(true, 7), 25) << "any other result is the difference";
}

TEST(ModelMeasures, PartsAndHardpointsPlaceTheNodes) {
    model m = FamilyModel();
    // A node with B 2 belongs to Parts(1).
    m.Files[0] =
        FileWithNodes({{0, 0, 5, 2}, {0, 0, -3, 1}}, {Pivot(0, 0, 100), Pivot(-40, 7, 200)});
    m.Files[0].HP[3] = Node{1000, -500, 300, 0};
    m.Files[3] = FileWithNodes({{1, 2, 3, 0}});
    m.Files[3].HP[3] = Node{9, 9, 9, 0}; // a connected file's own hardpoints do not count
    EXPECT_EQ(m.GetLength(true, 1), 303);
    EXPECT_EQ(m.GetSpan(true, 0), -40);
    EXPECT_EQ(m.GetSpan(true, 1), 1001);
    EXPECT_EQ(m.GetHeight(true, 0), -498);

    // One file alone, still displaced by the main file's hardpoint for its slot.
    m.m_currmox = 3;
    EXPECT_EQ(m.GetLength(false, 0), 0);
    EXPECT_EQ(m.GetLength(false, 1), 303);
    EXPECT_EQ(m.GetSpan(false, 2), 1001);
    EXPECT_EQ(m.GetHeight(false, 0), -498);
    EXPECT_EQ(m.GetHeight(false, 1), 0);
}

TEST(ModelMeasures, NothingOpenMeasuresZero) {
    model empty;
    model moy;
    moy.M_Type = kMoyLoaded;
    for (const model* m : {&empty, &moy}) {
        for (int result = 0; result < 3; ++result) {
            EXPECT_EQ(m->GetSpan(true, result), 0);
            EXPECT_EQ(m->GetLength(false, result), 0);
            EXPECT_EQ(m->GetHeight(true, result), 0);
        }
    }
    model family = FamilyModel();
    family.m_currmox = 9; // no such file: nothing to measure
    family.Files[0] = FileWithNodes({{0, 0, 70, 0}});
    EXPECT_EQ(family.GetLength(false, 1), 0);
}

TEST(ModelMeasures, NodesOfNoPartAreLeftOutAndSumsStopAtTheLimits) {
    model m = FamilyModel();
    // B 2 with one part record, and a negative B: neither names a part.
    m.Files[0] =
        FileWithNodes({{0, 0, 9000, 2}, {0, 0, -9000, -1}, {0, 0, 10, 0}}, {Pivot(0, 0, 100)});
    EXPECT_EQ(m.GetLength(true, 0), 0);
    EXPECT_EQ(m.GetLength(true, 1), 10);

    // A node beyond the 16-bit range once its part and hardpoint are added counts at the limit,
    // and so does a difference beyond it.
    m.Files[0] = FileWithNodes({{0, 0, 30000, 1}, {0, 0, -30000, 0}}, {Pivot(0, 0, 30000)});
    m.Files[0].HP[1] = Node{0, 0, -20000, 0};
    m.Files[1] = FileWithNodes({{0, 0, -20000, 0}});
    EXPECT_EQ(m.GetLength(true, 1), 32767);
    EXPECT_EQ(m.GetLength(true, 0), -32768);
    EXPECT_EQ(m.GetLength(true, 2), 32767);
}
