// The fixed perspective camera that every load and "Zoom Extents" bring back.
#pragma once

#include "model.h"

// Switches to the perspective view and puts the camera fields of `current` at their fixed
// values: the model 250 units in front of the eye, turned by 135 degrees about Z.
void ResetPerspectiveCamera(model& current);
