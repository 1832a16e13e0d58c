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

// GetSpan, GetLength and GetHeight of `m` for the results 0, 1 and 2: the smallest, the largest
// and their difference.
std::string Measures(const model& m, bool all) {
    std::string text;
    for (int result = 0; result < 3; ++result)
        text += std::to_string(m.GetSpan(all, result)) + "," +
                std::to_string(m.GetLength(all, result)) + "," +
                std::to_string(m.GetHeight(all, result)) + " ";
    return text;
}

} // namespace

TEST(ModelMeasures, RangeAlwaysHoldsTheOriginAndNothingOpenMeasuresZero) {
    model m = FamilyModel();
    m.Files[0] = FileWithNodes({{10, 20, 30, 0}, {15, 25, 50, 0}});
    EXPECT_EQ(Measures(m, true), "0,0,0 15,50,25 15,50,25 ");
    EXPECT_EQ(m.GetHeight(true, 7), 25) << "any other result is the difference";

    m.m_currmox = 9; // no such file: nothing to measure
    model empty;
    model moy;
    moy.M_Type = kMoyLoaded;
    for (const model* nothing : {&m, &empty, &moy})
        EXPECT_EQ(Measures(*nothing, false), "0,0,0 0,0,0 0,0,0 ");
    EXPECT_EQ(Measures(empty, true), "0,0,0 0,0,0 0,0,0 ");
}

TEST(ModelMeasures, PartsAndHardpointsPlaceTheNodes) {
    model m = FamilyModel();
    // A node with B 2 belongs to Parts(1).
    m.Files[0] = FileWithNodes({{0, 0, 5, 2}, {0, 0, -3, 1}},
                               {Part{0, 0, 0, 0, 100}, Part{0, 0, -40, 7, 200}});
    m.Files[0].HP[3] = Node{1000, -500, 300, 0};
    m.Files[3] = FileWithNodes({{1, 2, 3, 0}});
    m.Files[3].HP[3] = Node{9, 9, 9, 0}; // a connected file's own hardpoints do not count
    EXPECT_EQ(Measures(m, true), "-40,0,-498 1001,303,7 1041,303,505 ");

    // One file alone, still displaced by the main file's hardpoint for its slot.
    m.m_currmox = 3;
    EXPECT_EQ(Measures(m, false), "0,0,-498 1001,303,0 1001,303,498 ");
}

TEST(ModelMeasures, NodesOfNoPartAreLeftOutAndSumsStopAtTheLimits) {
    model m = FamilyModel();
    // B 2 with one part record, and a negative B: neither names a part.
    m.Files[0] =
        FileWithNodes({{0, 0, 9000, 2}, {0, 0, -9000, -1}, {0, 0, 10, 0}}, {Part{0, 0, 0, 0, 100}});
    EXPECT_EQ(Measures(m, true), "0,0,0 0,10,0 0,10,0 ");

    // A node beyond the 16-bit range once its part and hardpoint are added counts at the limit,
    // and so does a difference beyond it.
    m.Files[0] = FileWithNodes({{0, 0, 30000, 1}, {0, 0, -30000, 0}}, {Part{0, 0, 0, 0, 30000}});
    m.Files[0].HP[1] = Node{0, 0, -20000, 0};
    m.Files[1] = FileWithNodes({{0, 0, -20000, 0}});
    EXPECT_EQ(Measures(m, true), "0,-32768,0 0,32767,0 0,32767,0 ");
}
