// moxtool check and export on the sample: its families are clean, spoiled planes are set right
// again, and the exported fighter reads back in a glTF library and in assimp.
#include "commands.h"
#include "displaystates.h"
#include "moxjson.h"
#include "moxreader.h"
#include "moxwriter.h"
#include "samplewriter.h"
#include "tempdir.h"
#include "vec3.h"

#include <tiny_gltf.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <memory>
#include <set>
#include <sys/wait.h>

namespace {

constexpr double kMetres = 0.0448;

// The sample written once for the tests of this file, its fighter read back.
class SampleCheckExport : public testing::Test {
protected:
    static void SetUpTestSuite() {
        folder_ = std::make_unique<TempDir>();
        std::vector<std::string> written;
        std::string problem;
        ASSERT_TRUE(WriteSample(folder_->path().string(), written, problem)) << problem;
    }
    static void TearDownTestSuite() { folder_.reset(); }

    static std::string PathOf(const std::string& name) { return folder_->file(name); }
    static FileRecord Model(const std::string& name) { return READ_MOX(PathOf(name), 0); }

    // The fighter's files and their slots.
    static inline const std::map<std::string, int> kFighter = {
        {"PDEMOF.MOX", 0}, {"PDEMOC.MOX", 3}, {"PDEMOE.MOX", 4}, {"PDEMOG.MOX", 5}};

private:
    static inline std::unique_ptr<TempDir> folder_;
};

// A corner where the editor paints it in its file's frame: the node plus its part's pivot.
Vec3 PlacedCorner(const FileRecord& record, int node) {
    const Node& at = record.Nodes.at(node);
    Vec3 placed{double(at.X), double(at.Y), double(at.Z)};
    if (at.B > 0) {
        const Part& part = record.Parts.at(at.B - 1);
        placed = placed + Vec3{double(part.X), double(part.Y), double(part.Z)};
    }
    return placed;
}

Json CheckJson(const Arguments& args, int& status) {
    Arguments words{"check", "--json"};
    words.insert(words.end(), args.begin(), args.end());
    testing::internal::CaptureStdout();
    status = RunMoxtool(words);
    return Json::parse(testing::internal::GetCapturedStdout());
}

bool IsShownPolygon(const Piggyback& item) {
    return item.Type >= 3 && item.Type != kTypeNull && !HiddenByState(item, DisplayStates{});
}

TEST_F(SampleCheckExport, TheSampleIsCleanAndSpoiledPlanesAreRestored) {
    for (const char* main : {"PDEMOF.MOX", "TMOD1H.MOX"}) {
        int status = -1;
        EXPECT_EQ(CheckJson({"--family", PathOf(main)}, status), Json::array()) << main;
        EXPECT_EQ(status, kExitOk);
    }

    // Two elements of polygons: one plane loses its normal, the other is turned round.
    FileRecord spoiled = Model("PDEMOF.MOX");
    std::vector<int> elements;
    for (int e = 0; e < spoiled.NumElements && elements.size() < 2; ++e) {
        if (IsShownPolygon(spoiled.Elements[e].Items[0]))
            elements.push_back(e);
    }
    ASSERT_EQ(elements.size(), 2u);
    const NRMRecord first = spoiled.NRM[elements[0]];
    const NRMRecord second = spoiled.NRM[elements[1]];
    spoiled.NRM[elements[0]] = NRMRecord{0, 0, 0, 0, first.F};
    NRMRecord& turned = spoiled.NRM[elements[1]];
    turned =
        NRMRecord{int16_t(-turned.Y), int16_t(-turned.Z), int16_t(-turned.X), -turned.D, turned.F};
    ASSERT_TRUE(SAVE_MOX(spoiled, PathOf("SPOILED.MOX")));

    int status = -1;
    const Json findings = CheckJson({PathOf("SPOILED.MOX")}, status);
    std::set<std::string> rules;
    for (const Json& finding : findings)
        rules.insert(finding.at("rule").get<std::string>());
    EXPECT_EQ(rules, (std::set<std::string>{"zero-normal", "facing-against-normal"}));

    const Json fixes =
        CheckJson({PathOf("SPOILED.MOX"), "--fix-planes", PathOf("FIXED.MOX")}, status);
    std::vector<int> fixed;
    for (const Json& entry : fixes) {
        if (entry.at("severity") == "fixed")
            fixed.push_back(entry.at("element").get<int>());
        EXPECT_NE(entry.at("severity"), "unfixed");
    }
    EXPECT_EQ(fixed, elements);
    const FileRecord repaired = READ_MOX(PathOf("FIXED.MOX"), 0);
    for (const auto& [element, original] : {std::pair{elements[0], first}, {elements[1], second}}) {
        const NRMRecord& plane = repaired.NRM[element];
        EXPECT_NEAR(plane.X, original.X, 2);
        EXPECT_NEAR(plane.Y, original.Y, 2);
        EXPECT_NEAR(plane.Z, original.Z, 2);
        EXPECT_NEAR(plane.D, original.D, 16384);
        EXPECT_EQ(plane.F, original.F);
    }
    EXPECT_EQ(CheckJson({PathOf("FIXED.MOX")}, status), Json::array());
}

// Every vertex of the scene where the file puts it: the translations of its nodes added.
void CollectVertices(const tinygltf::Model& gltf, int index, Vec3 offset, std::vector<Vec3>& out) {
    const tinygltf::Node& node = gltf.nodes[index];
    if (node.translation.size() == 3)
        offset = offset + Vec3{node.translation[0], node.translation[1], node.translation[2]};
    if (node.mesh >= 0) {
        for (const tinygltf::Primitive& primitive : gltf.meshes[node.mesh].primitives) {
            const tinygltf::Accessor& accessor =
                gltf.accessors[primitive.attributes.at("POSITION")];
            const tinygltf::BufferView& view = gltf.bufferViews[accessor.bufferView];
            const auto* values = reinterpret_cast<const float*>(
                gltf.buffers[view.buffer].data.data() + view.byteOffset + accessor.byteOffset);
            for (size_t v = 0; v < accessor.count; ++v)
                out.push_back(offset + Vec3{values[3 * v], values[3 * v + 1], values[3 * v + 2]});
        }
    }
    for (int child : node.children)
        CollectVertices(gltf, child, offset, out);
}

int ProgramStatus(const std::string& line) {
    const int result = std::system((line + " >/dev/null 2>&1").c_str());
    return WIFEXITED(result) ? WEXITSTATUS(result) : -1;
}

TEST_F(SampleCheckExport, TheExportedFighterReadsBackWithItsPartsTextureAndPlaces) {
    TempDir out;
    ASSERT_EQ(RunMoxtool({"export", PathOf("PDEMOF.MOX"), out.file("fighter.glb")}), kExitOk);
    ASSERT_EQ(RunMoxtool({"export", PathOf("PDEMOF.MOX"), out.file("fighter.obj")}), kExitOk);
    for (const char* file : {"fighter.glb", "fighter.obj"})
        EXPECT_EQ(ProgramStatus("assimp info '" + out.file(file) + "'"), 0) << file;

    tinygltf::Model gltf;
    tinygltf::TinyGLTF reader;
    std::string error;
    std::string warning;
    ASSERT_TRUE(reader.LoadBinaryFromFile(&gltf, &error, &warning, out.file("fighter.glb")))
        << error;

    // What the editor paints with gear down, pilot alive and wings whole.
    size_t triangles = 0;
    size_t meshes = 0;
    size_t named = 0;
    std::vector<Vec3> expected;
    const FileRecord main = Model("PDEMOF.MOX");
    for (const auto& [name, slot] : kFighter) {
        const FileRecord record = Model(name);
        const Node& hardpoint = main.HP[slot];
        std::set<int> bodies;
        named += 1 + record.NumParts;
        bool placedOne = false;
        for (int e = 0; e < record.NumElements; ++e) {
            for (int j = 0; j < record.Elements[e].Count; ++j) {
                const Piggyback& item = record.Elements[e].Items[j];
                named += item.Type == 2;
                if (!IsShownPolygon(item))
                    continue;
                triangles += item.CRN - 2;
                bodies.insert(record.Nodes[item.NodeList[0]].B);
                if (placedOne)
                    continue;
                placedOne = true;
                for (int c = 0; c < item.CRN; ++c) {
                    const Vec3 painted =
                        PlacedCorner(record, item.NodeList[c]) +
                        Vec3{double(hardpoint.X), double(hardpoint.Y), double(hardpoint.Z)};
                    expected.push_back(Vec3{painted.x, painted.z, -painted.y} * kMetres);
                }
            }
        }
        meshes += bodies.size();
    }

    size_t gltfTriangles = 0;
    for (const tinygltf::Mesh& mesh : gltf.meshes) {
        for (const tinygltf::Primitive& primitive : mesh.primitives)
            gltfTriangles += gltf.accessors[primitive.indices].count / 3;
    }
    EXPECT_EQ(gltfTriangles, triangles);
    EXPECT_EQ(gltf.meshes.size(), meshes);
    size_t gltfNamed = 0;
    for (const tinygltf::Node& node : gltf.nodes)
        gltfNamed += !node.name.empty();
    EXPECT_EQ(gltfNamed, named);
    ASSERT_EQ(gltf.textures.size(), 1u);
    EXPECT_EQ(gltf.images[0].width, 256);
    EXPECT_EQ(gltf.images[0].height, 256);

    std::vector<Vec3> vertices;
    for (int root : gltf.scenes[0].nodes)
        CollectVertices(gltf, root, Vec3{}, vertices);
    for (const Vec3& want : expected) {
        EXPECT_TRUE(std::any_of(vertices.begin(), vertices.end(),
                                [&](const Vec3& v) { return Length(v - want) < 1e-4; }))
            << want.x << " " << want.y << " " << want.z;
    }
}

} // namespace
