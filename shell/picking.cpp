#include "picking.h"

#include "currentmodel.h"
#include "mainwindow.h"
#include "modelhost.h"
#include "oglgraphics.h"
#include "piggybacknumber.h"
#include "selectionpass.h"
#include "viewsettings.h"

#include <algorithm>

namespace {

constexpr int kSelectionWords = 256;
constexpr int kAxisSelectionWords = 32;
// Pick boxes in pixels: nodes are small points, polygons and lines are hit with less, and the
// thin axis lines get a wider box.
constexpr int kNodeBox = 4;
constexpr int kElementBox = 2;
constexpr int kAxisBox = 6;

const FileRecord* CurrentFile(const model& current) {
    if (current.m_currmox < 0 || static_cast<size_t>(current.m_currmox) >= current.Files.size())
        return nullptr;
    return &current.Files[static_cast<size_t>(current.m_currmox)];
}

bool IsNodeOf(const FileRecord& file, uint32_t name) {
    return name < static_cast<uint32_t>(
                      std::min<size_t>(std::max<int>(file.NumNodes, 0), file.Nodes.size()));
}

bool IsPiggybackOf(const FileRecord& file, uint32_t name) {
    return name < kFirstAxisName && FindPiggyback(file, static_cast<int16_t>(name)) != nullptr;
}

void SelectNode(model& current, uint32_t name) {
    current.m_currnode = static_cast<int16_t>(name);
    Host().SetSpinValue("upd_4_node", static_cast<int>(name));
}

void SelectElement(model& current, uint32_t name) {
    current.m_currelem = static_cast<int16_t>(name);
    Host().ShowPickedPiggyback(current.m_currelem);
}

void TakePick(model& current, const SelectionHits& pick) {
    const FileRecord* file = CurrentFile(current);
    if (pick.hits >= 1 && file != nullptr) {
        if (View().CurrentTab == kNodesTab) {
            const uint32_t name = pick.records.front().name;
            if (IsNodeOf(*file, name))
                return SelectNode(current, name);
        } else {
            const uint32_t name = NearestElementHit(pick.records);
            if (IsPiggybackOf(*file, name))
                return SelectElement(current, name);
        }
    }
    current.m_currelem = -1;
    current.m_currnode = -1;
}

} // namespace

void ProcessSelection(int16_t x, int16_t y) {
    model& current = CurrentModel();
    if (current.M_Type == kNothingLoaded || !OGL().MakeCurrent())
        return;
    const int box = View().CurrentTab == kNodesTab ? kNodeBox : kElementBox;
    TakePick(current, SelectionPass(x, y, box, kSelectionWords));
    OGL().RequestFrame();
}

void ProcessSelectionMove(frm_main& window, int16_t x, int16_t y) {
    if (CurrentModel().M_Type == kNothingLoaded || !OGL().MakeCurrent())
        return;
    const SelectionHits pick = SelectionPass(x, y, kAxisBox, kAxisSelectionWords);
    if (pick.hits > 0) {
        switch (LastAxisHit(pick.records)) {
        case kAxisX:
            window.mnu_m_a_x_Click();
            break;
        case kAxisY:
            window.mnu_m_a_y_Click();
            break;
        case kAxisZ:
            window.mnu_m_a_z_Click();
            break;
        default:
            break;
        }
    }
    OGL().RequestFrame();
}
