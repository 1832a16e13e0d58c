// Undo and Redo of the open model: the journal restores the file, then the selection is mended so
// that the panels and the painter name only what exists.
#include "model.h"

#include "modelhost.h"
#include "piggybacknumber.h"

#include <algorithm>

namespace {

constexpr int16_t kNoSelection = -1;
constexpr const char* kNodeChooser = "upd_4_node";

// After file `slot` came back to another state: a selected piggyback or node that it no longer
// holds is no longer selected, and the node chooser reaches the last node there is.
void MendSelection(model& m, int16_t slot) {
    if (slot < 0 || slot != m.m_currmox || static_cast<std::size_t>(slot) >= m.Files.size())
        return;
    const FileRecord& file = m.Files[static_cast<std::size_t>(slot)];
    if (m.m_currelem != kNoSelection && FindPiggyback(file, m.m_currelem) == nullptr)
        m.m_currelem = kNoSelection;
    if (m.m_currnode >= file.NumNodes)
        m.m_currnode = kNoSelection;
    Host().SetSpinMaximum(kNodeChooser, std::max(0, file.NumNodes - 1));
}

} // namespace

bool model::Undo() {
    if (M_Type != kMoxLoaded)
        return false;
    const int16_t slot = Journal.Undo(Files);
    MendSelection(*this, slot);
    return slot >= 0;
}

bool model::Redo() {
    if (M_Type != kMoxLoaded)
        return false;
    const int16_t slot = Journal.Redo(Files);
    MendSelection(*this, slot);
    return slot >= 0;
}
