// A fingerprint of everything a frame of the view is painted from: the open model with its files,
// the view state and the options. The frame loop compares it between frames and leaves the view
// alone while nothing that shows has changed.
#pragma once

#include <cstdint>

uint64_t SceneFingerprint();
