#include "pngencoder.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

namespace {

constexpr std::array<uint8_t, 8> kSignature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
constexpr uint8_t kBitDepth = 8;
constexpr uint8_t kTrueColour = 2;
constexpr uint8_t kNoFilter = 0;
// zlib header: deflate with a 32 KiB window, no preset dictionary, check bits for 0x7801.
constexpr std::array<uint8_t, 2> kZlibHeader = {0x78, 0x01};
constexpr std::size_t kLongestStoredBlock = 65535;
constexpr uint8_t kFinalStoredBlock = 1;
constexpr uint8_t kStoredBlock = 0;
constexpr uint32_t kAdlerModulus = 65521;

using Bytes = std::vector<uint8_t>;

uint32_t Crc32(const uint8_t* data, std::size_t size, uint32_t crc = 0) {
    static const std::array<uint32_t, 256> table = [] {
        std::array<uint32_t, 256> entries{};
        for (uint32_t n = 0; n < entries.size(); ++n) {
            uint32_t c = n;
            for (int k = 0; k < 8; ++k)
                c = (c & 1) != 0 ? 0xEDB88320u ^ (c >> 1) : c >> 1;
            entries[n] = c;
        }
        return entries;
    }();
    crc = ~crc;
    for (std::size_t i = 0; i < size; ++i)
        crc = table[(crc ^ data[i]) & 0xFF] ^ (crc >> 8);
    return ~crc;
}

uint32_t Adler32(const Bytes& data) {
    uint32_t a = 1;
    uint32_t b = 0;
    for (const uint8_t byte : data) {
        a = (a + byte) % kAdlerModulus;
        b = (b + a) % kAdlerModulus;
    }
    return (b << 16) | a;
}

void PutBigEndian32(Bytes& out, uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8)
        out.push_back(static_cast<uint8_t>(value >> shift));
}

void AppendChunk(Bytes& png, const char* type, const Bytes& data) {
    PutBigEndian32(png, static_cast<uint32_t>(data.size()));
    const std::size_t typeStart = png.size();
    png.insert(png.end(), type, type + 4);
    png.insert(png.end(), data.begin(), data.end());
    PutBigEndian32(png, Crc32(png.data() + typeStart, png.size() - typeStart));
}

Bytes StoredZlibStream(const Bytes& raw) {
    Bytes out(kZlibHeader.begin(), kZlibHeader.end());
    std::size_t at = 0;
    do {
        const std::size_t length = std::min(kLongestStoredBlock, raw.size() - at);
        const bool last = at + length == raw.size();
        out.push_back(last ? kFinalStoredBlock : kStoredBlock);
        out.push_back(static_cast<uint8_t>(length & 0xFF));
        out.push_back(static_cast<uint8_t>(length >> 8));
        out.push_back(static_cast<uint8_t>(~length & 0xFF));
        out.push_back(static_cast<uint8_t>((~length >> 8) & 0xFF));
        out.insert(out.end(), raw.begin() + static_cast<std::ptrdiff_t>(at),
                   raw.begin() + static_cast<std::ptrdiff_t>(at + length));
        at += length;
    } while (at < raw.size());
    PutBigEndian32(out, Adler32(raw));
    return out;
}

} // namespace

std::vector<uint8_t> EncodePng(int width, int height, const std::vector<uint8_t>& rgb) {
    constexpr std::size_t kRgbBytes = 3;
    const std::size_t rowBytes = static_cast<std::size_t>(width) * kRgbBytes;
    if (width <= 0 || height <= 0 || rgb.size() != rowBytes * static_cast<std::size_t>(height))
        return {};

    Bytes header;
    PutBigEndian32(header, static_cast<uint32_t>(width));
    PutBigEndian32(header, static_cast<uint32_t>(height));
    header.insert(header.end(), {kBitDepth, kTrueColour, 0, 0, 0});

    Bytes raw;
    raw.reserve((rowBytes + 1) * static_cast<std::size_t>(height));
    for (std::size_t row = 0; row < static_cast<std::size_t>(height); ++row) {
        raw.push_back(kNoFilter);
        const auto start = rgb.begin() + static_cast<std::ptrdiff_t>(row * rowBytes);
        raw.insert(raw.end(), start, start + static_cast<std::ptrdiff_t>(rowBytes));
    }

    Bytes png(kSignature.begin(), kSignature.end());
    AppendChunk(png, "IHDR", header);
    AppendChunk(png, "IDAT", StoredZlibStream(raw));
    AppendChunk(png, "IEND", {});
    return png;
}
