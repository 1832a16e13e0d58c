// moxtool's commands as a user meets them: their output, the files they write, their exit status
// and the one-line message that names a bad input.
#include "bytefile.h"
#include "moxbuilder.h"
#include "moxjson.h"
#include "moxreader.h"
#include "moxwriter.h"
#include "pcxwriter.h"
#include "runtool.h"
#include "tempdir.h"
#include "testpictures.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/wait.h>

namespace {

MoxBuilder Model() {
    MoxBuilder builder;
    builder.radius = 512;
    builder.SetTexture("plane.tpc");
    builder.nodes = {Node{1, 2, 3, 0}, Node{4, 5, 6, 0}};
    builder.streams = {StreamBytes().Line(0, 1, 7).Hardpoint(10, 1).End().bytes,
                       StreamBytes().Prefix(148, 1).ColouredPoly({0, 1, 0}, 4).End().bytes};
    builder.streamOrder = {1, 0};
    return builder;
}

class MoxToolTest : public ::testing::Test {
protected:
    void SetUp() override { WriteTestFile(model, Model().Build()); }

    TempDir dir;
    const std::string model = dir.file("PLANEF.MOX");
};

} // namespace

TEST_F(MoxToolTest, DumpShowsEveryFieldAsText) {
    const ToolRun text = RunTool({"dump", model});
    ASSERT_EQ(text.status, kExitOk);
    for (const char* line : {"radius: 512\n", R"(texture: "plane.tpc\u0000)",
                             "    [1] number 1 cod 0 flag 0 type 2 crn 1 nodes 1 att1 10\n",
                             "  [6] x 6 y 4 z 5 b 0\n", "messages:\n"})
        EXPECT_NE(text.out.find(line), std::string::npos) << line << " in\n" << text.out;
}

TEST_F(MoxToolTest, BuildFromTheDumpWritesWhatResaveWrites) {
    ASSERT_EQ(RunTool({"resave", model, dir.file("R.MOX")}).status, kExitOk);
    std::ofstream(dir.file("m.json")) << RunTool({"dump", "--json", model}).out;
    const ToolRun build = RunTool({"build", dir.file("m.json"), dir.file("B.MOX")});
    ASSERT_EQ(build.status, kExitOk) << build.err;
    EXPECT_EQ(ReadFileBytes(dir.file("B.MOX")), ReadFileBytes(dir.file("R.MOX")));
    EXPECT_NE(ReadFileBytes(dir.file("R.MOX")), ReadFileBytes(model)) << "streams were repacked";
    EXPECT_EQ(ReadFileBytes(dir.file("R.MOX")), SavedBytes(READ_MOX(model, 0)));
}

TEST_F(MoxToolTest, BuildRefusesBadInputInOneLineAndWritesNothing) {
    const std::string in = dir.file("in.json");
    const std::string out = dir.file("OUT.MOX");
    Json badCorners = Json::parse(RunTool({"dump", "--json", model}).out);
    badCorners["elements"][1][0]["nodes"].push_back(0);
    const std::pair<std::string, std::string> rows[] = {
        {badCorners.dump(), "moxtool: " + in + ": elements[1][0].nodes: 4 entries, crn is 3\n"},
        {"{\"format\": [1,", "moxtool: " + in + ": not well-formed JSON: "},
    };
    for (const auto& [text, error] : rows) {
        std::ofstream(in, std::ios::trunc) << text;
        const ToolRun run = RunTool({"build", in, out});
        EXPECT_EQ(run.status, kExitFailure);
        EXPECT_EQ(run.err.rfind(error, 0), 0u) << run.err;
        EXPECT_EQ(run.err.find('\n'), run.err.size() - 1) << run.err;
        EXPECT_FALSE(std::filesystem::exists(out));
    }
}

TEST_F(MoxToolTest, InfoSummarisesEachFileAndNamesTheOnesItCannotRead) {
    const ToolRun info = RunTool({"info", model, dir.file("NONE.MOX"), model});
    EXPECT_EQ(info.status, kExitFailure);
    const std::string summary = model +
                                ": radius 512, texture \"plane.tpc\", 1 parts, 2 nodes, 2 "
                                "elements, 3 piggybacks\n  hardpoints: slot 6 (code 10) x 6 y 4 "
                                "z 5\n";
    // PLANEF.MOX is the main file of a family: the family's lines follow each summary.
    ASSERT_EQ(info.out.find(summary), 0u);
    EXPECT_NE(info.out.find(summary, summary.size()), std::string::npos);
    EXPECT_EQ(info.err, "moxtool: " + dir.file("NONE.MOX") + ": no such file\n");

    MoxBuilder damaged;
    damaged.streams = {StreamBytes().Raw(std::vector<uint8_t>(1100, 3)).bytes};
    WriteTestFile(dir.file("BAD.MOX"), damaged.Build());
    const ToolRun bad = RunTool({"info", dir.file("BAD.MOX")});
    EXPECT_EQ(bad.status, kExitOk);
    EXPECT_NE(bad.out.find("  hardpoints: none\n  message: Error in MOX file.  Around element "
                           "number: 0\n"),
              std::string::npos)
        << bad.out;
}

// Every command answers --help on stdout and a wrong option with one line on stderr that names
// it and shows its usage; inputs that cannot be read or written end with status 2 as well. The
// program itself hands its words to the commands and exits with their status.
TEST_F(MoxToolTest, HelpUsageErrorsAndUnusableFilesGiveTheirStatusAndOneLine) {
    EXPECT_NE(RunTool({"--help"}).out.find("  resave\t"), std::string::npos);
    for (const auto& [words, status] :
         {std::pair{"--help", kExitOk}, std::pair{"info --bogus", kExitFailure}}) {
        const int result =
            std::system((std::string(MOXTOOL_PROGRAM) + " " + words + " >/dev/null 2>&1").c_str());
        EXPECT_EQ(WIFEXITED(result) ? WEXITSTATUS(result) : -1, status) << words;
    }
    for (const ToolCommand& command : ToolCommands()) {
        const std::string name = command.name;
        const ToolRun help = RunTool({name, "--help"});
        EXPECT_EQ(help.status, kExitOk) << name;
        EXPECT_EQ(help.out.rfind("usage: moxtool " + name, 0), 0u) << help.out;
        const ToolRun bad = RunTool({name, "--bogus"});
        EXPECT_EQ(bad.status, kExitFailure) << name;
        EXPECT_EQ(bad.err.rfind("moxtool " + name + ": ", 0), 0u) << bad.err;
        EXPECT_NE(bad.err.find("(usage: moxtool " + name), std::string::npos) << bad.err;
        EXPECT_EQ(bad.err.find('\n'), bad.err.size() - 1) << bad.err;
    }

    std::vector<uint8_t> pcx = EncodePcx8(3, 3, TestIndices(3, 3, 1), TestPalette());
    WriteFileBytes(dir.file("good.pcx"), pcx);
    pcx[3] = 4;
    WriteFileBytes(dir.file("deep.pcx"), pcx);
    const std::string folder = dir.path().string();
    const std::string none = dir.file("NONE.MOX");
    const std::string out = dir.file("out.ppm");
    const std::pair<Arguments, std::string> rows[] = {
        {{"dump"}, "moxtool dump: "},
        {{"dump", model, model}, "moxtool dump: "},
        {{"dump", folder}, "moxtool: " + folder + ": not a file\n"},
        {{"dump", "--json", none}, "moxtool: " + none + ": no such file\n"},
        {{"resave", model, folder}, "moxtool: " + folder + ": Error in Save..."},
        {{"texture", dir.file("deep.pcx"), out}, "Sorry, can't load " + dir.file("deep.pcx") + "!"},
        {{"texture", dir.file("missing.pcx"), out}, "moxtool texture: "},
        {{"texture", dir.file("good.pcx"), dir.file("out.bmp")}, "moxtool texture: "},
        {{"frobnicate"}, "moxtool: unknown command 'frobnicate'"},
        {{}, "usage: moxtool COMMAND"},
    };
    for (const auto& [args, error] : rows) {
        const ToolRun run = RunTool(args);
        EXPECT_EQ(run.status, kExitFailure) << error;
        EXPECT_EQ(run.err.rfind(error, 0), 0u) << run.err;
    }
    EXPECT_FALSE(std::filesystem::exists(out));
}
