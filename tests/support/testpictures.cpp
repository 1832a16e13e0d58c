#include "testpictures.h"

#include <random>

namespace {

constexpr int kRgbBytes = 3;

// Stretches of one value, as in painted texture art, between stretches of noise.
std::vector<uint8_t> RunsAndNoise(std::size_t count, uint32_t seed) {
    std::mt19937 random(seed);
    std::vector<uint8_t> bytes;
    bytes.reserve(count);
    while (bytes.size() < count) {
        const auto value = static_cast<uint8_t>(random());
        const std::size_t length = random() % 3 == 0 ? 1 + random() % 90 : 1;
        for (std::size_t i = 0; i < length && bytes.size() < count; ++i)
            bytes.push_back(value);
    }
    return bytes;
}

} // namespace

PcxPalette TestPalette() {
    PcxPalette palette{};
    for (std::size_t i = 0; i < 256; ++i) {
        palette[i * kRgbBytes] = static_cast<uint8_t>(i);
        palette[i * kRgbBytes + 1] = static_cast<uint8_t>(255 - i);
        palette[i * kRgbBytes + 2] = static_cast<uint8_t>(i * 37 + 11);
    }
    return palette;
}

std::vector<uint8_t> TestIndices(int width, int height, uint32_t seed) {
    return RunsAndNoise(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), seed);
}

std::vector<uint8_t> TestRgb(int width, int height, uint32_t seed) {
    return RunsAndNoise(
        static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * kRgbBytes, seed);
}

std::vector<uint8_t> PaletteColours(const std::vector<uint8_t>& indices,
                                    const PcxPalette& palette) {
    std::vector<uint8_t> rgb;
    rgb.reserve(indices.size() * kRgbBytes);
    for (const uint8_t index : indices) {
        const auto entry = palette.begin() + index * kRgbBytes;
        rgb.insert(rgb.end(), entry, entry + kRgbBytes);
    }
    return rgb;
}
