// The writer's view of a model file under construction: little-endian writes at a position that
// can be moved back, as the offset table is filled in behind the streams.
#pragma once

#include "bytecursor.h"

#include <cstddef>
#include <cstdint>
#include <vector>

class MoxOutput {
public:
    void PutInt16(int16_t value) { Claim(2).Int16(value); }
    // Makes room for the next `count` bytes at the position and moves past them; the cursor
    // writes them.
    ByteCursor Claim(size_t count);

    size_t Position() const { return position_; }
    // Moves to a 0-based position; the next write overwrites what lies there or extends the file.
    void Seek(size_t position) { position_ = position; }

    // Hands over the file as written: every byte up to the furthest position written. The output
    // is left empty.
    std::vector<uint8_t> Take();

private:
    // Room for the file, grown ahead of the writes; only the first `end_` bytes are the file.
    std::vector<uint8_t> room_;
    size_t end_ = 0;
    size_t position_ = 0;
};
