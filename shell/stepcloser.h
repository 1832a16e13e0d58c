// Watches every event of the program for the end of a user's gesture (a mouse button or a key let
// go, the focus moving) and ends the open change of the journal there, so that the steps of one
// drag or of one spin held down make one change and the next gesture makes another.
#pragma once

#include <QObject>

class StepCloser : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
