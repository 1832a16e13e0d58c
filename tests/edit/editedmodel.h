// A model with one file loaded as the editor loads it, for the tests of the editing operations,
// and that file as a save writes it and a load reads it back.
#pragma once

#include "model.h"
#include "moxbuilder.h"

#include <cstdint>
#include <vector>

// A .mox family whose main file holds `bytes`, nothing selected.
model LoadedModel(const std::vector<uint8_t>& bytes);
inline model LoadedModel(const MoxBuilder& builder) {
    return LoadedModel(builder.Build());
}

// The current file saved and read back.
FileRecord ReadBack(const model& m);

// The X, Y, Z of the node of each corner of piggyback `number`: where the corner stands, whatever
// number its node has.
std::vector<std::vector<int>> CornerPositions(const FileRecord& file, int16_t number);
