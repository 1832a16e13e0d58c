// The writer's view of a model file under construction: little-endian writes at a position that
// can be moved back, as the offset table is filled in behind the streams.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

class MoxOutput {
public:
    void PutByte(uint8_t value);
    void PutInt16(int16_t value);
    void PutInt32(int32_t value);

    size_t Position() const { return position_; }
    // Moves to a 0-based position; the next write overwrites what lies there or extends the file.
    void Seek(size_t position) { position_ = position; }

    const std::vector<uint8_t>& Bytes() const { return bytes_; }

private:
    std::vector<uint8_t> bytes_;
    size_t position_ = 0;
};
