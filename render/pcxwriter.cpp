#include "pcxwriter.h"

#include "bytefile.h"

#include <algorithm>

namespace {

constexpr std::size_t kHeaderBytes = 128;
constexpr uint8_t kManufacturer = 10;
constexpr uint8_t kVersion = 5;
constexpr uint8_t kRunLengthEncoding = 1;
constexpr uint8_t kBitsPerPixel = 8;
constexpr uint16_t kDotsPerInch = 72;
constexpr uint16_t kColourPaletteInfo = 1;
constexpr uint8_t kPaletteMarker = 12;

constexpr uint8_t kRunFlags = 0xC0;
constexpr int kLongestRun = 63;

void PutInt16(std::vector<uint8_t>& bytes, std::size_t offset, int value) {
    bytes[offset] = static_cast<uint8_t>(value & 0xFF);
    bytes[offset + 1] = static_cast<uint8_t>((value >> 8) & 0xFF);
}

int BytesPerLine(int width, const PcxWriteOptions& options) {
    if (options.bytesPerLine > 0)
        return std::max(width, options.bytesPerLine);
    return width + (width % 2);
}

bool SizesFit(int width, int height, int bytesPerLine) {
    return width > 0 && height > 0 && width <= kMaxPcxSide && height <= kMaxPcxSide &&
           bytesPerLine <= INT16_MAX;
}

std::vector<uint8_t> Header(int width, int height, int planes, int bytesPerLine) {
    std::vector<uint8_t> header(kHeaderBytes, 0);
    header[0] = kManufacturer;
    header[1] = kVersion;
    header[2] = kRunLengthEncoding;
    header[3] = kBitsPerPixel;
    PutInt16(header, 4, 0);
    PutInt16(header, 6, 0);
    PutInt16(header, 8, width - 1);
    PutInt16(header, 10, height - 1);
    PutInt16(header, 12, kDotsPerInch);
    PutInt16(header, 14, kDotsPerInch);
    header[65] = static_cast<uint8_t>(planes);
    PutInt16(header, 66, bytesPerLine);
    PutInt16(header, 68, kColourPaletteInfo);
    return header;
}

// Appends `raw[begin, end)` run-length encoded: a run of up to 63 equal bytes is a count byte
// (both top bits set) and the value; a single byte below 0xC0 stands for itself.
void AppendRuns(std::vector<uint8_t>& out, const std::vector<uint8_t>& raw, std::size_t begin,
                std::size_t end) {
    std::size_t i = begin;
    while (i < end) {
        const uint8_t value = raw[i];
        std::size_t run = 1;
        while (i + run < end && run < kLongestRun && raw[i + run] == value)
            ++run;
        if (run == 1 && (value & kRunFlags) != kRunFlags) {
            out.push_back(value);
        } else {
            out.push_back(static_cast<uint8_t>(kRunFlags | run));
            out.push_back(value);
        }
        i += run;
    }
}

// The header and the encoded planes. `planeByte(x, y, plane)` gives the byte of one pixel.
template <typename PlaneByte>
std::vector<uint8_t> Encode(int width, int height, int planes, const PcxWriteOptions& options,
                            PlaneByte planeByte) {
    const int bytesPerLine = BytesPerLine(width, options);
    const std::size_t planeRow = static_cast<std::size_t>(bytesPerLine);
    std::vector<uint8_t> raw(planeRow * static_cast<std::size_t>(planes) *
                                 static_cast<std::size_t>(height),
                             options.padding);
    std::size_t at = 0;
    for (int y = 0; y < height; ++y) {
        for (int plane = 0; plane < planes; ++plane, at += planeRow) {
            for (int x = 0; x < width; ++x)
                raw[at + static_cast<std::size_t>(x)] = planeByte(x, y, plane);
        }
    }

    std::vector<uint8_t> out = Header(width, height, planes, bytesPerLine);
    if (options.runs == PcxRuns::AcrossLines) {
        AppendRuns(out, raw, 0, raw.size());
    } else {
        for (std::size_t row = 0; row < raw.size(); row += planeRow)
            AppendRuns(out, raw, row, row + planeRow);
    }
    return out;
}

std::size_t PixelCount(int width, int height) {
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
}

} // namespace

std::vector<uint8_t> EncodePcx8(int width, int height, const std::vector<uint8_t>& indices,
                                const PcxPalette& palette, const PcxWriteOptions& options) {
    if (!SizesFit(width, height, BytesPerLine(width, options)) ||
        indices.size() != PixelCount(width, height))
        return {};
    const std::size_t stride = static_cast<std::size_t>(width);
    std::vector<uint8_t> out = Encode(width, height, 1, options, [&](int x, int y, int) {
        return indices[stride * static_cast<std::size_t>(y) + static_cast<std::size_t>(x)];
    });
    out.push_back(kPaletteMarker);
    out.insert(out.end(), palette.begin(), palette.end());
    return out;
}

std::vector<uint8_t> EncodePcx24(int width, int height, const std::vector<uint8_t>& rgb,
                                 const PcxWriteOptions& options) {
    constexpr int kPlanes = 3;
    if (!SizesFit(width, height, BytesPerLine(width, options)) ||
        rgb.size() != PixelCount(width, height) * kPlanes)
        return {};
    const std::size_t stride = static_cast<std::size_t>(width) * kPlanes;
    return Encode(width, height, kPlanes, options, [&](int x, int y, int plane) {
        return rgb[stride * static_cast<std::size_t>(y) + static_cast<std::size_t>(x) * kPlanes +
                   static_cast<std::size_t>(plane)];
    });
}

bool WritePcx8(const std::string& path, int width, int height, const std::vector<uint8_t>& indices,
               const PcxPalette& palette, const PcxWriteOptions& options) {
    const std::vector<uint8_t> bytes = EncodePcx8(width, height, indices, palette, options);
    return !bytes.empty() && WriteFileBytes(path, bytes);
}

bool WritePcx24(const std::string& path, int width, int height, const std::vector<uint8_t>& rgb,
                const PcxWriteOptions& options) {
    const std::vector<uint8_t> bytes = EncodePcx24(width, height, rgb, options);
    return !bytes.empty() && WriteFileBytes(path, bytes);
}
