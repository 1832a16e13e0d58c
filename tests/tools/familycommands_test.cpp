// moxtool info, project and export on a family: the measures of the assembled family, what a
// project loaded, and every exported corner where the editor paints it.
#include "moxbuilder.h"
#include "pcxwriter.h"
#include "runtool.h"
#include "tempdir.h"
#include "testpictures.h"
#include "vec3.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>

namespace {

// A textured square of side 10 in the plane z = 0 whose nodes belong to `body`; the main file's
// places slot 1 at x -80, y -50, z 10.
MoxBuilder Square(int16_t body, bool main = false) {
    MoxBuilder model;
    model.SetTexture("PLANE.TPC");
    model.nodes = {Node{0, 0, 0, body}, Node{10, 0, 0, body}, Node{10, 0, 10, body},
                   Node{0, 0, 10, body}, Node{-50, 10, -80, 0}};
    model.root = {0, kNoElement};
    StreamBytes stream;
    stream.MappedPoly(5, {{0, 0, 0}, {1, 0, 255}, {2, 255, 255}, {3, 255, 0}}, 0, 0);
    if (main)
        stream.Hardpoint(25, 4);
    else
        model.nodes.pop_back();
    model.streams = {stream.End().bytes};
    return model;
}

// The connected file's square is a movable part whose pivot lies at x 100.
void WriteFamily(const TempDir& dir) {
    WriteTestFile(dir.file("PLANEF.MOX"), Square(0, true).Build());
    MoxBuilder connected = Square(1);
    connected.parts = {Part{0, 0, 0, 0, 100}};
    WriteTestFile(dir.file("PLANEA.MOX"), connected.Build());
    WritePcx8(dir.file("PLANE.PCX"), 4, 4, TestIndices(4, 4, 1), TestPalette());
}

void ExpectLines(const std::string& out, const std::vector<std::string>& lines) {
    for (const std::string& line : lines)
        EXPECT_NE(out.find(line), std::string::npos) << line << "\nin\n" << out;
}

std::vector<Vec3> ObjVertices(const std::string& path) {
    std::vector<Vec3> vertices;
    std::ifstream in(path);
    for (std::string word; in >> word;) {
        Vec3 v;
        if (word == "v" && in >> v.x >> v.y >> v.z)
            vertices.push_back(v);
    }
    return vertices;
}

} // namespace

TEST(FamilyCommands, InfoOnAMainFileMeasuresTheAssembledFamily) {
    TempDir dir;
    WriteFamily(dir);
    const ToolRun main = RunTool({"info", dir.file("PLANEF.MOX")});
    ASSERT_EQ(main.status, kExitOk);
    // The connected square hangs at its pivot x 100 from the hardpoint (-80, -50, 10).
    ExpectLines(main.out, {"family: MAIN MODEL (F) loaded, A.MOX loaded, B.MOX missing",
                           "span: 60 (2.688 m), from -50 (-2.240 m) to 10 (0.448 m)",
                           "length: 110 (4.928 m), from -80 (-3.584 m) to 30 (1.344 m)",
                           "height: 10 (0.448 m), from 0 (0.000 m) to 10 (0.448 m)"});
    const ToolRun connected = RunTool({"info", dir.file("PLANEA.MOX")});
    ASSERT_EQ(connected.status, kExitOk);
    EXPECT_EQ(connected.out.find("family:"), std::string::npos) << "a connected file is alone";
}

TEST(FamilyCommands, ProjectShowsWhatLoadedAndFailsOnABrokenProject) {
    TempDir dir;
    WriteFamily(dir);
    const std::string project = dir.file("plane.3vw");
    std::ofstream(project, std::ios::binary)
        << "Type=MOX\r\nF=" << dir.file("PLANEF.MOX") << "\r\nA=" << dir.file("PLANEA.MOX")
        << "\r\nB=" << dir.file("PLANEB.MOX") << "\r\nC=NONE\r\nSpan=1200\r\nTop=top.pcx\r\n"
        << "Notes=one\r\ntwo\r\n";
    ToolRun run = RunTool({"project", project});
    ASSERT_EQ(run.status, kExitOk);
    ExpectLines(run.out, {"  type: 1 (.mox family)\n",
                          "  A (slot 1): " + dir.file("PLANEA.MOX") + " - loaded\n",
                          "  B (slot 2): " + dir.file("PLANEB.MOX") + " - not loaded\n",
                          "  C (slot 3): NONE\n", "  span 1200, length 0, height 0\n",
                          "  top view: top.pcx\n", "  notes:\n    one\n    two\n"});
    EXPECT_EQ(run.out.find("message:"), std::string::npos) << run.out;

    std::ofstream(project, std::ios::binary | std::ios::trunc) << "Span=1\r\nnonsense\r\n";
    run = RunTool({"project", project});
    ASSERT_EQ(run.status, kExitFailure);
    ExpectLines(run.out, {"  span 1, length 0", "  message: Error in Project File\n"});

    run = RunTool({"project", dir.file("missing.3vw")});
    ASSERT_EQ(run.status, kExitFailure);
    EXPECT_EQ(run.out,
              "project " + dir.file("missing.3vw") + "\n  message: Could not find project file\n");
}

// Both files are read back by a 3D tool (the glTF one through its own OBJ form, with the node
// placements applied), each corner placed in metres with the height going up.
TEST(FamilyCommands, ExportPutsEveryCornerWhereTheEditorPaintsIt) {
    TempDir dir;
    WriteFamily(dir);
    std::vector<Vec3> expected;
    for (const Vec3 offset : {Vec3{}, Vec3{20, -50, 10}})
        for (const Node& node : Square(0).nodes) {
            const Vec3 at = offset + Vec3{double(node.X), double(node.Y), double(node.Z)};
            expected.push_back(Vec3{at.x, at.z, -at.y} * 0.0448);
        }
    const std::string glb = dir.file("plane.glb");
    ASSERT_EQ(RunTool({"export", dir.file("PLANEF.MOX"), dir.file("plane.obj")}).status, kExitOk);
    ASSERT_EQ(RunTool({"export", dir.file("PLANEF.MOX"), glb}).status, kExitOk);
    const std::string toObj =
        "assimp export '" + glb + "' '" + dir.file("glb.obj") + "' >/dev/null";
    ASSERT_EQ(std::system(toObj.c_str()), 0);
    for (const char* file : {"plane.obj", "glb.obj"}) {
        const std::vector<Vec3> vertices = ObjVertices(dir.file(file));
        for (const Vec3& want : expected)
            EXPECT_TRUE(std::any_of(vertices.begin(), vertices.end(),
                                    [&](const Vec3& v) { return Length(v - want) < 1e-4; }))
                << file << ": " << want.x << " " << want.y << " " << want.z;
    }
}
