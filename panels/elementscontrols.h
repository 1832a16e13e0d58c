// The controls of the Elements panel fra_edit(3), built at their design places: the selection and
// kind of a piggyback at the top, twelve corner rows with their scroll bar, the corner and element
// buttons, the attributes and the element's plane.
#pragma once

#include <array>

class EnterField;
class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QScrollBar;
class QSpinBox;
class QWidget;
class SpinWithBuddy;

// Rows of corners the panel shows at a time.
constexpr int kElementRows = 12;

struct ElementRow {
    QCheckBox* select = nullptr;   // chk_3_select(r)
    SpinWithBuddy* node = nullptr; // txt_3_node(r) with upd_3_node(r)
    EnterField* x = nullptr;
    EnterField* y = nullptr;
    EnterField* z = nullptr;
    EnterField* xmap = nullptr;
    EnterField* ymap = nullptr;
};

struct ElementsControls {
    SpinWithBuddy* upd_3_elem = nullptr; // with txt_3_elem
    SpinWithBuddy* upd_3_pb = nullptr;   // with txt_3_pb
    QComboBox* cbo_3_type = nullptr;
    QComboBox* cbo_3_action = nullptr;
    SpinWithBuddy* upd_3_flag = nullptr; // with txt_3_flag

    QCheckBox* chk_3_all = nullptr;
    QCheckBox* chk_3_lock = nullptr;
    QLabel* lbl_xmap = nullptr;
    // The group spins under the X, Y, Z, X Map and Y Map heads: arrows without a field.
    QSpinBox* upd_3_x = nullptr;
    QSpinBox* upd_3_y = nullptr;
    QSpinBox* upd_3_z = nullptr;
    QSpinBox* upd_3_xmap = nullptr;
    QSpinBox* upd_3_ymap = nullptr;

    std::array<ElementRow, kElementRows> rows{};
    QScrollBar* vsc_3_nodeoffset = nullptr;
    QLabel* lbl_offset = nullptr;

    QPushButton* cmd_3_moveup = nullptr;
    QPushButton* cmd_3_movedown = nullptr;
    QPushButton* cmd_3_add = nullptr;
    QPushButton* cmd_3_delete = nullptr;
    QPushButton* cmd_3_newelem = nullptr;
    QPushButton* cmd_3_newpb = nullptr;
    QPushButton* cmd_3_delelem = nullptr;
    QPushButton* cmd_3_delpb = nullptr;

    QLabel* lbl_att1 = nullptr;
    QLabel* lbl_att2 = nullptr;
    SpinWithBuddy* upd_3_att1 = nullptr; // with txt_3_att1
    SpinWithBuddy* upd_3_att2 = nullptr; // with txt_3_att2

    SpinWithBuddy* upd_3_nrm_x = nullptr; // with txt_3_nrm_x
    SpinWithBuddy* upd_3_nrm_y = nullptr; // with txt_3_nrm_y
    SpinWithBuddy* upd_3_nrm_z = nullptr; // with txt_3_nrm_z
    SpinWithBuddy* upd_3_nrm_d = nullptr; // with txt_3_nrm_d
    SpinWithBuddy* upd_3_nrm_b = nullptr; // with txt_3_nrm_b
    QPushButton* cmd_3_nrm_recalc = nullptr;
};

// Builds every control of the panel on `frame` at its design place and returns them.
ElementsControls BuildElementsControls(QWidget* frame);
