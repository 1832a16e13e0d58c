#include "glview.h"

#include "currentmodel.h"
#include "gltexture.h"
#include "oglgraphics.h"
#include "orthocamera.h"
#include "viewsettings.h"

#include <QCoreApplication>
#include <QResizeEvent>

#include <cmath>

GLView::GLView() : QOpenGLWindow(QOpenGLWindow::NoPartialUpdate) {}

bool GLView::CreateContext() {
    // The window makes its context ahead of the first resizeGL, so a resize notice makes it now.
    if (!isValid() && handle() != nullptr) {
        QResizeEvent resize(size(), size());
        QCoreApplication::sendEvent(this, &resize);
    }
    return isValid();
}

void GLView::resizeGL(int width, int height) {
    const qreal ratio = devicePixelRatio();
    OGL().ReSizeGLScene(static_cast<int>(std::lround(width * ratio)),
                        static_cast<int>(std::lround(height * ratio)));
    // The resize leaves the modelview matrix plain, and an orthographic view needs its turn back.
    if (View().ViewMode != kPerspectiveView) {
        model& current = CurrentModel();
        SetOrtho(current.m_zoom, current.m_xpos, current.m_ypos);
    }
}

// Textures of models loaded before the context stood, or while it was not current, reach GL here.
void GLView::initializeGL() {
    FlushPendingTextures(CurrentModel());
}

void GLView::paintGL() {
    FlushPendingTextures(CurrentModel());
    OGL().RenderFrame();
    ++frameCount_;
}
