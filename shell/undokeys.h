// Gives the keys of Undo and Redo to the Edit menu while the keyboard is in a one-line field or a
// spin of the window. Those would take Ctrl+Z for their own typing history: after Enter has
// written a field, that would put back the text shown while the model kept the new value, and in
// a spin it would step the spin back as a new change. The notepad keeps its own undo of typing.
#pragma once

#include <QList>
#include <QObject>

class QAction;

class UndoKeys : public QObject {
    Q_OBJECT
public:
    // `entries` are the Edit menu's Undo and Redo, whose shortcuts are the keys given to them.
    UndoKeys(QList<QAction*> entries, QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QList<QAction*> entries_;
};
