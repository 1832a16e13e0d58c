// A spin control with its buddy text field: the two show one number. A step, or a value set from
// code, rewrites the buddy and then raises Changed; setting the value it already has raises
// nothing. The spin is a QSpinBox named `upd_...` that shows only its arrows, the buddy an
// EnterField named `txt_...` beside it.
#pragma once

#include "enterfield.h"

#include <QWidget>

class QSpinBox;

class SpinWithBuddy : public QWidget {
    Q_OBJECT
public:
    enum class Buddy { Editable, ReadOnly };

    SpinWithBuddy(const char* buddyName, const char* spinName, int min, int max, Buddy kind,
                  QWidget* parent);

    EnterField& buddy() const { return *buddy_; }
    QSpinBox& spin() const { return *spin_; }

    // Shows `value`, held to the spin's range, in spin and buddy without raising Changed: a fill
    // shows the record and writes nothing back.
    void Show(int value);
    // Moves the spin to the number in the buddy without raising Changed and leaves the buddy's
    // text as typed ("007"), so that the next step starts from the committed value.
    void FollowBuddy();

signals:
    void Changed();

private:
    EnterField* buddy_;
    QSpinBox* spin_;
};
