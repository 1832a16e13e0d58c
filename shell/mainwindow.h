// frm_main, the one main window: menu bar, toolbar tlb_main, the left pane Pic_Edit with the tab
// strip, the seven panel frames and the help label, and the GL view `pic_render` that fills the
// rest.
#pragma once

#include "viewsettings.h"

#include <QMainWindow>
#include <QPointer>

#include <array>
#include <memory>
#include <string>

class EditPanels;
class FramePacer;
class StepCloser;
class GLView;
class QAction;
class QActionGroup;
class QCloseEvent;
class QFrame;
class QLabel;
class QMenu;
class QPushButton;
class QTabWidget;
class QToolBar;
class frm_options;

class frm_main : public QMainWindow {
    Q_OBJECT
public:
    frm_main();
    ~frm_main() override;

    // The load handler: the file association, the first tab, the Pick tool with its help text,
    // a new empty model.
    void Form_Load();
    // The closing sequence: asks about saving when a model is open, writes the configuration and
    // ends the main loop. False when the answer was Cancel and the program runs on.
    bool Form_Unload();
    // Rebuilds the recent entries of the Model and Project menus from the recent lists.
    void UpdateRecentMenus();

    // Selects tab `tab` (1 to 7) of Tab_Edit and runs the tab switch, as a click on it does; the
    // keys F1 to F7 of the view call this.
    void SelectTab(int tab);
    // The tab switch for the selected tab: pane widths, the panel fill, CurrentTab.
    void Tab_Edit_Click();
    // Lays out the pane and the view for the window's present size.
    void Form_Resize();
    // Opens or closes the left pane, leaving its button in sight.
    void cmd_showhide_Click();

    // The views: each of the six orthographic ones starts at half-height 125 with no pan.
    void mnu_v_left_Click();
    void mnu_v_top_Click();
    void mnu_v_front_Click();
    void mnu_v_underside_Click();
    void mnu_v_right_Click();
    void mnu_v_back_Click();
    // The perspective view with its fixed camera; every load ends with it.
    void mnu_v_persp_Click();
    void mnu_v_zoomextents_Click();
    // The mouse tools.
    void mnu_v_pan_Click();
    void mnu_v_rotate_Click();
    void mnu_v_zoom_Click();
    void mnu_m_pick_Click();
    void mnu_m_move_Click();
    void mnu_v_bank_Click();
    // The axis of the Move tool.
    void mnu_m_a_x_Click();
    void mnu_m_a_y_Click();
    void mnu_m_a_z_Click();
    // The drawing toggles: each flips its tick and sets its toolbar button to match.
    void mnu_v_texture_Click();
    void mnu_v_faces_Click();
    void mnu_v_nodes_Click();
    void mnu_v_rs_Click();
    // The state buttons of the toolbar: a click steps the state, a choice in the drop-down sets it.
    void Pilot_Click();
    void LG_Click();
    void Wing_Click();
    // Gives toolbar button `button` ("Pilot", "LG", "Wing") the image `image` of ImgLst_Toolbar.
    void SetButtonImage(const QString& button, const QString& image);
    // The toolbar button of `key`, or nullptr.
    QAction* Button(const QString& key) const;

    // The input of the view pic_render. Buttons: 1 left, 2 right, as a mask while moving; shift
    // masks: bit 0 Shift, bit 1 Ctrl. Positions are in pixels of the view, y growing downward.
    void pic_render_MouseDown(int Button, int Shift, float X, float Y);
    void pic_render_MouseUp(int Button, int Shift, float X, float Y);
    void pic_render_MouseMove(int Button, int Shift, float X, float Y);
    // A key by its virtual key code (37 to 40 the arrows, 65 to 90 the letters, 107 and 109 the
    // keypad plus and minus, 112 to 118 F1 to F7). Paints no frame of its own: the frame loop
    // sees the change.
    void pic_render_KeyDown(int KeyCode, int Shift);
    // A turn of the wheel over the view while this window is active: `Rotation` in units of 120
    // a notch. The keys and position are not used.
    void MouseWheel(int32_t MouseKeys, int32_t Rotation, int32_t Xpos, int32_t Ypos);
    // Puts the view's pointer back to that of the current tool.
    void RestoreToolPointer();

    // The last mouse position of a drag; -1 when there is none.
    float LastX = -1.0f;
    float LastY = -1.0f;

    // The texture window, opened from the View menu.
    void mnu_v_texwindow_Click();
    // When the main window is minimised, the texture window follows.
    void frm_texture_Minimise();
    // Entering the Centre Mover tab puts its running totals back to 0.
    void ResetCentreMover();

    // The Model and Project menus.
    void mnu_f_load_Click();
    void mnu_f_save_Click();
    void mnu_f_saveas_Click();
    void mnu_f_saveall_Click();
    void mnu_f_recent_Click(int entry);
    void mnu_f_loadproject_Click();
    void mnu_f_saveproject_Click();
    void mnu_p_recent_Click(int entry);
    void mnu_f_options_Click();
    // The Edit menu: take back the newest change, bring back the last one taken back.
    void mnu_e_undo_Click();
    void mnu_e_redo_Click();
    // The Edit entries, the Undo and Redo buttons and the title's mark of unsaved changes, from
    // the journal of the open model.
    void ShowJournal();
    // The title without the mark of unsaved changes.
    void SetTitle(const QString& title);
    void mnu_h_about_Click();

    QMenu* mnu_file = nullptr;
    QAction* mnu_f_saveall = nullptr;
    QAction* mnu_f_exit = nullptr;
    QMenu* mnu_view = nullptr;
    QAction* mnu_v_texture = nullptr;
    QAction* mnu_v_faces = nullptr;
    QAction* mnu_v_nodes = nullptr;
    QAction* mnu_v_rs = nullptr;
    QToolBar* tlb_main = nullptr;
    QWidget* Pic_Edit = nullptr;
    QTabWidget* Tab_Edit = nullptr;
    // fra_edit(1) to fra_edit(7), by tab number; entry 0 stays empty.
    std::array<QFrame*, 8> fra_edit{};
    // The panels built so far, in their frames.
    std::unique_ptr<EditPanels> panels;
    QPushButton* cmd_showhide = nullptr;
    QLabel* lbl_help = nullptr;
    // The view: a widget that holds the GL surface `glView` and keeps it at its own place and size.
    QWidget* pic_render = nullptr;
    GLView* glView = nullptr;
    // Asks the view for a frame whenever what it shows has changed.
    FramePacer* framePacer = nullptr;

signals:
    // The closing sequence has run to its end and bRunning is false.
    void Unloaded();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildMenus();
    void BuildToolbar();
    void BuildPanes();
    void BuildTextureWindow();
    void BuildPanelFrames();
    QAction* AddViewTick(QMenu* menu, const char* name, const char* caption,
                         bool ViewSettings::*tick);
    QAction* Entry(const char* name) const;
    void ShowOrthoView(int32_t mode);
    void TickView(int32_t mode);
    void ChooseTool(int32_t tool);
    void ChooseAxis(int32_t axis);
    void FlipToggle(const char* entry);
    void StepState(const char* button);
    void SetState(const char* button, int value);
    void OpenModel(std::string fileName);
    void OpenProject(std::string fileName);
    QString AskForFile(bool saving, const char* title, const char* filter);
    // Hands the mouse, wheel and key events of the GL surface to the pic_render handlers.
    void RouteViewEvent(QEvent* event);
    bool MainWindowActive() const;
    // The rows of a drag, each with its first-move rule and the factors of the view.
    void ZoomDrag(float x, float y);
    void PanDrag(float x, float y);
    void RotateDrag(float x, float y);
    void BankDrag(float x, float y);
    void LeftDrag(float x, float y);
    void RightDrag(float x, float y);
    void MoveToolDrag(float x, float y);
    void MoveSelection(int32_t dist);
    void ArrowKey(int KeyCode, int Shift);
    void LetterKey(int KeyCode);

    QActionGroup* viewEntries_ = nullptr;
    QActionGroup* toolEntries_ = nullptr;
    QActionGroup* axisEntries_ = nullptr;
    // After an undo or redo: the shown panel filled again, the Centre Mover's totals cleared.
    void ShowRestored(bool restored);

    QPointer<frm_options> options_;
    QString titleBase_;
};
