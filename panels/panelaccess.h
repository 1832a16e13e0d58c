// What a panel reaches at the moment it acts: the record of the file the panels show, and the
// controls of other panels, found by their names in the same window.
#pragma once

#include <cstdint>

class QSpinBox;
class QWidget;
struct FileRecord;

// The record of the current connected file of the open model, or nullptr when no .mox family is
// open.
const FileRecord* ShownRecord();

// The spin control `name` in the window that holds `anywhere`, or nullptr.
QSpinBox* FindSpin(const QWidget& anywhere, const char* name);

// Sets the top of a chooser spin, never below 0: a file of no items keeps its chooser at 0.
void SetChooserTop(QSpinBox* spin, int32_t top);
