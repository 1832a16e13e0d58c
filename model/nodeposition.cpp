#include "nodeposition.h"

#include <limits>

namespace {

bool AddWord(int16_t& sum, int16_t addend) {
    const int result = static_cast<int>(sum) + addend;
    if (result < std::numeric_limits<int16_t>::min() ||
        result > std::numeric_limits<int16_t>::max())
        return false;
    sum = static_cast<int16_t>(result);
    return true;
}

bool AddPoint(NodePosition& sum, int16_t x, int16_t y, int16_t z) {
    return AddWord(sum.x, x) && AddWord(sum.y, y) && AddWord(sum.z, z);
}

} // namespace

const Part* PartOfBody(const FileRecord& record, int16_t body, bool& valid) {
    valid = body == 0;
    if (body <= 0)
        return nullptr;
    const int part = body - 1;
    if (part >= record.NumParts - 1 || part >= static_cast<int>(record.Parts.size()))
        return nullptr;
    valid = true;
    return &record.Parts[part];
}

bool AssembledPosition(const FileRecord& record, int index, const Node& displacement,
                       NodePosition& position) {
    if (index < 0 || index >= record.NumNodes || index >= static_cast<int>(record.Nodes.size()))
        return false;
    const Node& node = record.Nodes[index];
    bool valid = false;
    const Part* part = PartOfBody(record, node.B, valid);
    NodePosition sum{node.X, node.Y, node.Z};
    if (!valid || !AddPoint(sum, displacement.X, displacement.Y, displacement.Z) ||
        (part != nullptr && !AddPoint(sum, part->X, part->Y, part->Z)))
        return false;
    position = sum;
    return true;
}
