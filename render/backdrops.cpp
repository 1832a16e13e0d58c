#include "backdrops.h"

#include <GL/gl.h>

#include <limits>

namespace {

struct Corner {
    GLfloat s;
    GLfloat t;
    int x;
    int y;
    int z;
};

bool FitsWord(int value) {
    return value >= std::numeric_limits<int16_t>::min() &&
           value <= std::numeric_limits<int16_t>::max();
}

void Face(GLuint image, const Corner (&corners)[4]) {
    glBindTexture(GL_TEXTURE_2D, image);
    glBegin(GL_QUADS);
    for (const Corner& corner : corners) {
        glTexCoord2f(corner.s, corner.t);
        glVertex3f(static_cast<GLfloat>(corner.x), static_cast<GLfloat>(corner.y),
                   static_cast<GLfloat>(corner.z));
    }
    glEnd();
}

} // namespace

void Draw_3Views(const ProjectRecord& box) {
    const int x0 = box.TopLeftX;
    const int x1 = box.TopLeftX + box.Length;
    const int y0 = box.TopLeftY;
    const int y1 = box.TopLeftY + box.Span;
    const int z1 = box.TopLeftZ;
    const int z0 = box.TopLeftZ - box.Height;
    if (!FitsWord(x1) || !FitsWord(y1) || !FitsWord(z0))
        return;

    // Culling chooses the drawing a view shows; the model painter turns it on for good, but a
    // project without a model file has no model painted before the drawings.
    glEnable(GL_CULL_FACE);
    glEnable(GL_TEXTURE_2D);
    glPolygonMode(GL_FRONT, GL_FILL);
    glEnable(GL_DEPTH_TEST);
    glColor3f(1.0f, 1.0f, 1.0f);
    Face(static_cast<GLuint>(box.TopImage),
         {{0, 0, x0, y0, z0}, {1, 0, x1, y0, z0}, {1, 1, x1, y1, z0}, {0, 1, x0, y1, z0}});
    Face(static_cast<GLuint>(box.FrontImage),
         {{1, 0, x1, y0, z0}, {1, 1, x1, y0, z1}, {0, 1, x1, y1, z1}, {0, 0, x1, y1, z0}});
    Face(static_cast<GLuint>(box.LeftImage),
         {{0, 0, x0, y1, z0}, {1, 0, x1, y1, z0}, {1, 1, x1, y1, z1}, {0, 1, x0, y1, z1}});
    glDisable(GL_BLEND);
}
