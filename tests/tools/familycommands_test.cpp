#include "commands.h"
#include "moxbuilder.h"
#include "tempdir.h"

#include <gtest/gtest.h>

#include <fstream>

namespace {

int RunCommand(const std::string& name, const Arguments& args, std::string& out) {
    Arguments words{name};
    words.insert(words.end(), args.begin(), args.end());
    testing::internal::CaptureStdout();
    const int status = RunMoxtool(words);
    out = testing::internal::GetCapturedStdout();
    return status;
}

// A main file with a hardpoint for slot 1 at (y -50, z 10, x -80), and one connected file.
void WriteFamily(const TempDir& dir) {
    MoxBuilder main;
    main.nodes = {Node{100, -20, 300, 0}, Node{-50, 10, -80, 0}};
    main.root = {0, kNoElement};
    main.streams = {StreamBytes().Hardpoint(25, 1).End().bytes};
    WriteTestFile(dir.file("PLANEF.MOX"), main.Build());
    MoxBuilder connected;
    connected.nodes = {Node{10, 5, 20, 0}};
    connected.root = {0, kNoElement};
    connected.streams = {StreamBytes().Line(0, 0, 3).End().bytes};
    WriteTestFile(dir.file("PLANEA.MOX"), connected.Build());
}

} // namespace

TEST(FamilyCommands, InfoOnAMainFileMeasuresTheAssembledFamily) {
    TempDir dir;
    WriteFamily(dir);
    std::string out;
    ASSERT_EQ(RunCommand("info", {dir.file("PLANEF.MOX")}, out), kExitOk);
    EXPECT_NE(out.find("family: MAIN MODEL (F) loaded, A.MOX loaded, B.MOX missing"),
              std::string::npos)
        << out;
    // The connected node (10, 5, 20) hangs at (-50, 10, -80): span -50 to 100, height -20 to 15.
    EXPECT_NE(out.find("span: 150 (6.720 m), from -50 (-2.240 m) to 100 (4.480 m)"),
              std::string::npos)
        << out;
    EXPECT_NE(out.find("height: 35 (1.568 m), from -20 (-0.896 m) to 15 (0.672 m)"),
              std::string::npos)
        << out;

    ASSERT_EQ(RunCommand("info", {dir.file("PLANEA.MOX")}, out), kExitOk);
    EXPECT_EQ(out.find("family:"), std::string::npos) << "a connected file is summarised alone";
}

TEST(FamilyCommands, ProjectShowsWhatLoadedAndFailsOnABrokenProject) {
    TempDir dir;
    WriteFamily(dir);
    const std::string project = dir.file("plane.3vw");
    std::ofstream(project, std::ios::binary)
        << "Type=MOX\r\nF=" << dir.file("PLANEF.MOX") << "\r\nA=" << dir.file("PLANEA.MOX")
        << "\r\nB=" << dir.file("PLANEB.MOX") << "\r\nC=NONE\r\nSpan=1200\r\nTop=top.pcx\r\n"
        << "Notes=one\r\ntwo\r\n";
    std::string out;
    ASSERT_EQ(RunCommand("project", {project}, out), kExitOk);
    for (const std::string& line : std::vector<std::string>{
             "  type: 1 (.mox family)\n", "  A (slot 1): " + dir.file("PLANEA.MOX") + " - loaded\n",
             "  B (slot 2): " + dir.file("PLANEB.MOX") + " - not loaded\n", "  C (slot 3): NONE\n",
             std::string("  span 1200, length 0, height 0\n"), std::string("  top view: top.pcx\n"),
             std::string("  notes:\n    one\n    two\n")})
        EXPECT_NE(out.find(line), std::string::npos) << line << "\nin\n" << out;
    EXPECT_EQ(out.find("message:"), std::string::npos) << out;

    std::ofstream(project, std::ios::binary | std::ios::trunc) << "Span=1\r\nnonsense\r\n";
    ASSERT_EQ(RunCommand("project", {project}, out), kExitFailure);
    EXPECT_NE(out.find("  span 1, length 0"), std::string::npos) << out;
    EXPECT_NE(out.find("  message: Error in Project File\n"), std::string::npos) << out;

    ASSERT_EQ(RunCommand("project", {dir.file("missing.3vw")}, out), kExitFailure);
    EXPECT_EQ(out,
              "project " + dir.file("missing.3vw") + "\n  message: Could not find project file\n");
}
