// The closing sequence: the question about saving, Cancel, and the end of the main loop.
#include "currentmodel.h"
#include "editorfixture.h"
#include "glview.h"
#include "mainwindow.h"
#include "oglgraphics.h"
#include "skylathe.h"

#include <QAction>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

namespace {
constexpr const char* kSaveQuestion = "Do you wish to save the current file(s) before exiting?";
}

TEST_F(EditorTest, ExitWithAModelOpenAsksCancelKeepsTheProgramRunningAndNoEndsTheMainLoop) {
    CurrentModel().M_Type = kMoxLoaded;
    QSignalSpy saved(Find<QAction>("mnu_f_saveall"), &QAction::triggered);
    QSignalSpy unloaded(&Window(), &frm_main::Unloaded);
    host.answers = {MessageAnswer::Cancel, MessageAnswer::No};

    Find<QAction>("mnu_f_exit")->trigger();
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0], kSaveQuestion);
    EXPECT_TRUE(OGL().bRunning && Window().isVisible());
    const int64_t painted = Window().glView->FrameCount();
    CurrentModel().m_xrot += 10.0f;
    EXPECT_TRUE(QTest::qWaitFor([&] { return Window().glView->FrameCount() > painted; }))
        << "the view goes on showing changes after Cancel";

    QTimer::singleShot(0, &Window(), [this] { Window().close(); });
    RunMainLoop(Window());
    EXPECT_EQ(host.messages.size(), 2u);
    EXPECT_EQ(unloaded.count(), 1);
    EXPECT_FALSE(OGL().bRunning || Window().isVisible());
    EXPECT_EQ(saved.count(), 0);
    // With bRunning false the loop does not start again.
    RunMainLoop(Window());
}
