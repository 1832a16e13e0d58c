// Block letters for the markings the generator paints: capitals, digits and the hyphen, each 5
// cells wide and 7 high.
#pragma once

#include <array>
#include <cstdint>

constexpr int kGlyphWidth = 5;
constexpr int kGlyphHeight = 7;
// Advance from one letter to the next, in cells.
constexpr int kGlyphAdvance = kGlyphWidth + 1;

using Glyph = std::array<uint8_t, kGlyphHeight>; // one row per byte, bit 4 the leftmost cell

// The glyph of `letter`; a blank one for a character the font lacks.
Glyph GlyphOf(char letter);
