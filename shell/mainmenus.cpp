// The menu bar and the toolbar of frm_main, each built from one table.
#include "mainwindow.h"

#include "currentmodel.h"
#include "statebuttons.h"
#include "toolbarimages.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include <cstring>
#include <vector>

namespace {

constexpr int kRecentEntries = 4;
// Follows the file name in the title while the files differ from what was loaded or saved.
constexpr const char* kModifiedMark = "*";
constexpr const char* kUndoCaption = "&Undo";
constexpr const char* kRedoCaption = "&Redo";
constexpr const char* kUndoTip = "Undo (Ctrl+Z)";
constexpr const char* kRedoTip = "Redo (Ctrl+Shift+Z)";

enum class Line {
    Menu,
    Submenu,
    EndSubmenu,
    Entry,
    Separator,
    HiddenSeparator,
    RecentModels,
    RecentProjects
};
// How an entry ticks: not at all, alone in its group, or as a toggle bound to a view tick.
enum class Tick { None, View, Tool, Axis, Toggle };

struct MenuLine {
    Line line;
    const char* name;
    const char* caption = "";
    const char* shortcut = "";
    void (frm_main::*click)() = nullptr;
    Tick tick = Tick::None;
    bool ticked = false;
    bool ViewSettings::*viewTick = nullptr;
};

const std::vector<MenuLine>& MenuLines() {
    using F = frm_main;
    static const std::vector<MenuLine> lines{
        {Line::Menu, "mnu_file", "&Model"},
        {Line::Entry, "mnu_f_load", "&Load Model...", "Ctrl+O", &F::mnu_f_load_Click},
        {Line::Entry, "mnu_f_save", "&Save Model", "Ctrl+S", &F::mnu_f_save_Click},
        {Line::Entry, "mnu_f_saveas", "Save Model &As...", "F12", &F::mnu_f_saveas_Click},
        {Line::Entry, "mnu_f_saveall", "Save A&ll", "", &F::mnu_f_saveall_Click},
        {Line::Separator, "mnu_f_5"},
        {Line::RecentModels, "mnu_f_recent"},
        {Line::HiddenSeparator, "mnu_f_2"},
        {Line::Entry, "mnu_f_exit", "E&xit", "", nullptr},
        {Line::Menu, "mnu_edit", "&Edit"},
        {Line::Entry, "mnu_e_undo", kUndoCaption, "Ctrl+Z", &F::mnu_e_undo_Click},
        {Line::Entry, "mnu_e_redo", kRedoCaption, "Ctrl+Shift+Z; Ctrl+Y", &F::mnu_e_redo_Click},
        {Line::Menu, "mnu_project", "&Project"},
        {Line::Entry, "mnu_f_loadproject", "Load &Project...", "", &F::mnu_f_loadproject_Click},
        {Line::Entry, "mnu_f_saveproject", "Save Project...", "", &F::mnu_f_saveproject_Click},
        {Line::HiddenSeparator, "mnu_p_1"},
        {Line::RecentProjects, "mnu_p_recent"},
        {Line::Menu, "mnu_view", "&View"},
        {Line::Entry, "mnu_v_texwindow", "Texture &Window...", "", &F::mnu_v_texwindow_Click},
        {Line::Separator, "mnu_v_3"},
        {Line::Submenu, "mnu_v_view", "&Views"},
        {Line::Entry, "mnu_v_left", "&Left View", "Ctrl+L", &F::mnu_v_left_Click, Tick::View},
        {Line::Entry, "mnu_v_top", "&Top View", "Ctrl+T", &F::mnu_v_top_Click, Tick::View},
        {Line::Entry, "mnu_v_front", "&Front View", "Ctrl+F", &F::mnu_v_front_Click, Tick::View},
        {Line::Entry, "mnu_v_underside", "&Underside View", "", &F::mnu_v_underside_Click,
         Tick::View},
        {Line::Entry, "mnu_v_right", "&Right View", "", &F::mnu_v_right_Click, Tick::View},
        {Line::Entry, "mnu_v_back", "&Back View", "", &F::mnu_v_back_Click, Tick::View},
        {Line::Separator, "mnu_v_v_1"},
        {Line::Entry, "mnu_v_persp", "&Persepctive View", "Ctrl+P", &F::mnu_v_persp_Click,
         Tick::View, true},
        {Line::EndSubmenu, ""},
        {Line::Separator, "mnu_v_1"},
        {Line::Entry, "mnu_v_texture", "Text&ured Faces", "", nullptr, Tick::Toggle, true,
         &ViewSettings::mnu_v_texture},
        {Line::Entry, "mnu_v_faces", "&Face Outlines", "", nullptr, Tick::Toggle, false,
         &ViewSettings::mnu_v_faces},
        {Line::Entry, "mnu_v_nodes", "&Nodes", "", nullptr, Tick::Toggle, false,
         &ViewSettings::mnu_v_nodes},
        {Line::Entry, "mnu_v_rs", "&Rendering Sequence", "", nullptr, Tick::Toggle, false,
         &ViewSettings::mnu_v_rs},
        {Line::Menu, "mnu_tools", "&Tools"},
        {Line::Entry, "mnu_v_pan", "P&an", "", &F::mnu_v_pan_Click, Tick::Tool},
        {Line::Entry, "mnu_v_rotate", "&Rotate", "", &F::mnu_v_rotate_Click, Tick::Tool},
        {Line::Entry, "mnu_v_bank", "&Bank", "", &F::mnu_v_bank_Click, Tick::Tool},
        {Line::Entry, "mnu_v_zoom", "&Zoom", "", &F::mnu_v_zoom_Click, Tick::Tool},
        {Line::Entry, "mnu_v_zoomextents", "Zoom E&xtents", "", &F::mnu_v_zoomextents_Click},
        {Line::Separator, "mnu_v_2"},
        {Line::Entry, "mnu_m_pick", "&Pick", "", &F::mnu_m_pick_Click, Tick::Tool, true},
        {Line::Entry, "mnu_m_move", "&Move", "", &F::mnu_m_move_Click, Tick::Tool},
        {Line::Submenu, "mnu_m_axis", "Modify &Axis"},
        {Line::Entry, "mnu_m_a_x", "&X", "", &F::mnu_m_a_x_Click, Tick::Axis, true},
        {Line::Entry, "mnu_m_a_y", "&Y", "", &F::mnu_m_a_y_Click, Tick::Axis},
        {Line::Entry, "mnu_m_a_z", "&Z", "", &F::mnu_m_a_z_Click, Tick::Axis},
        {Line::EndSubmenu, ""},
        {Line::Separator, "mnu_f_1"},
        {Line::Entry, "mnu_f_options", "&Options...", "", &F::mnu_f_options_Click},
        {Line::Menu, "mnu_help", "&Help"},
        {Line::Entry, "mnu_h_about", "&About...", "", &F::mnu_h_about_Click},
    };
    return lines;
}

enum class Style { Push, Toggle, Group, DropDown };

struct ButtonLine {
    const char* key; // nullptr for a separator
    const char* tip = "";
    Style style = Style::Push;
    bool down = false;
    // The menu entry whose handler the button runs, or whose tick a toggle flips.
    const char* entry = "";
};

const std::vector<ButtonLine>& ButtonLines() {
    static const std::vector<ButtonLine> lines{
        {"Open", "Open File", Style::Push, false, "mnu_f_load"},
        {"Save", "Save File", Style::Push, false, "mnu_f_save"},
        {"Undo", kUndoTip, Style::Push, false, "mnu_e_undo"},
        {"Redo", kRedoTip, Style::Push, false, "mnu_e_redo"},
        {nullptr},
        {"X", "Modify X Axis (X)", Style::Group, true, "mnu_m_a_x"},
        {"Y", "Modify Y Axis (Y)", Style::Group, false, "mnu_m_a_y"},
        {"Z", "Modify Z Axis (Z)", Style::Group, false, "mnu_m_a_z"},
        {nullptr},
        {"Pick", "Pick (A)", Style::Group, true, "mnu_m_pick"},
        {"Move", "Move (M)", Style::Group, false, "mnu_m_move"},
        {"Zoom", "Zoom the View (Q)", Style::Group, false, "mnu_v_zoom"},
        {"Pan", "Pan the View (R)", Style::Group, false, "mnu_v_pan"},
        {"Rotate", "Rotate the View", Style::Group, false, "mnu_v_rotate"},
        {"Bank", "Bank the Aircraft (B)", Style::Group, false, "mnu_v_bank"},
        {nullptr},
        {"ZoomExtents", "Zoom Extents (E)", Style::Push, false, "mnu_v_zoomextents"},
        {nullptr},
        {"Texture", "Toggle Texture On/Off (V)", Style::Toggle, true, "mnu_v_texture"},
        {"Faces", "Toggle Faces On/Off (W)", Style::Toggle, false, "mnu_v_faces"},
        {"Nodes", "Toggle Nodes On/Off (N)", Style::Toggle, false, "mnu_v_nodes"},
        {"RS", "Toggle Rendering Sequence On/Off", Style::Toggle, false, "mnu_v_rs"},
        {nullptr},
        {"Top", "Top View (T)", Style::Group, false, "mnu_v_top"},
        {"Left", "Left View (L)", Style::Group, false, "mnu_v_left"},
        {"Front", "Front View (F)", Style::Group, false, "mnu_v_front"},
        {"Underside", "Underside View", Style::Group, false, "mnu_v_underside"},
        {"Right", "Right View", Style::Group, false, "mnu_v_right"},
        {"Back", "Back View", Style::Group, false, "mnu_v_back"},
        {"Persp", "Perpsective View (P)", Style::Group, true, "mnu_v_persp"},
        {nullptr},
        {"Pilot", "Pilot State (C)", Style::DropDown},
        {"LG", "Landing Gear State (G)", Style::DropDown},
        {"Wing", "Wing Damage State (D)", Style::DropDown},
    };
    return lines;
}

} // namespace

void frm_main::BuildMenus() {
    viewEntries_ = new QActionGroup(this);
    toolEntries_ = new QActionGroup(this);
    axisEntries_ = new QActionGroup(this);
    QMenu* menu = nullptr;
    QMenu* outer = nullptr;
    const auto recent = [&](const char* name, void (frm_main::*click)(int)) {
        for (int i = 0; i < kRecentEntries; ++i) {
            QAction* entry = menu->addAction(QString());
            entry->setObjectName(QStringLiteral("%1(%2)").arg(name).arg(i));
            entry->setVisible(false);
            connect(entry, &QAction::triggered, this, [this, click, i] { (this->*click)(i); });
        }
    };
    for (const MenuLine& line : MenuLines()) {
        switch (line.line) {
        case Line::Menu:
            menu = menuBar()->addMenu(line.caption);
            menu->setObjectName(line.name);
            menu->menuAction()->setObjectName(line.name);
            break;
        case Line::Submenu:
            outer = menu;
            menu = menu->addMenu(line.caption);
            menu->setObjectName(line.name);
            menu->menuAction()->setObjectName(line.name);
            break;
        case Line::EndSubmenu:
            menu = outer;
            break;
        case Line::Separator:
        case Line::HiddenSeparator:
            menu->addSeparator()->setObjectName(line.name);
            if (line.line == Line::HiddenSeparator)
                Entry(line.name)->setVisible(false);
            break;
        case Line::RecentModels:
            recent(line.name, &frm_main::mnu_f_recent_Click);
            break;
        case Line::RecentProjects:
            recent(line.name, &frm_main::mnu_p_recent_Click);
            break;
        case Line::Entry: {
            QAction* entry = nullptr;
            if (line.tick == Tick::Toggle) {
                entry = AddViewTick(menu, line.name, line.caption, line.viewTick);
            } else {
                entry = menu->addAction(line.caption);
                entry->setObjectName(line.name);
            }
            entry->setShortcuts(QKeySequence::listFromString(line.shortcut));
            if (line.tick == Tick::View || line.tick == Tick::Tool || line.tick == Tick::Axis) {
                entry->setCheckable(true);
                entry->setChecked(line.ticked);
                QActionGroup* group = line.tick == Tick::View   ? viewEntries_
                                      : line.tick == Tick::Tool ? toolEntries_
                                                                : axisEntries_;
                group->addAction(entry);
            }
            if (line.click != nullptr)
                connect(entry, &QAction::triggered, this, line.click);
            break;
        }
        }
    }
    mnu_file = findChild<QMenu*>("mnu_file");
    mnu_view = findChild<QMenu*>("mnu_view");
    mnu_f_saveall = Entry("mnu_f_saveall");
    mnu_f_exit = Entry("mnu_f_exit");
    connect(mnu_f_exit, &QAction::triggered, this, &QWidget::close);
    mnu_v_texture = Entry("mnu_v_texture");
    mnu_v_faces = Entry("mnu_v_faces");
    mnu_v_nodes = Entry("mnu_v_nodes");
    mnu_v_rs = Entry("mnu_v_rs");
    // The tick shows the state of the toolbar button RS, which alone changes it.
    mnu_v_rs->setEnabled(false);
}

void frm_main::ShowJournal() {
    const ChangeJournal& journal = CurrentModel().Journal;
    const auto show = [this](const char* entry, const char* key, const char* caption,
                             const char* tip, bool can, const std::string& label) {
        const QString change = can ? QStringLiteral(" ") + QString::fromStdString(label) : "";
        Entry(entry)->setText(caption + change);
        Entry(entry)->setEnabled(can);
        QString tipText = tip;
        Button(key)->setToolTip(tipText.insert(tipText.indexOf(" ("), change));
        Button(key)->setEnabled(can);
    };
    show("mnu_e_undo", "Undo", kUndoCaption, kUndoTip, journal.CanUndo(), journal.UndoLabel());
    show("mnu_e_redo", "Redo", kRedoCaption, kRedoTip, journal.CanRedo(), journal.RedoLabel());
    setWindowTitle(titleBase_ + (journal.Modified() ? kModifiedMark : ""));
}

// A checkable entry bound to its tick in the view state: the entry starts from the tick, and every
// change of the entry's check mark writes the tick and sets the toolbar button of the same toggle.
QAction* frm_main::AddViewTick(QMenu* menu, const char* name, const char* caption,
                               bool ViewSettings::*tick) {
    QAction* entry = menu->addAction(caption);
    entry->setObjectName(name);
    entry->setCheckable(true);
    entry->setChecked(View().*tick);
    connect(entry, &QAction::toggled, this, [this, tick, name](bool checked) {
        View().*tick = checked;
        for (const ButtonLine& line : ButtonLines()) {
            if (line.key != nullptr && std::strcmp(line.entry, name) == 0 && Button(line.key))
                Button(line.key)->setChecked(checked);
        }
    });
    return entry;
}

QAction* frm_main::Entry(const char* name) const {
    return findChild<QAction*>(name);
}

void frm_main::BuildToolbar() {
    tlb_main = addToolBar("tlb_main");
    tlb_main->setObjectName("tlb_main");
    tlb_main->setMovable(false);
    tlb_main->setFloatable(false);
    tlb_main->setIconSize(QSize(16, 16));
    tlb_main->toggleViewAction()->setEnabled(false);
    QActionGroup* group = nullptr;
    for (const ButtonLine& line : ButtonLines()) {
        if (line.key == nullptr) {
            tlb_main->addSeparator();
            group = nullptr;
            continue;
        }
        QAction* button = new QAction(ToolbarImage(line.key), line.tip, tlb_main);
        button->setObjectName(line.key);
        button->setToolTip(line.tip);
        tlb_main->addAction(button);
        switch (line.style) {
        case Style::Push:
            connect(button, &QAction::triggered, Entry(line.entry), &QAction::trigger);
            break;
        case Style::Group:
            if (group == nullptr)
                group = new QActionGroup(tlb_main);
            group->addAction(button);
            button->setCheckable(true);
            button->setChecked(line.down);
            connect(button, &QAction::triggered, Entry(line.entry), &QAction::trigger);
            break;
        case Style::Toggle:
            button->setCheckable(true);
            button->setChecked(line.down);
            // The button has moved by itself; the entry's tick follows it.
            connect(button, &QAction::triggered, this,
                    [this, entry = line.entry] { Entry(entry)->toggle(); });
            break;
        case Style::DropDown: {
            const StateButton& state = *FindStateButton(line.key);
            auto* choices = new QMenu(tlb_main);
            choices->setObjectName(QStringLiteral("%1_menu").arg(line.key));
            for (const StateChoice& choice : state.choices) {
                QAction* item = choices->addAction(ToolbarImage(choice.image), choice.caption);
                item->setObjectName(choice.image);
                connect(item, &QAction::triggered, this,
                        [this, key = line.key, &choice] { SetState(key, choice.value); });
            }
            button->setMenu(choices);
            SetButtonImage(line.key, state.choices.front().image);
            connect(button, &QAction::triggered, this, [this, key = line.key] { StepState(key); });
            if (auto* tool = qobject_cast<QToolButton*>(tlb_main->widgetForAction(button)))
                tool->setPopupMode(QToolButton::MenuButtonPopup);
            break;
        }
        }
    }
}

QAction* frm_main::Button(const QString& key) const {
    return tlb_main != nullptr ? tlb_main->findChild<QAction*>(key, Qt::FindDirectChildrenOnly)
                               : nullptr;
}

void frm_main::SetButtonImage(const QString& button, const QString& image) {
    if (QAction* action = Button(button)) {
        action->setIcon(ToolbarImage(image));
        action->setProperty("image", image);
    }
}
