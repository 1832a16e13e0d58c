#include "recordedchange.h"

#include "model.h"
#include "recordfields.h"

#include <tuple>
#include <utility>

namespace {

template <typename T> bool SameEntries(const std::vector<T>& a, const std::vector<T>& b) {
    if (a.size() != b.size())
        return false;
    for (std::size_t k = 0; k < a.size(); ++k) {
        if (Fields(a[k]) != Fields(b[k]))
            return false;
    }
    return true;
}

bool SameLists(const std::vector<ElementList>& a, const std::vector<ElementList>& b) {
    if (a.size() != b.size())
        return false;
    for (std::size_t k = 0; k < a.size(); ++k) {
        if (a[k].Count != b[k].Count || !SameEntries(a[k].Items, b[k].Items))
            return false;
    }
    return true;
}

bool SameHardpoints(const std::array<Node, 8>& a, const std::array<Node, 8>& b) {
    for (std::size_t k = 0; k < a.size(); ++k) {
        if (Fields(a[k]) != Fields(b[k]))
            return false;
    }
    return true;
}

} // namespace

bool SameContents(const FileRecord& a, const FileRecord& b) {
    return std::tie(a.Radius, a.Texture, a.NumParts, a.NumNodes, a.NumElements, a.Root, a.Offsets,
                    a.PointStep) == std::tie(b.Radius, b.Texture, b.NumParts, b.NumNodes,
                                             b.NumElements, b.Root, b.Offsets, b.PointStep) &&
           SameEntries(a.Parts, b.Parts) && SameEntries(a.NRM, b.NRM) &&
           SameEntries(a.PART, b.PART) && SameEntries(a.Nodes, b.Nodes) &&
           SameLists(a.Elements, b.Elements) && SameHardpoints(a.HP, b.HP);
}

RecordedChange::RecordedChange(model& m, std::string label)
    : model_(m), label_(std::move(label)), outermost_(m.Journal.Enter()) {
    const int16_t slot = m.m_currmox;
    if (!outermost_ || m.M_Type != kMoxLoaded || slot < 0 ||
        static_cast<std::size_t>(slot) >= m.Files.size() || !m.Files[slot].Loaded)
        return;
    slot_ = slot;
    before_ = m.Files[slot];
}

RecordedChange::~RecordedChange() {
    model_.Journal.Leave();
    if (!before_ || static_cast<std::size_t>(slot_) >= model_.Files.size())
        return;
    if (!SameContents(*before_, model_.Files[slot_]))
        model_.Journal.Record(slot_, std::move(*before_), label_);
}
