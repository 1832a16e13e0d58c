#include "cornerblock.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

// Room for one list of a corner's values: at most 255 corners.
using Column = std::array<uint8_t, 256>;

// The first `corners` values of `list`, copied into `padding` with zeros behind them when the
// list is shorter.
const uint8_t* Padded(const std::vector<uint8_t>& list, size_t corners, Column& padding) {
    if (list.size() >= corners)
        return list.data();
    std::copy(list.begin(), list.end(), padding.begin());
    std::fill(padding.begin() + static_cast<std::ptrdiff_t>(list.size()), padding.end(), 0);
    return padding.data();
}

} // namespace

void SplitCorners(const uint8_t* block, size_t corners, const KindLayout& layout,
                  Piggyback& entry) {
    entry.NodeList.assign(corners + 1, 0);
    const size_t stride = BytesPerCorner(layout);
    if (stride == 1) {
        std::memcpy(entry.NodeList.data(), block, corners);
        return;
    }
    // A kind with one map reads its values into that map and into a list nobody keeps.
    Column unused;
    if (layout.hasXMap)
        entry.XMap.assign(corners + 1, 0);
    if (layout.hasYMap)
        entry.YMap.assign(corners + 1, 0);
    uint8_t* const nodes = entry.NodeList.data();
    uint8_t* const xs = layout.hasXMap ? entry.XMap.data() : unused.data();
    uint8_t* const ys = layout.hasYMap ? entry.YMap.data() : unused.data();
    for (size_t k = 0; k < corners; ++k, block += stride) {
        nodes[k] = block[0];
        xs[k] = block[1];
        ys[k] = block[stride - 1];
    }
}

void JoinCorners(const Piggyback& item, size_t corners, const KindLayout& layout, uint8_t* block) {
    if (corners == 0)
        return;
    Column nodePadding;
    const uint8_t* const nodes = Padded(item.NodeList, corners, nodePadding);
    const size_t stride = BytesPerCorner(layout);
    if (stride == 1) {
        std::memcpy(block, nodes, corners);
        return;
    }
    // A kind with one map writes that map's values twice to the same byte.
    Column xPadding;
    Column yPadding;
    const uint8_t* xs = layout.hasXMap ? Padded(item.XMap, corners, xPadding) : nullptr;
    const uint8_t* ys = layout.hasYMap ? Padded(item.YMap, corners, yPadding) : xs;
    if (xs == nullptr)
        xs = ys;
    for (size_t k = 0; k < corners; ++k, block += stride) {
        block[0] = nodes[k];
        block[1] = xs[k];
        block[stride - 1] = ys[k];
    }
}
