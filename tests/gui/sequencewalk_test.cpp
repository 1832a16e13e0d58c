// The rendering sequence read back from the GL view: the order in which the tree of splitting
// planes paints three overlapping squares, and the message of a plane without a normal.
#include "currentmodel.h"
#include "drawscene.h"
#include "editorfixture.h"
#include "oglgraphics.h"
#include "orthocamera.h"
#include "viewsettings.h"

#include <QTest>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace {

constexpr int16_t kUnitNormal = 16384;
// Element 0 red, 1 green, 2 blue: the texels of a strip texture, one per element.
const std::vector<Rgb> kElementColours{{255, 0, 0}, {0, 255, 0}, {0, 0, 255}};
constexpr std::array<uint8_t, 3> kTexelMap{42, 127, 212};

// Three squares in the plane Y = 0 that overlap pairwise, element e in the colour of texel e:
// element 1 on the left, element 0 on the right, element 2 above both. Element 0 is the root with
// the children 1 and 2. Every plane faces +X.
TestFile ThreeElementTree() {
    TestFile file;
    const std::array<std::array<int16_t, 2>, 3> centres{{{5, 0}, {-5, 0}, {0, 8}}};
    for (size_t element = 0; element < centres.size(); ++element) {
        Piggyback square =
            Polygon(kTextured, file.AddSquare(centres[element][0], centres[element][1], 6));
        square.XMap.assign(square.XMap.size(), kTexelMap[element]);
        const int added = file.AddElement({square});
        file.record.NRM[static_cast<size_t>(added)].X = kUnitNormal;
    }
    file.record.Root = {0, kNoElement};
    file.record.PART[0] = {1, 2};
    file.record.PART[1] = {kNoElement, kNoElement};
    file.record.PART[2] = {kNoElement, kNoElement};
    return file;
}

// The Left view, close up: the squares face it. The walk looks along the last perspective
// camera's heading and pitch, whatever the view shows.
void ShowLeftView() {
    View().ViewMode = kLeftView;
    float zoom = 30.0f;
    float x = 0.0f;
    float y = 0.0f;
    SetOrtho(zoom, x, y);
}

} // namespace

TEST_F(EditorTest, TheTreeOrdersItsElementsByTheSideOfThePlaneTheEyeIsOn) {
    ASSERT_TRUE(OGL().MakeCurrent());
    struct Row {
        const char* what;
        NRMRecord plane;
        float heading, pitch;
        uint8_t root;
        std::vector<int> order; // elements in the order painted
    };
    // Planes as Y, Z, X and distance.
    const NRMRecord alongX{0, 0, kUnitNormal, 0};
    const NRMRecord farAlongX{0, 0, kUnitNormal, 5 * kUnitNormal};
    const NRMRecord upAtOne{0, kUnitNormal, 0, kUnitNormal};
    const Row rows[] = {
        {"eye in front", alongX, 0, 0, 0, {2, 0, 1}},
        {"eye behind", alongX, 180, 0, 0, {1, 0, 2}},
        // Looking straight down puts the eye at (0, 0, 1), on the plane z = 1.
        {"eye on the plane", upAtOne, 0, -90, 0, {1, 0, 2}},
        {"plane far from the eye", farAlongX, 0, 0, 0, {1, 0, 2}},
        {"no root", alongX, 0, 0, kNoElement, {}},
    };
    // Points where only two squares overlap, and the two elements painted there.
    struct Overlap {
        std::array<double, 3> at;
        int first, second;
    };
    const Overlap overlaps[] = {{{0, 0, -3}, 1, 0}, {{-4, 0, 4}, 1, 2}, {{4, 0, 4}, 0, 2}};

    TestFile file = ThreeElementTree();
    file.record.TextureID = StripTexture(kElementColours);
    InstallFamily({file.record});
    View().mnu_v_rs = true;
    ShowLeftView();
    for (const Row& row : rows) {
        model& current = CurrentModel();
        current.Files[0].NRM[0] = row.plane;
        current.Files[0].Root[0] = row.root;
        current.m_xrot = row.heading;
        current.m_yrot = row.pitch;
        const QImage frame = ReadFrame();
        for (const Overlap& overlap : overlaps) {
            const QPoint at = OnScreen(overlap.at[0], overlap.at[1], overlap.at[2]);
            const auto painted = [&](int element) {
                return std::find(row.order.begin(), row.order.end(), element) - row.order.begin();
            };
            const int later =
                painted(overlap.first) > painted(overlap.second) ? overlap.first : overlap.second;
            const Rgb expected =
                row.order.empty() ? kStartSky : kElementColours[static_cast<size_t>(later)];
            EXPECT_EQ(PixelAt(frame, at.x(), at.y()), expected)
                << row.what << ", squares " << overlap.first << " and " << overlap.second;
        }
    }
}

TEST_F(EditorTest, APlaneWithoutANormalIsReportedOnceUntilTheSceneChanges) {
    TestFile file = ThreeElementTree();
    for (NRMRecord& plane : file.record.NRM)
        plane = NRMRecord{};
    InstallFamily({file.record});
    View().mnu_v_rs = true;
    const std::vector<std::string> once{"Invalid Splitting Plane"};
    ASSERT_TRUE(WaitForFrames(3));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !host.messages.empty(); }));
    // An expose or a resize paints the same scene again and says nothing new.
    Window().resize(Window().width() - 40, Window().height() - 30);
    ASSERT_TRUE(WaitForFrames(3));
    EXPECT_EQ(host.messages, once);
    // The walk went on past the planes and painted the squares.
    ASSERT_TRUE(OGL().MakeCurrent());
    const QImage frame = ReadFrame();
    const QPoint over = OnScreen(4, 0, 4);
    EXPECT_EQ(PixelAt(frame, over.x(), over.y()), kWhite);

    // A change of the scene may say it again; turning the sequence off ends it.
    CurrentModel().m_zoom -= 10.0f;
    ASSERT_TRUE(WaitForFrames(2));
    ASSERT_TRUE(QTest::qWaitFor([&] { return host.messages.size() == 2; }));
    View().mnu_v_rs = false;
    ASSERT_TRUE(WaitForFrames(3));
    EXPECT_EQ(host.messages.size(), 2u);
}
