// Little-endian values laid one after another into room made for them beforehand, so that a
// table or an entry is written with no check per byte.
#pragma once

#include <cstddef>
#include <cstdint>

class ByteCursor {
public:
    explicit ByteCursor(uint8_t* at) : at_(at) {}

    void Byte(uint8_t value) { *at_++ = value; }
    void Int16(int16_t value) {
        const auto bits = static_cast<uint16_t>(value);
        Byte(static_cast<uint8_t>(bits & 0xFF));
        Byte(static_cast<uint8_t>(bits >> 8));
    }
    void Int32(int32_t value) {
        const auto bits = static_cast<uint32_t>(value);
        Int16(static_cast<int16_t>(bits & 0xFFFF));
        Int16(static_cast<int16_t>(bits >> 16));
    }
    // Passes over `count` bytes, handing back where they start, for the caller to fill.
    uint8_t* Skip(size_t count) {
        uint8_t* start = at_;
        at_ += count;
        return start;
    }

private:
    uint8_t* at_;
};
