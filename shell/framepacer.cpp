#include "framepacer.h"

#include "framesource.h"
#include "gltexture.h"
#include "oglgraphics.h"
#include "scenefingerprint.h"

#include <QOpenGLWindow>

namespace {
constexpr int kFramePeriodMilliseconds = 1000 / 60;
}

FramePacer::FramePacer(QOpenGLWindow& view) : QObject(&view), view_(view) {
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &FramePacer::Tick);
    timer_.start(kFramePeriodMilliseconds);
}

void FramePacer::Tick() {
    ++ticks_;
    if (!OGL().bRunning)
        return;
    // The window system repaints an exposed or resized view by itself; what is left to notice
    // is a change of the scene.
    const uint64_t scene = SceneFingerprint(CurrentFrameSource());
    if (painted_ == scene && !HasPendingTextures())
        return;
    painted_ = scene;
    view_.update();
}
