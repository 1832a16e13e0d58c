#include "model.h"
#include "modelfiles.h"
#include "programstate.h"
#include "recordinghost.h"
#include "tempdir.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace {

const std::vector<std::string> kFRows{"MAIN MODEL (F)", "A.MOX", "B.MOX", "C.MOX",
                                      "E.MOX",          "G.MOX", "P.MOX"};
const std::vector<std::string> kHRows{"MAIN MODEL (H)", "S.MOX", "L.MOX", "D.MOX"};
constexpr const char* kQuestion = "question question: Load this model AND connected models?";

class ModelFamily : public ::testing::Test {
protected:
    void SetUp() override { ResetProgramState(); }

    std::string Write(const std::string& name, int16_t radius) {
        const std::string path = dir.file(name);
        WriteSmallModel(path, radius);
        return path;
    }

    // Loads `name` from the folder into `m`, answering the family question with `answer`.
    std::string Load(model& m, const std::string& name, MessageAnswer answer) {
        host.answers = {answer};
        std::string filename = dir.file(name);
        m.Load(filename);
        return filename;
    }

    std::vector<std::string> FileNames() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(dir.path()))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    TempDir dir;
    RecordingHost host;
};

} // namespace

TEST_F(ModelFamily, MainLetterAsksAndNoLoadsTheMainFileAlone) {
    Write("PLANEF.MOX", 10);
    Write("PLANEA.MOX", 11);
    model m;
    const std::string chosen = Load(m, "PLANEF.MOX", MessageAnswer::No);

    EXPECT_EQ(host.messages, std::vector<std::string>{"Load this model AND connected models?"});
    EXPECT_EQ(host.calls.front(), kQuestion);
    EXPECT_EQ(m.M_Type, kMoxLoaded);
    ASSERT_EQ(m.Files.size(), 8u);
    EXPECT_EQ(m.Files[0].Radius, 10);
    EXPECT_TRUE(m.CheckMOX(0));
    EXPECT_FALSE(m.CheckMOX(1));
    EXPECT_FALSE(m.CheckMOX(8));
    EXPECT_EQ(host.familyList, kFRows) << "the list shows all seven rows all the same";
    EXPECT_EQ(Program().FamilyListRows, kFRows);
    EXPECT_EQ(chosen, dir.file("PLANEF.MOX"));
    EXPECT_EQ(Program().RecentModels[0], chosen);
    EXPECT_EQ(host.title, "Skylathe - PLANEF.MOX");

    // The same name again leaves the recent list and its menus alone.
    host.calls.clear();
    model again;
    Load(again, "PLANEF.MOX", MessageAnswer::No);
    EXPECT_EQ(std::count(host.calls.begin(), host.calls.end(), "recent menus"), 0);
}

TEST_F(ModelFamily, YesLoadsWhatExistsOfTheFamilyAndPassesOverTheRest) {
    Write("TMOD1H.MOX", 20);
    Write("TMOD1L.MOX", 22);
    model m;
    const std::string chosen = Load(m, "TMOD1H.MOX", MessageAnswer::Yes);

    EXPECT_EQ(host.messages.size(), 1u) << "a missing connected file gives no message";
    EXPECT_TRUE(m.CheckMOX(0));
    EXPECT_FALSE(m.CheckMOX(1));
    EXPECT_TRUE(m.CheckMOX(2));
    EXPECT_FALSE(m.CheckMOX(3));
    EXPECT_EQ(m.Files[2].Radius, 22);
    EXPECT_EQ(m.Files[2].Index, 2);
    EXPECT_EQ(m.Files[1].Index, 1);
    EXPECT_EQ(host.familyList, kHRows);
    EXPECT_EQ(chosen, dir.file("TMOD1H.MOX"));
}

TEST_F(ModelFamily, LowerCaseNamesFindTheirFamilyAndTheRecentListEndsInTheMainLetter) {
    Write("planef.mox", 30);
    Write("planea.mox", 31);
    Write("planeP.MOX", 36);
    model m;
    const std::string chosen = Load(m, "planef.mox", MessageAnswer::Yes);

    EXPECT_EQ(chosen, dir.file("planeF.MOX"));
    EXPECT_EQ(Program().RecentModels[0], dir.file("planeF.MOX"));
    EXPECT_EQ(m.Files[1].Radius, 31) << "the letter and extension match in any case";
    EXPECT_EQ(m.Files[6].Radius, 36);
    EXPECT_EQ(host.title, "Skylathe - planef.mox") << "the title names the file as read";

    // The recent entry opens the same family again.
    model again;
    std::string recent = Program().RecentModels[0];
    host.answers = {MessageAnswer::Yes};
    again.Load(recent);
    EXPECT_EQ(again.Files[0].Radius, 30);
    EXPECT_EQ(again.Files[1].Radius, 31);
}

TEST_F(ModelFamily, OnlyTheFirstLetterAndTheFamilyLetterCount) {
    Write("PANELF.MOX", 40);
    Write("PANELA.MOX", 41);
    model panel;
    Load(panel, "PANELF.MOX", MessageAnswer::Yes);
    EXPECT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(panel.Files[1].Radius, 41);

    // Another letter of the family loads alone, as slot 0, and nothing is asked.
    host.messages.clear();
    model alone;
    const std::string chosen = Load(alone, "PANELA.MOX", MessageAnswer::Yes);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(alone.Files[0].Radius, 41);
    EXPECT_FALSE(alone.CheckMOX(1));
    EXPECT_EQ(chosen, dir.file("PANELA.MOX"));
    EXPECT_EQ(host.familyList, kFRows);

    // A name of neither family loads alone and leaves the list as it was.
    Write("XWINGF.MOX", 50);
    host.familyList.clear();
    model other;
    Load(other, "XWINGF.MOX", MessageAnswer::Yes);
    EXPECT_TRUE(host.familyList.empty());
    EXPECT_EQ(Program().FamilyListRows, kFRows);
    EXPECT_EQ(other.Files[0].Radius, 50);
}

TEST_F(ModelFamily, OtherKindsAreNotedButNothingIsReadOrSaved) {
    Write("PLANEF.MOX", 10);
    const std::string moy = dir.file("SHIP.MOY");
    model m;
    std::string name = moy;
    m.Load(name);
    EXPECT_EQ(m.M_Type, kMoyLoaded);
    EXPECT_TRUE(m.Files.empty());
    EXPECT_EQ(Program().RecentModels[0], moy);
    EXPECT_TRUE(host.title.empty()) << "no file, no title";
    EXPECT_EQ(host.calls.back(), "toolbar Wing: WingOK");

    m.Save("ONE");
    m.Save("ALL");
    m.Save(dir.file("OUT.MOX"));
    EXPECT_EQ(FileNames(), std::vector<std::string>{"PLANEF.MOX"});
    ASSERT_EQ(host.messages.size(), 3u);
    EXPECT_EQ(host.messages[0],
              "Only .mox models can be saved. This file was not read, so nothing was written.");

    model three;
    name = dir.file("ship.3ds");
    three.Load(name);
    EXPECT_EQ(three.M_Type, k3dsLoaded);

    model nothing;
    nothing.Save("ONE");
    EXPECT_EQ(host.messages.size(), 3u) << "with nothing open a save does nothing";
}

TEST_F(ModelFamily, IncrementalSavesMoveEachFileOnFromItsOwnNumber) {
    Write("PLANEF.MOX", 10);
    Write("PLANEA.MOX", 11);
    model m;
    Load(m, "PLANEF.MOX", MessageAnswer::Yes);

    m.m_currmox = 1;
    m.Save("ONE");
    EXPECT_EQ(m.Files[1].Filename, dir.file("PLANEA_001.MOX"));
    EXPECT_EQ(host.title, "Skylathe - PLANEA_001.MOX");
    EXPECT_EQ(Program().RecentModels[0], dir.file("PLANEA_001.MOX"));

    m.m_currmox = 0;
    m.Files[0].Radius = 99;
    m.Save("ALL");
    EXPECT_EQ(m.Files[0].Filename, dir.file("PLANEF_001.MOX"));
    EXPECT_EQ(m.Files[1].Filename, dir.file("PLANEA_002.MOX"));
    EXPECT_EQ(FileNames(),
              (std::vector<std::string>{"PLANEA.MOX", "PLANEA_001.MOX", "PLANEA_002.MOX",
                                        "PLANEF.MOX", "PLANEF_001.MOX"}));
    EXPECT_EQ(ReadRadius(dir.file("PLANEF.MOX")), 10) << "the old file stays";
    EXPECT_EQ(ReadRadius(dir.file("PLANEF_001.MOX")), 99);
    EXPECT_EQ(host.title, "Skylathe - PLANEF_001.MOX");

    // A numbered name has lost its family letter: it loads alone.
    host.messages.clear();
    model numbered;
    Load(numbered, "PLANEF_001.MOX", MessageAnswer::Yes);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(ModelFamily, WithoutIncrementalSavesTheFileIsWrittenOverItsOwnName) {
    Program().IncrementalSave = false;
    Write("PLANEF.MOX", 10);
    model m;
    Load(m, "PLANEF.MOX", MessageAnswer::No);
    m.Files[0].Radius = 61;
    m.Save("ONE");
    EXPECT_EQ(ReadRadius(dir.file("PLANEF.MOX")), 61);
    m.Files[0].Radius = 62;
    m.Save("ONE");
    EXPECT_EQ(ReadRadius(dir.file("PLANEF.MOX")), 62);
    EXPECT_EQ(FileNames(), std::vector<std::string>{"PLANEF.MOX"});
    EXPECT_EQ(m.Files[0].Filename, dir.file("PLANEF.MOX"));
}

TEST_F(ModelFamily, SaveAsKeepsTheRecordsNameAndTitle) {
    Write("PLANEF.MOX", 10);
    model m;
    Load(m, "PLANEF.MOX", MessageAnswer::No);
    Program().RecentModels[0] = dir.file("OTHER.MOX");
    const std::string copy = dir.file("COPYF.MOX");
    host.calls.clear();
    m.Save(copy);

    EXPECT_EQ(ReadRadius(copy), 10);
    EXPECT_EQ(m.Files[0].Filename, dir.file("PLANEF.MOX"));
    EXPECT_EQ(Program().RecentModels[0], dir.file("PLANEF.MOX"));
    EXPECT_EQ(Program().RecentModels[1], dir.file("OTHER.MOX"));
    EXPECT_EQ(host.calls,
              (std::vector<std::string>{"recent menus", "title: Skylathe - PLANEF.MOX"}));

    // The next plain save goes to the old name again, numbered.
    m.Save("ONE");
    EXPECT_EQ(m.Files[0].Filename, dir.file("PLANEF_001.MOX"));
    EXPECT_EQ(ReadRadius(dir.file("PLANEF_001.MOX")), 10);
}

TEST_F(ModelFamily, AFileThatWasNotFoundHasNoNameToSaveUnder) {
    model m;
    Load(m, "GONEF.MOX", MessageAnswer::No);
    EXPECT_FALSE(m.CheckMOX(0));
    EXPECT_EQ(host.title, "Skylathe - ");
    m.Save("ONE");
    m.Save("ALL");
    EXPECT_TRUE(FileNames().empty());
}
