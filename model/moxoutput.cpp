#include "moxoutput.h"

void MoxOutput::PutByte(uint8_t value) {
    if (position_ >= bytes_.size())
        bytes_.resize(position_ + 1);
    bytes_[position_++] = value;
}

void MoxOutput::PutInt16(int16_t value) {
    const auto bits = static_cast<uint16_t>(value);
    PutByte(static_cast<uint8_t>(bits & 0xFF));
    PutByte(static_cast<uint8_t>(bits >> 8));
}

void MoxOutput::PutInt32(int32_t value) {
    const auto bits = static_cast<uint32_t>(value);
    for (int shift = 0; shift < 32; shift += 8)
        PutByte(static_cast<uint8_t>((bits >> shift) & 0xFF));
}
