// Pictures as PNG files, through libpng: the textures that `moxtool texture` and the exports write.
#pragma once

#include <cstdint>
#include <vector>

// Encodes `rgb`, width * height pixels of red, green, blue with the top row first, as an 8-bit RGB
// PNG. Returns false, with `png` empty, when the sizes do not match or libpng fails.
bool EncodePng(int width, int height, const std::vector<uint8_t>& rgb, std::vector<uint8_t>& png);
