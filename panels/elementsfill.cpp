#include "elementsfill.h"

#include "currentmodel.h"
#include "elementscontrols.h"
#include "formchecks.h"
#include "model.h"
#include "modelhost.h"
#include "panelaccess.h"
#include "piggybacknumber.h"
#include "spinwithbuddy.h"
#include "texturemap.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>
#include <array>
#include <string>

namespace {

constexpr const char* kFillFailure = "Error in WRITE_ELEMENT_MOX";
constexpr const char* kFillFailureTitle = "Non-critical error!";
// Display codes stand in cbo_3_action from this code on, one row each after "0 - NONE".
constexpr int kFirstActionCode = 140;
constexpr int kActionRowOffset = 139;

// Shows `value` in a spin and its buddy without writing anything; false when the spin's range
// cannot hold it.
bool ShowIn(SpinWithBuddy& control, int value) {
    if (value < control.spin().minimum() || value > control.spin().maximum())
        return false;
    control.Show(value);
    return true;
}

bool ShowEntry(QLineEdit& field, const std::vector<uint8_t>& list, int position) {
    if (position < 0 || position >= static_cast<int>(list.size()))
        return false;
    field.setText(QString::number(list[static_cast<size_t>(position)]));
    return true;
}

// The steps of one fill, each ending the fill with false where a value does not fit.
class ElementsFill {
public:
    ElementsFill(ElementsControls& controls, const model& current)
        : c_(controls), model_(current) {}

    std::optional<KindView> Run() {
        if (model_.m_currelem == -1)
            return std::nullopt;
        const FileRecord* record = ShownRecord();
        const Piggyback* item =
            record != nullptr ? FindPiggyback(*record, model_.m_currelem) : nullptr;
        if (item == nullptr)
            return Failed();
        const int element = SplitNumber(model_.m_currelem).element;
        DrawTextureMap(model_);
        ShowScrollBar(*item);
        BlankRows(*record);
        ShowListLength(record->Elements[static_cast<size_t>(element)].Count);
        if (!ShowAction(*item))
            return Failed();
        for (QPushButton* button : CornerButtons())
            button->setEnabled(true);
        const KindView view = ViewOfKind(item->Type);
        if (!ShowKind(view, *item, *record))
            return Failed();
        if (!ShowPlane(record->NRM, element))
            return Failed();
        return view;
    }

private:
    std::optional<KindView> Failed() const {
        Host().ShowMessage(std::string(kFillFailure) +
                               "\nElement: " + std::to_string(model_.m_currelem),
                           MessageButtons::Ok, MessageIcon::None, kFillFailureTitle);
        return std::nullopt;
    }

    std::array<QPushButton*, 4> CornerButtons() const {
        return {c_.cmd_3_add, c_.cmd_3_delete, c_.cmd_3_moveup, c_.cmd_3_movedown};
    }

    // The bar scrolls a list of more corners than rows; a fill for a scroll keeps its offset.
    void ShowScrollBar(const Piggyback& item) {
        QScrollBar& bar = *c_.vsc_3_nodeoffset;
        const QSignalBlocker quiet(&bar);
        if (item.CRN >= kElementRows) {
            bar.setMaximum(item.CRN - kElementRows);
            if (!MainForm::wait)
                bar.setValue(0);
            bar.setEnabled(true);
        } else {
            bar.setValue(0);
            bar.setMaximum(1);
            bar.setEnabled(false);
        }
        c_.lbl_offset->setText(QString::number(bar.value()));
    }

    // Every row blank and dead; the check marks stay as they are.
    void BlankRows(const FileRecord& record) {
        for (ElementRow& row : c_.rows) {
            row.select->setEnabled(false);
            row.node->spin().setMaximum(std::max(record.NumNodes - 1, 0));
            row.node->Show(0);
            row.node->setEnabled(false);
            row.node->buddy().clear();
            for (EnterField* field : {row.x, row.y, row.z, row.xmap, row.ymap}) {
                field->setEnabled(false);
                field->clear();
            }
        }
    }

    // Only the one entry of a list cannot be deleted.
    void ShowListLength(int count) {
        c_.upd_3_pb->spin().setMaximum(std::max(count - 1, 0));
        c_.cmd_3_delpb->setEnabled(c_.upd_3_pb->spin().maximum() != 0);
    }

    bool ShowAction(const Piggyback& item) {
        int row = 0;
        int flag = 0;
        if (item.COD != 0) {
            row = item.COD - kActionRowOffset;
            flag = item.Flag;
            if (item.COD < kFirstActionCode || row >= c_.cbo_3_action->count())
                return false;
        }
        c_.cbo_3_action->setCurrentIndex(row);
        return ShowIn(*c_.upd_3_flag, flag);
    }

    bool ShowKind(const KindView& view, const Piggyback& item, const FileRecord& record) {
        if (view.typeIndex < 0)
            return false;
        c_.cbo_3_type->setCurrentIndex(view.typeIndex);
        if (view.att1Caption != nullptr)
            c_.lbl_att1->setText(QString::fromLatin1(view.att1Caption));
        if (view.xmapCaption != nullptr)
            c_.lbl_xmap->setText(QString::fromLatin1(view.xmapCaption));
        if (view.att1Field)
            c_.upd_3_att1->Show(item.Att1);
        else
            c_.upd_3_att1->buddy().clear();
        if (view.att2Field)
            c_.upd_3_att2->Show(item.Att2);
        else
            c_.upd_3_att2->buddy().clear();
        if (!view.cornerButtons) {
            for (QPushButton* button : CornerButtons())
                button->setEnabled(false);
        }
        const bool fixed = view.rows == KindRows::Fixed;
        const int offset = fixed ? 0 : c_.vsc_3_nodeoffset->value();
        const int shown = fixed ? view.fixedRows : std::min<int>(item.CRN, kElementRows);
        for (int r = 0; r < shown; ++r) {
            if (!ShowRow(c_.rows[static_cast<size_t>(r)], view, item, record, offset + r))
                return false;
        }
        return true;
    }

    // One row showing corner `position`: its node with X, Y and Z, and the map columns of the kind.
    bool ShowRow(ElementRow& row, const KindView& view, const Piggyback& item,
                 const FileRecord& record, int position) {
        row.select->setEnabled(true);
        row.node->setEnabled(!c_.chk_3_lock->isChecked());
        for (EnterField* field : {row.x, row.y, row.z})
            field->setEnabled(true);
        row.xmap->setEnabled(view.xmapColumn);
        row.ymap->setEnabled(view.ymapColumn);
        if (position >= static_cast<int>(item.NodeList.size()))
            return false;
        const int node = item.NodeList[static_cast<size_t>(position)];
        if (node >= static_cast<int>(record.Nodes.size()))
            return false;
        if (!ShowIn(*row.node, node))
            return false;
        const Node& corner = record.Nodes[static_cast<size_t>(node)];
        row.x->setText(QString::number(corner.X));
        row.y->setText(QString::number(corner.Y));
        row.z->setText(QString::number(corner.Z));
        if (view.xmapColumn && !ShowEntry(*row.xmap, item.XMap, position))
            return false;
        return !view.ymapColumn || ShowEntry(*row.ymap, item.YMap, position);
    }

    bool ShowPlane(const std::vector<NRMRecord>& planes, int element) {
        if (element < 0 || element >= static_cast<int>(planes.size()))
            return false;
        const NRMRecord& plane = planes[static_cast<size_t>(element)];
        return ShowIn(*c_.upd_3_nrm_x, plane.X) && ShowIn(*c_.upd_3_nrm_y, plane.Y) &&
               ShowIn(*c_.upd_3_nrm_z, plane.Z) && ShowIn(*c_.upd_3_nrm_d, plane.D) &&
               ShowIn(*c_.upd_3_nrm_b, plane.F);
    }

    ElementsControls& c_;
    const model& model_;
};

} // namespace

std::optional<KindView> FillElementsPanel(ElementsControls& controls) {
    return ElementsFill(controls, CurrentModel()).Run();
}
