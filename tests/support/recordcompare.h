// Compares two records field by field, for tests that check that a record survives a trip
// through a file or another form unchanged.
#pragma once

#include "filerecord.h"

#include <string>

// Where `a` and `b` first differ in the persisted fields ("Nodes[3]", "header"), or an
// empty text when there is none. Offsets are compared only when asked: a save recomputes them.
std::string RecordDifference(const FileRecord& a, const FileRecord& b, bool compareOffsets = false);
