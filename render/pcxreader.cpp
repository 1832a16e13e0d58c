#include "pcxreader.h"

#include "bytefile.h"
#include "imagepath.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::size_t kBitsPerPixelOffset = 3;
constexpr std::size_t kXMinOffset = 4;
constexpr std::size_t kYMinOffset = 6;
constexpr std::size_t kXMaxOffset = 8;
constexpr std::size_t kYMaxOffset = 10;
constexpr std::size_t kPlanesOffset = 65;
constexpr std::size_t kBytesPerLineOffset = 66;

constexpr int kSupportedBitsPerPixel = 8;
constexpr int kPalettePlanes = 1;
constexpr int kTrueColourPlanes = 3;

// A byte with both top bits set opens a run; its low six bits are the run's length.
constexpr uint8_t kRunFlags = 0xC0;
constexpr uint8_t kRunLengthMask = 0x3F;

bool IsRun(uint8_t b) {
    return (b & kRunFlags) == kRunFlags;
}

// Bytes behind the header. Reads past the end give zero, as a short file reads.
class DataStream {
public:
    DataStream(const uint8_t* bytes, std::size_t size)
        : data_(size > kPcxHeaderBytes ? bytes + kPcxHeaderBytes : nullptr),
          size_(size > kPcxHeaderBytes ? size - kPcxHeaderBytes : 0) {}

    uint8_t At(std::size_t index) const { return index < size_ ? data_[index] : 0; }
    std::size_t Size() const { return size_; }

private:
    const uint8_t* data_;
    std::size_t size_;
};

int ReadByte(const uint8_t* bytes, std::size_t size, std::size_t offset) {
    return offset < size ? bytes[offset] : 0;
}

int ReadInt16(const uint8_t* bytes, std::size_t size, std::size_t offset) {
    const auto low = static_cast<uint16_t>(ReadByte(bytes, size, offset));
    const auto high = static_cast<uint16_t>(ReadByte(bytes, size, offset + 1));
    return static_cast<int16_t>(static_cast<uint16_t>(low | (high << 8)));
}

PcxResult Refused(PcxOutcome outcome, std::string message = {},
                  MessageIcon icon = MessageIcon::None) {
    PcxResult result;
    result.outcome = outcome;
    result.message = std::move(message);
    result.icon = icon;
    return result;
}

PcxResult WithPicture(PcxImage picture) {
    PcxResult result;
    result.outcome = PcxOutcome::Picture;
    result.picture = std::move(picture);
    return result;
}

bool FitsInMemory(uint64_t width, uint64_t height, uint64_t bytesPerPixel) {
    return width * height * bytesPerPixel <= kMaxPcxPictureBytes;
}

// The 256-colour reader. The result is as wide as the row size, so a file whose bytes per line
// exceeds its width shows the padding columns at the right.
PcxResult ReadPaletteImage(const uint8_t* bytes, std::size_t size, const PcxHeader& header) {
    if (size < kPcxPaletteBlockBytes || bytes[size - kPcxPaletteBlockBytes] != kPcxPaletteMarker)
        return Refused(PcxOutcome::NoPalette,
                       "The PCX that was passed didn't have a 256 colour palette! Can't read it!",
                       MessageIcon::Exclamation);
    const uint8_t* palette = bytes + size - kPcxPaletteBytes;

    const int width = header.Width();
    const int height = header.Height();
    const int rowSize = kPalettePlanes * header.bytesPerLine;
    if (width <= 0 || height <= 0 || rowSize <= 0)
        return Refused(PcxOutcome::BadSize);
    if (!FitsInMemory(static_cast<uint64_t>(rowSize), static_cast<uint64_t>(height), kRgbBytes))
        return Refused(PcxOutcome::TooLarge);

    // A run that would cross the end of a row is cut at the image width. Where the header's
    // width exceeds the row size it is cut at the row end instead, so nothing lands outside the
    // row; a run that starts at or past the cut writes nothing and x stays where it is.
    const int runLimit = std::min(width, rowSize);

    PcxImage picture;
    picture.width = rowSize;
    picture.height = height;
    picture.rgb.resize(picture.RowBytes() * static_cast<std::size_t>(height));
    std::vector<uint8_t> row(static_cast<std::size_t>(rowSize));

    const DataStream data(bytes, size);
    std::size_t in = 0;
    // Past the end of the data every byte reads as index 0, so the rows that start there are
    // all alike: the first is decoded, the others copied from it.
    const uint8_t* blankRow = nullptr;
    for (int y = 0; y < height; ++y) {
        uint8_t* out = picture.rgb.data() + picture.RowBytes() * static_cast<std::size_t>(y);
        if (in >= data.Size()) {
            if (blankRow != nullptr) {
                std::memcpy(out, blankRow, picture.RowBytes());
                continue;
            }
            blankRow = out;
        }
        int x = 0;
        while (x < rowSize) {
            if (in >= data.Size()) {
                std::fill(row.begin() + x, row.end(), uint8_t{0});
                break;
            }
            const uint8_t b = data.At(in);
            if (IsRun(b)) {
                int length = b & kRunLengthMask;
                if (x + length > rowSize)
                    length = runLimit - x;
                if (length > 0) {
                    std::memset(row.data() + x, data.At(in + 1), static_cast<std::size_t>(length));
                    x += length;
                }
                in += 2;
            } else {
                row[static_cast<std::size_t>(x)] = b;
                ++x;
                ++in;
            }
        }
        for (const uint8_t index : row) {
            std::memcpy(out, palette + index * kRgbBytes, kRgbBytes);
            out += kRgbBytes;
        }
    }
    return WithPicture(std::move(picture));
}

// The true-colour reader: one run-length stream for the whole image, so runs may cross the ends
// of plane rows and of lines. Each line holds a red, a green and a blue plane row.
PcxResult ReadTrueColourImage(const uint8_t* bytes, std::size_t size, const PcxHeader& header) {
    const int width = header.Width();
    const int height = header.Height();
    const int bytesPerLine = header.bytesPerLine;
    if (width <= 0 || height <= 0 || bytesPerLine <= 0)
        return Refused(PcxOutcome::BadSize);
    if (!FitsInMemory(static_cast<uint64_t>(width), static_cast<uint64_t>(height), kRgbBytes) ||
        !FitsInMemory(static_cast<uint64_t>(bytesPerLine), static_cast<uint64_t>(height),
                      kTrueColourPlanes))
        return Refused(PcxOutcome::TooLarge);

    const std::size_t plane = static_cast<std::size_t>(bytesPerLine);
    const std::size_t line = plane * kTrueColourPlanes;
    std::vector<uint8_t> planes(line * static_cast<std::size_t>(height));

    const DataStream data(bytes, size);
    std::size_t out = 0;
    for (std::size_t in = 0; in < data.Size() && out < planes.size();) {
        const uint8_t b = data.At(in++);
        if (IsRun(b)) {
            const std::size_t length =
                std::min<std::size_t>(b & kRunLengthMask, planes.size() - out);
            std::memset(planes.data() + out, data.At(in++), length);
            out += length;
        } else {
            planes[out++] = b;
        }
    }

    PcxImage picture;
    picture.width = width;
    picture.height = height;
    picture.rgb.resize(picture.RowBytes() * static_cast<std::size_t>(height));
    // A header whose width exceeds its bytes per line reads into the next plane row, and past
    // the last line as zeros.
    auto planeByte = [&planes](std::size_t index) {
        return index < planes.size() ? planes[index] : uint8_t{0};
    };
    // A line that starts where the data did not reach reads only zeros: it stays black, as the
    // picture already is.
    const std::size_t filledLines =
        std::min<std::size_t>(static_cast<std::size_t>(height), (out + line - 1) / line);
    uint8_t* pixel = picture.rgb.data();
    for (std::size_t y = 0; y < filledLines; ++y) {
        const std::size_t start = line * y;
        for (std::size_t x = 0; x < static_cast<std::size_t>(width); ++x) {
            *pixel++ = planeByte(start + x);
            *pixel++ = planeByte(start + plane + x);
            *pixel++ = planeByte(start + 2 * plane + x);
        }
    }
    return WithPicture(std::move(picture));
}

} // namespace

PcxHeader ReadPcxHeader(const uint8_t* bytes, std::size_t size) {
    PcxHeader header;
    header.bitsPerPixel = ReadByte(bytes, size, kBitsPerPixelOffset);
    header.xMin = ReadInt16(bytes, size, kXMinOffset);
    header.yMin = ReadInt16(bytes, size, kYMinOffset);
    header.xMax = ReadInt16(bytes, size, kXMaxOffset);
    header.yMax = ReadInt16(bytes, size, kYMaxOffset);
    header.planes = ReadByte(bytes, size, kPlanesOffset);
    header.bytesPerLine = ReadInt16(bytes, size, kBytesPerLineOffset);
    return header;
}

PcxResult DecodePcx(const uint8_t* bytes, std::size_t size, const std::string& path) {
    if (bytes == nullptr)
        size = 0;
    const PcxHeader header = ReadPcxHeader(bytes, size);
    if (header.bitsPerPixel != kSupportedBitsPerPixel)
        return Refused(PcxOutcome::WrongDepth, "Sorry, can't load " + path + "!");
    if (header.planes == kPalettePlanes)
        return ReadPaletteImage(bytes, size, header);
    if (header.planes == kTrueColourPlanes)
        return ReadTrueColourImage(bytes, size, header);
    return Refused(PcxOutcome::UnsupportedPlanes);
}

PcxResult DecodePcx(const std::vector<uint8_t>& bytes, const std::string& path) {
    return DecodePcx(bytes.data(), bytes.size(), path);
}

PcxResult ReadPcx(const std::string& path) {
    std::vector<uint8_t> bytes;
    const std::string found = ResolveImagePath(path);
    if (found.empty() || !ReadFileBytes(found, bytes))
        return Refused(PcxOutcome::Unreadable);
    return DecodePcx(bytes, path);
}

std::optional<PcxImage> LoadPCX(const std::string& path) {
    PcxResult result = ReadPcx(path);
    if (!result.message.empty())
        ShowMessage(result.message, result.icon);
    return std::move(result.picture);
}
