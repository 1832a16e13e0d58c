#include "oglgraphics.h"

#include "currentmodel.h"
#include "framemessages.h"
#include "framesource.h"
#include "modeldraw.h"
#include "orthocamera.h"
#include "programstate.h"
#include "viewsettings.h"

#include <QOpenGLContext>
#include <QOpenGLWindow>
#include <QSurfaceFormat>

#include <GL/gl.h>
#include <GL/glu.h>

#include <algorithm>

namespace {

constexpr int kColourBits = 8;
constexpr int kDepthBits = 32;
// A colour component of 0..255 becomes a GL intensity by this divisor, so 255 clears to
// 0.99609375 rather than 1.
constexpr GLfloat kColourDivisor = 256.0f;
constexpr GLdouble kFieldOfView = 45.0;
constexpr GLdouble kNearPlane = 0.1;
constexpr GLdouble kFarPlane = 10000.0;

} // namespace

void RequestPixelFormat() {
    QSurfaceFormat format;
    format.setRedBufferSize(kColourBits);
    format.setGreenBufferSize(kColourBits);
    format.setBlueBufferSize(kColourBits);
    // Without a 32-bit depth buffer the driver falls back to the largest one it offers.
    format.setDepthBufferSize(kDepthBits);
    format.setSwapBehavior(QSurfaceFormat::DoubleBuffer);
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setProfile(QSurfaceFormat::CompatibilityProfile);
    QSurfaceFormat::setDefaultFormat(format);
}

QOpenGLContext* OGL_Graphics::hRC() const {
    return view_ ? view_->context() : nullptr;
}

bool OGL_Graphics::MakeCurrent() {
    if (!view_ || !view_->isValid())
        return false;
    view_->makeCurrent();
    return true;
}

bool OGL_Graphics::Initialise(QOpenGLWindow& view) {
    if (!view.isValid())
        return false;
    // A core-profile context has no fixed-function pipeline to paint with.
    if (view.context()->format().profile() == QSurfaceFormat::CoreProfile)
        return false;
    view_ = &view;
    view.makeCurrent();

    glShadeModel(GL_SMOOTH);
    const Colour& sky = Program().SkyColour;
    glClearColor(sky.red / kColourDivisor, sky.green / kColourDivisor, sky.blue / kColourDivisor,
                 0.0f);
    glClearDepth(1.0);
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LEQUAL);
    glHint(GL_PERSPECTIVE_CORRECTION_HINT, GL_NICEST);
    glLineWidth(Program().LineWeight);
    return true;
}

void OGL_Graphics::ReSizeGLScene(int Width, int Height) {
    if (Height == 0)
        Height = 1;
    glViewport(0, 0, Width, Height);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    if (View().ViewMode == kPerspectiveView) {
        MultiplyViewVolume(Width, Height);
    } else {
        model& current = CurrentModel();
        SetOrtho(current.m_zoom, current.m_xpos, current.m_ypos);
    }
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
}

void OGL_Graphics::MultiplyViewVolume(int Width, int Height) {
    if (View().ViewMode == kPerspectiveView)
        gluPerspective(kFieldOfView, static_cast<GLdouble>(Width) / std::max(Height, 1), kNearPlane,
                       kFarPlane);
    else
        MultiplyOrthoVolume(CurrentModel());
}

void OGL_Graphics::CleanUp() {
    if (view_)
        view_->doneCurrent();
    view_ = nullptr;
}

void OGL_Graphics::RenderFrame() {
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    const FrameSource source = CurrentFrameSource();
    Draw(source);
    PostFrameMessages(source);
}

double OGL_Graphics::AspectRatio() const {
    if (!view_)
        return 1.0;
    return static_cast<double>(view_->width()) / std::max(view_->height(), 1);
}

void OGL_Graphics::RequestFrame() {
    if (view_)
        view_->update();
}

void OGL_Graphics::SetClearColour(float red, float green, float blue) {
    if (!MakeCurrent())
        return;
    glClearColor(red, green, blue, 0.0f);
    RequestFrame();
}

OGL_Graphics& OGL() {
    static OGL_Graphics graphics;
    return graphics;
}
