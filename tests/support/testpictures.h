// Pictures for the image tests, the fuzz seeds and the benchmarks: palettes and pixels with long
// runs, single pixels and bytes of 0xC0 and above, so that every kind of PCX run is written.
#pragma once

#include "pcxwriter.h"

#include <cstdint>
#include <vector>

// 256 distinct colours.
PcxPalette TestPalette();
// width * height palette indices, top row first; the same seed gives the same picture.
std::vector<uint8_t> TestIndices(int width, int height, uint32_t seed);
// width * height pixels of red, green, blue, top row first.
std::vector<uint8_t> TestRgb(int width, int height, uint32_t seed);
// The colours `indices` stand for in `palette`, three bytes per index.
std::vector<uint8_t> PaletteColours(const std::vector<uint8_t>& indices, const PcxPalette& palette);
