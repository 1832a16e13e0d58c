// A stand-in for the main window's left pane: the frames of tabs 1 to 7 with their panels, and
// a host that sends the model's fills, spin settings and picks to them. Messages and questions go
// to a RecordingHost.
#pragma once

#include "editpanels.h"
#include "model.h"
#include "moxbuilder.h"
#include "recordinghost.h"

#include <QLineEdit>
#include <QSpinBox>
#include <QWidget>
#include <gtest/gtest.h>

#include <memory>

class PanelTest : public ::testing::Test {
protected:
    PanelTest();
    ~PanelTest() override;
    void SetUp() override;
    void TearDown() override;

    // Opens `file` in memory as the main file of a fresh current model, then fills tab 1 as
    // showing the tab does.
    model& Open(const MoxBuilder& file);
    // A file of one hardpoint element on node 0, `nodes` nodes and `parts` part records.
    static MoxBuilder SmallFile(int nodes = 1, int parts = 0);
    template <typename T> T& Find(const char* name) const {
        T* control = pane_->findChild<T*>(name);
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

    RecordingHost host;
    std::unique_ptr<EditPanels> panels;

private:
    class PaneHost;
    std::unique_ptr<QWidget> pane_;
    std::unique_ptr<PaneHost> paneHost_;
};
