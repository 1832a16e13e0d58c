#include "moxinput.h"

#include <cstddef>
#include <limits>

namespace {
// Where a negative position puts the reader: far beyond any buffer, with room to step back.
constexpr int64_t kNowhere = std::numeric_limits<int64_t>::max() / 2;
} // namespace

uint8_t MoxInput::ReadByte() {
    const int64_t at = position_++;
    if (closed_ || at < 0 || at >= static_cast<int64_t>(bytes_.size()))
        return 0;
    return bytes_[static_cast<size_t>(at)];
}

int16_t MoxInput::ReadInt16() {
    const uint16_t low = ReadByte();
    const uint16_t high = ReadByte();
    return static_cast<int16_t>(static_cast<uint16_t>(low | (high << 8)));
}

int32_t MoxInput::ReadInt32() {
    uint32_t value = 0;
    for (int shift = 0; shift < 32; shift += 8)
        value |= static_cast<uint32_t>(ReadByte()) << shift;
    return static_cast<int32_t>(value);
}

void MoxInput::Seek(int64_t position) {
    position_ = position < 0 ? kNowhere : position;
}
