// The corners of an entry as they lie in a stream: for each corner its node, then its x and y map
// values where the kind has them. The reader and writer move them as one block, so that an entry
// costs a few checks rather than several per corner.
#pragma once

#include "elementkind.h"
#include "filerecord.h"

#include <cstddef>
#include <cstdint>

// Spreads `corners` corners of `block` into the entry's lists, each of corners + 1 values (the
// last a spare zero).
void SplitCorners(const uint8_t* block, size_t corners, const KindLayout& layout, Piggyback& entry);

// Lays the first `corners` corners of `item` into `block`. Values its lists lack go out as zeros,
// so that what is written agrees with the count.
void JoinCorners(const Piggyback& item, size_t corners, const KindLayout& layout, uint8_t* block);
