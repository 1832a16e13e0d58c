// model.Draw: what one frame paints — the perspective camera, the loaded files of the family at
// their hardpoints, and the 3-view backdrops of the orthographic views.
#pragma once

#include "framesource.h"

// Paints the frame drawn from `source` into the current GL context. A step that fails is passed
// over and painting goes on with the next, so a fault in one file's data stops neither the frame
// nor the program.
void Draw(const FrameSource& source);
