// Tab 6, "F6 - Notepad": free notes that are kept in the project.
#pragma once

#include <QObject>

class QPlainTextEdit;
class QWidget;

class NotepadPanel : public QObject {
    Q_OBJECT
public:
    // Builds the panel's controls into `frame`, which owns the panel.
    explicit NotepadPanel(QWidget& frame);

    // Shows the project's notes.
    void Fill();

private:
    // Every change of the text, each keystroke, is the project's notes at once.
    void txt_notepad_Change();

    QPlainTextEdit* txt_notepad;
};
