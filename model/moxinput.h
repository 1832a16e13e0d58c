// The reader's view of a model file: little-endian reads at a position that never leave the
// buffer. Reads beyond the end, and all reads after Close, give zeros, as the model format asks.
#pragma once

#include <cstdint>
#include <vector>

class MoxInput {
public:
    explicit MoxInput(const std::vector<uint8_t>& bytes) : bytes_(bytes) {}

    uint8_t ReadByte();
    int16_t ReadInt16();
    int32_t ReadInt32();

    // Moves to a 0-based file position. A position below 0 names no byte of the file: reading
    // there goes on as if beyond the end.
    void Seek(int64_t position);
    // Moves one byte back, so that the byte just read is read again.
    void StepBack() { --position_; }
    // Ends the reading of the file: every later read gives zero.
    void Close() { closed_ = true; }
    bool IsClosed() const { return closed_; }
    // True when every read from here on gives zero: the file is closed or the position lies
    // beyond its end.
    bool RunOut() const { return closed_ || position_ >= static_cast<int64_t>(bytes_.size()); }

private:
    const std::vector<uint8_t>& bytes_;
    int64_t position_ = 0;
    bool closed_ = false;
};
