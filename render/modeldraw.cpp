#include "modeldraw.h"

#include "backdrops.h"
#include "moxdraw.h"

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
void DrawFamily(const model& current, const FrameSource& source) {
    const std::vector<FileRecord>& files = current.Files;
    const DrawSettings settings = DrawSettingsOf(source);
    if (source.view.chk_thismox) {
        PassOverFailure([&] {
            const auto slot = static_cast<size_t>(current.m_currmox);
            DrawFile(files.at(slot), files.at(0).HP.at(slot), settings);
        });
        return;
    }
    PassOverFailure([&] { DrawFile(files.at(0), files.at(0).HP.at(0), settings); });
    for (size_t slot = 1; slot <= kLastConnectedFile; ++slot) {
        PassOverFailure([&] {
            if (files.at(slot).Loaded)
                DrawFile(files.at(slot), files.at(0).HP.at(slot), settings);
        });
    }
}

} // namespace

void Draw(const FrameSource& source) {
    if (source.current == nullptr)
        return;
    const model& current = *source.current;
    const bool perspective = source.view.ViewMode == kPerspectiveView;
    PassOverFailure([&] {
        if (perspective)
            SetPerspectiveCamera(current);
    });
    // A .moy or .3DS load paints no model.
    PassOverFailure([&] {
        if (current.M_Type == kMoxLoaded)
            DrawFamily(current, source);
    });
    // Neither a picking pass nor the perspective view shows the backdrops.
    PassOverFailure([&] {
        if (!current.RenderType && !perspective && source.project != nullptr)
            Draw_3Views(*source.project);
    });
}
