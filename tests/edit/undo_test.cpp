#include "axiscode.h"
#include "duplicateelement.h"
#include "editedmodel.h"
#include "nodetable.h"
#include "recordcompare.h"
#include "wholemodel.h"

#include <gtest/gtest.h>

namespace {

model Edited() {
    model m = LoadedModel(EditedElements());
    m.m_currelem = 1;
    return m;
}

} // namespace

TEST(Undo, TheBoundDropsTheOldestAndTheFileStaysChanged) {
    model m = Edited();
    m.Journal = ChangeJournal(3, kJournalBytes);
    std::vector<FileRecord> states{m.Files[0]};
    for (int step = 0; step < 5; ++step) {
        MoveAllNodes(m, kAxisY, 1);
        m.Journal.CloseStep();
        states.push_back(m.Files[0]);
    }
    EXPECT_EQ(m.Journal.StepCount(), 3u);
    while (m.Undo()) {
    }
    EXPECT_EQ(RecordDifference(m.Files[0], states[2], true), "");
    EXPECT_TRUE(m.Journal.Modified());
}

TEST(Undo, ASelectionOfWhatIsGoneIsCleared) {
    model m = Edited();
    Duplicate_Element(m, false, 100);
    AddNode(m);
    m.m_currelem = 400;
    m.m_currnode = 7;
    ASSERT_TRUE(m.Undo());
    EXPECT_EQ(m.m_currnode, -1);
    EXPECT_EQ(m.m_currelem, 400);
    ASSERT_TRUE(m.Undo());
    EXPECT_EQ(m.m_currelem, -1);
    // A new change drops what was taken back.
    AddNode(m);
    EXPECT_EQ(m.Journal.StepCount(), 1u);
}
