#include "nodespanel.h"

#include "currentmodel.h"
#include "fieldcommit.h"
#include "infofields.h"
#include "nodetable.h"
#include "panelaccess.h"
#include "panelrows.h"
#include "viewsettings.h"
#include "wholenumber.h"

#include <QPushButton>
#include <QSpinBox>

namespace {
constexpr int16_t kNoNode = -1;
} // namespace

NodesPanel::NodesPanel(QWidget& frame) : QObject(&frame) {
    PanelRows rows(frame);
    upd_4_node =
        &rows.AddSpin("Node #:", "txt_4_node", "upd_4_node", 0, 0, SpinWithBuddy::Buddy::ReadOnly);
    upd_4_x = &rows.AddFieldSpin("X:", kFieldNodeX);
    upd_4_y = &rows.AddFieldSpin("Y:", kFieldNodeY);
    upd_4_z = &rows.AddFieldSpin("Z:", kFieldNodeZ);
    upd_4_b = &rows.AddFieldSpin("Parent Body:", kFieldNodeB);
    cmd_4_add = &rows.AddButton("Add New Node", "cmd_4_add");
    cmd_4_zero = &rows.AddButton("Set Unused Nodes to 0", "cmd_4_zero");
    cmd_3_unused = &rows.AddButton("Delete Unused Nodes", "cmd_3_unused");
    rows.Finish();

    const auto node = [this] { return ShownNode(); };
    BindSpinField(*upd_4_x, {kFieldNodeX, node, {}});
    BindSpinField(*upd_4_y, {kFieldNodeY, node, {}});
    BindSpinField(*upd_4_z, {kFieldNodeZ, node, {}});
    BindSpinField(*upd_4_b, {kFieldNodeB, node, {}});
    connect(upd_4_node, &SpinWithBuddy::Changed, this, [this] {
        model& current = CurrentModel();
        current.m_currnode = static_cast<int16_t>(upd_4_node->spin().value());
        current.WriteInfo(kNodesTab);
    });
    connect(cmd_4_add, &QPushButton::clicked, this, [] { AddNode(CurrentModel()); });
    connect(cmd_4_zero, &QPushButton::clicked, this, [] { RemoveNodes(CurrentModel(), true); });
    connect(cmd_3_unused, &QPushButton::clicked, this, &NodesPanel::cmd_3_unused_Click);
}

int16_t NodesPanel::ShownNode() const {
    return static_cast<int16_t>(upd_4_node->spin().value());
}

void NodesPanel::Fill() {
    const model& current = CurrentModel();
    if (current.m_currnode == kNoNode)
        return;
    const std::pair<int32_t, SpinWithBuddy*> fields[] = {{kFieldNodeX, upd_4_x},
                                                         {kFieldNodeY, upd_4_y},
                                                         {kFieldNodeZ, upd_4_z},
                                                         {kFieldNodeB, upd_4_b}};
    for (const auto& [field, control] : fields) {
        const std::optional<std::string> stored = current.InfoText(field, current.m_currnode, -1);
        if (!stored)
            return;
        control->Show(static_cast<int>(WholeNumber(*stored).value_or(0)));
    }
}

void NodesPanel::cmd_3_unused_Click() {
    RemoveNodes(CurrentModel(), false);
    // Whatever the answer, the chooser starts again at the first node, within the table.
    if (const FileRecord* record = ShownRecord())
        SetChooserTop(&upd_4_node->spin(), record->NumNodes - 1);
    upd_4_node->spin().setValue(0);
}
