// The left pane: the tab switch with the panel widths, F4's nodes, show and hide, and the view
// taking whatever width the pane gives up.
#include "editorfixture.h"
#include "mainwindow.h"
#include "viewsettings.h"

#include <QAction>
#include <QCoreApplication>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

namespace {
constexpr int kFrameWidths[] = {0, 169, 169, 337, 169, 169, 265, 169};
}

TEST_F(EditorTest, TabsSetThePaneWidthAndTheViewTakesTheRest) {
    frm_main& window = Window();
    const QWidget& client = *window.centralWidget();
    // As the window first shows: the first tab's pane, the view beside it.
    EXPECT_EQ(window.Pic_Edit->width(), kFrameWidths[1] + 32 + 16);
    EXPECT_EQ(window.pic_render->x(), window.Pic_Edit->width());
    for (int tab = 1; tab <= 7; ++tab) {
        window.SelectTab(tab);
        EXPECT_EQ(View().CurrentTab, tab);
        EXPECT_EQ(window.Tab_Edit->currentIndex(), tab - 1);
        EXPECT_EQ(window.Tab_Edit->width(), kFrameWidths[tab] + 32) << "tab " << tab;
        EXPECT_EQ(window.Pic_Edit->width(), kFrameWidths[tab] + 32 + 16) << "tab " << tab;
        for (int other = 1; other <= 7; ++other)
            EXPECT_EQ(window.fra_edit[other]->isVisible(), other == tab) << tab << " " << other;
        EXPECT_EQ(window.fra_edit[tab]->height(),
                  window.Tab_Edit->height() - 6 - window.lbl_help->height());
        EXPECT_EQ(window.pic_render->x(), window.Pic_Edit->width());
        EXPECT_EQ(window.pic_render->width(), client.width() - window.Pic_Edit->width());
    }
    // Tab 4 turns the nodes on, and they stay on when the tab is left.
    EXPECT_TRUE(window.Button("Nodes")->isChecked());
    EXPECT_TRUE(View().mnu_v_nodes);

    window.SelectTab(3);
    const int paneOnElements = window.Pic_Edit->width();
    const int viewOnElements = window.pic_render->width();
    window.Tab_Edit->setCurrentIndex(0); // a click on the first tab
    EXPECT_EQ(View().CurrentTab, 1);
    EXPECT_EQ(paneOnElements - window.Pic_Edit->width(), 168);
    EXPECT_EQ(window.pic_render->width() - viewOnElements, 168);

    // Hidden, the pane leaves its 17-pixel button at the left edge, through a resize too.
    window.cmd_showhide->click();
    window.resize(window.width() + 40, window.height() + 30);
    QCoreApplication::processEvents();
    for (bool open : {false, true}) {
        const int visibleEdge = open ? window.Pic_Edit->width() : 17;
        EXPECT_EQ(window.cmd_showhide->text(), open ? "<" : ">");
        EXPECT_EQ(window.Pic_Edit->geometry().right() + 1, visibleEdge);
        EXPECT_EQ(window.cmd_showhide->mapTo(&client, QPoint(0, 0)).x(), visibleEdge - 17);
        EXPECT_EQ(window.pic_render->x(), visibleEdge);
        EXPECT_EQ(window.pic_render->width(), client.width() - visibleEdge);
        EXPECT_EQ(window.pic_render->height(), client.height());
        if (!open)
            window.cmd_showhide->click();
    }
}
