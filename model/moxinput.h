// The reader's view of a model file: little-endian reads at a position that never leave the
// buffer. Reads beyond the end, and all reads after Close, give zeros, as the model format asks.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

class MoxInput {
public:
    explicit MoxInput(const std::vector<uint8_t>& bytes) : bytes_(bytes), readable_(bytes.size()) {}

    uint8_t ReadByte() {
        const auto at = static_cast<uint64_t>(position_++);
        return at < readable_ ? bytes_[static_cast<size_t>(at)] : 0;
    }
    int16_t ReadInt16();
    int32_t ReadInt32();
    // Reads `count` bytes into `out` at once, as that many ReadByte calls would.
    void ReadBlock(uint8_t* out, size_t count);

    // Moves to a 0-based file position. A position below 0 names no byte of the file: reading
    // there goes on as if beyond the end.
    void Seek(int64_t position);
    // Moves one byte back, so that the byte just read is read again.
    void StepBack() { --position_; }
    // Ends the reading of the file: every later read gives zero.
    void Close() {
        closed_ = true;
        readable_ = 0;
    }
    bool IsClosed() const { return closed_; }
    // True when every read from here on gives zero: the file is closed or the position lies
    // beyond its end.
    bool RunOut() const { return static_cast<uint64_t>(position_) >= readable_; }

private:
    const std::vector<uint8_t>& bytes_;
    int64_t position_ = 0;
    // Bytes that reads can reach: the whole buffer, or none once the file is closed.
    uint64_t readable_;
    bool closed_ = false;
};
