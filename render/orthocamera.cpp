#include "orthocamera.h"

#include "currentmodel.h"

void SetOrtho(float& zoom, float& x, float& y) {
    // Only the camera fields for now: the orthographic volume and the view's turn come with the
    // orthographic cameras themselves.
    model& current = CurrentModel();
    current.m_zoom = zoom;
    current.m_xpos = x;
    current.m_ypos = y;
}
