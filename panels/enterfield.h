// A text field of the panels: it commits on the release of the Return or Enter key and on
// nothing else, so a Tab, a click away or any other key leaves the typed text uncommitted.
#pragma once

#include <QLineEdit>

class EnterField : public QLineEdit {
    Q_OBJECT
public:
    EnterField(const char* name, QWidget* parent);

signals:
    // Return or Enter came up.
    void Committed();

protected:
    void keyReleaseEvent(QKeyEvent* event) override;
};

// Shows a field as read-only in the button colour, as the counts and the choosers' fields are.
void MakeReadOnly(QLineEdit& field);
