#include "axiscode.h"
#include "cornerlist.h"
#include "deleteelement.h"
#include "duplicateelement.h"
#include "editedmodel.h"
#include "kindandmove.h"
#include "nodetable.h"
#include "recordcompare.h"
#include "recordinghost.h"
#include "wholemodel.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

model Edited() {
    model m = LoadedModel(EditedElements());
    m.m_currelem = 1;
    return m;
}

struct Change {
    const char* label;
    std::function<void(model&)> apply;
};

const Change kChanges[] = {
    {"Add node", [](model& m) { AddNode(m); }},
    {"Zero unused nodes", [](model& m) { RemoveNodes(m, true); }},
    {"Delete unused nodes", [](model& m) { RemoveNodes(m, false); }},
    {"Add corner", [](model& m) { AddNodeToElement(m); }},
    {"Delete corner", [](model& m) { DeleteNodeFromElement(m, 1); }},
    {"Swap corners", [](model& m) { SwapNodes(m, 0, 3); }},
    {"Duplicate piggyback 1", [](model& m) { Duplicate_Element(m, true, 1); }},
    {"Duplicate piggyback 200", [](model& m) { Duplicate_Element(m, false, 200); }},
    {"Delete element 1", [](model& m) { Delete_Element(m, 100); }},
    {"Delete piggyback 0", [](model& m) { Delete_Piggyback(m, 0); }},
    {"Change kind", [](model& m) { ChangeType(m, 0); }},
    {"Move piggyback 1", [](model& m) { MoveElement(m, 1, kAxisY, -40); }},
    {"Move model along Z", [](model& m) { MoveAllNodes(m, kAxisZ, 7); }},
    {"Rescale", [](model& m) { Rescale(m, 1.5); }},
};

} // namespace

TEST(Undo, EveryKindOfChangeComesBackExactlyAndGoesAgain) {
    for (const Change& change : kChanges) {
        SCOPED_TRACE(change.label);
        RecordingHost host;
        host.answers.assign(2, MessageAnswer::Yes);
        model m = Edited();
        const FileRecord before = m.Files[0];
        change.apply(m);
        const FileRecord after = m.Files[0];
        ASSERT_NE(RecordDifference(before, after, true), "");
        EXPECT_EQ(m.Journal.UndoLabel(), change.label);
        EXPECT_TRUE(m.Journal.Modified());

        ASSERT_TRUE(m.Undo());
        EXPECT_EQ(RecordDifference(m.Files[0], before, true), "");
        EXPECT_FALSE(m.Journal.Modified());
        EXPECT_EQ(m.Journal.RedoLabel(), change.label);

        ASSERT_TRUE(m.Redo());
        EXPECT_EQ(RecordDifference(m.Files[0], after, true), "");
        EXPECT_FALSE(m.Redo());
    }
}

TEST(Undo, WhatChangesNothingLeavesNoStep) {
    const std::function<void(model&)> unchanged[] = {
        [](model& m) { Rescale(m, 1.0); },          [](model& m) { MoveAllNodes(m, kAxisX, 0); },
        [](model& m) { ChangeType(m, 3); }, // a Gouraud quad stays one
        [](model& m) { RemoveNodes(m, false); }, // the question answered No
        [](model& m) { Delete_Piggyback(m, 100); }, // the last entry of a list stays
    };
    for (const auto& apply : unchanged) {
        RecordingHost host;
        model m = Edited();
        apply(m);
        EXPECT_FALSE(m.Journal.CanUndo());
        EXPECT_FALSE(m.Journal.Modified());
    }
}

TEST(Undo, OneGestureIsOneStepAndANewChangeDropsWhatWasTakenBack) {
    model m = Edited();
    const FileRecord loaded = m.Files[0];
    for (int step = 0; step < 25; ++step)
        MoveElement(m, 1, kAxisX, 3);
    m.Journal.CloseStep();
    const FileRecord dragged = m.Files[0];
    MoveElement(m, 1, kAxisX, 3);
    AddNode(m);
    EXPECT_EQ(m.Journal.StepCount(), 3u);

    ASSERT_TRUE(m.Undo());
    ASSERT_TRUE(m.Undo());
    EXPECT_EQ(RecordDifference(m.Files[0], dragged, true), "");
    ASSERT_TRUE(m.Undo());
    EXPECT_EQ(RecordDifference(m.Files[0], loaded, true), "");
    EXPECT_FALSE(m.Undo());

    ASSERT_TRUE(m.Redo());
    Rescale(m, 2.0);
    EXPECT_FALSE(m.Journal.CanRedo());
    EXPECT_EQ(m.Journal.StepCount(), 2u);
    EXPECT_EQ(m.Journal.UndoLabel(), "Rescale");
}

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
}
