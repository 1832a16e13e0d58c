// The left pane: the tab switch, F4's nodes, show and hide, and the view taking whatever width
// the pane gives up.
#include "editorfixture.h"
#include "mainwindow.h"
#include "viewsettings.h"

#include <QAction>
#include <QCoreApplication>
#include <QFrame>
#include <QPushButton>
#include <QTabWidget>

TEST_F(EditorTest, TabsSetThePaneWidthAndTheViewTakesTheRest) {
    frm_main& window = Window();
    const QWidget& client = *window.centralWidget();
    // Where the pane ends, the view begins and takes the rest of the window.
    const auto expectViewFrom = [&](int edge, const std::string& what) {
        EXPECT_EQ(std::make_tuple(window.pic_render->x(), window.pic_render->width(),
                                  window.pic_render->height()),
                  std::make_tuple(edge, client.width() - edge, client.height()))
            << what;
    };
    for (int tab = 1; tab <= 7; ++tab) {
        window.SelectTab(tab);
        EXPECT_EQ(std::make_pair(View().CurrentTab, window.Tab_Edit->currentIndex()),
                  std::make_pair(tab, tab - 1));
        for (int other = 1; other <= 7; ++other)
            EXPECT_EQ(window.fra_edit[other]->isVisible(), other == tab) << tab << " " << other;
        expectViewFrom(window.Pic_Edit->width(), "tab " + std::to_string(tab));
    }
    // Tab 4 turns the nodes on, and they stay on when the tab is left.
    EXPECT_TRUE(window.Button("Nodes")->isChecked() && View().mnu_v_nodes);

    window.SelectTab(3);
    const int paneOnElements = window.Pic_Edit->width();
    window.Tab_Edit->setCurrentIndex(0); // a click on the first tab
    EXPECT_EQ(View().CurrentTab, 1);
    EXPECT_EQ(paneOnElements - window.Pic_Edit->width(), 168);

    // Hidden, the pane leaves its 17-pixel button at the left edge, through a resize too.
    window.cmd_showhide->click();
    window.resize(window.width() + 40, window.height() + 30);
    QCoreApplication::processEvents();
    for (bool open : {false, true}) {
        const int visibleEdge = open ? window.Pic_Edit->width() : 17;
        EXPECT_EQ(window.cmd_showhide->text(), open ? "<" : ">");
        EXPECT_EQ(window.cmd_showhide->mapTo(&client, QPoint(0, 0)).x(), visibleEdge - 17);
        expectViewFrom(visibleEdge, open ? "shown" : "hidden");
        if (!open)
            window.cmd_showhide->click();
    }
}
