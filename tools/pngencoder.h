// Writes a picture as a PNG file: 8-bit RGB, no filtering, deflate in stored (uncompressed)
// blocks, so the tool needs no compression library.
#pragma once

#include <cstdint>
#include <vector>

// `rgb` holds width * height pixels of red, green, blue, top row first. Returns no bytes when the
// sizes do not match.
std::vector<uint8_t> EncodePng(int width, int height, const std::vector<uint8_t>& rgb);
