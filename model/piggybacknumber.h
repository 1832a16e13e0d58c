// The Number of a piggyback: element * 100 + position, split by its last two decimal digits.
#pragma once

#include "filerecord.h"

#include <cstdint>

struct PiggybackRef {
    int element = 0;
    int position = 0;
};

// Packs an element and a list position into a Number (positions 0 to 99 pack reliably).
int16_t MakeNumber(int element, int position);

// Splits a Number the way every part of the program does: the value of the last two characters
// of its decimal text is the position, and (number - position) / 100 the element.
PiggybackRef SplitNumber(int16_t number);

// The piggyback a Number names in a record, or nullptr when the number names none.
const Piggyback* FindPiggyback(const FileRecord& record, int16_t number);
Piggyback* FindPiggyback(FileRecord& record, int16_t number);

// Copies the Node that corner `corner` of piggyback `number` refers to into `node`. Returns false,
// leaving `node` alone, when the piggyback, the corner or the node does not exist.
bool GetElementNode(const FileRecord& record, int16_t number, int corner, Node& node);
