// A decoded picture: what the PCX reader gives and what the image stores keep.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

constexpr int kRgbBytes = 3;

struct PcxImage {
    int width = 0;
    int height = 0;
    // Red, green, blue for each pixel, rows top to bottom with no padding between them:
    // width * height * 3 bytes.
    std::vector<uint8_t> rgb;

    std::size_t RowBytes() const { return static_cast<std::size_t>(width) * kRgbBytes; }
};
