// Thousands of editing operations in a seeded random order on the sample fighter's main file:
// after every step the file saves, reads back with what it stored, and names only what exists.
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

constexpr int kSteps = 3000;

class Sequence {
public:
    explicit Sequence(model& m) : m_(m) {}

    int Between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(dice_); }
    int16_t Corner() { return static_cast<int16_t>(Between(-1, 8)); }
    int32_t Axis() { return 30000 + Between(0, 3); }
    int16_t Dist() { return static_cast<int16_t>(Between(-3000, 3000)); }

    // Mostly a piggyback that exists, as a pick or the element spins choose one; now and then
    // nothing, one past the end of a list, or any number at all.
    void Select(RecordingHost& host) {
        const FileRecord& file = m_.Files[0];
        const int element = Between(0, file.NumElements - 1);
        const int position = Between(0, file.Elements[element].Count);
        const int pick = Between(0, 9);
        m_.m_currelem = pick == 0   ? int16_t{-1}
                        : pick == 1 ? static_cast<int16_t>(Between(-32768, 32767))
                                    : static_cast<int16_t>(element * 100 + position);
        host.spins["upd_3_elem"] = element;
    }

    std::mt19937 dice_{20260612};

private:
    model& m_;
};

// Every corner of what the file stores names a node of its table, every tree byte an element.
std::string BrokenReference(const FileRecord& file) {
    const auto element = [&](uint8_t b) { return b == kNoElement || b < file.NumElements; };
    if (!element(file.Root[0]) || !element(file.Root[1]))
        return "Root";
    for (int e = 0; e < file.NumElements; ++e) {
        if (!element(file.PART[e][0]) || !element(file.PART[e][1]))
            return "PART of element " + std::to_string(e);
        for (int j = 0; j < file.Elements[e].Count; ++j) {
            const Piggyback& item = file.Elements[e].Items[j];
            for (int k = 0; item.Type != kTypeNull && file.NumNodes > 0 && k < item.CRN; ++k) {
                if (item.NodeList[k] >= file.NumNodes)
                    return "corner " + std::to_string(k) + " of " + std::to_string(item.Number);
            }
        }
    }
    return {};
}

// What the record in memory says that no file could show: a Number, a list or a count out of
// step.
std::string OutOfStep(const FileRecord& file) {
    if (file.Nodes.size() != size_t(file.NumNodes) + 1 ||
        file.Elements.size() != size_t(file.NumElements) + 1 || file.NRM.size() != file.PART.size())
        return "table sizes";
    for (int e = 0; e < file.NumElements; ++e) {
        const ElementList& list = file.Elements[e];
        if (list.Items.size() != size_t(list.Count) + 1 || list.Count < 1)
            return "list of element " + std::to_string(e);
        for (int j = 0; j < list.Count; ++j) {
            const Piggyback& item = list.Items[j];
            if (item.Number != e * 100 + j)
                return "Number of " + std::to_string(e) + "/" + std::to_string(j);
            if (item.Type != kTypeNull && item.NodeList.size() < size_t(item.CRN))
                return "corners of " + std::to_string(item.Number);
        }
    }
    return {};
}

} // namespace

TEST(RandomSequence, EveryStepOnTheSampleSavesWhatItHolds) {
    SampleFamily fighter;
    std::string problem;
    ASSERT_TRUE(BuildFighterFamily(fighter, problem)) << problem;
    RecordingHost host;
    model m = LoadedModel(SavedBytes(fighter[0].record));
    Sequence s(m);

    const std::vector<std::function<void()>> operations = {
        [&] { AddNode(m); },
        [&] { RemoveNodes(m, s.Between(0, 1) == 1); },
        [&] { MoveNode(m, m.m_currnode, s.Axis(), s.Dist()); },
        [&] { AddNodeToElement(m); },
        [&] { DeleteNodeFromElement(m, s.Corner()); },
        [&] { SwapNodes(m, s.Corner(), s.Corner()); },
        [&] { RecalcNormal(m, m.m_currelem); },
        [&] { Duplicate_Element(m, s.Between(0, 1) == 1, m.m_currelem); },
        [&] { Delete_Element(m, m.m_currelem); },
        [&] { Delete_Piggyback(m, m.m_currelem); },
        [&] { ChangeType(m, static_cast<int16_t>(s.Between(-1, 8))); },
        [&] { MoveElement(m, m.m_currelem, s.Axis(), s.Dist()); },
        [&] { MoveAllNodes(m, s.Axis(), s.Dist()); },
        [&] { Rescale(m, s.Between(-2, 8) / 4.0); },
        // The field writes of the panels (UpdateInfo) join this list as operations of their own.
    };

    for (int step = 0; step < kSteps; ++step) {
        s.Select(host);
        host.answers = {s.Between(0, 1) == 1 ? MessageAnswer::Yes : MessageAnswer::No};
        const int chosen = s.Between(0, static_cast<int>(operations.size()) - 1);
        operations[chosen]();

        SCOPED_TRACE("step " + std::to_string(step) + ", operation " + std::to_string(chosen));
        const FileRecord& file = m.Files[0];
        ASSERT_EQ(OutOfStep(file), "");
        std::vector<uint8_t> saved;
        ASSERT_TRUE(BuildMoxBytes(file, saved, problem)) << problem;
        const size_t shown = host.messages.size();
        const FileRecord back = ReadMoxBytes(saved, "TESTF.MOX", 0);
        ASSERT_EQ(host.messages.size(), shown) << host.messages.back();
        ASSERT_EQ(SavedBytes(back), saved);
        ASSERT_EQ(back.NumNodes, file.NumNodes);
        ASSERT_EQ(back.NumElements, file.NumElements);
        ASSERT_EQ(BrokenReference(back), "");
    }
}
