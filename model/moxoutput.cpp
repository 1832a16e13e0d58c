#include "moxoutput.h"

#include <algorithm>

namespace {
// The room a file starts with; it doubles whenever a write would pass its end.
constexpr size_t kFirstRoom = 4096;
} // namespace

ByteCursor MoxOutput::Claim(size_t count) {
    const size_t after = position_ + count;
    if (after > room_.size())
        room_.resize(std::max({after, 2 * room_.size(), kFirstRoom}));
    ByteCursor cursor(room_.data() + position_);
    position_ = after;
    end_ = std::max(end_, after);
    return cursor;
}

std::vector<uint8_t> MoxOutput::Take() {
    std::vector<uint8_t> bytes;
    bytes.swap(room_);
    bytes.resize(end_);
    end_ = 0;
    position_ = 0;
    return bytes;
}
