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
#include <QTest>

#include <GL/gl.h>

#include <array>
#include <cmath>
#include <functional>

namespace {

void ExpectSkyEverywhere(const QImage& frame, const char* what) {
    ASSERT_FALSE(frame.isNull()) << what;
    const int right = frame.width() - 1;
    const int bottom = frame.height() - 1;
    for (const QPoint& at : {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom),
                             QPoint(right, bottom), QPoint(right / 2, bottom / 2)})
        EXPECT_EQ(PixelAt(frame, at.x(), at.y()), kStartSky)
            << what << " at " << at.x() << "," << at.y();
}

} // namespace

TEST_F(EditorTest, AFrameWithNothingToPaintIsTheSkyColourInEveryView) {
    ASSERT_TRUE(WaitForFrames(2));
    ExpectSkyEverywhere(GrabShownFrame(), "shown frame");
    ExpectSkyEverywhere(ReadFrame(), "perspective frame");
    model& current = CurrentModel();
    current.M_Type = kMoyLoaded;
    ExpectSkyEverywhere(ReadFrame(), "frame of a .moy load");
    current.M_Type = kMoxLoaded; // and not one file in Files
    ExpectSkyEverywhere(ReadFrame(), "a family without files");
    current.Files.resize(2);
    current.m_currmox = 5;
    View().chk_thismox = true;
    ExpectSkyEverywhere(ReadFrame(), "a current file beyond the family");
    current.m_currmox = -1;
    ExpectSkyEverywhere(ReadFrame(), "a negative current file");
    View().chk_thismox = false;
    ExpectSkyEverywhere(ReadFrame(), "a family shorter than its slots");
    View().ViewMode = kTopView;
    ExpectSkyEverywhere(ReadFrame(), "top view frame");
}

TEST_F(EditorTest, AViewOfHeightZeroGetsAViewportOfHeightOne) {
    ASSERT_TRUE(OGL().MakeCurrent());
    OGL().ReSizeGLScene(640, 0);

    std::array<GLint, 4> viewport{};
    glGetIntegerv(GL_VIEWPORT, viewport.data());
    EXPECT_EQ(viewport, (std::array<GLint, 4>{0, 0, 640, 1}));

    std::array<GLfloat, 16> projection{};
    glGetFloatv(GL_PROJECTION_MATRIX, projection.data());
    for (const GLfloat value : projection)
        ASSERT_TRUE(std::isfinite(value));
    // gluPerspective scales x by the aspect ratio less than y: 640 / 1.
    EXPECT_FLOAT_EQ(projection[5] / projection[0], 640.0f);

    std::array<GLint, 1> matrixMode{};
    glGetIntegerv(GL_MATRIX_MODE, matrixMode.data());
    EXPECT_EQ(matrixMode[0], GL_MODELVIEW);
}

TEST_F(EditorTest, ThePerspectiveCameraFollowsTheModelsCameraFields) {
    model& current = CurrentModel();
    current.m_xpos = 3.0f;
    current.m_ypos = -2.0f;
    current.m_zoom = -250.0f;
    current.m_xrot = 135.0f;
    current.m_yrot = 10.0f;
    current.m_bank = 20.0f;
    ASSERT_TRUE(OGL().MakeCurrent());
    OGL().RenderFrame();
    QMatrix4x4 expected;
    expected.translate(3.0f, -2.0f, -250.0f);
    expected.rotate(-90.0f, 1.0f, 0.0f, 0.0f);
    expected.rotate(135.0f, 0.0f, 0.0f, 1.0f);
    expected.rotate(10.0f, 0.0f, 1.0f, 0.0f);
    expected.rotate(20.0f, 1.0f, 0.0f, 0.0f);
    std::array<GLfloat, 16> modelview{};
    glGetFloatv(GL_MODELVIEW_MATRIX, modelview.data());
    for (int i = 0; i < 16; ++i)
        EXPECT_NEAR(modelview[i], expected.constData()[i], 1e-3f) << "element " << i;
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
