// moxtool check: each rule fires on a small record made to break it, and on nothing else.
#include "collectinghost.h"
#include "modelcheck.h"
#include "moxbuilder.h"
#include "moxjson.h"
#include "moxreader.h"
#include "pcxwriter.h"
#include "runtool.h"
#include "tempdir.h"
#include "testpictures.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <tuple>

namespace {

constexpr int16_t kOne = 16384;

// A square of side 10 in the plane z = 0, its stored corners clockwise seen from +Z, in element 0
// with the plane (0, 0, 1), D 0, its texture PLANE.TPC.
MoxBuilder Square() {
    MoxBuilder model;
    model.SetTexture("PLANE.TPC");
    model.nodes = {Node{0, 0, 0, 0}, Node{10, 0, 0, 0}, Node{10, 0, 10, 0}, Node{0, 0, 10, 0}};
    model.planes = {NRMRecord{0, kOne, 0, 0, 0}};
    model.root = {0, kNoElement};
    model.streams = {StreamBytes()
                         .MappedPoly(5, {{0, 0, 0}, {1, 0, 255}, {2, 255, 255}, {3, 255, 0}}, 0, 0)
                         .End()
                         .bytes};
    return model;
}

using Spoil = std::function<void(MoxBuilder&)>;

// Adds to the end of element 0's stream what `add` writes.
void Append(MoxBuilder& model, const std::function<void(StreamBytes&)>& add) {
    StreamBytes stream;
    stream.Raw({model.streams[0].begin(), model.streams[0].end() - 1});
    add(stream);
    model.streams[0] = stream.End().bytes;
}

Spoil Appending(const std::function<void(StreamBytes&)>& add) {
    return [add](MoxBuilder& model) { Append(model, add); };
}

Spoil Lines(int lines) {
    return Appending([lines](StreamBytes& s) {
        for (int i = 0; i < lines; ++i)
            s.Line(0, 1, 0);
    });
}

Spoil Poly(const std::vector<uint8_t>& nodes) {
    return Appending([nodes](StreamBytes& s) { s.ColouredPoly(nodes, 0); });
}

// Elements beyond the square that hold a line each and lie in its plane, and the tree's children.
Spoil Elements(int count, const std::vector<ChildPair>& children) {
    return [count, children](MoxBuilder& model) {
        for (int i = 0; i < count; ++i) {
            model.planes.push_back(model.planes[0]);
            model.streams.push_back(StreamBytes().Line(0, 1, 0).End().bytes);
        }
        model.children = children;
    };
}

// A line entry as the reader makes it, its spare corner last.
Piggyback LineEntry(const std::vector<uint8_t>& nodes) {
    Piggyback line;
    line.Type = 1;
    line.CRN = static_cast<uint8_t>(nodes.size() - 1);
    line.NodeList = nodes;
    return line;
}

std::set<std::string> Rules(const char* rule) {
    return *rule ? std::set<std::string>{rule} : std::set<std::string>{};
}

std::set<std::string> JsonRules(const std::string& out) {
    std::set<std::string> rules;
    for (const Json& finding : Json::parse(out))
        rules.insert(finding.at("rule").get<std::string>());
    return rules;
}

const std::set<std::string> kErrorRules = {"corner-node",  "element-reference", "node-part",
                                           "corner-count", "tree-cycle",        "too-many-entries",
                                           "stream-offset"};

TEST(ModelCheck, EachRuleFiresOnItsOwnRecordAlone) {
    struct RuleRow {
        const char* rule; // empty: the record is sound
        Spoil spoil;
        std::function<void(FileRecord&)> spoilRecord = [](FileRecord&) {};
    };
    const std::vector<RuleRow> rows = {
        {"", [](MoxBuilder&) {}},
        {"corner-node", Appending([](StreamBytes& s) { s.Line(0, 9, 0); })},
        {"element-reference", Elements(0, {{7, kNoElement}})},
        {"node-part", [](MoxBuilder& m) { m.nodes[0].B = 3; }},
        {"corner-count", [](MoxBuilder&) {},
         [](FileRecord& r) {
             r.Elements[0].Items.insert(r.Elements[0].Items.begin(), LineEntry({0, 1, 2, 0}));
             ++r.Elements[0].Count;
         }},
        {"tree-cycle", Elements(0, {{0, kNoElement}})},
        {"too-many-entries", Lines(255)},
        // Too long to read back through a file: 90 more elements of 99 lines, each the child
        // of the one before.
        {"stream-offset", [](MoxBuilder&) {},
         [](FileRecord& r) {
             const ElementList lines{std::vector<Piggyback>(100, LineEntry({0, 1, 0})), 99};
             for (int e = 1; e <= 90; ++e) {
                 r.PART[e - 1][0] = uint8_t(e);
                 r.NRM.insert(r.NRM.begin() + e, r.NRM[0]);
                 r.PART.insert(r.PART.begin() + e, ChildPair{kNoElement, kNoElement});
                 r.Elements.insert(r.Elements.begin() + e, lines);
                 r.Offsets.push_back(0);
             }
             r.NumElements = 91;
         }},
        {"unreached-element", Elements(1, {})},
        {"element-shared", Elements(2, {{1, 2}, {kNoElement, kNoElement}, {1, kNoElement}})},
        {"zero-normal", [](MoxBuilder& m) { m.planes[0] = NRMRecord{}; }},
        {"normal-length", [](MoxBuilder& m) { m.planes[0].Z = 16000; }},
        {"corner-off-plane", [](MoxBuilder& m) { m.planes[0].D = 5 * kOne; }},
        {"facing-against-normal", [](MoxBuilder& m) { m.planes[0].Z = -kOne; }},
        {"few-corners", Poly({0, 1})},
        {"repeated-corner", Poly({0, 1, 1, 2})},
        {"not-planar", [](MoxBuilder& m) { m.nodes[2].Z = 5; }},
        {"not-convex",
         [](MoxBuilder& m) {
             m.nodes.push_back(Node{5, 0, 5, 0});
             Poly({0, 1, 4, 2, 3})(m);
         }},
        {"piggyback-numbers", Lines(100)},
        {"unused-node", [](MoxBuilder& m) { m.nodes.resize(5); }},
        {"same-hardpoint-code", Appending([](StreamBytes& s) {
             s.Hardpoint(25, 0).Hardpoint(25, 1).Hardpoint(1, 2).Hardpoint(1, 3);
         })},
    };
    for (const auto& [rule, spoil, spoilRecord] : rows) {
        SCOPED_TRACE(rule);
        MoxBuilder model = Square();
        spoil(model);
        CollectingHost host;
        FileRecord record = ReadMoxBytes(model.Build(), "TEST.MOX", 0);
        spoilRecord(record);
        std::set<std::string> rules;
        for (const Finding& finding : CheckRecord(record, host.messages)) {
            rules.insert(finding.rule);
            EXPECT_EQ(finding.severity == Severity::Error, kErrorRules.count(finding.rule) == 1);
        }
        EXPECT_EQ(rules, Rules(rule));
    }
}

// The rules that look at files beside the model, through the command and its JSON output.
TEST(ModelCheck, TextureAndFamilyRulesAndTheExitStatus) {
    // Rule, texture written, hardpoint in the main file, connected file written.
    const std::tuple<const char*, bool, bool, bool> rows[] = {
        {"", true, true, true},
        {"texture", false, false, false},
        {"family-hardpoint", true, true, false},
        {"family-hardpoint", true, false, true},
    };
    for (const auto& [rule, texture, mainHardpoint, connectedFile] : rows) {
        SCOPED_TRACE(std::string(rule) + (mainHardpoint ? " main" : " connected"));
        TempDir dir;
        MoxBuilder main = Square();
        if (mainHardpoint)
            Append(main, [](StreamBytes& s) { s.Hardpoint(25, 0); });
        WriteTestFile(dir.file("PLANEF.MOX"), main.Build());
        if (connectedFile)
            WriteTestFile(dir.file("PLANEA.MOX"), Square().Build());
        if (texture)
            WritePcx8(dir.file("PLANE.PCX"), 4, 4, TestIndices(4, 4, 1), TestPalette());
        const ToolRun run = RunTool({"check", "--family", "--json", dir.file("PLANEF.MOX")});
        EXPECT_EQ(run.status, kExitOk);
        EXPECT_EQ(JsonRules(run.out), Rules(rule));
    }

    // Errors give status 1, an unreadable file 2.
    TempDir dir;
    MoxBuilder broken = Square();
    broken.children = {{7, kNoElement}};
    WriteTestFile(dir.file("BROKEN.MOX"), broken.Build());
    const ToolRun run = RunTool({"check", dir.file("BROKEN.MOX")});
    EXPECT_EQ(run.status, kExitFindings);
    EXPECT_NE(run.out.find(": error: element 0: PART(0) names element 7, beyond the 1 elements "
                           "[element-reference]\n"),
              std::string::npos);
    EXPECT_EQ(RunTool({"check", dir.file("NONE.MOX")}).status, kExitFailure);
}

// A plane turned round is set again from the element's polygons.
TEST(ModelCheck, FixPlanesRestoresASpoiledPlane) {
    TempDir dir;
    MoxBuilder model = Square();
    model.planes[0].Z = -kOne;
    WriteTestFile(dir.file("S.MOX"), model.Build());
    const ToolRun run =
        RunTool({"check", "--json", dir.file("S.MOX"), "--fix-planes", dir.file("F.MOX")});
    // No PLANE.PCX lies beside the square: that finding stays.
    EXPECT_EQ(JsonRules(run.out),
              (std::set<std::string>{"facing-against-normal", "texture", "fix-planes"}));
    EXPECT_EQ(Json::parse(run.out).back().at("severity"), "fixed") << run.out;
    EXPECT_EQ(ReadFileBytes(dir.file("F.MOX")),
              SavedBytes(ReadMoxBytes(Square().Build(), "F.MOX", 0)));
}

} // namespace
