// Loading a family of model files from one name, and where each save of it writes.
#include "model.h"
#include "modelfiles.h"
#include "programstate.h"
#include "recordinghost.h"
#include "tempdir.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace {

using Names = std::vector<std::string>;

const Names kFRows{"MAIN MODEL (F)", "A.MOX", "B.MOX", "C.MOX", "E.MOX", "G.MOX", "P.MOX"};
const Names kHRows{"MAIN MODEL (H)", "S.MOX", "L.MOX", "D.MOX"};
constexpr const char* kQuestion = "question question: Load this model AND connected models?";

bool Called(const RecordingHost& host, const std::string& call) {
    return std::count(host.calls.begin(), host.calls.end(), call) > 0;
}

} // namespace

TEST(ModelFamily, TheMainLetterBringsTheFamilyWhenTheUserSaysYes) {
    struct Row {
        std::string files, load;
        MessageAnswer answer;
        bool asked;
        std::string slots;
        Names familyList;
        std::string recent;
    };
    const MessageAnswer yes = MessageAnswer::Yes, no = MessageAnswer::No;
    // The files in the folder (each with its place in this list as its Radius), the file loaded,
    // the answer, whether the question was asked, the file each slot holds, the family list shown
    // and the first recent entry.
    const Row rows[] = {
        {"PLANEF.MOX PLANEA.MOX", "PLANEF.MOX", no, true, "1.......", kFRows, "PLANEF.MOX"},
        // A missing connected file is passed over without a word.
        {"TMOD1H.MOX TMOD1L.MOX", "TMOD1H.MOX", yes, true, "1.2.....", kHRows, "TMOD1H.MOX"},
        // Only the first letter and the letter before the extension count, in any case; the
        // recent entry ends in the main letter.
        {"pf.mox pa.mox pP.MOX", "pf.mox", yes, true, "12....3.", kFRows, "pF.MOX"},
        // Any other letter of a family, or a numbered save, loads alone.
        {"PANELF.MOX PANELA.MOX", "PANELA.MOX", yes, false, "2.......", kFRows, "PANELA.MOX"},
        {"PF_001.MOX PA.MOX", "PF_001.MOX", yes, false, "1.......", kFRows, "PF_001.MOX"},
        {"XWINGF.MOX XWINGA.MOX", "XWINGF.MOX", yes, false, "1.......", {}, "XWINGF.MOX"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.load);
        ResetProgramState();
        TempDir dir;
        RecordingHost host;
        std::istringstream names(row.files);
        int16_t radius = 0;
        for (std::string name; names >> name;)
            WriteSmallModel(dir.file(name), ++radius);
        host.answers = {row.answer};
        model m;
        std::string chosen = dir.file(row.load);
        m.Load(chosen);

        EXPECT_EQ(Called(host, kQuestion), row.asked);
        EXPECT_EQ(host.messages.size(), row.asked ? 1u : 0u);
        EXPECT_EQ(Slots(m), row.slots);
        for (int16_t slot = 0; slot < kFileSlots; ++slot)
            EXPECT_TRUE(!m.CheckMOX(slot) || m.Files[slot].Index == slot) << slot;
        EXPECT_EQ(host.familyList, row.familyList);
        EXPECT_EQ(Program().RecentModels[0], dir.file(row.recent));
        EXPECT_EQ(host.title, "Skylathe - " + row.load) << "the title names the file as read";

        // The recent entry opens the same files again, and leaves the recent menus alone.
        host.calls.clear();
        host.answers = {row.answer};
        model again;
        std::string recent = Program().RecentModels[0];
        again.Load(recent);
        EXPECT_EQ(Slots(again), row.slots);
        EXPECT_FALSE(Called(host, "recent menus"));
    }
}

TEST(ModelFamily, WhatWasNotReadIsNeverSaved) {
    ResetProgramState();
    TempDir dir;
    RecordingHost host;
    WriteSmallModel(dir.file("PLANEF.MOX"), 10);
    model three;
    std::string name = dir.file("ship.3ds");
    three.Load(name);
    EXPECT_EQ(three.M_Type, k3dsLoaded);
    model moy;
    name = dir.file("SHIP.MOY");
    moy.Load(name);
    EXPECT_EQ(moy.M_Type, kMoyLoaded);
    EXPECT_TRUE(moy.Files.empty());
    EXPECT_EQ(Program().RecentModels[0], dir.file("SHIP.MOY"));
    EXPECT_TRUE(host.title.empty()) << "no file, no title";
    moy.Save("ONE");
    moy.Save("ALL");
    moy.Save(dir.file("OUT.MOX"));
    EXPECT_EQ(host.messages,
              Names(3, "Only .mox models can be saved. This file was not read, so nothing was "
                       "written."));

    model gone;
    name = dir.file("GONEF.MOX");
    gone.Load(name);
    EXPECT_FALSE(gone.CheckMOX(0));
    gone.Save("ONE");
    gone.Save("ALL");
    model nothing;
    nothing.Save("ONE");
    EXPECT_EQ(host.messages.size(), 3u);
    EXPECT_EQ(FilesIn(dir.path()), Names{"PLANEF.MOX"});
}

TEST(ModelFamily, SavesNumberEachFileOnAndSaveAsKeepsTheRecordsName) {
    ResetProgramState();
    TempDir dir;
    RecordingHost host;
    WriteSmallModel(dir.file("PLANEF.MOX"), 10);
    WriteSmallModel(dir.file("PLANEA.MOX"), 11);
    host.answers = {MessageAnswer::Yes};
    model m;
    std::string chosen = dir.file("PLANEF.MOX");
    m.Load(chosen);

    m.m_currmox = 1;
    m.Save("ONE");
    EXPECT_EQ(m.Files[1].Filename, dir.file("PLANEA_001.MOX"));
    EXPECT_EQ(host.title, "Skylathe - PLANEA_001.MOX");
    EXPECT_EQ(Program().RecentModels[0], dir.file("PLANEA_001.MOX"));

    m.m_currmox = 0;
    m.Files[0].Radius = 99;
    m.Save("ALL");
    EXPECT_EQ(m.Files[1].Filename, dir.file("PLANEA_002.MOX"));
    EXPECT_EQ(host.title, "Skylathe - PLANEF_001.MOX");

    // Save As writes the copy; the record keeps its name, so the next plain save goes on from it.
    Program().RecentModels[0] = dir.file("OTHER.MOX");
    host.calls.clear();
    m.Save(dir.file("COPYF.MOX"));
    EXPECT_EQ(ReadRadius(dir.file("COPYF.MOX")), 99);
    EXPECT_EQ(Program().RecentModels[0], dir.file("PLANEF_001.MOX"));
    EXPECT_EQ(Program().RecentModels[1], dir.file("OTHER.MOX"));
    EXPECT_EQ(host.calls, (Names{"recent menus", "title: Skylathe - PLANEF_001.MOX"}));
    m.Save("ONE");
    EXPECT_EQ(m.Files[0].Filename, dir.file("PLANEF_002.MOX"));

    // Without incremental saves the file is written over its own name.
    Program().IncrementalSave = false;
    m.Files[0].Radius = 61;
    m.Save("ONE");
    EXPECT_EQ(m.Files[0].Filename, dir.file("PLANEF_002.MOX"));
    EXPECT_EQ(ReadRadius(dir.file("PLANEF_002.MOX")), 61);
    EXPECT_EQ(ReadRadius(dir.file("PLANEF_001.MOX")), 99);
    EXPECT_EQ(ReadRadius(dir.file("PLANEF.MOX")), 10) << "the old file stays";
    EXPECT_EQ(FilesIn(dir.path()),
              (Names{"COPYF.MOX", "PLANEA.MOX", "PLANEA_001.MOX", "PLANEA_002.MOX", "PLANEF.MOX",
                     "PLANEF_001.MOX", "PLANEF_002.MOX"}));
}
