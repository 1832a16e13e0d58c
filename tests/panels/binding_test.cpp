// The commit of a panel field and the spin with its buddy, driven as a user drives them, on the
// Att1 field of the first piggyback of a file in memory.
#include "currentmodel.h"
#include "fieldcommit.h"
#include "infofields.h"
#include "modelinmemory.h"
#include "panelrows.h"
#include "recordinghost.h"

#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>

namespace {

constexpr uint8_t kStartAtt1 = 40;

class BindingTest : public ::testing::Test {
protected:
    void SetUp() override {
        ReplaceCurrentModel();
        MoxBuilder file;
        file.nodes = {Node{}, Node{}, Node{}};
        file.root = {0, kNoElement};
        file.streams = {StreamBytes()
                            .MappedPoly(5, {{0, 0, 0}, {1, 0, 0}, {2, 0, 0}}, kStartAtt1, 0)
                            .End()
                            .bytes};
        OpenInMemory(CurrentModel(), file);
        PanelRows rows(frame);
        att1 = &rows.AddFieldSpin("Att1:", kFieldAtt1);
        BindSpinField(*att1, {kFieldAtt1, [] { return int16_t{0}; }, {}});
        frame.show();
    }
    void TearDown() override { ReplaceCurrentModel(); }

    int Att1() const { return CurrentModel().Files[0].Elements[0].Items[0].Att1; }
    void Type(const QString& text, Qt::Key last) {
        att1->buddy().clear();
        QTest::keyClicks(&att1->buddy(), text);
        QTest::keyClick(&att1->buddy(), last);
    }

    RecordingHost host;
    QWidget frame;
    SpinWithBuddy* att1 = nullptr;
};

struct EnterCase {
    QString typed;
    Qt::Key last;
    int stored;
    QString shown;
    size_t messages;
};

TEST_F(BindingTest, EnterCommitsCheckedAndSnappedText) {
    const std::vector<EnterCase> cases = {
        {"300", Qt::Key_Return, 255, "255", 0},
        {"-5", Qt::Key_Enter, 0, "0", 0},
        {"007", Qt::Key_Return, 7, "007", 0},
        {"12a", Qt::Key_Return, kStartAtt1, "12a", 1},
        {"1ab", Qt::Key_Return, kStartAtt1, "1ab", 2},
        {"-", Qt::Key_Return, kStartAtt1, "40", 0},
        {"1-2", Qt::Key_Return, kStartAtt1, "40", 0},
        {"", Qt::Key_Return, kStartAtt1, "40", 0},
        {"44", Qt::Key_Tab, kStartAtt1, "44", 0},
        {"45", Qt::Key_Escape, kStartAtt1, "45", 0},
    };
    for (const EnterCase& c : cases) {
        CurrentModel().Files[0].Elements[0].Items[0].Att1 = kStartAtt1;
        const size_t before = host.messages.size();
        Type(c.typed, c.last);
        EXPECT_EQ(Att1(), c.stored) << c.typed.toStdString();
        EXPECT_EQ(att1->buddy().text(), c.shown) << c.typed.toStdString();
        EXPECT_EQ(host.messages.size() - before, c.messages) << c.typed.toStdString();
    }
    for (const std::string& message : host.messages)
        EXPECT_EQ(message, "Invalid Character in Value.  Must be numerical");
}

TEST_F(BindingTest, SpinStepsWriteAndFillsDoNot) {
    QSignalSpy changes(att1, &SpinWithBuddy::Changed);
    att1->Show(12);
    EXPECT_EQ(att1->buddy().text(), "12");
    EXPECT_EQ(Att1(), kStartAtt1);

    QTest::keyClick(&att1->spin(), Qt::Key_Up);
    EXPECT_EQ(att1->buddy().text(), "13");
    EXPECT_EQ(Att1(), 13);

    att1->spin().setValue(20);
    att1->spin().setValue(20);
    EXPECT_EQ(att1->buddy().text(), "20");
    EXPECT_EQ(Att1(), 20);
    EXPECT_EQ(changes.count(), 2);

    // The step after an Enter starts from the committed number.
    Type("007", Qt::Key_Return);
    QTest::keyClick(&att1->spin(), Qt::Key_Up);
    EXPECT_EQ(Att1(), 8);
}

TEST_F(BindingTest, EveryPathIsSafeWithNoFileOpen) {
    ReplaceCurrentModel();
    Type("12", Qt::Key_Return);
    att1->spin().setValue(30);
    EXPECT_EQ(att1->buddy().text(), "30");
    EXPECT_TRUE(host.messages.empty());
}

} // namespace
