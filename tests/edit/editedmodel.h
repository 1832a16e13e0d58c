// A model with one file loaded as the editor loads it, for the tests of the editing operations,
// and that file as a save writes it and a load reads it back.
#pragma once

#include "model.h"
#include "moxbuilder.h"

#include <cstdint>
#include <string>
#include <vector>

// Nodes 0 to 5 named by corners, node 6 unused. Element 0: a coloured triangle (0), a Gouraud
// quad (1), a textured pentagon (2). Element 1: no polygon, one NULL entry (100). Element 2: a
// wing-damage textured triangle (200), a line (201), a hardpoint (202). Element 3: a polygon of
// 255 corners (300).
MoxBuilder EditedElements();

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

// What a row of a table expects the user to be shown: nothing for an empty text.
inline std::vector<std::string> Shown(const char* text) {
    return text[0] == 0 ? std::vector<std::string>{} : std::vector<std::string>{text};
}
