#include "kindandmove.h"

#include "editsteps.h"
#include "elementkind.h"
#include "recordedchange.h"

#include <algorithm>
#include <map>

namespace {

// List index of the kind list from which on every index stands for NULL.
constexpr int kNullListIndex = 6;
// Polygons keep at least this many corners when they take a new kind.
constexpr int kMinPolygonCorners = 3;

} // namespace

void ChangeType(model& m, int16_t newtype) {
    FileRecord* file = EditableFile(m);
    Piggyback* item = file != nullptr ? NamedPiggyback(*file, m.m_currelem) : nullptr;
    if (item == nullptr || newtype < 0)
        return;
    const RecordedChange change(m, "Change kind");
    const uint8_t type = newtype < kNullListIndex ? static_cast<uint8_t>(newtype + 1) : kTypeNull;
    item->Type = type;
    if (type == kTypeColouredLine)
        item->CRN = 2;
    else if (type == kTypeHardpoint)
        item->CRN = 1;
    else
        item->CRN = std::max<uint8_t>(item->CRN, kMinPolygonCorners);
    SizeCornerLists(*item, static_cast<size_t>(item->CRN) + 1, ListsOfKind(type));
}

void MoveElement(model& m, int16_t element, int32_t Axis, int16_t dist) {
    FileRecord* file = EditableFile(m);
    const Piggyback* item = file != nullptr ? NamedPiggyback(*file, element) : nullptr;
    Node probe;
    if (item == nullptr || CoordinateOf(probe, Axis) == nullptr)
        return;
    const RecordedChange change(m, "Move piggyback " + std::to_string(element));
    const int nodes = std::min<int>(file->NumNodes, static_cast<int>(file->Nodes.size()));
    // How often each node is named: it moves once per corner. A corner naming no node of the
    // table has nothing to move.
    std::map<int, int> times;
    const int corners = std::min<int>(item->CRN, static_cast<int>(item->NodeList.size()));
    for (int k = 0; k < corners; ++k) {
        if (item->NodeList[k] < nodes)
            ++times[item->NodeList[k]];
    }
    int step = dist;
    for (const auto& [node, count] : times) {
        const int value = *CoordinateOf(file->Nodes[node], Axis);
        if (step > 0)
            step = std::min(step, (kCoordinateMax - value) / count);
        else if (step < 0)
            step = std::max(step, -((value - kCoordinateMin) / count));
    }
    for (const auto& [node, count] : times) {
        int16_t* coordinate = CoordinateOf(file->Nodes[node], Axis);
        *coordinate = static_cast<int16_t>(*coordinate + count * step);
    }
}
