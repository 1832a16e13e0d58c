#include "duplicateelement.h"

#include "arrayentry.h"
#include "editsteps.h"
#include "elementkind.h"
#include "modelhost.h"
#include "piggybacknumber.h"
#include "recordedchange.h"

#include <string>

namespace {

// Element kinds a stream can hold without a display code in front: a byte from 7 to 254 at the
// start of an entry is read as a display code.
bool StorableWithoutCode(uint8_t type) {
    return type < kFirstDisplayCode || type > kLastDisplayCode;
}

// The copy of `source` by its kind: the corner count, the lists that kind keeps and the further
// fields; no display code.
Piggyback CopyOf(const Piggyback& source) {
    Piggyback copy;
    copy.Type = source.Type;
    copy.CRN = source.Type == kTypeColouredLine ? 2
               : source.Type == kTypeHardpoint  ? 1
                                                : source.CRN;
    const CornerLists lists = ListsOfKind(source.Type);
    SizeCornerLists(copy, static_cast<size_t>(copy.CRN) + 1, lists);
    for (int k = 0; k < copy.CRN; ++k) {
        copy.NodeList[k] = EntryOr(source.NodeList, k);
        if (lists.xMap)
            copy.XMap[k] = EntryOr(source.XMap, k);
        if (lists.yMap)
            copy.YMap[k] = EntryOr(source.YMap, k);
    }
    if (source.Type != kTypeGouraudPoly)
        copy.Att1 = source.Att1;
    if (lists.yMap)
        copy.Att2 = source.Att2;
    return copy;
}

} // namespace

void Duplicate_Element(model& m, bool toPB, int16_t Source) {
    FileRecord* file = EditableFile(m);
    const Piggyback* source = file != nullptr ? NamedPiggyback(*file, Source) : nullptr;
    if (source == nullptr)
        return;
    const int s = SplitNumber(Source).element;
    if (!StorableWithoutCode(source->Type)) {
        ShowMessage("Piggyback " + std::to_string(Source) + " is of kind " +
                    std::to_string(source->Type) +
                    ", which a file holds only behind a display code, and a copy takes no "
                    "display code. Change its kind first. Nothing was copied.");
        return;
    }
    Piggyback copy = CopyOf(*source);
    const std::string label = "Duplicate piggyback " + std::to_string(Source);

    if (toPB) {
        ElementList& list = file->Elements[s];
        if (list.Count >= kNumberPositions) {
            ShowMessage("Element " + std::to_string(s) +
                        " already holds 100 piggybacks, the most whose numbers can name them. "
                        "Nothing was copied.");
            return;
        }
        const RecordedChange change(m, label);
        const int q = list.Count;
        ++list.Count;
        list.Items.resize(static_cast<size_t>(list.Count) + 1);
        copy.Number = MakeNumber(s, q);
        list.Items[q] = std::move(copy);
        list.Items[list.Count] = Piggyback{};
        return;
    }

    if (file->NumElements >= kMaxElements) {
        ShowMessage("This file already holds 255 elements, the most the tree can name (0 to 254). "
                    "Nothing was copied.");
        return;
    }
    const RecordedChange change(m, label);
    const NRMRecord plane = EntryOr(file->NRM, s);
    const int t = file->NumElements;
    ++file->NumElements;
    const size_t size = static_cast<size_t>(file->NumElements) + 1;
    file->Elements.resize(size);
    file->NRM.resize(size);
    file->PART.resize(size);
    file->Offsets.resize(size);
    copy.Number = MakeNumber(t, 0);
    ElementList& list = file->Elements[t];
    list.Count = 1;
    list.Items.assign(2, Piggyback{});
    list.Items[0] = std::move(copy);
    file->NRM[t] = plane;
    file->PART[t] = {0, 0};
}
