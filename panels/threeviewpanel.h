// Tab 7, "F7 - 3-View Data": what a tracing project needs. The aircraft's real dimensions in
// model units, metres and feet with inches, the corner of the box the drawings fill, the drawing
// of each of the three views, and the creation of the project file.
#pragma once

#include "programstate.h"

#include <QObject>
#include <QString>

#include <array>
#include <cstdint>
#include <functional>

class EnterField;
class QComboBox;
class QLineEdit;
class QPushButton;
class QWidget;

class ThreeViewPanel : public QObject {
    Q_OBJECT
public:
    // Builds the panel's controls into `frame`, which owns the panel.
    explicit ThreeViewPanel(QWidget& frame);

    // Shows the project's numbers, each converted as if typed, and the left view's drawing.
    void Fill();

    // A file dialog: its kind, title and filter ("PCX Images (*.pcx)").
    struct FileQuestion {
        bool saving = false;
        const char* title = "";
        const char* filter = "";
    };
    // Asks for a file name; an empty name when the user cancels. The window system's dialog
    // unless a caller (a test) puts another answer in its place.
    std::function<QString(const FileQuestion&)> AskForFile;

private:
    // One dimension of the aircraft on its line: model units, metres, feet and inches.
    struct Dimension {
        QLineEdit* units = nullptr;
        EnterField* metres = nullptr;
        QLineEdit* feetInches = nullptr;
        int16_t ProjectRecord::*stored = nullptr;
    };
    struct Minimum {
        EnterField* field = nullptr;
        int16_t ProjectRecord::*stored = nullptr;
    };

    // The conversion of a units field's number into its metric and feet and inches fields, and
    // into the project.
    void Units_Change(const Dimension& dimension);
    void Metres_KeyUp(const Dimension& dimension);
    // Puts `value` in a units field and converts it, even where the text stays the same.
    void ShowUnits(const Dimension& dimension, int32_t value);
    void cmd_7_frommodel_Click();
    void cmd_7_minimums_Click();
    void cbo_7_view_Click(int index);
    void txt_7_viewname_Change();
    void cmd_7_select_Click();
    void cmd_7_createproject_Click();
    // The drawing of view `index` of cbo_7_view, or nullptr for none chosen.
    static std::string* ViewFile(int index);

    std::array<Dimension, 3> dimensions_;
    std::array<Minimum, 3> minimums_;
    QComboBox* cbo_7_view = nullptr;
    QLineEdit* txt_7_viewname = nullptr;
};
