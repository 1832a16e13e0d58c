// Thousands of editing operations in a seeded random order on the sample fighter's main file:
// after every step the file saves, reads back to the same bytes and names only what exists, and
// Undo and Redo bring back exactly the file before and after the step; a step that changes
// nothing leaves nothing to undo, and with nothing selected an operation on a piggyback changes
// and says nothing.
#include "cornerlist.h"
#include "deleteelement.h"
#include "duplicateelement.h"
#include "editedmodel.h"
#include "fighterfamily.h"
#include "kindandmove.h"
#include "modelcheck.h"
#include "moxreader.h"
#include "moxwriter.h"
#include "nodetable.h"
#include "recordcompare.h"
#include "recordinghost.h"
#include "wholemodel.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

namespace {
constexpr int kSteps = 3000;
constexpr int kPiggybackOperations = 8;
} // namespace

TEST(RandomSequence, EveryStepOnTheSampleSavesWhatItHoldsAndUndoes) {
    SampleFamily fighter;
    std::string problem;
    ASSERT_TRUE(BuildFighterFamily(fighter, problem)) << problem;
    RecordingHost host;
    model m = LoadedModel(SavedBytes(fighter[0].record));
    m.Journal = ChangeJournal(kSteps, kJournalBytes);
    std::mt19937 dice(20260612);
    const auto between = [&](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(dice);
    };
    const auto axis = [&] { return 30000 + between(0, 3); };
    const auto dist = [&] { return static_cast<int16_t>(between(-3000, 3000)); };
    const auto corner = [&] { return static_cast<int16_t>(between(-1, 8)); };

    // The first eight work on the selected piggyback.
    const std::vector<std::function<void()>> operations = {
        [&] { AddNodeToElement(m); },
        [&] { DeleteNodeFromElement(m, corner()); },
        [&] { SwapNodes(m, corner(), corner()); },
        [&] { Duplicate_Element(m, between(0, 1) == 1, m.m_currelem); },
        [&] { Delete_Element(m, m.m_currelem); },
        [&] { Delete_Piggyback(m, m.m_currelem); },
        [&] { ChangeType(m, static_cast<int16_t>(between(-1, 8))); },
        [&] { MoveElement(m, m.m_currelem, axis(), dist()); },
        [&] { AddNode(m); },
        [&] { RemoveNodes(m, between(0, 1) == 1); },
        [&] { MoveNode(m, m.m_currnode, axis(), dist()); },
        [&] { MoveAllNodes(m, axis(), dist()); },
        [&] { Rescale(m, between(-2, 8) / 4.0); },
        // The field writes of the panels (UpdateInfo) join this list as operations of their own.
    };

    for (int step = 0; step < kSteps; ++step) {
        // Mostly a piggyback that exists, as a pick would choose; now and then nothing, one past
        // the end of a list, or any number at all.
        const FileRecord before = m.Files[0];
        const int element = between(0, before.NumElements - 1);
        const int pick = between(0, 9);
        m.m_currelem = static_cast<int16_t>(
            pick == 0   ? -1
            : pick == 1 ? between(-32768, 32767)
                        : element * 100 + between(0, before.Elements[element].Count));
        host.spins["upd_3_elem"] = element;
        host.answers = {between(0, 1) == 1 ? MessageAnswer::Yes : MessageAnswer::No};
        const size_t steps = m.Journal.StepCount();
        const size_t calls = host.calls.size();
        const bool nothingSelected = m.m_currelem == -1;
        const int chosen = between(0, static_cast<int>(operations.size()) - 1);
        operations[chosen]();
        m.Journal.CloseStep();
        if (nothingSelected && chosen < kPiggybackOperations) {
            ASSERT_EQ(host.calls.size(), calls) << "nothing selected, nothing said";
            ASSERT_EQ(RecordDifference(before, m.Files[0], true), "") << "nor changed";
        }

        SCOPED_TRACE("step " + std::to_string(step) + ", operation " + std::to_string(chosen));
        const FileRecord after = m.Files[0];
        std::vector<uint8_t> saved;
        ASSERT_TRUE(BuildMoxBytes(after, saved, problem)) << problem;
        const size_t shown = host.messages.size();
        const FileRecord back = ReadMoxBytes(saved, "TESTF.MOX", 0);
        ASSERT_EQ(host.messages.size(), shown);
        ASSERT_EQ(SavedBytes(back), saved);
        ASSERT_EQ(std::pair(back.NumNodes, back.NumElements),
                  std::pair(after.NumNodes, after.NumElements));
        // With every node removed, corners name node 0 as a new corner does.
        for (const Finding& finding : CheckRecord(back, {}))
            ASSERT_TRUE(finding.severity == Severity::Warning ||
                        (back.NumNodes == 0 && finding.rule == "corner-node"))
                << finding.text;

        if (RecordDifference(before, after, true).empty()) {
            ASSERT_EQ(m.Journal.StepCount(), steps);
            continue;
        }
        ASSERT_TRUE(m.Undo());
        ASSERT_EQ(RecordDifference(m.Files[0], before, true), "");
        ASSERT_TRUE(m.Redo());
        ASSERT_EQ(RecordDifference(m.Files[0], after, true), "");
    }
}
