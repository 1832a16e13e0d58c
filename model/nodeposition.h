// Where a node stands: its stored coordinates plus the pivot of its part, and in the family's
// frame the hardpoint of its file as well. Every sum stays 16-bit, as the painter's does.
#pragma once

#include "filerecord.h"

#include <cstdint>

struct NodePosition {
    int16_t x = 0;
    int16_t y = 0;
    int16_t z = 0;
};

// The part record that body `body` of a node names: nullptr for the fixed body 0, and for a body
// that names no part record (negative, or beyond NumParts - 1), with `valid` false.
const Part* PartOfBody(const FileRecord& record, int16_t body, bool& valid);

// The position of node `index` moved by `displacement` (the file's hardpoint in the main file, or
// the origin for the file's own frame), with its part's pivot added. False for a node the file
// does not hold, a body that names no part, or a sum beyond the 16-bit range.
bool AssembledPosition(const FileRecord& record, int index, const Node& displacement,
                       NodePosition& position);
