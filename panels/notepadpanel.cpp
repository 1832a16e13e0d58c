#include "notepadpanel.h"

#include "panelrows.h"
#include "programstate.h"
#include "projectfile.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QStringDecoder>

NotepadPanel::NotepadPanel(QWidget& frame) : QObject(&frame) {
    PanelRows rows(frame);
    rows.AddHeading("NOTEPAD");
    txt_notepad = new QPlainTextEdit(&frame);
    txt_notepad->setObjectName("txt_notepad");
    rows.AddRow("").addWidget(txt_notepad);
    rows.StretchLast();
    connect(txt_notepad, &QPlainTextEdit::textChanged, this, &NotepadPanel::txt_notepad_Change);
}

// The project keeps its notes with CR LF line ends, as its file does; the field has plain ones.
// Notes are UTF-8 text; bytes that are not (an 8-bit file from elsewhere) show one character
// each. Showing them writes nothing back, so the bytes stay until the user changes the notes.
void NotepadPanel::Fill() {
    const std::string& stored = Program().ProjectData.Notes;
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString notes =
        utf8.decode(QByteArrayView(stored.data(), static_cast<qsizetype>(stored.size())));
    if (utf8.hasError())
        notes = QString::fromLatin1(stored.data(), static_cast<qsizetype>(stored.size()));
    notes.replace(kProjectLineEnd, "\n");
    const QSignalBlocker quiet(txt_notepad);
    txt_notepad->setPlainText(notes);
}

void NotepadPanel::txt_notepad_Change() {
    QString notes = txt_notepad->toPlainText();
    notes.replace("\n", kProjectLineEnd);
    Program().ProjectData.Notes = notes.toStdString();
}
