// The main window as it stands after start-up: its controls by name and the program-wide state.
#include "editorfixture.h"
#include "mainwindow.h"
#include "viewsettings.h"

#include <QAction>
#include <QLabel>
#include <QMenu>

TEST_F(EditorTest, TheWindowAndItsNamedControlsStandAfterStartUp) {
    EXPECT_EQ(Window().objectName(), "frm_main");
    EXPECT_EQ(Window().windowTitle(), "Skylathe");
    EXPECT_TRUE(Window().isVisible());

    const auto* file = Find<QMenu>("mnu_file");
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->title(), "&Model");
    const auto* exit = Find<QAction>("mnu_f_exit");
    ASSERT_NE(exit, nullptr);
    EXPECT_EQ(exit->text(), "E&xit");
    ASSERT_NE(Find<QAction>("mnu_f_saveall"), nullptr);
    EXPECT_EQ(Find<QAction>("mnu_f_saveall")->text(), "Save A&ll");

    struct Tick {
        const char* name;
        const char* caption;
        bool checked;
        bool enabled;
    };
    for (const Tick& tick : {Tick{"mnu_v_texture", "Text&ured Faces", true, true},
                             Tick{"mnu_v_faces", "&Face Outlines", false, true},
                             Tick{"mnu_v_nodes", "&Nodes", false, true},
                             Tick{"mnu_v_rs", "&Rendering Sequence", false, false}}) {
        const auto* entry = Find<QAction>(tick.name);
        ASSERT_NE(entry, nullptr) << tick.name;
        EXPECT_EQ(entry->text(), tick.caption);
        EXPECT_TRUE(entry->isCheckable()) << tick.name;
        EXPECT_EQ(entry->isChecked(), tick.checked) << tick.name;
        EXPECT_EQ(entry->isEnabled(), tick.enabled) << tick.name;
    }

    const auto* help = Find<QLabel>("lbl_help");
    ASSERT_NE(help, nullptr);
    EXPECT_EQ(help->text(), "Left Mouse: PICK");

    // The view fills the window right of the pane.
    const auto* pane = Find<QWidget>("Pic_Edit");
    const auto* view = Find<QWidget>("pic_render");
    ASSERT_NE(pane, nullptr);
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->geometry().left(), pane->geometry().right() + 1);
    EXPECT_EQ(view->geometry().right(), Window().centralWidget()->width() - 1);
    EXPECT_EQ(view->height(), Window().centralWidget()->height());

    const ViewSettings& settings = View();
    EXPECT_EQ(settings.ViewMode, kPerspectiveView);
    EXPECT_EQ(settings.ToolMode, kPickTool);
    EXPECT_EQ(settings.ModifyAxis, 0);
    EXPECT_EQ(settings.CurrentTab, 1);
    EXPECT_TRUE(settings.mnu_m_a_x);
    EXPECT_FALSE(settings.mnu_m_move);
    EXPECT_FALSE(settings.chk_thismox);
}

TEST_F(EditorTest, TheViewEntriesWriteTheTicksThePainterReads) {
    Find<QAction>("mnu_v_faces")->trigger();
    Find<QAction>("mnu_v_texture")->trigger();
    EXPECT_TRUE(View().mnu_v_faces);
    EXPECT_FALSE(View().mnu_v_texture);
    Find<QAction>("mnu_v_faces")->trigger();
    EXPECT_FALSE(View().mnu_v_faces);
}
