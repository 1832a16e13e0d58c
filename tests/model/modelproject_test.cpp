#include "model.h"
#include "modelfiles.h"
#include "moxbuilder.h"
#include "programstate.h"
#include "recordinghost.h"
#include "recordingtextureloader.h"
#include "tempdir.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace {

class ModelProject : public ::testing::Test {
protected:
    void SetUp() override { ResetProgramState(); }

    std::string WriteText(const std::string& name, const std::string& text) {
        WriteTestFile(dir.file(name), std::vector<uint8_t>(text.begin(), text.end()));
        return dir.file(name);
    }

    static std::string ReadText(const std::string& path) {
        const std::vector<uint8_t> bytes = ReadFileBytes(path);
        return {bytes.begin(), bytes.end()};
    }

    bool Contains(const std::string& call) const {
        return std::find(host.calls.begin(), host.calls.end(), call) != host.calls.end();
    }

    TempDir dir;
    RecordingHost host;
};

} // namespace

TEST_F(ModelProject, SavedProjectLoadsBackWithItsFamilyAndNotes) {
    const std::string main = dir.file("PLANEF.MOX");
    const std::string a = dir.file("PLANEA.MOX");
    WriteSmallModel(main, 1);
    WriteSmallModel(a, 2);
    model m;
    std::string chosen = main;
    host.answers = {MessageAnswer::Yes};
    m.Load(chosen);

    ProjectRecord& project = Program().ProjectData;
    project.Span = 1200;
    project.Length = -5;
    project.Height = 32767;
    project.TopLeftX = -32768;
    project.TopLeftY = 7;
    project.Top = "/art/top view=1.pcx";
    project.Notes = "first\r\nsecond\r\nthird";
    project.ProjectFile = dir.file("plane.3vw");
    m.SaveProject();
    const std::string expected = "Type=MOX\r\nF=" + main + "\r\nA=" + a +
                                 "\r\nB=NONE\r\nC=NONE\r\nE=NONE\r\nG=NONE\r\nP=NONE\r\n\r\n"
                                 "Span=1200\r\nLength=-5\r\nHeight=32767\r\n\r\n"
                                 "TopLeftX=-32768\r\nTopLeftY=7\r\nTopLeftZ=0\r\n\r\n"
                                 "Top=/art/top view=1.pcx\r\nLeft=NONE\r\nFront=NONE\r\n"
                                 "Notes=first\r\nsecond\r\nthird\r\n";
    EXPECT_EQ(ReadText(project.ProjectFile), expected);
    EXPECT_EQ(host.messages.size(), 1u) << "only the family question";

    ResetProgramState();
    host.calls.clear();
    host.helpCaption = "Left Mouse: PICK";
    model loaded;
    loaded.LoadProject(dir.file("plane.3vw"));
    EXPECT_EQ(loaded.M_Type, kMoxLoaded);
    EXPECT_EQ(Slots(loaded) + " " + host.title + " " + Program().RecentProjects[0],
              "12...... Skylathe - plane.3vw " + dir.file("plane.3vw"));
    const std::vector<std::string> calls = host.CallsWithoutEvents();
    EXPECT_EQ(
        std::vector<std::string>(calls.begin(), calls.begin() + 8),
        (std::vector<std::string>{"get help caption", "help bold: on",
                                  "family list: MAIN MODEL (F)|A.MOX|B.MOX|C.MOX|E.MOX|G.MOX|P.MOX",
                                  "help caption: Loading _F.MOX", "help caption: Loading _A.MOX",
                                  "help caption: Loading Top View",
                                  "help caption: Left Mouse: PICK", "help bold: off"}));
    EXPECT_TRUE(std::none_of(calls.begin(), calls.end(), [](const std::string& call) {
        return call.rfind("spin", 0) == 0;
    })) << "the spins keep their values";
    // Every value read, the top view split at the first "=" only, saves as it was.
    loaded.SaveProject();
    EXPECT_EQ(ReadText(dir.file("plane.3vw")), expected);
}

TEST_F(ModelProject, ReaderAcceptsKeysInAnyCaseAndOrderButValuesAsTheyStand) {
    WriteSmallModel(dir.file("SHIPF.MOX"), 5);
    RecordingTextureLoader textures;
    const std::string path = WriteText("any.3vw", "notakey=1\nbottom=" + dir.file("under.pcx") +
                                                      "\nspan= -12 \n\nf=" + dir.file("SHIPF.MOX") +
                                                      "\rback=NONE\r\ntype=MOX\r\nNOTES=a\n\nb");
    model m;
    m.LoadProject(path);

    const ProjectRecord& project = Program().ProjectData;
    EXPECT_EQ(project.Span, -12);
    EXPECT_EQ(m.M_Type, kMoxLoaded) << "\"type=MOX\" names the kind";
    EXPECT_TRUE(m.CheckMOX(0));
    EXPECT_EQ(project.BottomImage, 1);
    ASSERT_EQ(textures.requests.size(), 2u) << "the drawing, then the model's own texture";
    EXPECT_EQ(textures.requests[0].path, dir.file("under.pcx"));
    EXPECT_TRUE(Contains("help caption: Loading Underside View"));
    EXPECT_TRUE(host.messages.empty());

    // The bottom view is read but never written back.
    Program().ProjectData.ProjectFile = dir.file("out.3vw");
    m.SaveProject();
    const std::string text = ReadText(dir.file("out.3vw"));
    EXPECT_EQ(text.find("Bottom"), std::string::npos);
    EXPECT_NE(text.find("Top=NONE\r\nLeft=NONE\r\nFront=NONE\r\nNotes=a\r\n\r\nb\r\n"),
              std::string::npos);

    // A drawing that is no picture is reported, and loading goes on.
    textures.answer = false;
    model side;
    side.LoadProject(WriteText("side.3vw", "RIGHT=" + dir.file("side.pcx") + "\r\nSpan=5\r\n"));
    EXPECT_EQ(host.messages, std::vector<std::string>{"Cannot load 3-View. Must be a PCX file!"});
    EXPECT_TRUE(Contains("help caption: Loading Right View"));
    EXPECT_EQ(Program().ProjectData.Span, 5);

    // "mox" in another case names no kind.
    ResetProgramState();
    host.familyList.clear();
    model lower;
    lower.LoadProject(WriteText("lower.3vw", "TYPE=mox\r\nF=NONE\r\n"));
    EXPECT_EQ(lower.M_Type, kNothingLoaded);
    EXPECT_TRUE(host.familyList.empty());
    EXPECT_FALSE(lower.CheckMOX(0));
}

TEST_F(ModelProject, AFaultyLineStopsTheLoadWhereItStands) {
    WriteSmallModel(dir.file("SHIPF.MOX"), 5);
    host.helpCaption = "Left Mouse: PICK";
    model m;
    m.LoadProject(WriteText("bad.3vw", "Type=MOX\r\nF=" + dir.file("SHIPF.MOX") +
                                           "\r\nA=NONE\r\njust words\r\nSpan=3\r\n"));
    EXPECT_EQ(host.messages, std::vector<std::string>{"Error in Project File"});
    EXPECT_TRUE(host.helpBold);
    EXPECT_EQ(host.helpCaption, "Loading _F.MOX");
    EXPECT_TRUE(m.CheckMOX(0)) << "what was loaded stays";
    EXPECT_EQ(Program().RecentProjects[0], "NONE");
    EXPECT_EQ(host.calls.back(), "message plain: Error in Project File");

    // Numbers must be 16-bit numbers.
    for (const char* value :
         {"32768", "-32769", "12a", "", " ", "1 2", "0x10", "--1", "99999999999999999999"}) {
        host.messages.clear();
        model numbers;
        numbers.LoadProject(WriteText("n.3vw", std::string("Height=") + value + "\r\n"));
        EXPECT_EQ(host.messages, std::vector<std::string>{"Error in Project File"}) << value;
    }
    model edge;
    edge.LoadProject(WriteText("e.3vw", "Height=-32768\r\nLength=+32767\r\nSpan=\t0042\r\n"));
    const ProjectRecord& read = Program().ProjectData;
    EXPECT_EQ(Numbers({read.Height, read.Length, read.Span}), "-32768,32767,42,");
}

TEST_F(ModelProject, MissingProjectChangesNothing) {
    model m;
    m.LoadProject(dir.file("none.3vw"));
    m.LoadProject(dir.path().string());
    EXPECT_EQ(host.calls,
              (std::vector<std::string>{"message information: Could not find project file",
                                        "message information: Could not find project file"}));
    EXPECT_TRUE(m.Files.empty());
    EXPECT_TRUE(Program().ProjectData.ProjectFile.empty());
}

TEST_F(ModelProject, SavingIsRefusedWithoutAModelOrAFileAndNeverHalfDone) {
    model empty;
    Program().ProjectData.ProjectFile = dir.file("p.3vw");
    empty.SaveProject();
    EXPECT_FALSE(std::filesystem::exists(dir.file("p.3vw")));

    model m;
    m.LoadProject(WriteText("p.3vw", "Type=MOX\r\nNotes=keep me\r\n"));
    Program().ProjectData.ProjectFile.clear();
    m.SaveProject();

    Program().ProjectData.ProjectFile = dir.file("no folder/p.3vw");
    m.SaveProject();
    ASSERT_EQ(host.messages.size(), 3u);
    host.messages[2].resize(host.messages[2].find('\n'));
    EXPECT_EQ(host.messages,
              (std::vector<std::string>{
                  "No model is open, so there is no project to save. Load a model or a project "
                  "first.",
                  "No project file is open. Create one with \"Create Project\" on the 3-View Data "
                  "tab.",
                  "Could not write the project file. The file on disk was left as it was."}));

    // A project's 8-bit text stays byte for byte.
    Program().ProjectData.ProjectFile = dir.file("p.3vw");
    Program().ProjectData.Notes = "caf\xe9\r\n\xff";
    m.SaveProject();
    EXPECT_NE(ReadText(dir.file("p.3vw")).find("Notes=caf\xe9\r\n\xff\r\n"), std::string::npos);
}

TEST_F(ModelProject, RelativePathsAreTakenFromTheProjectsFolderAndStayRelative) {
    // An H family project beside its files and drawing, opened from elsewhere and saved again.
    std::filesystem::create_directory(dir.file("moved"));
    std::filesystem::create_directory(dir.file("moved/art"));
    WriteSmallModel(dir.file("moved/TMOD2H.MOX"), 5);
    WriteSmallModel(dir.file("moved/TMOD2S.MOX"), 6);
    WriteSmallModel(dir.file("moved/TMOD2D.MOX"), 8);
    const std::string text = "Type=MOX TMOD\r\nF=TMOD2H.MOX\r\nA=" + dir.file("moved/TMOD2S.MOX") +
                             "\r\nB=NONE\r\nC=TMOD2D.MOX\r\nE=NONE\r\nG=NONE\r\nP=NONE\r\n\r\n"
                             "Span=0\r\nLength=0\r\nHeight=0\r\n\r\n"
                             "TopLeftX=0\r\nTopLeftY=0\r\nTopLeftZ=0\r\n\r\n"
                             "Top=art\\top.pcx\r\nLeft=NONE\r\nFront=NONE\r\nNotes=\r\n";
    const std::string project = WriteText("moved/ship.3vw", text);
    RecordingTextureLoader textures;
    model m;
    m.LoadProject(project);

    EXPECT_EQ(host.familyList.size(), 4u);
    EXPECT_EQ(Slots(m), "56.8....");
    ASSERT_FALSE(textures.requests.empty());
    EXPECT_EQ(std::to_string(textures.requests.back().slot) + " " + textures.requests.back().path,
              "7 " + dir.file("moved") + "/art\\top.pcx");
    m.SaveProject();
    EXPECT_EQ(ReadText(project), text) << "each path as the project gave it";
}
