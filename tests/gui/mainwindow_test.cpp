// The main window's menus and toolbar as the user finds them, and what their entries do.
#include "currentmodel.h"
#include "editorfixture.h"
#include "glview.h"
#include "mainwindow.h"
#include "viewsettings.h"

#include <QAction>
#include <QActionGroup>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace {

// The names of the entries under `menu` in their order, submenus opened in place, each marked
// "~" when hidden, "*" when ticked and "-" when greyed.
void EntryNames(const QMenu& menu, std::vector<std::string>& names) {
    for (const QAction* entry : menu.actions()) {
        names.push_back(entry->objectName().toStdString() + (!entry->isVisible()  ? "~"
                                                             : entry->isChecked() ? "*"
                                                             : entry->isEnabled() ? ""
                                                                                  : "-"));
        if (entry->menu() != nullptr)
            EntryNames(*entry->menu(), names);
    }
}

std::vector<std::string> Words(const std::string& text) {
    std::istringstream words(text);
    return {std::istream_iterator<std::string>(words), std::istream_iterator<std::string>()};
}

// Nothing to undo or redo before a change; the sequence's tick follows its button alone. With no
// recent files, their entries and the separators before them are hidden.
const char* const kMenuNames =
    "mnu_file mnu_f_load mnu_f_save mnu_f_saveas mnu_f_saveall mnu_f_5 mnu_f_recent(0)~ "
    "mnu_f_recent(1)~ mnu_f_recent(2)~ mnu_f_recent(3)~ mnu_f_2~ mnu_f_exit "
    "mnu_edit mnu_e_undo- mnu_e_redo- "
    "mnu_project mnu_f_loadproject mnu_f_saveproject mnu_p_1~ mnu_p_recent(0)~ mnu_p_recent(1)~ "
    "mnu_p_recent(2)~ mnu_p_recent(3)~ "
    "mnu_view mnu_v_texwindow mnu_v_3 mnu_v_view mnu_v_left mnu_v_top mnu_v_front "
    "mnu_v_underside mnu_v_right mnu_v_back mnu_v_v_1 mnu_v_persp* mnu_v_1 mnu_v_texture* "
    "mnu_v_faces mnu_v_nodes mnu_v_rs- "
    "mnu_tools mnu_v_pan mnu_v_rotate mnu_v_bank mnu_v_zoom mnu_v_zoomextents mnu_v_2 mnu_m_pick* "
    "mnu_m_move mnu_m_axis mnu_m_a_x* mnu_m_a_y mnu_m_a_z mnu_f_1 mnu_f_options "
    "mnu_help mnu_h_about";
// "-" stands for a separator, "*" marks a pressed button.
const char* const kButtonNames = "Open Save Undo Redo - X* Y Z - Pick* Move Zoom Pan Rotate Bank - "
                                 "ZoomExtents - Texture* Faces Nodes RS - Top Left Front Underside "
                                 "Right Back Persp* - Pilot LG Wing";

} // namespace

TEST_F(EditorTest, MenusAndToolbarShowTheirEntriesWithTheStartTicks) {
    std::vector<std::string> shown;
    for (const QAction* menu : Window().menuBar()->actions()) {
        shown.push_back(menu->objectName().toStdString());
        EntryNames(*menu->menu(), shown);
    }
    EXPECT_EQ(shown, Words(kMenuNames));

    std::vector<std::string> buttons;
    for (const QAction* button : Find<QToolBar>("tlb_main")->actions()) {
        const std::string key = button->isSeparator() ? "-" : button->objectName().toStdString();
        buttons.push_back(key + (button->isChecked() ? "*" : ""));
        EXPECT_EQ(button->icon().isNull(), button->isSeparator()) << key;
    }
    EXPECT_EQ(buttons, Words(kButtonNames));
}

TEST_F(EditorTest, EntriesAndButtonsSetTheViewToolAndStateTogether) {
    struct Row {
        const char* trigger; // an entry or a button
        const char* entry;   // ticked alone in its group afterwards
        const char* button;  // pressed afterwards
        int32_t ViewSettings::*mode;
        int32_t value;
        const char* help;
        Qt::CursorShape pointer;
    };
    const Row rows[] = {
        {"mnu_v_top", "mnu_v_top", "Top", &ViewSettings::ViewMode, kTopView, "", Qt::ArrowCursor},
        {"Underside", "mnu_v_underside", "Underside", &ViewSettings::ViewMode, kUndersideView, "",
         Qt::ArrowCursor},
        {"ZoomExtents", "mnu_v_persp", "Persp", &ViewSettings::ViewMode, kPerspectiveView, "",
         Qt::ArrowCursor},
        {"mnu_v_pan", "mnu_v_pan", "Pan", &ViewSettings::ToolMode, kPanTool,
         "Left Mouse: PAN\nRight Mouse: ZOOM/ROTATE", Qt::BitmapCursor},
        {"Move", "mnu_m_move", "Move", &ViewSettings::ToolMode, kMoveTool,
         "Left Mouse: MOVE POINT\nLeft Mouse + CTRL: PICK", Qt::SizeAllCursor},
        {"mnu_v_bank", "mnu_v_bank", "Bank", &ViewSettings::ToolMode, kBankTool,
         "Left Mouse: BANK\nRight Mouse: ROTATE", Qt::BitmapCursor},
        {"Pick", "mnu_m_pick", "Pick", &ViewSettings::ToolMode, kPickTool, "Left Mouse: PICK",
         Qt::ArrowCursor},
        {"Z", "mnu_m_a_z", "Z", &ViewSettings::ModifyAxis, kAxisZ, "", Qt::ArrowCursor},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.trigger);
        CurrentModel().m_zoom = 77.0f;
        Find<QAction>(row.trigger)->trigger();
        const QAction* entry = Find<QAction>(row.entry);
        EXPECT_EQ(entry->actionGroup()->checkedAction(), entry);
        EXPECT_TRUE(Window().Button(row.button)->isChecked());
        EXPECT_EQ(View().*row.mode, row.value);
        if (row.mode == &ViewSettings::ViewMode) {
            EXPECT_EQ(CurrentModel().m_zoom, row.value == kPerspectiveView ? -250.0f : 125.0f);
        }
        if (row.mode == &ViewSettings::ToolMode) {
            EXPECT_EQ(Window().lbl_help->text().toStdString(), row.help);
            EXPECT_EQ(Surface().cursor().shape(), row.pointer);
        }
    }

    // A toggle's button flips the entry's tick, and the entry sets the button.
    Window().Button("Texture")->trigger();
    EXPECT_FALSE(Find<QAction>("mnu_v_texture")->isChecked());
    EXPECT_FALSE(View().mnu_v_texture);
    Find<QAction>("mnu_v_faces")->trigger();
    EXPECT_TRUE(Window().Button("Faces")->isChecked());
    Window().Button("RS")->trigger();
    EXPECT_TRUE(View().mnu_v_rs);

    // A state button steps on to the next state, and a choice in its drop-down sets one.
    Window().Button("Pilot")->trigger();
    EXPECT_EQ(CurrentModel().m_pilot, 1);
    Find<QAction>("PilotBailed")->trigger();
    EXPECT_EQ(CurrentModel().m_pilot, 2);
    EXPECT_EQ(Window().Button("Pilot")->property("image").toString(), "PilotBailed");
}
