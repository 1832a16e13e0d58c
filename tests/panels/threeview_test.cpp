// The 3-View Data and Notepad panels, driven through their widgets: dimensions typed in metres,
// and a tracing project made from the panel that reads back whole.
#include "currentmodel.h"
#include "notepadpanel.h"
#include "programstate.h"
#include "recordinghost.h"
#include "tempdir.h"
#include "threeviewpanel.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include <deque>

namespace {

class ThreeViewTest : public ::testing::Test {
protected:
    void SetUp() override {
        ResetProgramState();
        ReplaceCurrentModel();
        panel.AskForFile = [this](const ThreeViewPanel::FileQuestion& question) {
            asked.push_back(std::string(question.title) + " | " + question.filter);
            const QString answer = answers.front();
            answers.pop_front();
            return answer;
        };
        frame.show();
    }
    void TearDown() override { ReplaceCurrentModel(); }

    template <typename T> T* Control(const char* name) { return frame.findChild<T*>(name); }
    std::string Text(const char* name) { return Control<QLineEdit>(name)->text().toStdString(); }
    void TypeEnter(const char* name, const QString& text) {
        QLineEdit* field = Control<QLineEdit>(name);
        field->clear();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
    }
    void Click(const char* name) { QTest::mouseClick(Control<QPushButton>(name), Qt::LeftButton); }

    RecordingHost host;
    QWidget frame;
    QWidget notesFrame;
    ThreeViewPanel panel{frame};
    NotepadPanel notepad{notesFrame};
    std::deque<QString> answers;
    std::vector<std::string> asked;
};

struct MetresCase {
    const char* field; // the stem of the three fields
    const char* typed;
    const char* units;
    const char* metres;
    const char* feetInches;
};

TEST_F(ThreeViewTest, MetresTypedGiveUnitsFeetAndInches) {
    const MetresCase cases[] = {
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
    for (const MetresCase& c : cases) {
        const std::string stem = std::string("txt_7_") + c.field;
        TypeEnter((stem + "_m").c_str(), c.typed);
        EXPECT_EQ(Text(stem.c_str()), c.units) << c.typed;
        EXPECT_EQ(Text((stem + "_m").c_str()), c.metres) << c.typed;
        EXPECT_EQ(Text((stem + "_i").c_str()), c.feetInches) << c.typed;
    }
    EXPECT_EQ(Program().ProjectData.Length, 27);
    EXPECT_EQ(Program().ProjectData.Height, 0);
}

TEST_F(ThreeViewTest, ProjectMadeFromThePanelReadsBack) {
    host.answers = {MessageAnswer::Yes};
    std::string name = std::string(SAMPLE_DIR) + "/PDEMOF.MOX";
    CurrentModel().Load(name);
    TempDir folder;
    const QString sample(SAMPLE_DIR);

    Click("cmd_7_frommodel");
    Click("cmd_7_minimums");
    TypeEnter("txt_7_span_m", "10");
    QTest::keyClicks(Control<QLineEdit>("txt_7_maxz"), "99999");
    QComboBox* views = Control<QComboBox>("cbo_7_view");
    const char* drawings[] = {"/PDEMO_LEFT.PCX", "/PDEMO_TOP.PCX", "/PDEMO_FRONT.PCX"};
    for (int view : {1, 2, 0}) {
        views->setCurrentIndex(view);
        answers.push_back(sample + drawings[view]);
        Click("cmd_7_select");
    }
    views->setCurrentIndex(1);
    EXPECT_EQ(Text("txt_7_viewname"), (sample + drawings[1]).toStdString())
        << "each view keeps its own file";
    QTest::keyClicks(notesFrame.findChild<QPlainTextEdit*>("txt_notepad"), "Wing root at 15");
    QTest::keyClick(notesFrame.findChild<QPlainTextEdit*>("txt_notepad"), Qt::Key_Return);
    QTest::keyClicks(notesFrame.findChild<QPlainTextEdit*>("txt_notepad"), "Gear down");

    answers.push_back("");
    Click("cmd_7_createproject");
    const std::string file = folder.file("traced.3Vw");
    answers.push_back(QString::fromStdString(file));
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
    const ProjectRecord& read = Program().ProjectData;
    EXPECT_EQ(read.ProjectFile, file) << "the ending in another case is kept";
    EXPECT_EQ(CurrentModel().Files[4].Filename, std::string(SAMPLE_DIR) + "/PDEMOE.MOX");
    const int16_t ProjectRecord::*numbers[] = {&ProjectRecord::Span,     &ProjectRecord::Length,
                                               &ProjectRecord::Height,   &ProjectRecord::TopLeftX,
                                               &ProjectRecord::TopLeftY, &ProjectRecord::TopLeftZ};
    for (const auto number : numbers)
        EXPECT_EQ(read.*number, made.*number);
    EXPECT_EQ(read.Left, made.Left);
    EXPECT_EQ(read.Top, made.Top);
    EXPECT_EQ(read.Front, (sample + drawings[2]).toStdString());
    EXPECT_EQ(read.Notes, made.Notes);
    EXPECT_EQ(host.messages.size(), 1u) << "only the question of the connected files";

    // What the panels show of the project read back.
    panel.Fill();
    notepad.Fill();
    EXPECT_EQ(Text("txt_7_span_m"), "9.99 m");
    EXPECT_EQ(Text("txt_7_viewname"), (sample + drawings[0]).toStdString());
    EXPECT_EQ(notesFrame.findChild<QPlainTextEdit*>("txt_notepad")->toPlainText(),
              "Wing root at 15\nGear down");
}

} // namespace
