#include "moxinput.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace {
// Where a negative position puts the reader: far beyond any buffer, with room to step back.
constexpr int64_t kNowhere = std::numeric_limits<int64_t>::max() / 2;
} // namespace

int16_t MoxInput::ReadInt16() {
    const uint16_t low = ReadByte();
    const uint16_t high = ReadByte();
    return static_cast<int16_t>(static_cast<uint16_t>(low | (high << 8)));
}

int32_t MoxInput::ReadInt32() {
    const auto low = static_cast<uint16_t>(ReadInt16());
    const auto high = static_cast<uint16_t>(ReadInt16());
    return static_cast<int32_t>(static_cast<uint32_t>(low) | static_cast<uint32_t>(high) << 16);
}

void MoxInput::ReadBlock(uint8_t* out, size_t count) {
    const auto at = static_cast<uint64_t>(position_);
    position_ += static_cast<int64_t>(count);
    const size_t present =
        at < readable_ ? static_cast<size_t>(std::min<uint64_t>(count, readable_ - at)) : 0;
    if (present > 0)
        std::memcpy(out, bytes_.data() + at, present);
    std::memset(out + present, 0, count - present);
}

void MoxInput::Seek(int64_t position) {
    position_ = position < 0 ? kNowhere : position;
}
