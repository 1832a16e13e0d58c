// The Elements panel, tab 3: one piggyback of one element with its corners, attributes and the
// element's plane, and the handlers of every control. The panel holds no copy of the model: it
// reads the open model in its fill and writes each committed value straight into it.
#pragma once

#include "elementscontrols.h"

#include <QObject>

#include <array>
#include <cstdint>

class QLineEdit;
class QWidget;
struct FieldAddress;

class ElementsPanel : public QObject {
    Q_OBJECT
public:
    // Builds the controls on the panel's frame, fra_edit(3), and binds them.
    explicit ElementsPanel(QWidget& frame);

    // The fill of tab 3 from the open model.
    void Fill();
    // Hands a piggyback picked in the view to the panel: its element and list position go to
    // upd_3_elem and upd_3_pb, and the panel selects it and fills once.
    void TakePick(int16_t number);

    const ElementsControls& Controls() const { return c_; }

private:
    // The columns that the group spins move.
    enum GroupColumn { kColumnX, kColumnY, kColumnZ, kColumnXMap, kColumnYMap, kGroupColumns };

    void BindSelection();
    void BindFields();
    void BindRows();
    void BindChecks();
    void BindGroupSpins();
    void BindCornerButtons();
    void BindElementButtons();

    // The Number the spins show, upd_3_elem value * 100 + upd_3_pb value; -1 when it does not
    // fit a Number.
    int16_t ShownNumber() const;
    // Selects the piggyback the spins show and refills the panel.
    void SelectShown();
    // Shows `element` and list `position` in upd_3_elem and upd_3_pb, then selects and fills once.
    void Select(int element, int position);
    void txt_3_elem_Commit();
    void chk_3_select_Click();
    void chk_3_lock_Click();
    void vsc_3_nodeoffset_Change(int offset);
    void GroupSpinChange(GroupColumn column, int value);
    void cmd_3_moveup_Click();
    void cmd_3_movedown_Click();
    void cmd_3_delete_Click();
    // The ticks of two rows change places.
    void SwapTicks(int first, int second);

    // The corner position that row `row` shows.
    int16_t RowCorner(int row) const;
    // The address of a row's field in column `column`.
    FieldAddress RowAddress(GroupColumn column, int row) const;
    QLineEdit& RowField(GroupColumn column, int row) const;
    // True when row `row` shows a corner and is ticked.
    bool RowTicked(int row) const;

    ElementsControls c_;
    // Whether the kind on show takes ADD, DELETE and the MOVE buttons.
    bool cornerButtons_ = false;
    // The last value seen of each group spin: a change moves the column by the difference.
    std::array<int, kGroupColumns> lastGroupValue_{};
};
