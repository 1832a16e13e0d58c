#include "mainwindow.h"

#include "configfile.h"
#include "currentmodel.h"
#include "framepacer.h"
#include "glview.h"
#include "homecamera.h"
#include "modelhost.h"
#include "oglgraphics.h"

#include <QAction>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr const char* kTitle = "Skylathe";
constexpr const char* kSaveQuestion = "Do you wish to save the current file(s) before exiting?";
constexpr const char* kPickHelp = "Left Mouse: PICK";
constexpr int kFirstTab = 1;

// The client area the window opens with, and the left pane and help label within it.
constexpr int kClientWidth = 952;
constexpr int kClientHeight = 772;
constexpr int kPaneWidth = 385;
constexpr int kHelpLeft = 24;
constexpr int kHelpWidth = 329;
constexpr int kHelpHeight = 33;
constexpr int kHelpBottomGap = 7;

} // namespace

frm_main::frm_main() {
    setObjectName("frm_main");
    setWindowTitle(kTitle);
    BuildMenus();
    BuildPanes();
    resize(kClientWidth, kClientHeight + menuBar()->sizeHint().height());
    if (const QScreen* shown = screen())
        move(shown->availableGeometry().center() - rect().center());
}

void frm_main::BuildMenus() {
    mnu_file = menuBar()->addMenu("&Model");
    mnu_file->setObjectName("mnu_file");
    mnu_f_saveall = mnu_file->addAction("Save A&ll");
    mnu_f_saveall->setObjectName("mnu_f_saveall");
    connect(mnu_f_saveall, &QAction::triggered, this, &frm_main::mnu_f_saveall_Click);
    mnu_file->addSeparator()->setObjectName("mnu_f_5");
    mnu_f_exit = mnu_file->addAction("E&xit");
    mnu_f_exit->setObjectName("mnu_f_exit");
    connect(mnu_f_exit, &QAction::triggered, this, &QWidget::close);

    mnu_view = menuBar()->addMenu("&View");
    mnu_view->setObjectName("mnu_view");
    mnu_v_texture = AddViewTick("mnu_v_texture", "Text&ured Faces", &ViewSettings::mnu_v_texture);
    mnu_v_faces = AddViewTick("mnu_v_faces", "&Face Outlines", &ViewSettings::mnu_v_faces);
    mnu_v_nodes = AddViewTick("mnu_v_nodes", "&Nodes", &ViewSettings::mnu_v_nodes);
    mnu_v_rs = AddViewTick("mnu_v_rs", "&Rendering Sequence", &ViewSettings::mnu_v_rs);
    // The tick shows the state of the toolbar button RS, which alone changes it.
    mnu_v_rs->setEnabled(false);
}

// A checkable View entry bound to its tick in the view state: the entry starts from the tick and
// every change of the entry's check mark writes the tick.
QAction* frm_main::AddViewTick(const char* name, const char* caption, bool ViewSettings::*tick) {
    QAction* entry = mnu_view->addAction(caption);
    entry->setObjectName(name);
    entry->setCheckable(true);
    entry->setChecked(View().*tick);
    connect(entry, &QAction::toggled, this, [tick](bool checked) { View().*tick = checked; });
    return entry;
}

void frm_main::BuildPanes() {
    auto* central = new QWidget(this);
    auto* columns = new QHBoxLayout(central);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(0);

    Pic_Edit = new QWidget(central);
    Pic_Edit->setObjectName("Pic_Edit");
    Pic_Edit->setFixedWidth(kPaneWidth);
    auto* pane = new QVBoxLayout(Pic_Edit);
    pane->setContentsMargins(kHelpLeft, 0, kPaneWidth - kHelpLeft - kHelpWidth, kHelpBottomGap);
    pane->addStretch();
    lbl_help = new QLabel(Pic_Edit);
    lbl_help->setObjectName("lbl_help");
    lbl_help->setFrameStyle(QFrame::Box | QFrame::Plain);
    lbl_help->setFixedHeight(kHelpHeight);
    lbl_help->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    pane->addWidget(lbl_help);
    columns->addWidget(Pic_Edit);

    // The GL surface is a native window of its own, so that a frame is painted straight into it
    // rather than composed into the main window.
    glView = new GLView;
    glView->setObjectName("pic_render");
    pic_render = QWidget::createWindowContainer(glView, central);
    pic_render->setObjectName("pic_render");
    pic_render->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    columns->addWidget(pic_render, 1);
    framePacer = new FramePacer(*glView);

    setCentralWidget(central);
}

void frm_main::Form_Load() {
    View().CurrentTab = kFirstTab;
    View().ToolMode = kPickTool;
    lbl_help->setText(kPickHelp);
    ReplaceCurrentModel();
}

bool frm_main::Form_Unload() {
    if (CurrentModel().M_Type != kNothingLoaded) {
        // Nothing tracks changes, so the question comes whenever a model is open.
        const MessageAnswer answer = Host().ShowMessage(kSaveQuestion, MessageButtons::YesNoCancel,
                                                        MessageIcon::None, kTitle);
        if (answer == MessageAnswer::Cancel)
            return false;
        if (answer == MessageAnswer::Yes)
            mnu_f_saveall->trigger();
    }
    WriteConfig();
    OGL().bRunning = false;
    emit Unloaded();
    return true;
}

// The recent entries come with the configuration file; until then the menus have none.
void frm_main::UpdateRecentMenus() {}

void frm_main::closeEvent(QCloseEvent* event) {
    if (Form_Unload())
        event->accept();
    else
        event->ignore();
}

void frm_main::mnu_f_saveall_Click() {
    CurrentModel().Save("ALL");
}

void frm_main::mnu_v_persp_Click() {
    ResetPerspectiveCamera(CurrentModel());
    if (OGL().MakeCurrent()) {
        const qreal ratio = glView->devicePixelRatio();
        OGL().ReSizeGLScene(static_cast<int>(glView->width() * ratio),
                            static_cast<int>(glView->height() * ratio));
    }
    glView->update();
}
