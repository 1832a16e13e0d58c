// One frame painted in GL selection mode over a small pick box, and the reading of its hit
// records: which names lay under the cursor, in the order they were painted.
#pragma once

#include <cstdint>
#include <vector>

// Names at or above this are the axis lines of the Move tool; all others are node indexes or
// element Numbers.
inline constexpr uint32_t kFirstAxisName = 30000;

struct HitRecord {
    uint32_t minDepth = 0;
    uint32_t name = 0;
};

struct SelectionHits {
    // What GL reported: the number of records, or a negative count when they overflowed the
    // buffer.
    int32_t hits = 0;
    std::vector<HitRecord> records;
};

// Paints the frame of the open model through the normal frame routine in GL selection mode, with
// a pick box of `box` by `box` pixels around (x, y) (view pixels, y growing downward) and a buffer
// of `bufferWords` words. RenderType is true during the pass, so the backdrops stay out. Leaves
// the projection as it found it. The GL context must be current.
SelectionHits SelectionPass(int x, int y, int box, int bufferWords);

// The element a pick takes among `records`: the first seeds it, and a later record replaces it
// when its minimum depth is strictly smaller and its name below the axis names. Ties keep the
// earlier record. `records` must not be empty.
uint32_t NearestElementHit(const std::vector<HitRecord>& records);

// The axis line among `records`: the last record named as an axis, or 0 when there is none.
int32_t LastAxisHit(const std::vector<HitRecord>& records);
