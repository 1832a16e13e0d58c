// Moving and rescaling every node of the current file; nothing else of the file follows.
#pragma once

#include "model.h"

#include <cstdint>

// Moves every node of the current file by `dist` along `Axis`. When a node would leave the 16-bit
// range the whole move is refused with a message naming the first such node. Returns true when
// the nodes moved, so that the Centre Mover counts only the steps that happened.
bool MoveAllNodes(model& m, int32_t Axis, int16_t dist);

// Multiplies X, Y and Z of every node of the current file by `Factor`, rounding to the nearest
// whole number with halves to the even one. A factor of 0 or below is applied only when the user
// agrees; a result beyond 16 bits refuses the whole rescale with a message naming the first node
// that would overflow. Returns true when the nodes were rescaled.
bool Rescale(model& m, double Factor);
