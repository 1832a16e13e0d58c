// The 3-View Data and Notepad panels, driven through their widgets: dimensions typed in metres,
// and a tracing project made from the panel that reads back whole.
#include "currentmodel.h"
#include "panelfixture.h"
#include "programstate.h"
#include "tempdir.h"
#include "threeviewpanel.h"
#include "viewsettings.h"

#include <QComboBox>
#include <QPlainTextEdit>
#include <QTest>

#include <array>

namespace {

TEST_F(PanelTest, MetresTypedGiveUnitsFeetAndInches) {
    // The stem of the three fields, the text typed, then units, metres, feet and inches shown.
    const std::array<const char*, 5> cases[] = {
        {"span", "4.48", "100", "4.48 m", "14' 8\""},
        {"span", "10", "223", "9.99 m", "32' 8\""},
        {"length", "4.48 m", "100", "4.48 m", "14' 8\""},
        // 27 units are 3.96 feet: the inches round up to 12 with no carry into the feet.
        {"length", "1.21", "27", "1.21 m", "3' 12\""},
        // Beyond 16 bits of model units the nearest bound is kept.
        {"height", "5000", "32767", "1467.96 m", "4805' 10\""},
        {"height", "-1", "-22", "-0.99 m", "-3' 3\""},
        {"height", "no number", "0", "0 m", "0' 0\""},
    };
    for (const auto& [field, typed, units, metres, feetInches] : cases) {
        const QByteArray stem = QByteArray("txt_7_") + field;
        Enter(stem + "_m", typed);
        EXPECT_EQ(QStringList({Text(stem), Text(stem + "_m"), Text(stem + "_i")}),
                  QStringList({units, metres, feetInches}))
            << typed;
    }
    EXPECT_EQ(Program().ProjectData.Length, 27);
}

TEST_F(PanelTest, ProjectMadeFromThePanelReadsBack) {
    TempDir folder;
    const std::string file = folder.file("traced.3Vw");
    const QString sample(SAMPLE_DIR);
    const char* drawings[] = {"/PDEMO_LEFT.PCX", "/PDEMO_TOP.PCX", "/PDEMO_FRONT.PCX"};
    // The drawings of views 1, 2 and 0, then a cancelled and an answered question of the file.
    const QString answers[] = {sample + drawings[1], sample + drawings[2], sample + drawings[0], "",
                               QString::fromStdString(file)};
    std::vector<std::string> asked;
    Panels().threeView().AskForFile = [&](const ThreeViewPanel::FileQuestion& question) {
        asked.push_back(std::string(question.title) + " | " + question.filter);
        return answers[asked.size() - 1];
    };
    host.answers = {MessageAnswer::Yes};
    std::string fighter = std::string(SAMPLE_DIR) + "/PDEMOF.MOX";
    CurrentModel().Load(fighter);
    Click("cmd_7_frommodel");
    Click("cmd_7_minimums");
    Enter("txt_7_span_m", "10");
    QTest::keyClicks(&Find<QLineEdit>("txt_7_maxz"), "99999");
    for (int view : {1, 2, 0}) {
        Find<QComboBox>("cbo_7_view").setCurrentIndex(view);
        Click("cmd_7_select");
    }
    Find<QComboBox>("cbo_7_view").setCurrentIndex(1);
    EXPECT_EQ(Text("txt_7_viewname"), sample + drawings[1]) << "each view keeps its own file";
    auto& notes = Find<QPlainTextEdit>("txt_notepad");
    QTest::keyClicks(&notes, "Wing root at 15");
    QTest::keyClick(&notes, Qt::Key_Return);
    QTest::keyClicks(&notes, "Gear down");

    Click("cmd_7_createproject");
    Click("cmd_7_createproject");
    ASSERT_EQ(asked.size(), 5u);
    EXPECT_EQ(asked[0], "Select Background Image | PCX Images (*.pcx)");
    EXPECT_EQ(asked[4], "Create Project | Skylathe Projects (*.3vw)");
    const ProjectRecord made = Program().ProjectData;
    EXPECT_EQ(made.Span, 223);
    EXPECT_EQ(made.TopLeftZ, 32767) << "held at the 16-bit bound, never wrapped";
    EXPECT_EQ(made.Notes, "Wing root at 15\r\nGear down");

    ResetProgramState();
    ReplaceCurrentModel();
    CurrentModel().LoadProject(file);
    EXPECT_EQ(host.messages.size(), 1u) << "only the question of the connected files";
    // What the panels show of the project read back.
    Panels().FillPanel(kThreeViewDataTab);
    Panels().FillPanel(kNotepadTab);
    EXPECT_EQ(Text("txt_7_span_m"), "9.99 m");
    EXPECT_EQ(Text("txt_7_viewname"), sample + drawings[0]);
    EXPECT_EQ(notes.toPlainText(), "Wing root at 15\nGear down");
}

} // namespace
