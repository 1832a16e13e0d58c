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

#include <string>
#include <vector>

namespace {

// The names of the entries under `menu` in their order, submenus opened in place.
void EntryNames(const QMenu& menu, std::vector<std::string>& names) {
    for (const QAction* entry : menu.actions()) {
        names.push_back(entry->objectName().toStdString());
        if (entry->menu() != nullptr)
            EntryNames(*entry->menu(), names);
    }
}

struct MenuRow {
    const char* name;
    const char* caption;
    const char* shortcut = "";
    bool checkable = false;
    bool checked = false;
    bool visible = true;
};

const std::vector<MenuRow> kMenuRows = {
    {"mnu_file", "&Model"},
    {"mnu_f_load", "&Load Model...", "Ctrl+O"},
    {"mnu_f_save", "&Save Model", "Ctrl+S"},
    {"mnu_f_saveas", "Save Model &As...", "F12"},
    {"mnu_f_saveall", "Save A&ll"},
    {"mnu_f_5", ""},
    {"mnu_f_recent(0)", "", "", false, false, false},
    {"mnu_f_recent(1)", "", "", false, false, false},
    {"mnu_f_recent(2)", "", "", false, false, false},
    {"mnu_f_recent(3)", "", "", false, false, false},
    {"mnu_f_2", "", "", false, false, false},
    {"mnu_f_exit", "E&xit"},
    {"mnu_edit", "&Edit"},
    {"mnu_e_undo", "&Undo", "Ctrl+Z"},
    {"mnu_e_redo", "&Redo", "Ctrl+Shift+Z"},
    {"mnu_project", "&Project"},
    {"mnu_f_loadproject", "Load &Project..."},
    {"mnu_f_saveproject", "Save Project..."},
    {"mnu_p_1", "", "", false, false, false},
    {"mnu_p_recent(0)", "", "", false, false, false},
    {"mnu_p_recent(1)", "", "", false, false, false},
    {"mnu_p_recent(2)", "", "", false, false, false},
    {"mnu_p_recent(3)", "", "", false, false, false},
    {"mnu_view", "&View"},
    {"mnu_v_texwindow", "Texture &Window...", "", true},
    {"mnu_v_3", ""},
    {"mnu_v_view", "&Views"},
    {"mnu_v_left", "&Left View", "Ctrl+L", true},
    {"mnu_v_top", "&Top View", "Ctrl+T", true},
    {"mnu_v_front", "&Front View", "Ctrl+F", true},
    {"mnu_v_underside", "&Underside View", "", true},
    {"mnu_v_right", "&Right View", "", true},
    {"mnu_v_back", "&Back View", "", true},
    {"mnu_v_v_1", ""},
    {"mnu_v_persp", "&Persepctive View", "Ctrl+P", true, true},
    {"mnu_v_1", ""},
    {"mnu_v_texture", "Text&ured Faces", "", true, true},
    {"mnu_v_faces", "&Face Outlines", "", true},
    {"mnu_v_nodes", "&Nodes", "", true},
    {"mnu_v_rs", "&Rendering Sequence", "", true},
    {"mnu_tools", "&Tools"},
    {"mnu_v_pan", "P&an", "", true},
    {"mnu_v_rotate", "&Rotate", "", true},
    {"mnu_v_bank", "&Bank", "", true},
    {"mnu_v_zoom", "&Zoom", "", true},
    {"mnu_v_zoomextents", "Zoom E&xtents"},
    {"mnu_v_2", ""},
    {"mnu_m_pick", "&Pick", "", true, true},
    {"mnu_m_move", "&Move", "", true},
    {"mnu_m_axis", "Modify &Axis"},
    {"mnu_m_a_x", "&X", "", true, true},
    {"mnu_m_a_y", "&Y", "", true},
    {"mnu_m_a_z", "&Z", "", true},
    {"mnu_f_1", ""},
    {"mnu_f_options", "&Options..."},
    {"mnu_help", "&Help"},
    {"mnu_h_about", "&About..."},
};

enum class Style { Push, Toggle, Group, DropDown };
struct ButtonRow {
    const char* key; // "-" for a separator
    const char* tip = "";
    Style style = Style::Push;
    bool down = false;
};

const std::vector<ButtonRow> kButtonRows = {
    {"Open", "Open File"},
    {"Save", "Save File"},
    {"Undo", "Undo (Ctrl+Z)"},
    {"Redo", "Redo (Ctrl+Shift+Z)"},
    {"-"},
    {"X", "Modify X Axis (X)", Style::Group, true},
    {"Y", "Modify Y Axis (Y)", Style::Group},
    {"Z", "Modify Z Axis (Z)", Style::Group},
    {"-"},
    {"Pick", "Pick (A)", Style::Group, true},
    {"Move", "Move (M)", Style::Group},
    {"Zoom", "Zoom the View (Q)", Style::Group},
    {"Pan", "Pan the View (R)", Style::Group},
    {"Rotate", "Rotate the View", Style::Group},
    {"Bank", "Bank the Aircraft (B)", Style::Group},
    {"-"},
    {"ZoomExtents", "Zoom Extents (E)"},
    {"-"},
    {"Texture", "Toggle Texture On/Off (V)", Style::Toggle, true},
    {"Faces", "Toggle Faces On/Off (W)", Style::Toggle},
    {"Nodes", "Toggle Nodes On/Off (N)", Style::Toggle},
    {"RS", "Toggle Rendering Sequence On/Off", Style::Toggle},
    {"-"},
    {"Top", "Top View (T)", Style::Group},
    {"Left", "Left View (L)", Style::Group},
    {"Front", "Front View (F)", Style::Group},
    {"Underside", "Underside View", Style::Group},
    {"Right", "Right View", Style::Group},
    {"Back", "Back View", Style::Group},
    {"Persp", "Perpsective View (P)", Style::Group, true},
    {"-"},
    {"Pilot", "Pilot State (C)", Style::DropDown},
    {"LG", "Landing Gear State (G)", Style::DropDown},
    {"Wing", "Wing Damage State (D)", Style::DropDown},
};

} // namespace

TEST_F(EditorTest, MenusAndToolbarStandAsTheirTablesSay) {
    std::vector<std::string> shown;
    for (const QAction* menu : Window().menuBar()->actions()) {
        shown.push_back(menu->objectName().toStdString());
        EntryNames(*menu->menu(), shown);
    }
    std::vector<std::string> expected;
    for (const MenuRow& row : kMenuRows)
        expected.push_back(row.name);
    EXPECT_EQ(shown, expected);
    for (const MenuRow& row : kMenuRows) {
        const auto* entry = Find<QAction>(row.name);
        ASSERT_NE(entry, nullptr) << row.name;
        if (!entry->isSeparator() && !std::string(row.caption).empty()) {
            EXPECT_EQ(entry->text().toStdString(), row.caption) << row.name;
        }
        EXPECT_EQ(entry->shortcut(), QKeySequence(row.shortcut)) << row.name;
        EXPECT_EQ(entry->isCheckable(), row.checkable) << row.name;
        EXPECT_EQ(entry->isChecked(), row.checked) << row.name;
        EXPECT_EQ(entry->isVisible(), row.visible) << row.name;
        if (row.visible) {
            // Nothing to undo or redo before a change.
            const std::string name = row.name;
            EXPECT_EQ(entry->isEnabled(),
                      name != "mnu_v_rs" && name != "mnu_e_undo" && name != "mnu_e_redo")
                << row.name;
        }
    }

    const QList<QAction*> buttons = Find<QToolBar>("tlb_main")->actions();
    ASSERT_EQ(buttons.size(), static_cast<int>(kButtonRows.size()));
    for (int i = 0; i < buttons.size(); ++i) {
        const ButtonRow& row = kButtonRows[static_cast<std::size_t>(i)];
        const QAction& button = *buttons[i];
        if (std::string(row.key) == "-") {
            EXPECT_TRUE(button.isSeparator()) << "place " << i;
            continue;
        }
        EXPECT_EQ(button.objectName().toStdString(), row.key);
        EXPECT_EQ(button.toolTip().toStdString(), row.tip) << row.key;
        EXPECT_FALSE(button.icon().isNull()) << row.key;
        EXPECT_EQ(button.isCheckable(), row.style == Style::Group || row.style == Style::Toggle)
            << row.key;
        EXPECT_EQ(button.actionGroup() != nullptr, row.style == Style::Group) << row.key;
        EXPECT_EQ(button.menu() != nullptr, row.style == Style::DropDown) << row.key;
        EXPECT_EQ(button.isChecked(), row.down) << row.key;
    }
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
        CurrentModel().m_zoom = 77.0f;
        QAction* trigger = Find<QAction>(row.trigger);
        ASSERT_NE(trigger, nullptr) << row.trigger;
        trigger->trigger();
        const QAction* entry = Find<QAction>(row.entry);
        EXPECT_EQ(entry->actionGroup()->checkedAction(), entry) << row.trigger;
        EXPECT_TRUE(Window().Button(row.button)->isChecked()) << row.trigger;
        EXPECT_EQ(View().*row.mode, row.value) << row.trigger;
        if (row.mode == &ViewSettings::ViewMode) {
            EXPECT_EQ(CurrentModel().m_zoom, row.value == kPerspectiveView ? -250.0f : 125.0f);
        }
        if (row.mode == &ViewSettings::ToolMode) {
            EXPECT_EQ(Window().lbl_help->text().toStdString(), row.help);
            EXPECT_EQ(Surface().cursor().shape(), row.pointer) << row.trigger;
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

    // The state buttons step through their states, and a choice in the drop-down sets one.
    const auto image = [this](const char* key) {
        return Window().Button(key)->property("image").toString().toStdString();
    };
    const std::pair<int32_t, const char*> pilot[] = {
        {1, "PilotDead"}, {2, "PilotBailed"}, {0, "PilotAlive"}};
    for (const auto& [state, picture] : pilot) {
        Window().Button("Pilot")->trigger();
        EXPECT_EQ(CurrentModel().m_pilot, state);
        EXPECT_EQ(image("Pilot"), picture);
    }
    Window().Button("LG")->trigger();
    Window().Button("Wing")->trigger();
    EXPECT_EQ(CurrentModel().m_lg, 0);
    EXPECT_EQ(image("LG"), "LGUp");
    EXPECT_EQ(CurrentModel().m_wing, 1);
    EXPECT_EQ(image("Wing"), "WingDam");
    Find<QAction>("PilotBailed")->trigger();
    EXPECT_EQ(CurrentModel().m_pilot, 2);
    EXPECT_EQ(image("Pilot"), "PilotBailed");
}
