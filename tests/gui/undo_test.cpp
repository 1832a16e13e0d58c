// Undo and Redo as the user meets them: changes made through the panels' own controls, taken back
// with the keys, one change per gesture, the title's mark of unsaved changes, and a file that
// comes back byte for byte.
#include "commandline.h"
#include "currentmodel.h"
#include "editorfixture.h"
#include "modelhost.h"
#include "moxbuilder.h"
#include "oglgraphics.h"
#include "tempdir.h"
#include "viewsettings.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

#include <filesystem>

namespace {

class UndoTest : public EditorTest {
protected:
    void SetUp() override {
        EditorTest::SetUp();
        std::filesystem::copy_file(std::filesystem::path(SAMPLE_DIR) / "PDEMOF.MOX", fighter);
        host.answers = {MessageAnswer::No};
        ASSERT_TRUE(OGL().MakeCurrent());
        OpenModelFromCommandLine(fighter);
        Window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
        // A pick in the view selects element 1, and the Elements panel shows it.
        Window().SelectTab(kElementsTab);
        CurrentModel().m_currelem = 100;
        Host().ShowPickedPiggyback(100);
        ASSERT_EQ(Find<QLineEdit>("txt_3_elem")->text(), "1");
    }
    // A key pressed as the keyboard sends it: to the widget that has the focus.
    void Keys(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    std::string Title() { return Window().windowTitle().toStdString(); }
    std::string UndoText() { return Find<QAction>("mnu_e_undo")->text().toStdString(); }

    TempDir folder;
    const std::string fighter = folder.file("PDEMOF.MOX");
};

TEST_F(UndoTest, FieldAndDeletionTakenBackWithTheKeysSaveTheFileAsItWas) {
    // The keys reach the Edit menu with the keyboard still in the field just written.
    auto* field = Find<QLineEdit>("txt_3_att1");
    QTest::mouseClick(field, Qt::LeftButton);
    field->clear();
    QTest::keyClicks(field, "77");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(Title(), "Skylathe - PDEMOF.MOX*");
    Keys(Qt::Key_Z);
    EXPECT_EQ(field->text(), "0") << "the shown panel is filled again";
    EXPECT_EQ(Title(), "Skylathe - PDEMOF.MOX");
    Keys(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(field->text(), "77");
    QTest::mouseClick(Find<QPushButton>("cmd_3_delelem"), Qt::LeftButton);
    EXPECT_EQ(UndoText(), "&Undo Delete element 1");

    Keys(Qt::Key_Z);
    Keys(Qt::Key_Z);
    EXPECT_FALSE(Find<QAction>("mnu_e_undo")->isEnabled());
    EXPECT_EQ(Find<QAction>("mnu_e_redo")->text().toStdString(), "&Redo Att1");
    Window().mnu_f_save_Click();
    EXPECT_EQ(ReadFileBytes(folder.file("PDEMOF_001.MOX")), ReadFileBytes(fighter));

    Keys(Qt::Key_Y);
    EXPECT_EQ(Title(), "Skylathe - PDEMOF_001.MOX*") << "differs from the file just saved";
}

struct Gesture {
    int tab;
    int ticked; // rows of the corner list ticked first
    const char* spin;
    int repeats; // steps of its up key, held down when more than one
    const char* label;
    const char* shown; // a field of the panel that shows the change
};

TEST_F(UndoTest, OneHeldSpinOrGroupStepIsOneChange) {
    const Gesture gestures[] = {
        {kElementsTab, 0, "upd_3_att1", 6, "Att1", "txt_3_att1"},
        {kElementsTab, 3, "upd_3_x", 1, "Node X", "txt_3_x(2)"},
        // Undo resets the Centre Mover's totals: its UNDO then moves nothing.
        {kCentreMoverTab, 0, "upd_5_x", 6, "Move model along X", "txt_5_x"},
    };
    const std::vector<uint8_t> original = ReadFileBytes(fighter);
    for (const Gesture& g : gestures) {
        Window().SelectTab(g.tab);
        for (int row = 0; row < g.ticked; ++row)
            Find<QCheckBox>(QStringLiteral("chk_3_select(%1)").arg(row).toUtf8())->click();
        const QString before = Find<QLineEdit>(g.shown)->text();
        auto* spin = Find<QSpinBox>(g.spin);
        spin->setFocus();
        for (int step = 0; step < g.repeats; ++step) {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier, {}, step > 0);
            QApplication::sendEvent(spin, &press);
            QKeyEvent release(QEvent::KeyRelease, Qt::Key_Up, Qt::NoModifier, {},
                              step + 1 < g.repeats);
            QApplication::sendEvent(spin, &release);
        }
        EXPECT_NE(Find<QLineEdit>(g.shown)->text(), before) << g.spin;
        EXPECT_EQ(UndoText(), std::string("&Undo ") + g.label);

        Keys(Qt::Key_Z);
        EXPECT_FALSE(Find<QAction>("mnu_e_undo")->isEnabled()) << g.spin;
        EXPECT_EQ(Find<QLineEdit>(g.shown)->text(), before) << g.spin;
        if (auto* centreUndo = Find<QPushButton>("cmd_5_undo"); g.tab == kCentreMoverTab)
            QTest::mouseClick(centreUndo, Qt::LeftButton);
        EXPECT_EQ(SavedBytes(CurrentModel().Files[0]), original) << g.spin;
    }
}

} // namespace
