#include "framepacer.h"

#include "oglgraphics.h"

#include <QOpenGLWindow>

namespace {
constexpr qint64 kNanosecondsPerMillisecond = 1'000'000;
constexpr qint64 kFramePeriod = 1'000'000'000 / 60; // nanoseconds
} // namespace

FramePacer::FramePacer(QOpenGLWindow& view) : QObject(&view), view_(view) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, &view_, qOverload<>(&QPaintDeviceWindow::update));
    connect(&view_, &QOpenGLWindow::frameSwapped, this, &FramePacer::RequestNextFrame);
    clock_.start();
}

void FramePacer::RequestNextFrame() {
    // A frame painted out of turn (a resize, a handler) leaves the one already due in place.
    if (!OGL().bRunning || timer_.isActive())
        return;
    const qint64 now = clock_.nsecsElapsed();
    // Frames are due on a fixed 60 Hz grid; a frame that came late starts the grid anew rather
    // than bringing a burst to catch up.
    nextFrameAt_ += kFramePeriod;
    if (nextFrameAt_ <= now) {
        nextFrameAt_ = now;
        view_.update();
        return;
    }
    const qint64 wait = nextFrameAt_ - now;
    timer_.start(
        static_cast<int>((wait + kNanosecondsPerMillisecond - 1) / kNanosecondsPerMillisecond));
}
