// modPcxReader: turns a PCX file (8 bits per plane; one plane with a 256-colour palette at the
// end, or three planes of red, green and blue) into a picture. The decoder has no Qt or GL in it.
#pragma once

#include "modelhost.h"
#include "pcximage.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

constexpr std::size_t kPcxHeaderBytes = 128;
// The 256-colour palette: a marker byte, then 256 entries of red, green, blue, ending the file.
constexpr uint8_t kPcxPaletteMarker = 12;
constexpr std::size_t kPcxPaletteBytes = 768;
constexpr std::size_t kPcxPaletteBlockBytes = kPcxPaletteBytes + 1;
// A picture whose pixels would need more memory than this is refused.
constexpr std::size_t kMaxPcxPictureBytes = std::size_t{256} << 20;

// The header fields the reader looks at. Bytes past the end of a short file read as zero.
struct PcxHeader {
    int bitsPerPixel = 0;
    int xMin = 0;
    int yMin = 0;
    int xMax = 0;
    int yMax = 0;
    int planes = 0;
    int bytesPerLine = 0;

    int Width() const { return xMax - xMin + 1; }
    int Height() const { return yMax - yMin + 1; }
};

enum class PcxOutcome {
    Picture,
    Unreadable,        // the file could not be opened or read
    WrongDepth,        // bits per pixel is not 8
    NoPalette,         // one plane, but no palette marker 769 bytes from the end
    UnsupportedPlanes, // neither one plane nor three
    BadSize,           // width, height or bytes per line zero or negative
    TooLarge,          // the pixels would need more than kMaxPcxPictureBytes
};

struct PcxResult {
    PcxOutcome outcome = PcxOutcome::Unreadable;
    std::optional<PcxImage> picture;
    // The message the user is shown, empty when the outcome has none.
    std::string message;
    MessageIcon icon = MessageIcon::None;
};

PcxHeader ReadPcxHeader(const uint8_t* bytes, std::size_t size);

// Decodes the PCX file held in memory; `path` names it in messages. Shows nothing.
PcxResult DecodePcx(const uint8_t* bytes, std::size_t size, const std::string& path);
PcxResult DecodePcx(const std::vector<uint8_t>& bytes, const std::string& path);

// Reads and decodes the file `path` names (see ResolveImagePath). Shows nothing.
PcxResult ReadPcx(const std::string& path);

// Reads and decodes `path`, showing the result's message, if any, through the model host.
// Returns no picture when the file cannot be read as a picture.
std::optional<PcxImage> LoadPCX(const std::string& path);
