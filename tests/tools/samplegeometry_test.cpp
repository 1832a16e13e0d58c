// The sample's models as the editor and the simulator see them: the tree of splitting planes,
// the planes and front sides of the polygons, the element kinds and display states, the movable
// parts, and where the roundel's map values point in the texture.
#include "elementkind.h"
#include "pcxreader.h"
#include "samplefixture.h"
#include "samplepalette.h"

#include <cmath>
#include <functional>
#include <set>

namespace {

// Whole-unit corners of a flat polygon lie this close to its element's plane.
constexpr double kPlaneTolerance = 0.75;
constexpr double kNormalOne = 16384;

Vec3 NormalOf(const NRMRecord& plane) {
    return {double(plane.X), double(plane.Y), double(plane.Z)};
}

// Signed distance in model units, positive on the side the normal points to.
double Side(const NRMRecord& plane, Vec3 point) {
    return (Dot(NormalOf(plane), point) - plane.D) / Length(NormalOf(plane));
}

// The normal from which the corners are seen running clockwise (the polygon's front), from the
// cross products of its fan of triangles.
Vec3 ClockwiseNormal(const std::vector<Vec3>& corners) {
    Vec3 sum;
    for (std::size_t i = 1; i + 1 < corners.size(); ++i)
        sum = sum + Cross(corners[i + 1] - corners[0], corners[i] - corners[0]);
    return sum;
}

bool IsPolygon(const Piggyback& item) {
    return item.Type >= kTypeColouredPoly && item.Type != kTypeNull;
}

std::vector<Vec3> ElementPolygonCorners(const FileRecord& record, int element) {
    std::vector<Vec3> corners;
    const ElementList& list = record.Elements[element];
    for (int j = 0; j < list.Count; ++j) {
        if (IsPolygon(list.Items[j])) {
            const std::vector<Vec3> more = PlacedCorners(record, list.Items[j]);
            corners.insert(corners.end(), more.begin(), more.end());
        }
    }
    return corners;
}

class SampleGeometry : public SampleFixture {
protected:
    static std::vector<std::string> AllFiles() {
        std::vector<std::string> names;
        for (const auto& [name, model] : Models())
            names.push_back(name);
        return names;
    }
};

} // namespace

TEST_F(SampleGeometry, TheTreeReachesEveryElementOnceAndSplitsItByPlanes) {
    for (const std::string& name : AllFiles()) {
        SCOPED_TRACE(name);
        const FileRecord& record = Model(name);
        ASSERT_GT(record.NumElements, 0);
        EXPECT_LE(record.NumElements, 255);
        EXPECT_LE(record.NumNodes, 256);
        EXPECT_LE(record.Offsets[record.NumElements - 1], kMaxStreamOffset);
        std::vector<int> visits(record.NumElements, 0);
        // Every element lies in front of the plane of each ancestor whose PART(0) subtree holds
        // it, and not in front of those whose PART(1) subtree holds it.
        std::function<void(int, std::vector<std::pair<int, int>>&)> under =
            [&](int element, std::vector<std::pair<int, int>>& ancestors) {
                if (element == kNoElement || element >= record.NumElements)
                    return;
                const Vec3 centre = Centroid(ElementPolygonCorners(record, element));
                for (const auto& [ancestor, side] : ancestors) {
                    const double distance = Side(record.NRM[ancestor], centre);
                    EXPECT_TRUE(side > 0 ? distance > 0 : distance < kPlaneTolerance)
                        << "element " << element << " on the wrong side of " << ancestor;
                }
                ancestors.push_back({element, 1});
                under(record.PART[element][0], ancestors);
                ancestors.back().second = -1;
                under(record.PART[element][1], ancestors);
                ancestors.pop_back();
            };
        std::vector<std::pair<int, int>> ancestors;
        under(record.Root[0], ancestors);
        std::function<void(int)> count = [&](int element) {
            if (element == kNoElement)
                return;
            ASSERT_LT(element, record.NumElements);
            ASSERT_EQ(++visits[element], 1) << "element " << element << " reached twice";
            count(record.PART[element][0]);
            count(record.PART[element][1]);
        };
        count(record.Root[0]);
        for (int e = 0; e < record.NumElements; ++e)
            EXPECT_EQ(visits[e], 1) << "element " << e << " not reached from Root";
    }
}

TEST_F(SampleGeometry, EveryPolygonLiesOnItsElementsPlaneWhichFacesItsFront) {
    for (const std::string& name : AllFiles()) {
        SCOPED_TRACE(name);
        const FileRecord& record = Model(name);
        for (int e = 0; e < record.NumElements; ++e) {
            const NRMRecord& plane = record.NRM[e];
            EXPECT_NEAR(Length(NormalOf(plane)), kNormalOne, 2) << "element " << e;
            const ElementList& list = record.Elements[e];
            for (int j = 0; j < list.Count; ++j) {
                const Piggyback& item = list.Items[j];
                if (!IsPolygon(item))
                    continue;
                const std::vector<Vec3> corners = PlacedCorners(record, item);
                ASSERT_GE(corners.size(), 3u);
                for (const Vec3& corner : corners)
                    EXPECT_LT(std::abs(Side(plane, corner)), kPlaneTolerance)
                        << "piggyback " << item.Number;
                const Vec3 front = Normalised(ClockwiseNormal(corners));
                EXPECT_GT(Dot(front, Normalised(NormalOf(plane))), 0.99)
                    << "piggyback " << item.Number << " faces away from its plane's normal";
            }
        }
    }
}

TEST_F(SampleGeometry, TheFighterShowsEveryKindAndEveryStateOfGearPilotAndWing) {
    std::set<int> kinds;
    std::map<std::string, std::set<std::pair<int, int>>> states; // file: (COD, Flag)
    int weapons = 0;
    for (const SampleFile& file : Fighter()) {
        const FileRecord& record = Model(file.name);
        for (int e = 0; e < record.NumElements; ++e) {
            for (int j = 0; j < record.Elements[e].Count; ++j) {
                const Piggyback& item = record.Elements[e].Items[j];
                kinds.insert(item.Type);
                if (item.COD != 0)
                    states[file.name].insert({item.COD, item.Flag});
                const std::set<int> slotCodes{25, 26, 27, 28, 29, 10};
                weapons += item.Type == kTypeHardpoint && slotCodes.count(item.Att1) == 0;
            }
        }
    }
    EXPECT_EQ(kinds, std::set<int>({1, 2, 3, 4, 5, 6}));
    EXPECT_GE(weapons, 3) << "guns in the wings and a bomb rack";
    using States = std::set<std::pair<int, int>>;
    // Tail wheel down and up, the pilot alive, dead and bailed out in the main file.
    EXPECT_EQ(states["PDEMOF.MOX"], States({{145, 0}, {145, 1}, {146, 0}, {146, 1}, {146, 2}}));
    // Each wing: its gear up and down, its outer panel whole and torn.
    EXPECT_EQ(states["PDEMOE.MOX"], States({{149, 0}, {149, 1}, {152, 0}, {152, 1}}));
    EXPECT_EQ(states["PDEMOG.MOX"], States({{148, 0}, {148, 1}, {151, 0}, {151, 1}}));
    EXPECT_EQ(states["PDEMOC.MOX"], States({{153, 0}}));
}

TEST_F(SampleGeometry, MovablePartsHaveTheirPivotsAndTheirNodes) {
    const std::map<std::string, int> parts = {
        {"PDEMOF.MOX", 4}, {"PDEMOE.MOX", 2}, {"PDEMOG.MOX", 2}, {"PDEMOC.MOX", 1}};
    for (const auto& [name, count] : parts) {
        SCOPED_TRACE(name);
        const FileRecord& record = Model(name);
        EXPECT_EQ(record.NumParts, count);
        std::vector<int> nodes(count, 0);
        for (int n = 0; n < record.NumNodes; ++n) {
            const int body = record.Nodes[n].B;
            ASSERT_GE(body, 0);
            ASSERT_LT(body, count);
            ++nodes[body];
        }
        for (int body = 1; body < count; ++body) {
            const Part& part = record.Parts[body - 1];
            EXPECT_GT(nodes[body], 0) << "part " << body << " moves no node";
            EXPECT_LE(part.Code, 2);
            EXPECT_LE(part.Num, 7);
            EXPECT_TRUE(part.X != 0 || part.Y != 0 || part.Z != 0) << "part " << body;
        }
    }
    // Propeller (roll), elevators (pitch) and rudder (heading) in the main file; an aileron
    // (pitch) in each wing.
    const FileRecord& main = Model("PDEMOF.MOX");
    EXPECT_EQ(main.Parts[0].Code, 2);
    EXPECT_EQ(main.Parts[1].Code, 1);
    EXPECT_EQ(main.Parts[2].Code, 0);
    EXPECT_EQ(Model("PDEMOE.MOX").Parts[0].Code, 1);
    EXPECT_EQ(Model("PDEMOG.MOX").Parts[0].Y, -Model("PDEMOE.MOX").Parts[0].Y);
}

TEST_F(SampleGeometry, TheRoundelsCornersPickRoundelColoursFromTheTexture) {
    const PcxResult texture = ReadPcx(PathOf("PDEMO.PCX"));
    ASSERT_TRUE(texture.picture.has_value());
    const PcxImage& image = *texture.picture;
    const Palette palette = SamplePalette();
    auto colourAt = [&](uint8_t xmap, uint8_t ymap) {
        // Where GL samples map values: x / 255 across, y / 255 down from the top of the image.
        const int col = std::min(image.width - 1, int(xmap / 255.0 * image.width));
        const int row = std::min(image.height - 1, int(ymap / 255.0 * image.height));
        const std::size_t at = (std::size_t(row) * image.width + col) * 3;
        return Rgb{image.rgb[at], image.rgb[at + 1], image.rgb[at + 2]};
    };
    auto isRoundel = [&](Rgb colour) {
        for (PaintColour roundel : {kRoundelBlue, kRoundelRed}) {
            const Rgb want = palette[roundel];
            if (colour.red == want.red && colour.green == want.green && colour.blue == want.blue)
                return true;
        }
        return false;
    };
    for (const std::string name : {"PDEMOE.MOX", "PDEMOG.MOX"}) {
        SCOPED_TRACE(name);
        const FileRecord& record = Model(name);
        int roundels = 0;
        for (int e = 0; e < record.NumElements; ++e) {
            // The roundel is the octagon on the upper face of the wing.
            if (record.NRM[e].Z < 0.9 * kNormalOne)
                continue;
            for (int j = 0; j < record.Elements[e].Count; ++j) {
                const Piggyback& item = record.Elements[e].Items[j];
                if (item.Type != kTypeTexturedPoly || item.CRN != 8)
                    continue;
                ++roundels;
                for (int c = 0; c < item.CRN; ++c)
                    EXPECT_TRUE(isRoundel(colourAt(item.XMap[c], item.YMap[c])))
                        << "corner " << c << " maps to " << int(item.XMap[c]) << ", "
                        << int(item.YMap[c]);
                // Its middle is the red centre.
                int x = 0;
                int y = 0;
                for (int c = 0; c < item.CRN; ++c) {
                    x += item.XMap[c];
                    y += item.YMap[c];
                }
                const Rgb centre = colourAt(uint8_t(x / item.CRN), uint8_t(y / item.CRN));
                EXPECT_EQ(centre.red, palette[kRoundelRed].red);
            }
        }
        EXPECT_EQ(roundels, 1);
    }
}
