// The repaint of the program's frame loop: every finished frame of the GL view asks for the
// next one while the program runs, at most 60 a second, so the view shows each change in the
// next frame without using a whole processor where the display gives no vertical sync.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QOpenGLWindow;

class FramePacer : public QObject {
    Q_OBJECT
public:
    explicit FramePacer(QOpenGLWindow& view);

private:
    void RequestNextFrame();

    QOpenGLWindow& view_;
    QTimer timer_;
    QElapsedTimer clock_;
    qint64 nextFrameAt_ = 0; // nanoseconds on clock_
};
