#include "enterfield.h"

#include <QKeyEvent>

EnterField::EnterField(const char* name, QWidget* parent) : QLineEdit(parent) {
    setObjectName(name);
}

void EnterField::keyReleaseEvent(QKeyEvent* event) {
    QLineEdit::keyReleaseEvent(event);
    // A held key repeats its release; only the one real release commits.
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && !event->isAutoRepeat())
        emit Committed();
}

void MakeReadOnly(QLineEdit& field) {
    field.setReadOnly(true);
    QPalette colours = field.palette();
    colours.setColor(QPalette::Base, colours.color(QPalette::Button));
    field.setPalette(colours);
}
