// Builds a panel's controls into its frame from top to bottom, each under its caption, so that
// every panel is laid out the same way in the narrow left pane.
#pragma once

#include "spinwithbuddy.h"

#include <QStringList>

#include <cstdint>

class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

class PanelRows {
public:
    explicit PanelRows(QWidget& frame);

    // A spin with its buddy under a caption.
    SpinWithBuddy& AddSpin(const char* caption, const char* buddyName, const char* spinName,
                           int min, int max,
                           SpinWithBuddy::Buddy kind = SpinWithBuddy::Buddy::Editable);
    // The spin of a numbered field, named and ranged by the field table.
    SpinWithBuddy& AddFieldSpin(const char* caption, int32_t field);
    EnterField& AddText(const char* caption, const char* name);
    // A read-only field in the button colour.
    QLineEdit& AddReadOnly(const char* caption, const char* name);
    // A fixed drop-down list.
    QComboBox& AddList(const char* caption, const char* name, const QStringList& items,
                       bool boldCaption = false);
    QCheckBox& AddCheck(const char* caption, const char* name);
    QPushButton& AddButton(const char* caption, const char* name);
    // A bold, centred heading over the rows that follow.
    QLabel& AddHeading(const char* caption);
    // A line of plain text.
    QLabel& AddNote(const char* caption);
    // A row that the panel fills with controls side by side, under a caption (none when empty).
    QHBoxLayout& AddRow(const char* caption);
    // Stretches the last row to the bottom of the frame, rather than keeping the rows at the top.
    void StretchLast();
    // Keeps the rows at the top of the frame.
    void Finish();

private:
    // Adds nothing for an empty caption.
    void AddCaption(const char* caption, bool bold = false);

    QWidget& frame_;
    QVBoxLayout* column_;
};
