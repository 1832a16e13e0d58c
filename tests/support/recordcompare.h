// Compares two records field by field, for tests that check that a record survives a trip
// through a file or another form unchanged.
#pragma once

#include "filerecord.h"

#include <string>

// The first difference between `a` and `b` in the persisted fields ("Nodes[3].X: 5 != 7"), or an
// empty text when there is none. Offsets are compared only when asked: a save recomputes them.
std::string RecordDifference(const FileRecord& a, const FileRecord& b, bool compareOffsets = false);
