#include "undokeys.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>

UndoKeys::UndoKeys(QList<QAction*> entries, QObject* parent)
    : QObject(parent), entries_(std::move(entries)) {}

bool UndoKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride ||
        (qobject_cast<QLineEdit*>(watched) == nullptr &&
         qobject_cast<QAbstractSpinBox*>(watched) == nullptr))
        return QObject::eventFilter(watched, event);
    const QKeySequence pressed(static_cast<QKeyEvent*>(event)->keyCombination());
    for (const QAction* entry : entries_) {
        if (entry->shortcuts().contains(pressed)) {
            // Not taken by the field: the key goes on to the menu entry's shortcut.
            event->ignore();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
