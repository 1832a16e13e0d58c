#include "orthocamera.h"

#include "currentmodel.h"
#include "oglgraphics.h"
#include "viewsettings.h"

#include <GL/gl.h>

#include <array>

namespace {

// Eye depths kept by the orthographic volume: 200 units toward the eye from the view centre's
// plane, 1000 away from it.
constexpr GLdouble kNearDepth = -200.0;
constexpr GLdouble kFarDepth = 1000.0;

struct Turn {
    GLfloat angle;
    GLfloat x;
    GLfloat y;
    GLfloat z;
};

struct ViewTurns {
    int count;
    std::array<Turn, 2> turns;
};

// The volume below turns the picture by 180 degrees; these turns, applied in this order, bring
// each side of the model to the eye the right way up. By ViewMode 0 to 5.
constexpr std::array<ViewTurns, 6> kViewTurns{{
    {2, {{{180, 0, 0, 1}, {-90, 1, 0, 0}}}}, // Left: from -Y, +X right, +Z up
    {1, {{{180, 0, 0, 1}, {}}}},             // Top: from +Z, +X right, +Y up
    {2, {{{90, 1, 0, 0}, {-90, 0, 0, 1}}}},  // Front: from -X, -Y right, +Z up
    {2, {{{180, 1, 0, 0}, {180, 0, 0, 1}}}}, // Underside: from -Z, +X right, -Y up
    {1, {{{90, 1, 0, 0}, {}}}},              // Right: from +Y, -X right, +Z up
    {2, {{{90, 1, 0, 0}, {90, 0, 0, 1}}}},   // Back: from +X, +Y right, +Z up
}};

} // namespace

void MultiplyOrthoVolume(const model& current) {
    // Left beyond right and bottom beyond top for a positive zoom. A zoom of 0 is refused by GL,
    // and the matrix stays as it was until the next change.
    const GLdouble aspect = OGL().AspectRatio();
    const GLdouble halfHeight = current.m_zoom;
    glOrtho(aspect * halfHeight - current.m_xpos, -aspect * halfHeight - current.m_xpos,
            current.m_ypos + halfHeight, current.m_ypos - halfHeight, kNearDepth, kFarDepth);
}

void SetOrtho(float& zoom, float& x, float& y) {
    model& current = CurrentModel();
    current.m_zoom = zoom;
    current.m_xpos = x;
    current.m_ypos = y;
    if (!OGL().MakeCurrent())
        return;

    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    MultiplyOrthoVolume(current);

    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    const int32_t mode = View().ViewMode;
    if (mode >= 0 && mode < static_cast<int32_t>(kViewTurns.size())) {
        const ViewTurns& view = kViewTurns[static_cast<size_t>(mode)];
        for (int turn = 0; turn < view.count; ++turn) {
            const Turn& by = view.turns[static_cast<size_t>(turn)];
            glRotatef(by.angle, by.x, by.y, by.z);
        }
    }
    OGL().RequestFrame();
}
