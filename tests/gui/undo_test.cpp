// Undo and Redo as the user meets them: the Edit menu and its keys, the toolbar, the title's mark
// of unsaved changes, and a file that comes back byte for byte.
#include "axiscode.h"
#include "commandline.h"
#include "currentmodel.h"
#include "deleteelement.h"
#include "editorfixture.h"
#include "kindandmove.h"
#include "moxbuilder.h"
#include "oglgraphics.h"
#include "tempdir.h"

#include <QAction>
#include <QLabel>
#include <QTest>
#include <QToolBar>

#include <filesystem>

TEST_F(EditorTest, TwoChangesTakenBackWithTheKeysSaveTheFileAsItWas) {
    TempDir folder;
    const std::string fighter = folder.file("PDEMOF.MOX");
    std::filesystem::copy_file(std::filesystem::path(SAMPLE_DIR) / "PDEMOF.MOX", fighter);
    host.answers = {MessageAnswer::No};
    ASSERT_TRUE(OGL().MakeCurrent());
    OpenModelFromCommandLine(fighter);
    auto* undo = Find<QAction>("mnu_e_undo");
    auto* redo = Find<QAction>("mnu_e_redo");
    const QAction* undoButton = Window().tlb_main->findChild<QAction*>("Undo");
    ASSERT_NE(undoButton, nullptr);
    EXPECT_FALSE(undo->isEnabled());
    EXPECT_EQ(Window().windowTitle().toStdString(), "Skylathe - PDEMOF.MOX");

    // A drag of a piggyback: many steps before the mouse is let go.
    for (int step = 0; step < 8; ++step)
        MoveElement(CurrentModel(), 0, kAxisZ, 5);
    QTest::mouseRelease(Window().lbl_help, Qt::LeftButton);
    Delete_Element(CurrentModel(), 100);
    EXPECT_EQ(undo->text().toStdString(), "&Undo Delete element 1");
    EXPECT_TRUE(undoButton->isEnabled());
    EXPECT_EQ(undoButton->toolTip().toStdString(), "Undo Delete element 1 (Ctrl+Z)");
    EXPECT_EQ(Window().windowTitle().toStdString(), "Skylathe - PDEMOF.MOX*");

    Window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    QTest::keyClick(&Window(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(undo->text().toStdString(), "&Undo Move piggyback 0");
    EXPECT_EQ(redo->text().toStdString(), "&Redo Delete element 1");
    QTest::keyClick(&Window(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(undo->isEnabled());
    EXPECT_EQ(redo->text().toStdString(), "&Redo Move piggyback 0");
    EXPECT_EQ(Window().windowTitle().toStdString(), "Skylathe - PDEMOF.MOX");

    Window().mnu_f_save_Click();
    EXPECT_EQ(ReadFileBytes(folder.file("PDEMOF_001.MOX")), ReadFileBytes(fighter));

    // Brought back and saved, the file differs again until it is saved.
    QTest::keyClick(&Window(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Window().windowTitle().toStdString(), "Skylathe - PDEMOF_001.MOX*");
    Window().mnu_f_save_Click();
    EXPECT_EQ(Window().windowTitle().toStdString(), "Skylathe - PDEMOF_002.MOX");
    EXPECT_NE(ReadFileBytes(folder.file("PDEMOF_002.MOX")), ReadFileBytes(fighter));
}
