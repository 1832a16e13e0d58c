// The GL surface of the view `pic_render`: a window of its own inside the main window, whose
// context is the one OGL_Graphics owns. A resize sets the projection and every paint is one
// RenderFrame, shown by the buffer swap that follows it.
#pragma once

#include <QOpenGLWindow>

#include <cstdint>

class GLView : public QOpenGLWindow {
    Q_OBJECT
public:
    GLView();

    // Makes the GL context now, once the surface's native window exists, rather than at the
    // first expose, so that start-up can set the GL state and load textures before the first
    // frame. True when the context stands.
    bool CreateContext();
    // Frames painted since the view was made.
    int64_t FrameCount() const { return frameCount_; }

protected:
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;

private:
    int64_t frameCount_ = 0;
};
