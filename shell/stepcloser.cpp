#include "stepcloser.h"

#include "currentmodel.h"

#include <QKeyEvent>

bool StepCloser::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyRelease:
        // A key held down repeats its release too; only the last one ends the gesture.
        if (static_cast<QKeyEvent*>(event)->isAutoRepeat())
            break;
        [[fallthrough]];
    case QEvent::MouseButtonRelease:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        CurrentModel().Journal.CloseStep();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
