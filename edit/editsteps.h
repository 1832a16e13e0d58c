// The steps every editing operation shares: the gate, the piggyback a Number names, one axis of a
// node, and the sizing of a piggyback's corner lists.
#pragma once

#include "axiscode.h"
#include "filerecord.h"
#include "model.h"

#include <cstdint>
#include <limits>

constexpr int kCoordinateMin = std::numeric_limits<int16_t>::min();
constexpr int kCoordinateMax = std::numeric_limits<int16_t>::max();
// The highest node number a corner can name: NodeList entries are bytes.
constexpr int kHighestNamedNode = 255;
// A Number holds positions 0 to 99 of an element; elements 0 to 254 can be named by PART.
constexpr int kNumberPositions = 100;
constexpr int kHighestNumber = std::numeric_limits<int16_t>::max();
constexpr int kMaxElements = 255;
constexpr int kMaxCorners = 255;

// The record editing works on, Files(m_currmox), or nullptr when no .mox family is loaded or that
// slot holds no file: then the operation changes nothing.
FileRecord* EditableFile(model& m);

// The piggyback that `number` names in `file`; nullptr for -1 (nothing selected) and for any
// number that names no piggyback of the file.
Piggyback* NamedPiggyback(FileRecord& file, int16_t number);

// The coordinate of `node` along `axis`, or nullptr for a value that is no axis code.
int16_t* CoordinateOf(Node& node, int32_t axis);

// Which of the three corner lists a step sizes.
struct CornerLists {
    bool nodes = true;
    bool xMap = true;
    bool yMap = true;
};

// Resizes the chosen lists of `item` to `size` entries, keeping what fits; new entries are 0, and
// a list that was absent comes into being filled with 0.
void SizeCornerLists(Piggyback& item, size_t size, CornerLists lists = {});

// The lists a kind keeps beside its nodes: kind 4 its colours in XMap, the mapped kinds (5, 6 and
// every other value, the NULL kind included) both maps.
CornerLists ListsOfKind(uint8_t type);

// Grows the three corner lists of `item` to at least `size` entries with 0, leaving longer lists
// as they are: a corner of a kind that lacks a list reads as 0 there.
void PadCornerLists(Piggyback& item, size_t size);
