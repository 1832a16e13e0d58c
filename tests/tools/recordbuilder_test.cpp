// The generator's record builder: what it makes of faces, parts, hardpoints and lines, and what
// it refuses because a model file cannot hold it.
#include "elementkind.h"
#include "facemaker.h"
#include "recordbuilder.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr TextureSize kTexture{256, 256};

// A square of side 2 in the plane through `centre` across `u` and `v`.
std::vector<Vec3> Square(Vec3 centre, Vec3 u, Vec3 v) {
    return {centre - u - v, centre + u - v, centre + u + v, centre - u + v};
}

Face Plain(const std::vector<Vec3>& corners, int body = 0) {
    return PlainFace(corners, {10, 20}, kTexture, Style(kTypeTexturedPoly), body);
}

} // namespace

TEST(RecordBuilder, TurnsFacesOutwardSharesNodesAndGroupsCoplanarFacesOfOneBody) {
    RecordBuilder builder("CUBE.TPC");
    const Vec3 axes[] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    // A cube of side 2 about (10, 20, 30), every face given in the same winding whatever side
    // it is on: the builder turns those that look inward.
    const Vec3 centre{10, 20, 30};
    for (int a = 0; a < 3; ++a) {
        const Vec3 n = axes[a];
        const Vec3 u = axes[(a + 1) % 3];
        const Vec3 v = axes[(a + 2) % 3];
        builder.AddFace(Plain(Square(centre + n, u, v)), n);
        builder.AddFace(Plain(Square(centre - n, u, v)), -n);
    }
    // A second square in the plane of the top face joins its element; the same square on a
    // movable part gets an element of its own, and its nodes are counted from the pivot.
    builder.AddFace(Plain(Square(centre + Vec3{5, 0, 1}, {1, 0, 0}, {0, 1, 0})), {0, 0, 1});
    const int body = builder.AddPart(1, 4, {15, 20, 31});
    builder.AddFace(Plain(Square(centre + Vec3{5, 0, 1}, {1, 0, 0}, {0, 1, 0}), body), {0, 0, 1});

    FileRecord record;
    std::string problem;
    ASSERT_TRUE(builder.Build(record, problem)) << problem;
    EXPECT_EQ(std::string(record.Texture.begin(), record.Texture.begin() + 8), "CUBE.TPC");
    EXPECT_EQ(record.Texture[8], 0);
    EXPECT_EQ(record.NumElements, 7);
    EXPECT_EQ(record.NumParts, 2);
    EXPECT_EQ(record.NumNodes, 8 + 4 + 4);
    for (int e = 0; e < record.NumElements; ++e) {
        const NRMRecord& plane = record.NRM[e];
        const ElementList& list = record.Elements[e];
        // Seen from outside, the stored corners run clockwise: the cross product of the first
        // two edges points inward.
        const Piggyback& item = list.Items[0];
        auto at = [&](int corner) {
            const Node& node = record.Nodes[item.NodeList[corner]];
            Vec3 p{double(node.X), double(node.Y), double(node.Z)};
            if (node.B > 0)
                p = p + Vec3{double(record.Parts[0].X), double(record.Parts[0].Y),
                             double(record.Parts[0].Z)};
            return p;
        };
        const Vec3 normal{double(plane.X), double(plane.Y), double(plane.Z)};
        EXPECT_LT(Dot(Cross(at(1) - at(0), at(2) - at(1)), normal), 0) << "element " << e;
        EXPECT_DOUBLE_EQ(Length(normal), 16384);
        EXPECT_EQ(Dot(normal, at(0)), plane.D) << "element " << e;
        for (int j = 0; j < list.Count; ++j)
            EXPECT_EQ(list.Items[j].Number, e * 100 + j);
        EXPECT_EQ(list.Items[list.Count - 1].NextByte, 255);
    }
    int topFaces = 0;
    for (int e = 0; e < record.NumElements; ++e)
        topFaces += record.NRM[e].Z == 16384 && record.Elements[e].Count == 2;
    EXPECT_EQ(topFaces, 1);
    const Node& moving = record.Nodes[record.NumNodes - 1];
    EXPECT_EQ(moving.B, 1);
    EXPECT_LE(std::abs(moving.X) + std::abs(moving.Y) + std::abs(moving.Z), 2)
        << "a part's node lies next to its pivot";
}

TEST(RecordBuilder, HardpointsFillTheirSlotsAndLinesJoinTheNearestPlane) {
    RecordBuilder builder("T.TPC");
    builder.AddFace(Plain(Square({0, 0, 0}, {1, 0, 0}, {0, 1, 0})), {0, 0, 1});
    builder.AddFace(Plain(Square({0, 0, 50}, {1, 0, 0}, {0, 1, 0})), {0, 0, 1});
    builder.AddHardpoint({3, 4, 49}, 28);
    builder.AddHardpoint({7, 8, 1}, 1);
    builder.AddLine({0, 0, 50}, {1, 1, 50}, 9);
    FileRecord record;
    std::string problem;
    ASSERT_TRUE(builder.Build(record, problem)) << problem;
    EXPECT_EQ(record.HP[4].X, 3);
    EXPECT_EQ(record.HP[4].Y, 4);
    EXPECT_EQ(record.HP[4].Z, 49);
    for (int slot : {0, 1, 2, 3, 5, 6})
        EXPECT_EQ(record.HP[slot].Z, 0) << "code 1 fills no slot";
    for (int e = 0; e < record.NumElements; ++e) {
        const ElementList& list = record.Elements[e];
        const bool high = record.NRM[e].D > 0;
        EXPECT_EQ(list.Count, high ? 3 : 2);
        EXPECT_EQ(list.Items[1].Type, kTypeHardpoint);
        EXPECT_EQ(list.Items[1].Att1, high ? 28 : 1);
        if (high) {
            EXPECT_EQ(list.Items[2].Type, kTypeColouredLine);
            EXPECT_EQ(list.Items[2].CRN, 2);
        }
    }
}

TEST(RecordBuilder, RefusesWhatAModelFileCannotHold) {
    FileRecord record;
    std::string problem;

    RecordBuilder tooManyNodes("T.TPC");
    for (int i = 0; i < 86; ++i)
        tooManyNodes.AddFace(Plain({{double(3 * i), 0, 0}, {3.0 * i + 1, 0, 0}, {3.0 * i, 1, 0}}),
                             {0, 0, 1});
    EXPECT_FALSE(tooManyNodes.Build(record, problem));
    EXPECT_NE(problem.find("256 nodes"), std::string::npos) << problem;

    RecordBuilder tooManyElements("T.TPC");
    for (int i = 0; i < 256; ++i)
        tooManyElements.AddFace(Plain(Square({0, 0, double(i)}, {1, 0, 0}, {0, 1, 0})), {0, 0, 1});
    EXPECT_FALSE(tooManyElements.Build(record, problem));
    EXPECT_NE(problem.find("elements"), std::string::npos) << problem;

    RecordBuilder farAway("T.TPC");
    farAway.AddFace(Plain(Square({40000, 0, 0}, {1, 0, 0}, {0, 1, 0})), {0, 0, 1});
    EXPECT_FALSE(farAway.Build(record, problem));
    EXPECT_NE(problem.find("16-bit"), std::string::npos) << problem;
}
