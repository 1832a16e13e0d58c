// frm_options: the line weight, line colour, sky colour and incremental saves, applied with
// "&Apply". Not modal: the view goes on while it is open, and there is only ever one.
#pragma once

#include <QDialog>

class frm_main;
class QCheckBox;
class QLabel;
class QScrollBar;

class frm_options : public QDialog {
    Q_OBJECT
public:
    // Loads the dialog from the present settings. The dialog deletes itself when it closes.
    explicit frm_options(frm_main& window);

    // Takes the dialog's values into the settings, gives the view its new sky and closes.
    void cmd_OK_Click();
    void cmd_Cancel_Click();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QScrollBar* scr_weight = nullptr;
    QLabel* pic_line = nullptr;
    QLabel* pic_sky = nullptr;
    QCheckBox* chk_save = nullptr;
};
