// The GL context, the frame and the viewport, read back from the view.
#include "currentmodel.h"
#include "editorfixture.h"
#include "framepacer.h"
#include "glview.h"
#include "modeldraw.h"
#include "oglgraphics.h"
#include "programstate.h"
#include "viewsettings.h"

#include <QMatrix4x4>
#include <QScreen>
#include <QTest>
#include <QVector3D>

#include <GL/gl.h>

#include <array>
#include <functional>
#include <tuple>

namespace {

void ExpectSkyEverywhere(const QImage& frame, const char* what) {
    QImage sky(frame.size(), QImage::Format_RGB32);
    sky.fill(QColor(kStartSky[0], kStartSky[1], kStartSky[2]));
    EXPECT_TRUE(!frame.isNull() && frame.convertToFormat(QImage::Format_RGB32) == sky) << what;
}

} // namespace

TEST_F(EditorTest, AFrameWithNothingToPaintIsTheSkyColourInEveryView) {
    ASSERT_TRUE(WaitForFrames(2));
    // The view's pixels as the display shows them, after the last buffer swap.
    ExpectSkyEverywhere(Surface().screen()->grabWindow(Surface().winId()).toImage(), "shown frame");
    model& current = CurrentModel();
    // Each change on top of the ones before it.
    const std::pair<const char*, std::function<void()>> steps[] = {
        {"perspective frame", [] {}},
        {"frame of a .moy load", [&] { current.M_Type = kMoyLoaded; }},
        {"a family without files", [&] { current.M_Type = kMoxLoaded; }},
        {"a current file beyond the family",
         [&] { current.Files.resize(2), current.m_currmox = 5, View().chk_thismox = true; }},
        {"a negative current file", [&] { current.m_currmox = -1; }},
        {"a family shorter than its slots", [] { View().chk_thismox = false; }},
        {"top view frame", [] { View().ViewMode = kTopView; }},
        // Last, so that the frame's matrices are read below.
        {"a turned camera in a view of no height", [&] {
             View().ViewMode = kPerspectiveView;
             std::tie(current.m_xpos, current.m_ypos, current.m_zoom, current.m_xrot,
                      current.m_yrot, current.m_bank) =
                 std::make_tuple(3.0f, -2.0f, -250.0f, 135.0f, 10.0f, 20.0f);
             OGL().ReSizeGLScene(640, 0);
         }}};
    for (const auto& [what, change] : steps) {
        change();
        ExpectSkyEverywhere(ReadFrame(), what);
    }

    // A viewport one row high, a projection as wide as 640 to 1, and the camera placed, then
    // turned about each of its axes by the model's camera fields.
    std::array<GLint, 4> viewport{};
    glGetIntegerv(GL_VIEWPORT, viewport.data());
    EXPECT_EQ(viewport, (std::array<GLint, 4>{0, 0, 640, 1}));
    std::array<GLfloat, 16> projection{};
    std::array<GLfloat, 16> modelview{};
    glGetFloatv(GL_PROJECTION_MATRIX, projection.data());
    glGetFloatv(GL_MODELVIEW_MATRIX, modelview.data());
    EXPECT_FLOAT_EQ(projection[5] / projection[0], 640.0f);
    QMatrix4x4 expected;
    expected.translate(3.0f, -2.0f, -250.0f);
    expected.rotate(-90.0f, 1.0f, 0.0f, 0.0f);
    expected.rotate(135.0f, 0.0f, 0.0f, 1.0f);
    expected.rotate(10.0f, 0.0f, 1.0f, 0.0f);
    expected.rotate(20.0f, 1.0f, 0.0f, 0.0f);
    const QVector3D point(1.0f, 2.0f, 3.0f);
    const QMatrix4x4 painted = QMatrix4x4(modelview.data()).transposed();
    EXPECT_LT((painted.map(point) - expected.map(point)).length(), 1e-3f);
}

TEST_F(EditorTest, TheViewPaintsEachChangeInItsNextFrameAndRestsWhileNothingChanges) {
    const FramePacer& pacer = *Window().framePacer;
    // The frames of the window's first showing come by themselves; after them the view rests:
    // five looks for a change go by with no frame painted.
    int64_t frames = -1;
    int64_t quietSince = 0;
    const bool rested = QTest::qWaitFor([&] {
        if (Surface().FrameCount() != frames) {
            frames = Surface().FrameCount();
            quietSince = pacer.TickCount();
        }
        return pacer.TickCount() - quietSince >= 5;
    });
    EXPECT_TRUE(rested) << "a still picture is not painted again";

    for (auto change : std::initializer_list<std::function<void()>>{
             [] { CurrentModel().m_zoom -= 5.0f; },
             [] { View().mnu_v_nodes = !View().mnu_v_nodes; }, [] { Program().LineWeight = 4; },
             [] { Program().ProjectData.Span = 12; },
             [] { OGL().SetClearColour(0.5f, 0.5f, 0.5f); },
             [] {
                 model& current = CurrentModel();
                 current.Files.resize(kFileSlots);
                 current.Files[0].Nodes.resize(2);
                 current.Files[0].Nodes[0].X = 7;
             }}) {
        const int64_t before = Surface().FrameCount();
        change();
        EXPECT_TRUE(QTest::qWaitFor([&] { return Surface().FrameCount() > before; }));
    }
}
