// The repaint of the program's frame loop. Sixty times a second it looks whether anything the
// view shows has changed since the last frame (the scene's fingerprint, textures waiting for GL)
// and asks for a frame when it has, so that each change shows in the next frame without any
// notice while a still picture costs next to nothing.
#pragma once

#include <QObject>
#include <QTimer>

#include <cstdint>
#include <optional>

class QOpenGLWindow;

class FramePacer : public QObject {
    Q_OBJECT
public:
    explicit FramePacer(QOpenGLWindow& view);

    // Looks for a change once; the timer calls it sixty times a second.
    void Tick();
    // Looks made since the pacer began.
    int64_t TickCount() const { return ticks_; }

private:
    QOpenGLWindow& view_;
    QTimer timer_;
    // The fingerprint of the scene the last frame asked for; none before the first.
    std::optional<uint64_t> painted_;
    int64_t ticks_ = 0;
};
