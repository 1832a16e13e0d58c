#include "modeldraw.h"

#include "backdrops.h"
#include "moxdraw.h"
#include "viewsettings.h"

#include <GL/gl.h>

namespace {

constexpr int kLastConnectedFile = 6;

template <typename Step> void PassOverFailure(Step&& step) {
    try {
        step();
    } catch (...) {
    }
}

void SetPerspectiveCamera(const model& current) {
    glLoadIdentity();
    glTranslatef(current.m_xpos, current.m_ypos, current.m_zoom);
    // Stand the model's Z axis up on the screen, then heading, the Y turn and bank.
    glRotatef(-90.0f, 1.0f, 0.0f, 0.0f);
    glRotatef(current.m_xrot, 0.0f, 0.0f, 1.0f);
    glRotatef(current.m_yrot, 0.0f, 1.0f, 0.0f);
    glRotatef(current.m_bank, 1.0f, 0.0f, 0.0f);
}

// Each file sits at its hardpoint of the main file; hardpoint 0 is the origin.
void DrawFamily(const model& current) {
    const std::vector<FileRecord>& files = current.Files;
    if (View().chk_thismox) {
        PassOverFailure([&] {
            const auto slot = static_cast<size_t>(current.m_currmox);
            DrawFile(files.at(slot), files.at(0).HP.at(slot));
        });
        return;
    }
    PassOverFailure([&] { DrawFile(files.at(0), files.at(0).HP.at(0)); });
    for (size_t slot = 1; slot <= kLastConnectedFile; ++slot) {
        PassOverFailure([&] {
            if (files.at(slot).Loaded)
                DrawFile(files.at(slot), files.at(0).HP.at(slot));
        });
    }
}

} // namespace

void Draw(model& current) {
    PassOverFailure([&] {
        if (View().ViewMode == kPerspectiveView)
            SetPerspectiveCamera(current);
    });
    // A .moy or .3DS load paints no model.
    PassOverFailure([&] {
        if (current.M_Type == kMoxLoaded)
            DrawFamily(current);
    });
    // Neither a picking pass nor the perspective view shows the backdrops.
    PassOverFailure([&] {
        if (!current.RenderType && View().ViewMode != kPerspectiveView)
            Draw_3Views();
    });
}
