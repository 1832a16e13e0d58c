// Tab 1, "F1 - Model Info": the head of the file record, its counts, and the choice of the
// connected file of the family that the panels work on.
#pragma once

#include <QObject>

class EnterField;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QWidget;

class ModelInfoPanel : public QObject {
    Q_OBJECT
public:
    // Builds the panel's controls into `frame`, which owns the panel.
    explicit ModelInfoPanel(QWidget& frame);

    // The Model Info fill: the head and counts of the current file, then the ranges of the part,
    // element and node choosers of tabs 2, 3 and 4.
    void Fill();

private:
    void txt_1_radius_KeyUp();
    void txt_1_texture_KeyUp();
    void cbo_1_mox_Click(int index);
    // Shows the stored Radius again where the typed text gave none.
    void ShowRadius();

    QWidget& frame_;
    EnterField* txt_1_radius;
    EnterField* txt_1_texture;
    QLineEdit* txt_1_numparts;
    QLineEdit* txt_1_numelems;
    QLineEdit* txt_1_numnodes;
    QComboBox* cbo_1_mox;
    QCheckBox* chk_thismox;
};
