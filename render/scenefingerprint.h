// A fingerprint of what a frame of the view is drawn from. The frame loop compares it between
// frames and leaves the view alone while nothing that shows has changed.
#pragma once

#include "framesource.h"

#include <cstdint>

// Taken over every member of `source`, and of the model it points to, down to the last byte of
// every file: nothing is left out by a list of fields kept by hand.
uint64_t SceneFingerprint(const FrameSource& source);
