// Everything one frame of the view is painted from: the open model, the view state and menu
// ticks, the line options and the open project with its box of drawings. The painters read nothing
// else, and the frame loop's fingerprint is taken over every member of it, so whatever a painter
// can read is seen by the repaint-on-change.
#pragma once

#include "model.h"
#include "programstate.h"
#include "viewsettings.h"

#include <cstdint>

// The options a frame is painted with. The sky colour is not one of them: it is the GL clear
// colour, set when it changes (OGL_Graphics::SetClearColour).
struct FrameOptions {
    int16_t LineWeight = 1;
    Colour LineColour{255, 255, 255};
};

struct FrameSource {
    // The files, the camera, the selection and the display states.
    const model* current = nullptr;
    ViewSettings view;
    FrameOptions options;
    // The open project: the box of its 3-view drawings and their texture names.
    const ProjectRecord* project = nullptr;
};

// What a frame painted now is drawn from: CurrentModel(), View() and Program().
FrameSource CurrentFrameSource();
