#include "editedmodel.h"

#include "moxreader.h"
#include "piggybacknumber.h"

MoxBuilder EditedElements() {
    MoxBuilder b;
    for (int16_t n = 0; n < 7; ++n)
        b.nodes.push_back(Node{int16_t(n), int16_t(2 * n), int16_t(100 * n), 0});
    b.streams = {StreamBytes()
                     .ColouredPoly({0, 1, 2}, 7)
                     .GouraudPoly({{0, 10}, {1, 11}, {2, 12}, {3, 13}})
                     .MappedPoly(5, {{0, 1, 2}, {1, 3, 4}, {2, 5, 6}, {3, 7, 8}, {4, 9, 9}}, 1, 2)
                     .End()
                     .bytes,
                 StreamBytes().End().bytes,
                 StreamBytes()
                     .Prefix(148, 1)
                     .MappedPoly(5, {{3, 1, 1}, {4, 2, 2}, {5, 3, 3}}, 4, 5)
                     .Line(4, 5, 3)
                     .Hardpoint(25, 1)
                     .End()
                     .bytes,
                 StreamBytes().ColouredPoly(std::vector<uint8_t>(255, 1), 7).End().bytes};
    b.planes = {NRMRecord{1, 2, 3, 4, 5}, {}, NRMRecord{16384, 0, 0, -9, 1}, {}};
    b.root = {0, 255};
    b.children = {{1, 2}, {255, 255}, {3, 255}, {255, 255}};
    return b;
}

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
