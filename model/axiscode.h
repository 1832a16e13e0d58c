// The axis codes: the Axis argument of the moving operations, the values of ModifyAxis and the GL
// names of the axis lines at the selection.
#pragma once

#include <cstdint>

enum AxisCode : int32_t { kAxisX = 30000, kAxisY = 30001, kAxisZ = 30002 };
