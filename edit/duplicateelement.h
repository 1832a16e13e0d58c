// Copying a piggyback: into the same element as its new last entry, or as the one entry of a new
// last element that takes the source element's plane.
#pragma once

#include "model.h"

#include <cstdint>

// Copies the piggyback `Source` (a Number) behind the others of its element (`toPB`) or into a
// new element standing outside the tree. The copy shares the source's nodes and takes no display
// code. A copy whose Number would be unreliable (position 100 and up), an element the tree could
// not name (255 and up), or a kind that a file can only hold behind a display code, is refused
// with a message.
void Duplicate_Element(model& m, bool toPB, int16_t Source);
