// The editor window with its left pane's panels, driven through their widgets by name on files
// opened in memory. Messages and questions go to the fixture's RecordingHost.
#pragma once

#include "editorfixture.h"
#include "editpanels.h"
#include "model.h"
#include "moxbuilder.h"

#include <QLineEdit>
#include <QSpinBox>

class PanelTest : public EditorTest {
protected:
    // Opens `file` in memory as the main file of a fresh current model, then fills tab 1 as
    // showing the tab does.
    model& Open(const MoxBuilder& file);
    // A file of one hardpoint element on node 0, `nodes` nodes and `parts` part records.
    static MoxBuilder SmallFile(int nodes = 1, int parts = 0);
    EditPanels& Panels() { return *Window().panels; }
    template <typename T> T& Find(const char* name) const {
        T* control = EditorTest::Find<T>(name);
        EXPECT_NE(control, nullptr) << name;
        return *control;
    }
    QString Text(const char* name) const { return Find<QLineEdit>(name).text(); }
    QSpinBox& Spin(const char* name) const { return Find<QSpinBox>(name); }
    // Clicks the button `name` with the mouse.
    void Click(const char* name) const;
    // Chooses row `row` of the drop-down list `name` as a user does.
    void Choose(const char* name, int row);
    // Types `text` into the field `name` and presses `last` (Return commits).
    void Enter(const char* name, const QString& text, Qt::Key last = Qt::Key_Return);
};
