#include "editedmodel.h"

#include "moxreader.h"
#include "piggybacknumber.h"

model LoadedModel(const std::vector<uint8_t>& bytes) {
    model m;
    m.Files.resize(kFileSlots);
    m.Files[0] = ReadMoxBytes(bytes, "TESTF.MOX", 0);
    m.M_Type = kMoxLoaded;
    return m;
}

FileRecord ReadBack(const model& m) {
    return ReadMoxBytes(SavedBytes(m.Files.at(m.m_currmox)), "TESTF.MOX", 0);
}

std::vector<std::vector<int>> CornerPositions(const FileRecord& file, int16_t number) {
    std::vector<std::vector<int>> corners;
    const Piggyback* item = FindPiggyback(file, number);
    for (int k = 0; item != nullptr && k < item->CRN; ++k) {
        Node node;
        if (GetElementNode(file, number, k, node))
            corners.push_back({node.X, node.Y, node.Z});
    }
    return corners;
}
