#include "deleteelement.h"

#include "editsteps.h"
#include "modelhost.h"
#include "piggybacknumber.h"
#include "recordedchange.h"

namespace {

constexpr const char* kElementSpin = "upd_3_elem";
constexpr const char* kPiggybackSpin = "upd_3_pb";
constexpr int32_t kModelInfoTab = 1;
constexpr int32_t kElementsTab = 3;

// A reference byte of PART or Root once element `gone` has left the table.
uint8_t AfterRemoval(uint8_t reference, int gone) {
    if (reference == gone)
        return kNoElement;
    if (reference > gone && reference < kNoElement)
        return static_cast<uint8_t>(reference - 1);
    return reference;
}

// Numbers from position `first` on; as when a file is read, an entry whose Number would not fit
// 16 bits (elements 328 and up of a damaged file) gets 0.
void RenumberFrom(ElementList& list, int element, int first) {
    for (size_t j = static_cast<size_t>(first); j < list.Items.size(); ++j) {
        const int number = element * kNumberPositions + static_cast<int>(j);
        list.Items[j].Number = number <= kHighestNumber ? static_cast<int16_t>(number) : 0;
    }
}

template <typename T> void EraseEntry(std::vector<T>& table, int index) {
    if (static_cast<size_t>(index) < table.size())
        table.erase(table.begin() + index);
}

void RefillPanels(const model& m) {
    m.WriteInfo(kModelInfoTab);
    m.WriteInfo(kElementsTab);
}

} // namespace

void Delete_Element(model& m, int16_t number) {
    FileRecord* file = EditableFile(m);
    if (file == nullptr || number < 0)
        return;
    const int i = SplitNumber(number).element;
    if (i < 0 || i >= file->NumElements)
        return;
    const RecordedChange change(m, "Delete element " + std::to_string(i));
    if (file->NumElements >= 2) {
        const size_t size = static_cast<size_t>(file->NumElements) + 1;
        file->Elements.resize(size);
        file->NRM.resize(size);
        file->PART.resize(size);
        EraseEntry(file->Elements, i);
        EraseEntry(file->NRM, i);
        EraseEntry(file->PART, i);
        --file->NumElements;
        // The offsets are not shifted: the writer computes them anew and nothing else reads them.
        file->Offsets.resize(size - 1);
        for (int e = i; e < file->NumElements; ++e)
            RenumberFrom(file->Elements[e], e, 0);
        file->Root[1] = AfterRemoval(file->Root[1], i);
        file->Root[0] = AfterRemoval(file->Root[0], i);
        for (int e = 0; e < file->NumElements; ++e) {
            file->PART[e][1] = AfterRemoval(file->PART[e][1], i);
            file->PART[e][0] = AfterRemoval(file->PART[e][0], i);
        }
    }
    if (i > file->NumElements - 1) {
        m.m_currelem = MakeNumber(file->NumElements - 1, 0);
        Host().SetSpinValue(kPiggybackSpin, 0);
        Host().SetSpinValue(kElementSpin, file->NumElements - 1);
    }
    RefillPanels(m);
}

void Delete_Piggyback(model& m, int16_t number) {
    FileRecord* file = EditableFile(m);
    if (file == nullptr || NamedPiggyback(*file, number) == nullptr)
        return;
    const RecordedChange change(m, "Delete piggyback " + std::to_string(number));
    const PiggybackRef ref = SplitNumber(number);
    ElementList& list = file->Elements[ref.element];
    if (list.Count >= 2) {
        EraseEntry(list.Items, ref.position);
        --list.Count;
        list.Items.resize(static_cast<size_t>(list.Count) + 1);
        RenumberFrom(list, ref.element, ref.position);
    }
    if (ref.position > list.Count - 1) {
        // The element comes from the panel's spin, as the panel shows it.
        const int selected = Host().SpinValue(kElementSpin) * kNumberPositions + list.Count - 1;
        const bool fits = selected >= 0 && selected <= kHighestNumber;
        m.m_currelem = fits ? static_cast<int16_t>(selected) : int16_t{-1};
        Host().SetSpinValue(kPiggybackSpin, list.Count - 1);
    }
    RefillPanels(m);
}
