// OGL_Graphics: owner of the program's one GL rendering context (that of the view `pic_render`),
// its fixed state, the projection that follows the view's size, and the painting of a frame.
#pragma once

#include <QPointer>

class QOpenGLContext;
class QOpenGLWindow;

// Asks for the pixel format of the GL view: 8 bits of red, green and blue, double buffered, a
// compatibility-profile context for the fixed-function calls, and a 32-bit depth buffer where the
// driver has one (the largest it has otherwise). Must run before the QApplication is made.
void RequestPixelFormat();

class OGL_Graphics {
public:
    // The main loop runs while this is true.
    bool bRunning = false;

    // The rendering context: that of the view given to Initialise, nullptr before and after.
    QOpenGLContext* hRC() const;
    // Makes the context current for GL work outside the view's own painting (textures, picking).
    // False when there is no context.
    bool MakeCurrent();

    // Takes the context of `view` and sets the fixed GL state. False, with no message, when the
    // view has no usable context.
    bool Initialise(QOpenGLWindow& view);
    // Viewport and projection for a view of Width by Height pixels; the context must be current.
    void ReSizeGLScene(int Width, int Height);
    // Multiplies the camera's volume for a view of Width by Height pixels onto the current GL
    // matrix: the perspective one in the perspective view, the orthographic one of the open
    // model's zoom and pan otherwise.
    void MultiplyViewVolume(int Width, int Height);
    // Lets go of the context; called once after the main loop has ended.
    void CleanUp();
    // One frame: clear, then the open model; messages met while painting are shown after it. The
    // context must be current; the view swaps the buffers when its painting ends.
    void RenderFrame();
    // Inner width over inner height of the view; 1 without a view. A height of 0 counts as 1.
    double AspectRatio() const;
    // Asks the view for a frame. GL state changed outside a frame (the camera, the clear colour)
    // is not seen by the repaint-on-change, so whatever changes it asks for the frame itself.
    void RequestFrame();
    // The sky: the clear colour of every later frame, given as GL intensities; the view repaints.
    void SetClearColour(float red, float green, float blue);

private:
    QPointer<QOpenGLWindow> view_;
};

// The program's one OGL_Graphics.
OGL_Graphics& OGL();
