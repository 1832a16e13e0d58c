// The left pane of frm_main: the tab strip with the seven panel frames, the show/hide button and
// the help label; the tab switch; and the layout of pane and view for every window size.
#include "mainwindow.h"

#include "centremoverpanel.h"
#include "currentmodel.h"
#include "editpanels.h"
#include "framepacer.h"
#include "glview.h"
#include "texturewindow.h"

#include <QAction>
#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

namespace {

constexpr int kTabCount = 7;
struct TabLine {
    const char* caption;
    const char* key;
    int frameWidth;
};
// By tab number; the Elements and Notepad panels are the two wide ones.
constexpr TabLine kTabs[kTabCount + 1] = {
    {"", "", 0},
    {"F1 - Model Info", "Info", 169},
    {"F2 - Parts", "Parts", 169},
    {"F3 - Elements", "Elements", 337},
    {"F4 - Nodes", "Nodes", 169},
    {"F5 - Centre Mover", "CentreMover", 169},
    {"F6 - Notepad", "Notepad", 265},
    {"F7 - 3-View Data", "3ViewData", 169},
};

// The design places within the pane.
constexpr int kFrameLeft = 24;
constexpr int kFrameTop = 3;
constexpr int kTabStripMargin = 32; // the strip is this much wider than its panel
constexpr int kButtonWidth = 17;
constexpr int kHelpLeft = 24;
constexpr int kHelpHeight = 33;
constexpr int kHelpGap = 7;
constexpr int kHelpBelowTabs = 14;
constexpr int kNotepadShorter = 200;
constexpr const char* kPaneOpen = "<";
constexpr const char* kPaneClosed = ">";

constexpr int kTabCaptionPoints = 8;

} // namespace

void frm_main::BuildPanes() {
    auto* central = new QWidget(this);
    central->setObjectName("frm_main_client");
    central->installEventFilter(this);

    Pic_Edit = new QWidget(central);
    Pic_Edit->setObjectName("Pic_Edit");
    Pic_Edit->setAutoFillBackground(true);

    Tab_Edit = new QTabWidget(Pic_Edit);
    Tab_Edit->setObjectName("Tab_Edit");
    Tab_Edit->setTabPosition(QTabWidget::West);
    // All seven captions stay in sight in the design height, shortened only in a small window.
    Tab_Edit->setUsesScrollButtons(false);
    Tab_Edit->setElideMode(Qt::ElideRight);
    QFont captions = Tab_Edit->font();
    captions.setPointSize(kTabCaptionPoints);
    Tab_Edit->tabBar()->setFont(captions);
    for (int tab = 1; tab <= kTabCount; ++tab) {
        auto* page = new QWidget(Tab_Edit);
        page->setObjectName(kTabs[tab].key);
        Tab_Edit->addTab(page, kTabs[tab].caption);
    }
    BuildPanelFrames();
    connect(Tab_Edit, &QTabWidget::currentChanged, this, &frm_main::Tab_Edit_Click);

    cmd_showhide = new QPushButton(kPaneOpen, Pic_Edit);
    cmd_showhide->setObjectName("cmd_showhide");
    QFont bold = cmd_showhide->font();
    bold.setBold(true);
    cmd_showhide->setFont(bold);
    cmd_showhide->setFocusPolicy(Qt::NoFocus);
    // The first tab switch measures the pane with this width, before any resize has run.
    cmd_showhide->resize(kButtonWidth, cmd_showhide->height());
    connect(cmd_showhide, &QPushButton::clicked, this, &frm_main::cmd_showhide_Click);

    lbl_help = new QLabel(Pic_Edit);
    lbl_help->setObjectName("lbl_help");
    lbl_help->setFrameStyle(QFrame::Box | QFrame::Plain);
    lbl_help->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lbl_help->setGeometry(kHelpLeft, 0, 0, kHelpHeight);

    // The GL surface is a native window of its own, so that a frame is painted straight into it
    // rather than composed into the main window.
    glView = new GLView;
    glView->setObjectName("pic_render");
    pic_render = QWidget::createWindowContainer(glView, central);
    pic_render->setObjectName("pic_render");
    framePacer = new FramePacer(*glView);
    glView->installEventFilter(this);

    setCentralWidget(central);
}

void frm_main::BuildPanelFrames() {
    for (int tab = 1; tab <= kTabCount; ++tab) {
        auto* frame = new QFrame(Pic_Edit);
        frame->setObjectName(QStringLiteral("fra_edit(%1)").arg(tab));
        frame->setFrameStyle(QFrame::NoFrame);
        frame->setAutoFillBackground(true);
        frame->setGeometry(kFrameLeft, kFrameTop, kTabs[tab].frameWidth, 0);
        fra_edit[tab] = frame;
    }
    panels = std::make_unique<EditPanels>(*fra_edit[kModelInfoTab], *fra_edit[kPartsTab],
                                          *fra_edit[kElementsTab], *fra_edit[kNodesTab],
                                          *fra_edit[kCentreMoverTab], *fra_edit[kNotepadTab],
                                          *fra_edit[kThreeViewDataTab]);
}

void frm_main::SelectTab(int tab) {
    if (tab < 1 || tab > kTabCount)
        return;
    {
        const QSignalBlocker quiet(Tab_Edit);
        Tab_Edit->setCurrentIndex(tab - 1);
    }
    Tab_Edit_Click();
}

void frm_main::Tab_Edit_Click() {
    const int tab = Tab_Edit->currentIndex() + 1;
    QFrame* shown = fra_edit[tab];
    for (int other = 1; other <= kTabCount; ++other)
        fra_edit[other]->setVisible(other == tab);
    shown->raise();
    const int stripWidth = shown->width() + kTabStripMargin;
    Tab_Edit->resize(stripWidth, Tab_Edit->height());
    cmd_showhide->move(stripWidth - 1, cmd_showhide->y());
    Pic_Edit->resize(stripWidth + cmd_showhide->width() - 1, Pic_Edit->height());
    Form_Resize();
    CurrentModel().WriteInfo(tab);
    View().CurrentTab = tab;
    if (tab == kNodesTab) {
        // Nodes are seen and picked on this tab.
        Button("Nodes")->setChecked(true);
        mnu_v_nodes->setChecked(true);
    }
    if (tab == kCentreMoverTab)
        ResetCentreMover();
}

void frm_main::cmd_showhide_Click() {
    cmd_showhide->setText(cmd_showhide->text() == kPaneOpen ? kPaneClosed : kPaneOpen);
    Form_Resize();
}

void frm_main::Form_Resize() {
    QWidget* client = centralWidget();
    if (client == nullptr || isMinimized())
        return;
    // The toolbar and the menu bar lie outside the client widget, which starts below them.
    const int width = client->width();
    const int height = client->height();
    const int paneLeft =
        cmd_showhide->text() == kPaneOpen ? 0 : cmd_showhide->width() - Pic_Edit->width();
    Pic_Edit->setGeometry(paneLeft, 0, Pic_Edit->width(), height);

    const int tabHeight = std::max(0, height - kHelpHeight - kHelpBelowTabs);
    Tab_Edit->resize(Tab_Edit->width(), tabHeight);
    const int frameHeight = std::max(0, tabHeight - 2 * kFrameTop - kHelpHeight);
    for (int tab = 1; tab <= kTabCount; ++tab) {
        const bool wide = tab == kElementsTab || tab == kNotepadTab;
        const int frameWidth = wide ? fra_edit[tab]->width() : fra_edit[kModelInfoTab]->width();
        fra_edit[tab]->setGeometry(kFrameLeft, kFrameTop, frameWidth, frameHeight);
    }
    cmd_showhide->setGeometry(cmd_showhide->x(), 0, kButtonWidth, height);
    lbl_help->setGeometry(kHelpLeft, tabHeight + kHelpGap,
                          std::max(0, cmd_showhide->x() - kHelpLeft - kHelpGap), kHelpHeight);
    if (auto* notepad = findChild<QWidget*>("txt_notepad"))
        notepad->resize(notepad->width(), std::max(0, frameGeometry().height() - kNotepadShorter));

    // The view takes the rest; its GL surface sets the projection, and an orthographic view its
    // volume again, when its size changes.
    const int viewLeft = paneLeft + Pic_Edit->width();
    pic_render->setGeometry(viewLeft, 0, std::max(0, width - viewLeft), height);
}

bool frm_main::eventFilter(QObject* watched, QEvent* event) {
    if (watched == centralWidget() && event->type() == QEvent::Resize)
        Form_Resize();
    if (watched == glView)
        RouteViewEvent(event);
    return QMainWindow::eventFilter(watched, event);
}

void frm_main::changeEvent(QEvent* event) {
    if (event->type() == QEvent::WindowStateChange && isMinimized())
        frm_texture_Minimise();
    QMainWindow::changeEvent(event);
}

void frm_main::frm_texture_Minimise() {
    if (frm_texture* window = TextureWindow())
        window->FollowOwnerMinimised();
}

void frm_main::ResetCentreMover() {
    panels->centreMover().TabShown();
}
