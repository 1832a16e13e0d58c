#include "cornerlist.h"

#include "editsteps.h"
#include "modelhost.h"
#include "recordedchange.h"

#include <utility>

namespace {

constexpr const char* kThreeCornersLeft = "Cannot Delete Any More Pints.  Hmm. Pints.  Beer.  No "
                                          "wonder this thing never gets finished!";
constexpr const char* kCornersFull = "This piggyback already has 255 corners, the most one can "
                                     "hold. No corner was added.";
constexpr const char* kNoCorners = "This piggyback has no corner to delete.";

Piggyback* SelectedPiggyback(model& m) {
    FileRecord* file = EditableFile(m);
    return file != nullptr ? NamedPiggyback(*file, m.m_currelem) : nullptr;
}

} // namespace

void AddNodeToElement(model& m) {
    Piggyback* item = SelectedPiggyback(m);
    if (item == nullptr)
        return;
    if (item->CRN >= kMaxCorners) {
        ShowMessage(kCornersFull);
        return;
    }
    const RecordedChange change(m, "Add corner");
    ++item->CRN;
    SizeCornerLists(*item, static_cast<size_t>(item->CRN) + 1);
    const int last = item->CRN - 1;
    item->NodeList[last] = 0;
    item->XMap[last] = 0;
    item->YMap[last] = 0;
}

void DeleteNodeFromElement(model& m, int16_t node) {
    Piggyback* item = SelectedPiggyback(m);
    if (item == nullptr)
        return;
    if (item->CRN == 3) {
        ShowMessage(kThreeCornersLeft);
        return;
    }
    if (item->CRN == 0) {
        ShowMessage(kNoCorners);
        return;
    }
    if (node < 0 || node >= item->CRN)
        return;
    const RecordedChange change(m, "Delete corner");
    PadCornerLists(*item, static_cast<size_t>(item->CRN) + 1);
    // The last corner is copied down but not cleared: its value stays behind as the spare entry.
    for (int k = node; k <= item->CRN - 2; ++k) {
        item->NodeList[k] = item->NodeList[k + 1];
        item->XMap[k] = item->XMap[k + 1];
        item->YMap[k] = item->YMap[k + 1];
    }
    --item->CRN;
    SizeCornerLists(*item, static_cast<size_t>(item->CRN) + 1);
}

void SwapNodes(model& m, int16_t node1, int16_t node2) {
    Piggyback* item = SelectedPiggyback(m);
    if (item == nullptr || node1 < 0 || node1 >= item->CRN || node2 < 0 || node2 >= item->CRN)
        return;
    const RecordedChange change(m, "Swap corners");
    PadCornerLists(*item, static_cast<size_t>(item->CRN) + 1);
    std::swap(item->NodeList[node1], item->NodeList[node2]);
    std::swap(item->XMap[node1], item->XMap[node2]);
    std::swap(item->YMap[node1], item->YMap[node2]);
}

void RecalcNormal([[maybe_unused]] model& m, [[maybe_unused]] int16_t num) {}
