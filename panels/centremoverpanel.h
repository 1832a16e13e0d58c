// Tab 5, "F5 - Centre Mover": moves every node of the current file one spin step at a time, with
// an undo of the running total, and rescales the file by a percentage, showing the family's span
// and length in model units and metres.
#pragma once

#include <QObject>

#include <array>
#include <cstdint>

class QLineEdit;
class QWidget;
class SpinWithBuddy;

class CentreMoverPanel : public QObject {
    Q_OBJECT
public:
    // Builds the panel's controls into `frame`, which owns the panel.
    explicit CentreMoverPanel(QWidget& frame);

    // What showing the tab does: the running totals end, as with "APPLY", and the span and length
    // of the family are shown.
    void TabShown();

private:
    // One spin and the total it last saw, which is what "UNDO" moves back.
    struct AxisSpin {
        SpinWithBuddy* spin = nullptr;
        int32_t axis = 0;
        int16_t lastSeen = 0;
    };

    void Spin_Change(AxisSpin& axis);
    void cmd_5_apply_Click();
    void cmd_5_undo_Click();
    void cmd_5_scale_Click();
    // The last seen total goes to 0 before the spin does, so the spin's change moves nothing.
    void ClearTotal(AxisSpin& axis);
    void ShowDimensions();

    std::array<AxisSpin, 3> axes_;
    QLineEdit* txt_5_scale = nullptr;
    QLineEdit* txt_5_span = nullptr;
    QLineEdit* txt_5_realspan = nullptr;
    QLineEdit* txt_5_length = nullptr;
    QLineEdit* txt_5_reallength = nullptr;
};
