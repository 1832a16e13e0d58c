// moxtool's commands as a user meets them: their output, the files they write, their exit status
// and the one-line message that names a bad input.
#include "commands.h"
#include "moxbuilder.h"
#include "moxjson.h"
#include "moxreader.h"
#include "moxwriter.h"
#include "tempdir.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <sys/wait.h>

namespace {

struct ToolRun {
    int status = -1;
    std::string out;
    std::string err;
};

// Runs one command in this process, catching what it prints.
ToolRun RunTool(const std::string& name, const Arguments& args) {
    ToolRun run;
    std::ostringstream out;
    std::ostringstream err;
    std::streambuf* const oldOut = std::cout.rdbuf(out.rdbuf());
    std::streambuf* const oldErr = std::cerr.rdbuf(err.rdbuf());
    Arguments words{name};
    words.insert(words.end(), args.begin(), args.end());
    run.status = RunMoxtool(words);
    std::cout.rdbuf(oldOut);
    std::cerr.rdbuf(oldErr);
    run.out = out.str();
    run.err = err.str();
    return run;
}

// Runs the moxtool program itself; returns its exit status.
int RunProgram(const std::string& arguments, const TempDir& dir) {
    const std::string line = std::string(MOXTOOL_PROGRAM) + " " + arguments + " >" +
                             dir.file("out.txt") + " 2>" + dir.file("err.txt");
    const int result = std::system(line.c_str());
    return WIFEXITED(result) ? WEXITSTATUS(result) : -1;
}

std::string ReadText(const std::string& path) {
    std::ifstream in(path);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

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

TEST_F(MoxToolTest, DumpShowsTheSameContentAsTextAndJson) {
    const ToolRun json = RunTool("dump", {"--json", model});
    ASSERT_EQ(json.status, kExitOk) << json.err;
    const Json form = Json::parse(json.out);
    EXPECT_EQ(form["radius"], 512);
    EXPECT_EQ(form["elements"][1][0]["cod"], 148);

    const ToolRun text = RunTool("dump", {model});
    ASSERT_EQ(text.status, kExitOk);
    EXPECT_NE(text.out.find("radius: 512\n"), std::string::npos);
    EXPECT_NE(text.out.find(R"(texture: "plane.tpc\u0000)"), std::string::npos);
    EXPECT_NE(text.out.find("    [1] number 1 cod 0 flag 0 type 2 crn 1 nodes 1 att1 10\n"),
              std::string::npos)
        << text.out;
    EXPECT_NE(text.out.find("  [6] x 6 y 4 z 5 b 0\n"), std::string::npos) << "hardpoint slot 6";
    EXPECT_NE(text.out.find("messages:\n"), std::string::npos);
}

TEST_F(MoxToolTest, BuildFromTheDumpWritesWhatResaveWrites) {
    ASSERT_EQ(RunTool("resave", {model, dir.file("R.MOX")}).status, kExitOk);
    std::ofstream(dir.file("m.json")) << RunTool("dump", {"--json", model}).out;
    const ToolRun build = RunTool("build", {dir.file("m.json"), dir.file("B.MOX")});
    ASSERT_EQ(build.status, kExitOk) << build.err;
    EXPECT_EQ(ReadFileBytes(dir.file("B.MOX")), ReadFileBytes(dir.file("R.MOX")));
    EXPECT_NE(ReadFileBytes(dir.file("R.MOX")), ReadFileBytes(model)) << "streams were repacked";

    std::vector<uint8_t> expected;
    std::string problem;
    ASSERT_TRUE(BuildMoxBytes(READ_MOX(model, 0), expected, problem));
    EXPECT_EQ(ReadFileBytes(dir.file("R.MOX")), expected);
}

TEST_F(MoxToolTest, BuildRefusesBadInputAndWritesNothing) {
    Json form = Json::parse(RunTool("dump", {"--json", model}).out);
    form["elements"][1][0]["nodes"].push_back(0);
    std::ofstream(dir.file("bad.json")) << form.dump();
    const ToolRun bad = RunTool("build", {dir.file("bad.json"), dir.file("OUT.MOX")});
    EXPECT_EQ(bad.status, kExitFailure);
    EXPECT_EQ(bad.err,
              "moxtool: " + dir.file("bad.json") + ": elements[1][0].nodes: 4 entries, crn is 3\n");
    EXPECT_FALSE(std::filesystem::exists(dir.file("OUT.MOX")));

    std::ofstream(dir.file("broken.json")) << "{\"format\": [1,";
    const ToolRun broken = RunTool("build", {dir.file("broken.json"), dir.file("OUT.MOX")});
    EXPECT_EQ(broken.status, kExitFailure);
    EXPECT_EQ(
        broken.err.rfind("moxtool: " + dir.file("broken.json") + ": not well-formed JSON: ", 0), 0u)
        << broken.err;
    EXPECT_EQ(std::count(broken.err.begin(), broken.err.end(), '\n'), 1);
    EXPECT_FALSE(std::filesystem::exists(dir.file("OUT.MOX")));

    // A model too large for its offsets is refused by the save.
    form = Json::parse(RunTool("dump", {"--json", model}).out);
    form["num_nodes"] = 5000;
    form["nodes"] = Json::array();
    for (int n = 0; n < 5000; ++n)
        form["nodes"].push_back(Json{{"x", 0}, {"y", 0}, {"z", 0}, {"b", 0}});
    std::ofstream(dir.file("big.json")) << form.dump();
    const ToolRun big = RunTool("build", {dir.file("big.json"), dir.file("OUT.MOX")});
    EXPECT_EQ(big.status, kExitFailure);
    EXPECT_EQ(big.err, "moxtool: " + dir.file("OUT.MOX") +
                           ": Error in Save... the streams of element 0 would start beyond byte "
                           "32767\n");
    EXPECT_FALSE(std::filesystem::exists(dir.file("OUT.MOX")));
}

TEST_F(MoxToolTest, InfoSummarisesEachFileAndNamesTheOnesItCannotRead) {
    const ToolRun info = RunTool("info", {model, dir.file("NONE.MOX"), model});
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
    const ToolRun bad = RunTool("info", {dir.file("BAD.MOX")});
    EXPECT_EQ(bad.status, kExitOk);
    EXPECT_NE(bad.out.find("  hardpoints: none\n  message: Error in MOX file.  Around element "
                           "number: 0\n"),
              std::string::npos)
        << bad.out;
}

TEST_F(MoxToolTest, UsageErrorsAndUnreadableInputEndWithStatusTwo) {
    const std::vector<std::pair<std::string, Arguments>> usage = {
        {"dump", {}},        {"dump", {"--xml", model}}, {"dump", {model, model}},
        {"build", {"a"}},    {"resave", {model}},        {"info", {}},
        {"info", {"--all"}},
    };
    for (const auto& [name, args] : usage) {
        const ToolRun run = RunTool(name, args);
        EXPECT_EQ(run.status, kExitFailure) << name;
        // One line that names the command and shows its usage.
        EXPECT_EQ(run.err.rfind("moxtool " + name + ": ", 0), 0u) << run.err;
        EXPECT_NE(run.err.find("(usage: moxtool " + name), std::string::npos) << run.err;
        EXPECT_EQ(run.err.find('\n'), run.err.size() - 1) << run.err;
    }
    for (const char* name :
         {"dump", "build", "resave", "info", "check", "export", "texture", "project", "sample"}) {
        const ToolRun help = RunTool(name, {"--help"});
        EXPECT_EQ(help.status, kExitOk);
        EXPECT_EQ(help.out.rfind(std::string("usage: moxtool ") + name, 0), 0u);
    }
    const ToolRun folder = RunTool("dump", {dir.path().string()});
    EXPECT_EQ(folder.status, kExitFailure);
    EXPECT_EQ(folder.err, "moxtool: " + dir.path().string() + ": not a file\n");
    const ToolRun missing = RunTool("resave", {dir.file("NONE.MOX"), dir.file("OUT.MOX")});
    EXPECT_EQ(missing.err, "moxtool: " + dir.file("NONE.MOX") + ": no such file\n");
    const ToolRun unwritable = RunTool("resave", {model, dir.path().string()});
    EXPECT_EQ(unwritable.status, kExitFailure);
    EXPECT_EQ(unwritable.err.rfind("moxtool: " + dir.path().string() + ": Error in Save...", 0),
              0u);
}

TEST_F(MoxToolTest, TheProgramDispatchesAndExits) {
    EXPECT_EQ(RunProgram("--help", dir), kExitOk);
    EXPECT_NE(ReadText(dir.file("out.txt")).find("  resave\t"), std::string::npos);
    EXPECT_EQ(RunProgram("", dir), kExitFailure);
    EXPECT_EQ(RunProgram("frobnicate", dir), kExitFailure);
    EXPECT_EQ(ReadText(dir.file("err.txt")).rfind("moxtool: unknown command 'frobnicate'", 0), 0u);
    EXPECT_EQ(RunProgram("info " + model, dir), kExitOk);
    EXPECT_EQ(RunProgram("dump --json " + dir.file("NONE.MOX"), dir), kExitFailure);
    EXPECT_EQ(ReadText(dir.file("err.txt")),
              "moxtool: " + dir.file("NONE.MOX") + ": no such file\n");
}
