// frm_main, the one main window: the menu bar, the left pane with the help label, and the GL
// view `pic_render` that fills the rest.
#pragma once

#include "viewsettings.h"

#include <QMainWindow>

class FramePacer;
class GLView;
class QAction;
class QCloseEvent;
class QLabel;
class QMenu;

class frm_main : public QMainWindow {
    Q_OBJECT
public:
    frm_main();

    // The load handler: the first tab, the Pick tool with its help text, a new empty model.
    void Form_Load();
    // The closing sequence: asks about saving when a model is open, writes the configuration and
    // ends the main loop. False when the answer was Cancel and the program runs on.
    bool Form_Unload();
    // Rebuilds the recent entries of the Model and Project menus from the recent lists.
    void UpdateRecentMenus();
    // The perspective view with its fixed camera; every load ends with it.
    void mnu_v_persp_Click();

    QMenu* mnu_file = nullptr;
    QAction* mnu_f_saveall = nullptr;
    QAction* mnu_f_exit = nullptr;
    QMenu* mnu_view = nullptr;
    QAction* mnu_v_texture = nullptr;
    QAction* mnu_v_faces = nullptr;
    QAction* mnu_v_nodes = nullptr;
    QAction* mnu_v_rs = nullptr;
    QWidget* Pic_Edit = nullptr;
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

private:
    void BuildMenus();
    void BuildPanes();
    QAction* AddViewTick(const char* name, const char* caption, bool ViewSettings::*tick);
    void mnu_f_saveall_Click();
};
