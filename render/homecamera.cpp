#include "homecamera.h"

#include "viewsettings.h"

namespace {
constexpr float kPerspectiveZoom = -250.0f;
constexpr float kPerspectiveHeading = 135.0f;
} // namespace

void ResetPerspectiveCamera(model& current) {
    View().ViewMode = kPerspectiveView;
    current.m_xpos = 0.0f;
    current.m_ypos = 0.0f;
    current.m_zoom = kPerspectiveZoom;
    current.m_xrot = kPerspectiveHeading;
    current.m_yrot = 0.0f;
    current.m_bank = 0.0f;
}
