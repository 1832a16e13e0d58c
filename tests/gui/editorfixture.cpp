#include "editorfixture.h"

#include "configfile.h"

#include "glview.h"
#include "mainwindow.h"
#include "oglgraphics.h"
#include "programstate.h"
#include "skylathe.h"
#include "viewsettings.h"

#include <QTest>

#include <GL/gl.h>

namespace {
constexpr int kFrameWaitMilliseconds = 10000;
}

void EditorTest::SetUp() {
    ResetProgramState();
    ResetViewSettings();
    // Every test starts from a configuration of the defaults, whatever an earlier one left.
    WriteConfig();
    SetTextureLoader(&textures);
    window_ = StartUp("", &windowHost);
    host.windowSide = &windowHost;
    ASSERT_TRUE(OGL().bRunning) << "the GL view has no context";
    ASSERT_TRUE(WaitForFrames(1));
}

void EditorTest::TearDown() {
    ShutDown(std::move(window_));
    SetTextureLoader(nullptr);
}

GLView& EditorTest::Surface() {
    return *window_->glView;
}

bool EditorTest::WaitForFrames(int count) {
    for (int frame = 0; frame < count; ++frame) {
        const int64_t target = Surface().FrameCount() + 1;
        Surface().update();
        if (!QTest::qWaitFor([&] { return Surface().FrameCount() >= target; },
                             kFrameWaitMilliseconds))
            return false;
    }
    return true;
}

QImage EditorTest::ReadFrame() {
    if (!OGL().MakeCurrent())
        return {};
    OGL().RenderFrame();
    glFinish();
    const QSize size = Surface().size() * Surface().devicePixelRatio();
    QImage image(size, QImage::Format_RGBA8888);
    glReadBuffer(GL_BACK);
    glReadPixels(0, 0, size.width(), size.height(), GL_RGBA, GL_UNSIGNED_BYTE, image.bits());
    // GL counts rows from the bottom.
    return image.mirrored();
}

Rgb PixelAt(const QImage& image, int x, int y) {
    const QColor colour = image.pixelColor(x, y);
    return {colour.red(), colour.green(), colour.blue()};
}
