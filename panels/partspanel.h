// Tab 2, "F2 - Parts": the movable parts of the current file, one at a time, with the list of
// predefined part codes.
#pragma once

#include <QObject>

#include <cstdint>

class QComboBox;
class QWidget;
class SpinWithBuddy;

class PartsPanel : public QObject {
    Q_OBJECT
public:
    // Builds the panel's controls into `frame`, which owns the panel.
    explicit PartsPanel(QWidget& frame);

    // The Parts fill: the part that upd_2_part chooses. It stops, keeping what it has shown, at a
    // part that does not exist and at a Code or Num that its list can't show.
    void Fill();

    // The predefined row that shows a stored Code and Num: what the fill selects.
    static int PredefRow(int code, int num);

private:
    // The part that txt_2_part shows.
    int16_t ShownPart() const;
    void cbo_2_code_Click(int index);
    void cbo_2_num_Click(int index);
    void cbo_2_predef_Click(int row);

    SpinWithBuddy* upd_2_part;
    QComboBox* cbo_2_code;
    QComboBox* cbo_2_num;
    QComboBox* cbo_2_predef;
    SpinWithBuddy* upd_2_x;
    SpinWithBuddy* upd_2_y;
    SpinWithBuddy* upd_2_z;
};
