#include "mainwindow.h"

#include "configfile.h"
#include "currentmodel.h"
#include "editpanels.h"
#include "fileassociation.h"
#include "glview.h"
#include "modelhost.h"
#include "oglgraphics.h"
#include "optionsdialog.h"
#include "programstate.h"
#include "repeatedmessages.h"
#include "stepcloser.h"
#include "texturewindow.h"
#include "toolbarimages.h"
#include "undokeys.h"
#include "viewsettings.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QScreen>
#include <QToolBar>

#include <functional>

namespace {

constexpr const char* kTitle = "Skylathe";
constexpr const char* kSaveQuestion = "Do you wish to save the current file(s) before exiting?";
constexpr const char* kModelFilter = "MOX Model (*.mox);;MOY Model (*.moy)";
constexpr const char* kProjectFilter = "Skylathe Projects (*.3vw)";
constexpr int kRecentEntries = 4;

// The client area the window opens with.
constexpr int kClientWidth = 952;
constexpr int kClientHeight = 772;

// The bare name of the file `path` names as it stands on disk now; empty when it is gone.
QString BareNameOnDisk(const std::string& path) {
    const QFileInfo file(QString::fromStdString(path));
    return file.exists() ? file.fileName() : QString();
}

// "&1  PLANEF.MOX" for entry `i`; false when the entry is empty.
bool RecentCaption(const std::string& entry, int i, QString& caption) {
    if (entry == kNoRecent)
        return false;
    caption = QStringLiteral("&%1  %2").arg(i + 1).arg(BareNameOnDisk(entry));
    return true;
}

// A new model, then `open` on it, with the GL context current for its textures; a message that
// repeats within the load shows once.
void OpenIntoNewModel(const std::function<void(model&)>& open) {
    const RepeatedMessages oneLoad;
    ReplaceCurrentModel();
    OGL().MakeCurrent();
    open(CurrentModel());
}

} // namespace

// The images and desktop files live in a static library, whose resources are registered by hand.
static void LoadShellResources() {
    Q_INIT_RESOURCE(images);
}

frm_main::frm_main() {
    LoadShellResources();
    setObjectName("frm_main");
    titleBase_ = kTitle;
    setWindowIcon(ProgramIcon());
    BuildMenus();
    BuildToolbar();
    BuildPanes();
    BuildTextureWindow();
    qApp->installEventFilter(new StepCloser(this));
    qApp->installEventFilter(new UndoKeys({Entry("mnu_e_undo"), Entry("mnu_e_redo")}, this));
    ShowJournal();
    resize(kClientWidth,
           kClientHeight + menuBar()->sizeHint().height() + tlb_main->sizeHint().height());
    if (const QScreen* shown = screen())
        move(shown->availableGeometry().center() - rect().center());
}

frm_main::~frm_main() = default;

void frm_main::Form_Load() {
    WriteFileAssociation();
    SelectTab(kModelInfoTab);
    mnu_m_pick_Click();
    ReplaceCurrentModel();
    ShowJournal();
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
    if (options_ != nullptr)
        options_->close();
    WriteConfig();
    OGL().bRunning = false;
    emit Unloaded();
    return true;
}

void frm_main::UpdateRecentMenus() {
    Entry("mnu_f_2")->setVisible(false);
    Entry("mnu_p_1")->setVisible(false);
    const ProgramState& state = Program();
    for (int i = 0; i < kRecentEntries; ++i) {
        QString caption;
        QAction* model = findChild<QAction*>(QStringLiteral("mnu_f_recent(%1)").arg(i));
        model->setVisible(false);
        if (RecentCaption(state.RecentModels[i], i, caption)) {
            model->setText(caption);
            model->setVisible(true);
            Entry("mnu_f_2")->setVisible(true);
        }
        QAction* project = findChild<QAction*>(QStringLiteral("mnu_p_recent(%1)").arg(i));
        project->setVisible(false);
        if (RecentCaption(state.RecentProjects[i], i, caption)) {
            project->setText(caption);
            project->setVisible(true);
            Entry("mnu_p_1")->setVisible(true);
        }
    }
}

void frm_main::closeEvent(QCloseEvent* event) {
    if (Form_Unload())
        event->accept();
    else
        event->ignore();
}

// A file dialog of the window system's own kind; an empty name when the user cancels.
QString frm_main::AskForFile(bool saving, const char* title, const char* filter) {
    return saving ? QFileDialog::getSaveFileName(this, title, QString(), filter)
                  : QFileDialog::getOpenFileName(this, title, QString(), filter);
}

void frm_main::OpenModel(std::string fileName) {
    OpenIntoNewModel([&fileName](model& opened) { opened.Load(fileName); });
    ShowJournal();
}

void frm_main::OpenProject(std::string fileName) {
    OpenIntoNewModel([&fileName](model& opened) { opened.LoadProject(fileName); });
    ShowJournal();
}

void frm_main::mnu_e_undo_Click() {
    ShowRestored(CurrentModel().Undo());
}

void frm_main::mnu_e_redo_Click() {
    ShowRestored(CurrentModel().Redo());
}

void frm_main::ShowRestored(bool restored) {
    if (!restored)
        return;
    CurrentModel().WriteInfo(View().CurrentTab);
    // The Centre Mover's UNDO takes back the moves its totals add up; after the journal moved
    // the nodes, those totals no longer tell what it would take back.
    ResetCentreMover();
}

void frm_main::SetTitle(const QString& title) {
    titleBase_ = title;
    ShowJournal();
}

void frm_main::mnu_f_load_Click() {
    const QString name = AskForFile(false, "Load Model", kModelFilter);
    if (!name.isEmpty())
        OpenModel(name.toStdString());
}

void frm_main::mnu_f_save_Click() {
    CurrentModel().Save("ONE");
}

void frm_main::mnu_f_saveas_Click() {
    const QString name = AskForFile(true, "Save Model", kModelFilter);
    if (!name.isEmpty())
        CurrentModel().Save(name.toStdString());
}

void frm_main::mnu_f_saveall_Click() {
    CurrentModel().Save("ALL");
}

void frm_main::mnu_f_recent_Click(int entry) {
    OpenModel(Program().RecentModels.at(static_cast<std::size_t>(entry)));
}

void frm_main::mnu_f_loadproject_Click() {
    const QString name = AskForFile(false, "Load Project", kProjectFilter);
    if (!name.isEmpty())
        OpenProject(name.toStdString());
}

void frm_main::mnu_f_saveproject_Click() {
    CurrentModel().SaveProject();
}

void frm_main::mnu_p_recent_Click(int entry) {
    OpenProject(Program().RecentProjects.at(static_cast<std::size_t>(entry)));
}

void frm_main::mnu_f_options_Click() {
    if (options_ == nullptr)
        options_ = new frm_options(*this);
    options_->show();
    options_->raise();
    options_->activateWindow();
}

// The texture window belongs to this window: it stays above it while shown and has no task bar
// entry of its own. The menu entry's tick says whether it is open.
void frm_main::BuildTextureWindow() {
    auto* window = new frm_texture(this);
    QAction* entry = Entry("mnu_v_texwindow");
    entry->setCheckable(true);
    connect(window, &frm_texture::Unloaded, entry, [entry] { entry->setChecked(false); });
}

// The click has already turned the entry's tick over; whether the window is shown tells what it
// was.
void frm_main::mnu_v_texwindow_Click() {
    frm_texture* window = TextureWindow();
    const bool open = window->isVisible();
    Entry("mnu_v_texwindow")->setChecked(open);
    if (CurrentModel().M_Type == kNothingLoaded)
        return;
    if (open) {
        window->close();
        return;
    }
    window->Open(CurrentModel().m_currmox);
    Entry("mnu_v_texwindow")->setChecked(true);
}

void frm_main::mnu_h_about_Click() {
    QString versions = QStringLiteral("Qt %1").arg(qVersion());
    if (OGL().MakeCurrent()) {
        const auto* glVersion = reinterpret_cast<const char*>(
            QOpenGLContext::currentContext()->functions()->glGetString(GL_VERSION));
        if (glVersion != nullptr)
            versions += QStringLiteral(", OpenGL %1").arg(glVersion);
    }
    const QString text =
        QStringLiteral("Skylathe For Windows\nVersion: %1.%2\n\n"
                       "A model editor for the .mox models of the flight simulator,\n"
                       "written by the Skylathe developers.\n"
                       "This program comes with no warranty: keep copies of your models.\n\n"
                       "Skylathe %3, %4")
            .arg(SKYLATHE_VERSION_MAJOR)
            .arg(SKYLATHE_VERSION_MINOR)
            .arg(SKYLATHE_VERSION)
            .arg(versions);
    Host().ShowMessage(text.toStdString(), MessageButtons::Ok, MessageIcon::None, kTitle);
}
