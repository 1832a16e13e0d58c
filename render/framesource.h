// Everything one frame of the view is painted from: the open model, the view state and menu
// ticks, the line options and the project's backdrop box and drawings. The painters read nothing
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

// The project's box of 3-view drawings in model units and the GL texture names of the drawings
// that are painted on its faces.
struct BackdropSource {
    int16_t Span = 0;
    int16_t Length = 0;
    int16_t Height = 0;
    int16_t TopLeftX = 0;
    int16_t TopLeftY = 0;
    int16_t TopLeftZ = 0;
    int32_t TopImage = 0;
    int32_t FrontImage = 0;
    int32_t LeftImage = 0;
};

struct FrameSource {
    // The files, the camera, the selection and the display states.
    const model* current = nullptr;
    ViewSettings view;
    FrameOptions options;
    BackdropSource backdrop;
};

// What a frame painted now is drawn from: CurrentModel(), View() and Program().
FrameSource CurrentFrameSource();
