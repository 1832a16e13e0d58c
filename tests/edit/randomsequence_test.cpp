// Thousands of editing operations in a seeded random order on the sample fighter's main file:
// after every step the file saves, reads back to the same bytes and names only what exists.
#include "cornerlist.h"
#include "deleteelement.h"
#include "duplicateelement.h"
#include "editedmodel.h"
#include "fighterfamily.h"
#include "kindandmove.h"
#include "moxreader.h"
#include "moxwriter.h"
#include "nodetable.h"
#include "recordinghost.h"
#include "wholemodel.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

namespace {

// The first corner or tree byte of `file` that names no node or element of it.
std::string BrokenReference(const FileRecord& file) {
    const auto element = [&](uint8_t b) { return b == kNoElement || b < file.NumElements; };
    std::string broken = element(file.Root[0]) && element(file.Root[1]) ? "" : "Root";
    for (int e = 0; e < file.NumElements; ++e) {
        if (!element(file.PART[e][0]) || !element(file.PART[e][1]))
            broken = "PART " + std::to_string(e);
        for (int j = 0; j < file.Elements[e].Count; ++j) {
            const Piggyback& item = file.Elements[e].Items[j];
            for (int k = 0; file.NumNodes > 0 && k < item.CRN; ++k) {
                if (item.NodeList[k] >= file.NumNodes)
                    broken = "corner " + std::to_string(k) + " of " + std::to_string(item.Number);
            }
        }
    }
    return broken;
}

} // namespace

TEST(RandomSequence, EveryStepOnTheSampleSavesWhatItHolds) {
    SampleFamily fighter;
    std::string problem;
    ASSERT_TRUE(BuildFighterFamily(fighter, problem)) << problem;
    RecordingHost host;
    model m = LoadedModel(SavedBytes(fighter[0].record));
    std::mt19937 dice(20260612);
    const auto between = [&](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(dice);
    };
    const auto axis = [&] { return 30000 + between(0, 3); };
    const auto dist = [&] { return static_cast<int16_t>(between(-3000, 3000)); };
    const auto corner = [&] { return static_cast<int16_t>(between(-1, 8)); };

    const std::vector<std::function<void()>> operations = {
        [&] { AddNode(m); },
        [&] { RemoveNodes(m, between(0, 1) == 1); },
        [&] { MoveNode(m, m.m_currnode, axis(), dist()); },
        [&] { AddNodeToElement(m); },
        [&] { DeleteNodeFromElement(m, corner()); },
        [&] { SwapNodes(m, corner(), corner()); },
        [&] { Duplicate_Element(m, between(0, 1) == 1, m.m_currelem); },
        [&] { Delete_Element(m, m.m_currelem); },
        [&] { Delete_Piggyback(m, m.m_currelem); },
        [&] { ChangeType(m, static_cast<int16_t>(between(-1, 8))); },
        [&] { MoveElement(m, m.m_currelem, axis(), dist()); },
        [&] { MoveAllNodes(m, axis(), dist()); },
        [&] { Rescale(m, between(-2, 8) / 4.0); },
        // The field writes of the panels (UpdateInfo) join this list as operations of their own.
    };

    for (int step = 0; step < 3000; ++step) {
        // Mostly a piggyback that exists, as a pick would choose; now and then nothing, one past
        // the end of a list, or any number at all.
        const FileRecord& file = m.Files[0];
        const int element = between(0, file.NumElements - 1);
        const int pick = between(0, 9);
        m.m_currelem = static_cast<int16_t>(
            pick == 0   ? -1
            : pick == 1 ? between(-32768, 32767)
                        : element * 100 + between(0, file.Elements[element].Count));
        host.spins["upd_3_elem"] = element;
        host.answers = {between(0, 1) == 1 ? MessageAnswer::Yes : MessageAnswer::No};
        const int chosen = between(0, static_cast<int>(operations.size()) - 1);
        operations[chosen]();

        SCOPED_TRACE("step " + std::to_string(step) + ", operation " + std::to_string(chosen));
        std::vector<uint8_t> saved;
        ASSERT_TRUE(BuildMoxBytes(file, saved, problem)) << problem;
        const size_t shown = host.messages.size();
        const FileRecord back = ReadMoxBytes(saved, "TESTF.MOX", 0);
        ASSERT_EQ(host.messages.size(), shown);
        ASSERT_EQ(SavedBytes(back), saved);
        ASSERT_EQ(std::pair(back.NumNodes, back.NumElements),
                  std::pair(file.NumNodes, file.NumElements));
        ASSERT_EQ(BrokenReference(back), "");
    }
}
