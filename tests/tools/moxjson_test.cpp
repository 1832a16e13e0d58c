// The JSON form of a model file: what it holds, that it and a save carry a file through unchanged,
// and how build names a bad value.
#include "moxbuilder.h"
#include "moxjson.h"
#include "moxreader.h"
#include "moxwriter.h"
#include "randommox.h"
#include "recordcompare.h"
#include "recordinghost.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

// Enough generated files to meet every kind, prefix and layout many times over.
constexpr int kGeneratedFiles = 400;

MoxBuilder SmallModel() {
    MoxBuilder builder;
    builder.texture = {'p', 0xE9, '.', 't', 'p', 'c', 0, 0, 0, 0, 0, ' ', ' ', 0};
    builder.parts = {Part{1, 2, 3, 4, 5}};
    builder.nodes = {Node{1, 2, 3, 0}, Node{4, 5, 6, 1}, Node{7, 8, 9, 0}};
    builder.streams = {
        StreamBytes()
            .Raw({0x94, 0x01, 0x05, 0x03, 0x00, 0x20, 0x40, 0x01, 0x70, 0x40, 0x02, 0x30, 0x08,
                  0x00, 0x07})
            .Line(0, 1, 7)
            .GouraudPoly({{1, 9}, {2, 8}})
            .Hardpoint(25, 2)
            .End()
            .bytes,
        StreamBytes().Prefix(150, 2).End().bytes,
    };
    return builder;
}

Json SmallModelJson() {
    return MoxToJson(ReadMoxBytes(SmallModel().Build(), "S.MOX", 0), {"a message"});
}

} // namespace

// The whole text of the form: keys in their order, texture bytes as characters, every entry.
TEST(MoxJson, HoldsEveryFieldInItsFixedForm) {
    EXPECT_EQ(
        SmallModelJson().dump(),
        R"({"format":"skylathe-mox/1","radius":0,)"
        R"("texture":"pé.tpc\u0000\u0000\u0000\u0000\u0000  \u0000","num_parts":2,)"
        R"("num_nodes":3,"num_elements":2,"parts":[{"code":1,"num":2,"x":5,"y":3,"z":4}],)"
        R"("planes":[{"x":0,"y":0,"z":0,"d":0,"f":0},{"x":0,"y":0,"z":0,"d":0,"f":0}],)"
        R"("root":[255,255],"children":[[255,255],[255,255]],"nodes":[{"x":3,"y":1,"z":2,)"
        R"("b":0},{"x":6,"y":4,"z":5,"b":1},{"x":9,"y":7,"z":8,"b":0}],"offsets":[88,117],)"
        R"("elements":[[{"number":0,"cod":148,"flag":1,"type":5,"crn":3,"nodes":[0,1,2],)"
        R"("xmap":[32,112,48],"ymap":[64,64,8],"att1":0,"att2":7},{"number":1,"cod":0,"flag":0,)"
        R"("type":1,"crn":2,"nodes":[0,1],"att1":7},{"number":2,"cod":0,"flag":0,"type":4,)"
        R"("crn":2,"nodes":[1,2],"xmap":[9,8]},{"number":3,"cod":0,"flag":0,"type":2,"crn":1,)"
        R"("nodes":[2],"att1":25}],[{"number":100,"cod":150,"flag":2,"type":255,"crn":0,)"
        R"("nodes":[]}]],"hardpoints":[{"x":0,"y":0,"z":0,"b":0},{"x":9,"y":7,"z":8,"b":0},)"
        R"({"x":0,"y":0,"z":0,"b":0},{"x":0,"y":0,"z":0,"b":0},{"x":0,"y":0,"z":0,"b":0},)"
        R"({"x":0,"y":0,"z":0,"b":0},{"x":0,"y":0,"z":0,"b":0},{"x":0,"y":0,"z":0,"b":0}],)"
        R"("messages":["a message"]})");
}

// Random files of every kind: what a save writes reads back as the same record and saves again
// to the same bytes, and the JSON form builds those bytes too. A save drops NULL entries behind
// display prefixes and a damaged file is read with blank entries, so with those only the bytes
// must stay the same.
TEST(MoxJson, GeneratedFilesSurviveASaveAndTheJsonFormUnchanged) {
    MoxBuilder damaged;
    damaged.streams = {StreamBytes().Raw(std::vector<uint8_t>(1100, 3)).bytes,
                       StreamBytes().End().bytes};
    RecordingHost host;
    for (const bool nulls : {false, true}) {
        std::mt19937 random(nulls ? 99 : 20240601);
        RandomMoxOptions options;
        options.prefixedNulls = nulls;
        for (int file = 0; file <= kGeneratedFiles; ++file) {
            const FileRecord record = ReadMoxBytes(
                file == 0 && nulls ? damaged.Build() : RandomMox(random, options).Build(), "R.MOX",
                0);
            const std::vector<uint8_t> saved = SavedBytes(record);
            const FileRecord again = ReadMoxBytes(saved, "R.MOX", 0);
            const std::string difference = RecordDifference(record, again);
            ASSERT_TRUE(nulls || difference.empty()) << "file " << file << ": " << difference;
            ASSERT_EQ(SavedBytes(again), saved) << "file " << file;
            FileRecord built;
            std::string error;
            ASSERT_TRUE(
                MoxFromJson(Json::parse(MoxToJson(record, {"a message"}).dump(2)), built, error))
                << error;
            ASSERT_EQ(SavedBytes(built), saved) << "file " << file;
        }
    }
}

TEST(MoxJson, RefusesABadValueNamingItsPath) {
    // The value set at a path (a null one erases the key) and the error that names it.
    const std::tuple<const char*, Json, const char*> rows[] = {
        {"/format", "skylathe-mox/2", R"(format: must be "skylathe-mox/1")"},
        {"/radius", nullptr, "radius: missing"},
        {"/radius", 40000, "radius: 40000 is out of range -32768 to 32767"},
        {"/radius", 1.5, "radius: not an integer"},
        {"/texture", "SHORT.TPC", "texture: 9 characters, must be 14"},
        {"/texture", "\u20AC234567890123", "texture: holds a character above U+00FF"},
        {"/num_parts", 3, "parts: 1 entries, num_parts - 1 is 2"},
        {"/planes/1/d", 4294967296,
         "planes[1].d: 4294967296 is out of range -2147483648 to 2147483647"},
        {"/root", Json::array({1}), "root: 1 entries, a root is a pair"},
        {"/children/0", Json::array({1, 2, 3}), "children[0]: not a pair"},
        {"/elements/0/0/nodes/-", 1, "elements[0][0].nodes: 4 entries, crn is 3"},
        {"/elements/0/1/nodes", Json::array({1, 2, 3}),
         "elements[0][1].nodes: 3 entries, type 1 has 2"},
        {"/elements/0/1/cod", 3, "elements[0][1].cod: 3 is not 0 nor 7 to 254"},
        {"/elements/0/1/type", 77, "elements[0][1].type: 77 needs a display code (cod)"},
        {"/elements/1/0/nodes", Json::array({1}),
         "elements[1][0].nodes: 1 entries, type 255 has 0"},
        {"/elements/1", 5, "elements[1]: not a list"},
        {"", Json::array(), "(top): not an object"},
    };
    for (const auto& [path, value, expected] : rows) {
        Json json = SmallModelJson();
        if (value.is_null())
            json.erase(path + 1);
        else
            json[Json::json_pointer(path)] = value;
        FileRecord record;
        record.Radius = 77;
        std::string error;
        EXPECT_FALSE(MoxFromJson(json, record, error)) << expected;
        EXPECT_EQ(error, expected);
        EXPECT_EQ(record.Radius, 77) << "a refused form leaves the record alone";
    }

    // Derived keys may be left out; the counts stand as written.
    Json json = SmallModelJson();
    for (const char* key : {"offsets", "hardpoints", "messages"})
        json.erase(key);
    json["elements"][0][0].erase("number");
    json["num_parts"] = -4;
    json["parts"] = Json::array();
    FileRecord record;
    std::string error;
    ASSERT_TRUE(MoxFromJson(json, record, error)) << error;
    EXPECT_EQ(record.NumParts, -4);
    EXPECT_EQ(ReadMoxBytes(SavedBytes(record), "S.MOX", 0).NumParts, -4);
}
