// The painter of one file, read back from the GL view: nodes, polygons in their display states,
// hardpoints, outlines, the selection, the axis lines and damaged data.
#include "currentmodel.h"
#include "drawscene.h"
#include "editorfixture.h"
#include "elementkind.h"
#include "moxdraw.h"
#include "oglgraphics.h"
#include "programstate.h"
#include "viewsettings.h"

#include <GL/gl.h>

#include <functional>
#include <limits>
#include <tuple>

namespace {

constexpr int kColourTolerance = 6;

// The colour at the model point (x, 0, z), read as `expected` when it lies near enough to it.
Rgb Seen(const QImage& frame, double x, double z, const Rgb& expected) {
    const QPoint at = OnScreen(x, 0, z);
    const Rgb seen = PixelAt(frame, at.x(), at.y());
    return Near(seen, expected, kColourTolerance) ? expected : seen;
}

const Rgb kOrange{255, 128, 38};

// The run of pixels that are not sky through `centre`, along its row or along its column.
int RunThrough(const QImage& frame, const QPoint& centre, bool alongRow = true) {
    const QPoint step = alongRow ? QPoint(1, 0) : QPoint(0, 1);
    const auto notSky = [&](const QPoint& at) {
        return frame.rect().contains(at) &&
               !Near(PixelAt(frame, at.x(), at.y()), kStartSky, kColourTolerance);
    };
    int run = 1;
    for (QPoint at = centre - step; notSky(at); at -= step)
        ++run;
    for (QPoint at = centre + step; notSky(at); at += step)
        ++run;
    return run;
}

} // namespace

TEST_F(EditorTest, NodesAreSizedByTheLineWeightAndTheSelectedOneHasAxisLinesTenUnitsLong) {
    TestFile file;
    file.AddNode(-20, 0, 0);
    file.AddNode(20, 0, 0);
    InstallFamily({file.record});
    Program().LineWeight = 3;
    View().mnu_v_nodes = true;
    CurrentModel().m_currnode = 1;

    const QImage frame = ReadFrame();
    EXPECT_EQ(Seen(frame, -20, 0, kBlue), kBlue);
    EXPECT_EQ(Seen(frame, 20, 0, kOrange), kOrange);
    // (3 * 2 + 20) and 50 point units of one pixel each.
    EXPECT_NEAR(RunThrough(frame, OnScreen(-20, 0, 0)), 26, 1);
    EXPECT_NEAR(RunThrough(frame, OnScreen(20, 0, 0)), 50, 1);

    // Without the nodes nothing is left but sky.
    View().mnu_v_nodes = false;
    const QImage empty = ReadFrame();
    EXPECT_EQ(Seen(empty, -20, 0, kStartSky), kStartSky);
    EXPECT_EQ(Seen(empty, 20, 0, kStartSky), kStartSky);

    // In the Nodes tab the selected node carries its axis lines.
    View().CurrentTab = kNodesTab;
    for (float zoom : {-100.0f, -300.0f}) {
        CurrentModel().m_zoom = zoom;
        const QImage axes = ReadFrame();
        EXPECT_EQ((std::vector<Rgb>{Seen(axes, 29.5, 0, kRed), Seen(axes, 30.5, 0, kStartSky),
                                    Seen(axes, 20, 9.5, kBlue), Seen(axes, 20, 10.5, kStartSky)}),
                  (std::vector<Rgb>{kRed, kStartSky, kBlue, kStartSky}))
            << "zoom " << zoom;
    }
    // The X line is ticked, so it is 2 pixels wider than the line weight; Z is not.
    CurrentModel().m_zoom = -100.0f;
    const QImage axes = ReadFrame();
    EXPECT_EQ(RunThrough(axes, OnScreen(25, 0, 0), false), 5);
    EXPECT_EQ(RunThrough(axes, OnScreen(20, 0, 5)), 3);

    // The depth test goes off once when the rendering sequence is turned on, and on again.
    for (const bool sequence : {true, false}) {
        View().mnu_v_rs = sequence;
        ReadFrame();
        EXPECT_EQ(glIsEnabled(GL_DEPTH_TEST) == GL_TRUE, !sequence);
    }
}

TEST_F(EditorTest, OutlinesSelectionStateCodesAndCulling) {
    ASSERT_TRUE(OGL().MakeCurrent());
    TestFile file;
    file.record.TextureID = StripTexture({{200, 160, 40}});
    const auto front = file.AddSquare(-20, 0, 10);
    const auto back = file.AddSquare(20, 0, 10, true);
    const auto line = file.AddSquare(0, 25, 5);
    file.AddElement({Polygon(kTextured, front), Polygon(kTextured, back),
                     Polygon(1, {line[0], line[2]}), Polygon(kTypeNull, {})});
    // A square shown in the third pilot state only; the hardpoint's state code hides nothing.
    file.AddElement({Polygon(kTextured, file.AddSquare(0, -25, 5), kCodePilot, 2),
                     Polygon(kTypeHardpoint, {file.AddNode(20, 0, -25)}, kCodePilot, 1)});
    InstallFamily({file.record});
    Program().LineWeight = 3;
    const Rgb texture{200, 160, 40};

    // After each change: the front face's centre and edge, the back face's centre, the line, the
    // pilot-state square, the hardpoint.
    const std::tuple<std::function<void()>, Rgb, Rgb, Rgb> steps[] = {
        // The line and the NULL entry paint nothing, and the back face is culled.
        {[] {}, texture, texture, kStartSky},
        {[] { CurrentModel().m_pilot = 1; }, texture, texture, kStartSky},
        {[] { CurrentModel().m_pilot = 2; }, texture, texture, texture},
        // Face outlines paint the front face's edges in white over the texture.
        {[] { View().mnu_v_faces = true; }, texture, kWhite, texture},
        // The selected piggyback is red-tinted over its texture and solid red in line view, its
        // edges red.
        {[] { CurrentModel().m_currelem = 0; }, {200, 0, 0}, kRed, texture},
        {[] { View().mnu_v_texture = false; }, kRed, kRed, kStartSky},
        // In another file's selection it is only an outline in the line colour.
        {[] { CurrentModel().m_currmox = 1; }, kStartSky, kWhite, kStartSky}};
    for (const auto& [change, centre, edge, shown] : steps) {
        change();
        const QImage frame = ReadFrame();
        EXPECT_EQ((std::vector<Rgb>{Seen(frame, -20, 0, centre), Seen(frame, -30, 0, edge),
                                    Seen(frame, 20, 0, kStartSky), Seen(frame, 0, 25, kStartSky),
                                    Seen(frame, 0, -25, shown), Seen(frame, 20, -25, kBlack)}),
                  (std::vector<Rgb>{centre, edge, kStartSky, kStartSky, shown, kBlack}));
    }
}

TEST_F(EditorTest, BrokenPiggybacksAreAbandonedAndLaterOnesStillPaint) {
    TestFile file;
    const uint8_t body = 1;
    file.record.Parts.insert(file.record.Parts.begin(), Part{});
    file.record.Parts[0].X = 1000;
    file.record.NumParts = 2;
    auto beyondNodes = file.AddSquare(-20, 0, 5);
    beyondNodes.back() = 200;
    auto overflow = file.AddSquare(-20, 20, 5);
    overflow.back() = file.AddNode(std::numeric_limits<int16_t>::max() - 10, 0, 0, body);
    auto noSuchPart = file.AddSquare(-20, -20, 5);
    noSuchPart.back() = file.AddNode(0, 0, 0, 7);
    file.AddElement({Polygon(kTextured, beyondNodes), Polygon(kTextured, overflow),
                     Polygon(kTextured, noSuchPart), Polygon(kTypeHardpoint, {200})});
    file.AddElement({Polygon(kTextured, file.AddSquare(20, 0, 5))});
    // Counts beyond the arrays they count.
    file.AddElement({Polygon(kTextured, file.AddSquare(20, 20, 5))});
    file.record.Elements[2].Count = 40;
    file.record.NumElements = 60;
    file.record.NumNodes = 255;
    InstallFamily({file.record});
    View().CurrentTab = kElementsTab;
    View().mnu_v_nodes = true;
    CurrentModel().m_currelem = 3;

    const QImage frame = ReadFrame();
    // Each abandoned square lost its first painted corner, so nothing of it shows.
    EXPECT_EQ((std::vector<Rgb>{Seen(frame, 20, 0, kWhite), Seen(frame, 20, 20, kWhite),
                                Seen(frame, -20, -3, kStartSky)}),
              (std::vector<Rgb>{kWhite, kWhite, kStartSky}));

    ASSERT_TRUE(OGL().MakeCurrent());
    const DrawSettings settings = DrawSettingsOf(CurrentFrameSource());
    for (int16_t number : {int16_t{-5}, int16_t{-101}, int16_t{99}, int16_t{32767}})
        DrawElement(CurrentModel().Files[0], number, Node{}, settings);
    Node farAway;
    farAway.X = std::numeric_limits<int16_t>::max();
    DrawFile(CurrentModel().Files[0], farAway, settings);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}
