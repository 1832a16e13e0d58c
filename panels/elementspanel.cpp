#include "elementspanel.h"

#include "cornerlist.h"
#include "currentmodel.h"
#include "deleteelement.h"
#include "duplicateelement.h"
#include "elementsfill.h"
#include "enterfield.h"
#include "fieldcommit.h"
#include "formchecks.h"
#include "infofields.h"
#include "kindandmove.h"
#include "modelhost.h"
#include "piggybacknumber.h"
#include "spinwithbuddy.h"
#include "texturemap.h"
#include "viewsettings.h"
#include "wholenumber.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSpinBox>

#include <limits>

namespace {

constexpr int16_t kNone = -1;
constexpr int kNumberStep = 100;
// The top of upd_3_pb while a pick hands over: any list position fits.
constexpr int kPickPositionMax = 255;
constexpr int kActionRowOffset = 139;
constexpr const char* kRecalcMessage = "Not Finished Yet";

// The ranges a group spin clamps its column to.
constexpr int32_t kCoordinateMin = -32767;
constexpr int32_t kCoordinateMax = 32767;
constexpr int32_t kMapMin = 0;
constexpr int32_t kMapMax = 255;

void RefillPanel() {
    CurrentModel().WriteInfo(kElementsTab);
}

// A number typed or shown in a field as an `i` of UpdateInfo; -1 when it is none.
int16_t FieldItem(const QLineEdit& field) {
    const std::optional<int64_t> number = WholeNumber(field.text().toStdString());
    if (!number || *number < 0 || *number > std::numeric_limits<int16_t>::max())
        return kNone;
    return static_cast<int16_t>(*number);
}

// The corner count of the selected piggyback, -1 when nothing is selected.
int CornerCount(const model& current) {
    if (current.m_currmox < 0 || current.m_currmox >= static_cast<int>(current.Files.size()))
        return kNone;
    const Piggyback* item =
        FindPiggyback(current.Files[static_cast<size_t>(current.m_currmox)], current.m_currelem);
    return item != nullptr ? item->CRN : kNone;
}

} // namespace

ElementsPanel::ElementsPanel(QWidget& frame) : QObject(&frame), c_(BuildElementsControls(&frame)) {
    BindSelection();
    BindFields();
    BindRows();
    BindChecks();
    BindGroupSpins();
    BindCornerButtons();
    BindElementButtons();
}

void ElementsPanel::Fill() {
    if (const std::optional<KindView> shown = FillElementsPanel(c_))
        cornerButtons_ = shown->cornerButtons;
}

void ElementsPanel::TakePick(int16_t number) {
    const PiggybackRef picked = SplitNumber(number);
    c_.upd_3_pb->spin().setMaximum(kPickPositionMax);
    Select(picked.element, picked.position);
}

int16_t ElementsPanel::ShownNumber() const {
    const int number = c_.upd_3_elem->spin().value() * kNumberStep + c_.upd_3_pb->spin().value();
    return number <= std::numeric_limits<int16_t>::max() ? static_cast<int16_t>(number) : kNone;
}

void ElementsPanel::SelectShown() {
    CurrentModel().m_currelem = ShownNumber();
    RefillPanel();
}

// Both spins move with their change handlers held back, so that one choice fills the panel once:
// the element spin's handler would otherwise fill for piggyback 0 and again for the position.
void ElementsPanel::Select(int element, int position) {
    {
        const QSignalBlocker quietElement(c_.upd_3_elem);
        const QSignalBlocker quietPosition(c_.upd_3_pb);
        c_.upd_3_elem->spin().setValue(element);
        c_.upd_3_pb->spin().setValue(position);
    }
    SelectShown();
}

void ElementsPanel::BindSelection() {
    connect(c_.upd_3_elem, &SpinWithBuddy::Changed, this,
            [this] { Select(c_.upd_3_elem->spin().value(), 0); });
    connect(c_.upd_3_pb, &SpinWithBuddy::Changed, this, [this] { SelectShown(); });
    connect(&c_.upd_3_elem->buddy(), &EnterField::Committed, this, [this] { txt_3_elem_Commit(); });
}

// Enter in txt_3_elem selects piggyback 0 of the element typed, held to the spin's range.
void ElementsPanel::txt_3_elem_Commit() {
    QLineEdit& field = c_.upd_3_elem->buddy();
    if (!MainForm::AlphaNumeric(field.text(), false, true))
        return;
    const QSpinBox& spin = c_.upd_3_elem->spin();
    field.setText(MainForm::CheckMinMax(field.text(), spin.minimum(), spin.maximum()));
    const std::optional<int64_t> element = WholeNumber(field.text().toStdString());
    if (!element)
        return;
    Select(static_cast<int>(*element), 0);
}

void ElementsPanel::BindFields() {
    const auto piggyback = [this] { return ShownNumber(); };
    const auto element = [this] { return static_cast<int16_t>(c_.upd_3_elem->spin().value()); };
    BindSpinField(*c_.upd_3_flag, {kFieldFlag, piggyback, {}});
    BindSpinField(*c_.upd_3_att1, {kFieldAtt1, piggyback, {}});
    BindSpinField(*c_.upd_3_att2, {kFieldAtt2, piggyback, {}});
    BindSpinField(*c_.upd_3_nrm_x, {kFieldNrmX, element, {}});
    BindSpinField(*c_.upd_3_nrm_y, {kFieldNrmY, element, {}});
    BindSpinField(*c_.upd_3_nrm_z, {kFieldNrmZ, element, {}});
    BindSpinField(*c_.upd_3_nrm_d, {kFieldNrmD, element, {}});
    BindSpinField(*c_.upd_3_nrm_b, {kFieldNrmF, element, {}});
    connect(c_.cbo_3_action, &QComboBox::activated, this, [this](int row) {
        const int code = row == 0 ? 0 : row + kActionRowOffset;
        CurrentModel().UpdateInfo(kFieldAction, std::to_string(code), ShownNumber(), kNone);
    });
    connect(c_.cmd_3_nrm_recalc, &QPushButton::clicked, this, [] { ShowMessage(kRecalcMessage); });
}

int16_t ElementsPanel::RowCorner(int row) const {
    return static_cast<int16_t>(row + c_.vsc_3_nodeoffset->value());
}

QLineEdit& ElementsPanel::RowField(GroupColumn column, int row) const {
    const ElementRow& controls = c_.rows[static_cast<size_t>(row)];
    switch (column) {
    case kColumnX:
        return *controls.x;
    case kColumnY:
        return *controls.y;
    case kColumnZ:
        return *controls.z;
    case kColumnXMap:
        return *controls.xmap;
    default:
        return *controls.ymap;
    }
}

FieldAddress ElementsPanel::RowAddress(GroupColumn column, int row) const {
    static constexpr std::array<int32_t, kGroupColumns> kFields{
        kFieldNodeX, kFieldNodeY, kFieldNodeZ, kFieldXMap, kFieldYMap};
    const int32_t field = kFields[static_cast<size_t>(column)];
    if (column == kColumnXMap || column == kColumnYMap)
        return {field, [this] { return ShownNumber(); }, [this, row] { return RowCorner(row); }};
    const QLineEdit* node = &c_.rows[static_cast<size_t>(row)].node->buddy();
    return {field, [node] { return FieldItem(*node); }, {}};
}

void ElementsPanel::BindRows() {
    for (int r = 0; r < kElementRows; ++r) {
        ElementRow& row = c_.rows[static_cast<size_t>(r)];
        BindSpinField(*row.node, {kFieldNodeList, [this] { return ShownNumber(); },
                                  [this, r] { return RowCorner(r); }});
        // A step of the node number shows the new node's place at once; Enter leaves the row
        // as it was until the next fill.
        connect(row.node, &SpinWithBuddy::Changed, this, [] { RefillPanel(); });
        for (GroupColumn column : {kColumnX, kColumnY, kColumnZ, kColumnXMap, kColumnYMap}) {
            auto* field = static_cast<EnterField*>(&RowField(column, r));
            BindTextField(*field, RowAddress(column, r));
            if (column == kColumnXMap || column == kColumnYMap)
                connect(field, &EnterField::Committed, this,
                        [] { DrawTextureMap(CurrentModel()); });
        }
    }
    connect(c_.vsc_3_nodeoffset, &QScrollBar::valueChanged, this,
            [this](int offset) { vsc_3_nodeoffset_Change(offset); });
}

// The rows move over the corner list and keep their offset through the fill.
void ElementsPanel::vsc_3_nodeoffset_Change(int offset) {
    MainForm::wait = true;
    RefillPanel();
    c_.lbl_offset->setText(QString::number(offset));
    MainForm::wait = false;
}

bool ElementsPanel::RowTicked(int row) const {
    const QCheckBox& select = *c_.rows[static_cast<size_t>(row)].select;
    return select.isEnabled() && select.isChecked();
}

void ElementsPanel::BindChecks() {
    connect(c_.chk_3_all, &QCheckBox::clicked, this, [this](bool checked) {
        for (ElementRow& row : c_.rows) {
            if (row.select->isEnabled())
                row.select->setChecked(checked);
        }
    });
    for (ElementRow& row : c_.rows)
        connect(row.select, &QCheckBox::toggled, this, [this] { chk_3_select_Click(); });
    connect(c_.chk_3_lock, &QCheckBox::toggled, this, [this] { chk_3_lock_Click(); });
}

// A tick on the first row leaves nothing to move up, one on the last row nothing to move down.
void ElementsPanel::chk_3_select_Click() {
    c_.cmd_3_moveup->setEnabled(cornerButtons_ && !c_.rows.front().select->isChecked());
    c_.cmd_3_movedown->setEnabled(cornerButtons_ && !c_.rows.back().select->isChecked());
}

void ElementsPanel::chk_3_lock_Click() {
    const bool locked = c_.chk_3_lock->isChecked();
    for (ElementRow& row : c_.rows)
        row.node->setEnabled(!locked && row.select->isEnabled());
}

void ElementsPanel::BindGroupSpins() {
    const std::array<QSpinBox*, kGroupColumns> spins{c_.upd_3_x, c_.upd_3_y, c_.upd_3_z,
                                                     c_.upd_3_xmap, c_.upd_3_ymap};
    for (int column = 0; column < kGroupColumns; ++column) {
        connect(spins[static_cast<size_t>(column)], &QSpinBox::valueChanged, this,
                [this, column](int value) {
                    GroupSpinChange(static_cast<GroupColumn>(column), value);
                });
    }
}

// Every ticked row that shows its column moves by the spin's step since its last value.
void ElementsPanel::GroupSpinChange(GroupColumn column, int value) {
    const bool map = column == kColumnXMap || column == kColumnYMap;
    const int delta = value - lastGroupValue_[static_cast<size_t>(column)];
    for (int r = 0; r < kElementRows; ++r) {
        QLineEdit& field = RowField(column, r);
        if (!RowTicked(r) || !field.isEnabled())
            continue;
        const std::optional<int64_t> number = WholeNumber(field.text().toStdString());
        if (!number)
            continue;
        field.setText(MainForm::CheckMinMax(QString::number(*number + delta),
                                            map ? kMapMin : kCoordinateMin,
                                            map ? kMapMax : kCoordinateMax));
        WriteField(field, RowAddress(column, r));
    }
    lastGroupValue_[static_cast<size_t>(column)] = value;
    if (map)
        DrawTextureMap(CurrentModel());
}

void ElementsPanel::BindCornerButtons() {
    connect(c_.cbo_3_type, &QComboBox::activated, this, [](int row) {
        ChangeType(CurrentModel(), static_cast<int16_t>(row));
        RefillPanel();
    });
    connect(c_.cmd_3_moveup, &QPushButton::clicked, this, [this] { cmd_3_moveup_Click(); });
    connect(c_.cmd_3_movedown, &QPushButton::clicked, this, [this] { cmd_3_movedown_Click(); });
    connect(c_.cmd_3_add, &QPushButton::clicked, this, [] {
        AddNodeToElement(CurrentModel());
        RefillPanel();
    });
    connect(c_.cmd_3_delete, &QPushButton::clicked, this, [this] { cmd_3_delete_Click(); });
}

// Each ticked corner changes places with the one above it, top row first; the ticks go along.
void ElementsPanel::cmd_3_moveup_Click() {
    for (int r = 1; r < kElementRows && c_.rows[static_cast<size_t>(r)].select->isEnabled(); ++r) {
        if (!c_.rows[static_cast<size_t>(r)].select->isChecked())
            continue;
        SwapNodes(CurrentModel(), RowCorner(r - 1), RowCorner(r));
        SwapTicks(r - 1, r);
    }
    RefillPanel();
}

// Each ticked corner changes places with the one below it, bottom row first. A tick on the last
// corner stays, as there is nothing below it to change with.
void ElementsPanel::cmd_3_movedown_Click() {
    for (int r = kElementRows - 2; r >= 0; --r) {
        if (!RowTicked(r) || !c_.rows[static_cast<size_t>(r + 1)].select->isEnabled())
            continue;
        SwapNodes(CurrentModel(), RowCorner(r), RowCorner(r + 1));
        SwapTicks(r, r + 1);
    }
    RefillPanel();
}

void ElementsPanel::SwapTicks(int first, int second) {
    QCheckBox& a = *c_.rows[static_cast<size_t>(first)].select;
    QCheckBox& b = *c_.rows[static_cast<size_t>(second)].select;
    const bool ticked = a.isChecked();
    a.setChecked(b.isChecked());
    b.setChecked(ticked);
}

// The ticked corners go from the bottom up, so that the positions above stay as shown. When the
// polygon is down to its last three corners the refusal is shown once and the rest stay.
void ElementsPanel::cmd_3_delete_Click() {
    model& current = CurrentModel();
    for (int r = kElementRows - 1; r >= 0; --r) {
        if (!RowTicked(r))
            continue;
        const int before = CornerCount(current);
        DeleteNodeFromElement(current, RowCorner(r));
        if (CornerCount(current) == before)
            break;
    }
    for (ElementRow& row : c_.rows)
        row.select->setChecked(false);
    RefillPanel();
}

void ElementsPanel::BindElementButtons() {
    connect(c_.cmd_3_newelem, &QPushButton::clicked, this, [] {
        model& current = CurrentModel();
        Duplicate_Element(current, false, current.m_currelem);
        current.WriteInfo(kModelInfoTab);
        RefillPanel();
    });
    connect(c_.cmd_3_newpb, &QPushButton::clicked, this, [] {
        Duplicate_Element(CurrentModel(), true, CurrentModel().m_currelem);
        RefillPanel();
    });
    // The deletes refill the panels and mend the selection themselves.
    connect(c_.cmd_3_delelem, &QPushButton::clicked, this,
            [] { Delete_Element(CurrentModel(), CurrentModel().m_currelem); });
    connect(c_.cmd_3_delpb, &QPushButton::clicked, this,
            [] { Delete_Piggyback(CurrentModel(), CurrentModel().m_currelem); });
}
