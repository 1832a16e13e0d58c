// Changing the kind of the selected piggyback, and moving the nodes a piggyback's corners name.
#pragma once

#include "model.h"

#include <cstdint>

// Gives the piggyback m_currelem the kind of list index `newtype` of the kind list (0 to 5 stand
// for kinds 1 to 6, 6 and above for NULL) and fits its corner count and lists to that kind,
// keeping every value. A negative index changes nothing.
void ChangeType(model& m, int16_t newtype);

// Moves the node of every corner of piggyback `element` (a Number) by `dist` along `Axis`, once
// per corner. A move that would take a node beyond the 16 bits of a coordinate is shortened to
// the longest one that keeps every node in range, so the piggyback keeps its shape.
void MoveElement(model& m, int16_t element, int32_t Axis, int16_t dist);
