// Writes PCX files: 256-colour (8 bits, one plane, palette at the end) and 24-bit (8 bits, three
// planes), run-length encoded. Used for the sample aircraft's texture and drawings and for tests.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

constexpr std::size_t kPcxWriterPaletteBytes = 768;
// 256 entries of red, green, blue.
using PcxPalette = std::array<uint8_t, kPcxWriterPaletteBytes>;

// Where a run of equal bytes may go on. PCX writers normally start a fresh run on every plane row;
// some let a run go on into the next plane row or the next line.
enum class PcxRuns { WithinPlaneRows, AcrossLines };

struct PcxWriteOptions {
    // Bytes per line of each plane: 0 for the width rounded up to an even number, otherwise at
    // least the width (a smaller value counts as the width).
    int bytesPerLine = 0;
    // The value of the bytes between the width and the bytes per line.
    uint8_t padding = 0;
    PcxRuns runs = PcxRuns::WithinPlaneRows;
};

// The largest width or height a PCX header can hold.
constexpr int kMaxPcxSide = 32768;

// A 256-colour file of `indices` (width * height palette indices, top row first). Returns no bytes
// when the sizes are out of range or `indices` has the wrong length.
std::vector<uint8_t> EncodePcx8(int width, int height, const std::vector<uint8_t>& indices,
                                const PcxPalette& palette, const PcxWriteOptions& options = {});
// A 24-bit file of `rgb` (width * height pixels of red, green, blue, top row first).
std::vector<uint8_t> EncodePcx24(int width, int height, const std::vector<uint8_t>& rgb,
                                 const PcxWriteOptions& options = {});

// The same, written to `path` through a temporary file. Returns false when nothing was written.
bool WritePcx8(const std::string& path, int width, int height, const std::vector<uint8_t>& indices,
               const PcxPalette& palette, const PcxWriteOptions& options = {});
bool WritePcx24(const std::string& path, int width, int height, const std::vector<uint8_t>& rgb,
                const PcxWriteOptions& options = {});
