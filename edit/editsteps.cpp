#include "editsteps.h"

#include "elementkind.h"
#include "piggybacknumber.h"

FileRecord* EditableFile(model& m) {
    if (m.M_Type != kMoxLoaded || m.m_currmox < 0 ||
        static_cast<size_t>(m.m_currmox) >= m.Files.size())
        return nullptr;
    FileRecord& file = m.Files[static_cast<size_t>(m.m_currmox)];
    return file.Loaded ? &file : nullptr;
}

Piggyback* NamedPiggyback(FileRecord& file, int16_t number) {
    return number < 0 ? nullptr : FindPiggyback(file, number);
}

int16_t* CoordinateOf(Node& node, int32_t axis) {
    switch (axis) {
    case kAxisX:
        return &node.X;
    case kAxisY:
        return &node.Y;
    case kAxisZ:
        return &node.Z;
    default:
        return nullptr;
    }
}

void SizeCornerLists(Piggyback& item, size_t size, CornerLists lists) {
    if (lists.nodes)
        item.NodeList.resize(size, 0);
    if (lists.xMap)
        item.XMap.resize(size, 0);
    if (lists.yMap)
        item.YMap.resize(size, 0);
}

CornerLists ListsOfKind(uint8_t type) {
    switch (type) {
    case kTypeColouredLine:
    case kTypeHardpoint:
    case kTypeColouredPoly:
        return {true, false, false};
    case kTypeGouraudPoly:
        return {true, true, false};
    default:
        return {true, true, true};
    }
}

void PadCornerLists(Piggyback& item, size_t size) {
    for (std::vector<uint8_t>* list : {&item.NodeList, &item.XMap, &item.YMap}) {
        if (list->size() < size)
            list->resize(size, 0);
    }
}
