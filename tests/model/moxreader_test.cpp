// The .mox reader: layout of the tables, the walk of the streams and the nodes an entry's Number
// finds, hardpoints, damaged files and the texture lookup.
#include "modelfiles.h"
#include "moxbuilder.h"
#include "moxreader.h"
#include "piggybacknumber.h"
#include "programstate.h"
#include "recordinghost.h"
#include "recordingtextureloader.h"
#include "tempdir.h"
#include "texturepath.h"

#include <gtest/gtest.h>

namespace {

// Nodes n at Y n, Z 2n, X 3n, in body n % 3.
std::vector<Node> CountingNodes(int count) {
    std::vector<Node> nodes;
    for (int n = 0; n < count; ++n)
        nodes.push_back(Node{static_cast<int16_t>(n), static_cast<int16_t>(2 * n),
                             static_cast<int16_t>(3 * n), static_cast<int16_t>(n % 3)});
    return nodes;
}

FileRecord Read(const MoxBuilder& builder, int16_t index = 0) {
    return ReadMoxBytes(builder.Build(), "/models/PLANEF.MOX", index);
}

} // namespace

TEST(MoxReader, ReadsTheTablesAndEveryKindAndNumbersTheEntries) {
    MoxBuilder builder;
    builder.radius = -1234;
    builder.SetTexture("PLANE.TPC");
    builder.parts = {Part{1, 2, 3, 4, 5}, Part{2, 7, -3, -4, -5}};
    builder.nodes = CountingNodes(8);
    builder.planes = {{}, NRMRecord{16384, 1, 2, -70000, 12}};
    builder.root = {0, 255};
    builder.children = {{255, 7}, {1, 0}};
    builder.streams = {
        StreamBytes().End().bytes,
        StreamBytes()
            .Line(1, 2, 40)
            .Prefix(7, 3)
            .Hardpoint(30, 4)
            .ColouredPoly({1, 2, 8}, 9) // node 8 is beyond the nodes
            .GouraudPoly({{1, 11}, {2, 12}})
            .MappedPoly(6, {{1, 2, 3}}, 4, 5)
            .MappedPoly(0, {}, 6, 7) // a first byte of 0 is read like a Textured Poly
            .Prefix(200, 9)
            .MappedPoly(150, {{7, 8, 9}}, 1, 2) // behind a Flag any byte is a Type
            .End()
            .bytes,
    };
    ResetProgramState();
    RecordingHost host;
    const FileRecord record = Read(builder, 3);

    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(record.Filename + " " + TextureFileName(record.Texture),
              "/models/PLANEF.MOX PLANE.PCX");
    const Part& part = record.Parts[1];
    const NRMRecord& plane = record.NRM[1];
    const Node& node = record.Nodes[7];
    // Loaded, Index, the project's Type, Radius; a part; a plane; the tree; a node.
    EXPECT_EQ(Numbers({record.Loaded, record.Index, Program().ProjectData.Type, record.Radius,
                       record.NumParts, part.Code, part.Num, part.Y, part.Z, part.X}) +
                  Numbers({plane.Y, plane.Z, plane.X, plane.D, plane.F, record.Root[0],
                           record.Root[1], record.PART[0][0], record.PART[0][1]}) +
                  Numbers({record.PART[1][0], record.PART[1][1], node.Y, node.Z, node.X, node.B}),
              "1,3,1,-1234,3,2,7,-3,-4,-5,16384,1,2,-70000,12,0,255,255,7,1,0,7,14,21,1,");

    EXPECT_EQ(Entries(record), (std::vector<std::string>{
                                   "0 0,0, t255 c0 n x y a0,0,",
                                   "100 0,0, t1 c2 n1,2,0, x y a40,0,",
                                   "101 7,3, t2 c1 n4,0, x y a30,0,",
                                   "102 0,0, t3 c3 n1,2,8,0, x y a9,0,",
                                   "103 0,0, t4 c2 n1,2,0, x11,12,0, y a0,0,",
                                   "104 0,0, t6 c1 n1,0, x2,0, y3,0, a4,5,",
                                   "105 0,0, t0 c0 n x y a6,7,",
                                   "106 200,9, t150 c1 n7,0, x8,0, y9,0, a1,2,",
                               }));
    EXPECT_EQ(record.Elements[0].Items[0].NextByte, 255);

    // An entry's Number finds its nodes, and nothing the file does not hold.
    Node found;
    ASSERT_TRUE(GetElementNode(record, 102, 1, found));
    EXPECT_EQ(found.X, 6);
    EXPECT_FALSE(GetElementNode(record, 102, 2, found)) << "node 8 lies outside Nodes";
    EXPECT_EQ(FindPiggyback(record, 107), nullptr) << "no piggyback at position 7";
    EXPECT_FALSE(GetElementNode(record, 200, 0, found)) << "no element 2";
    EXPECT_FALSE(GetElementNode(record, -1, 0, found));
}

TEST(MoxReader, HardpointsFillTheirSlotsTheLaterWinning) {
    MoxBuilder builder;
    builder.nodes = CountingNodes(10);
    builder.streams = {
        StreamBytes().Hardpoint(25, 1).Hardpoint(26, 2).Hardpoint(30, 3).End().bytes,
        StreamBytes()
            .Hardpoint(25, 4)
            .Hardpoint(27, 5)
            .Hardpoint(28, 6)
            .Hardpoint(29, 7)
            .Hardpoint(10, 8)
            .Hardpoint(26, 200)
            .End()
            .bytes,
    };
    const FileRecord record = Read(builder);
    const int expected[] = {0, 4, 2, 5, 6, 7, 8, 0};
    for (int slot = 0; slot < kFileSlots; ++slot)
        EXPECT_EQ(record.HP[slot].Y, expected[slot]) << "slot " << slot;
    EXPECT_EQ(record.HP[1].X, 12);
    EXPECT_EQ(record.Elements[0].Items[2].Att1, 30) << "code 30 stays an ordinary entry";
}

TEST(MoxReader, DamagedStreamsEndAtTheEntryLimit) {
    MoxBuilder builder;
    builder.streams = {
        StreamBytes().Line(0, 0, 0).End().bytes,
        StreamBytes().Raw(std::vector<uint8_t>(300 * 4, 1)).bytes, // no closing byte in sight
        StreamBytes().Line(1, 1, 1).End().bytes,
        StreamBytes().End().bytes,
    };
    RecordingHost host;
    const FileRecord record = Read(builder);

    EXPECT_EQ(host.messages, (std::vector<std::string>{
                                 "Error in MOX file.  Around element number: 1",
                                 "Error in MOX file.  Around element number: 2",
                                 "Error in MOX file.  Around element number: 3",
                             }));
    EXPECT_TRUE(record.Loaded);
    for (const int i : {2, 3}) {
        ASSERT_EQ(record.Elements[i].Count, 1);
        EXPECT_EQ(record.Elements[i].Items[0].Number, i * 100);
    }

    // The damaged element holds the entries the limit let in, read on from the open stream; each
    // later one a blank entry (kind 0, no corners); a resave writes them all.
    StreamBytes lines;
    for (int j = 0; j < 256; ++j)
        lines.Line(1, 1, 1);
    const std::vector<uint8_t> blank = StreamBytes().MappedPoly(0, {}, 0, 0).End().bytes;
    builder.streams = {builder.streams[0], lines.End().bytes, blank, blank};
    builder.trailer = {0x00};
    EXPECT_EQ(SavedBytes(record), builder.Build());
}

TEST(MoxReader, ReadsBeyondTheEndGiveZeros) {
    MoxBuilder builder;
    builder.nodes = CountingNodes(4);
    builder.streams = {StreamBytes().End().bytes};
    std::vector<uint8_t> bytes = builder.Build();
    bytes.resize(22 + 12 + 2 + 2 + 8 + 2); // cut inside the second node
    const FileRecord record = ReadMoxBytes(bytes, "CUT.MOX", 0);
    EXPECT_EQ(Numbers({record.Nodes[1].Y, record.Nodes[3].X, record.Offsets[0], record.Loaded}),
              "1,0,0,1,");

    RecordingHost host;
    // An offset outside the file, negative or past its end, reads only zeros.
    for (const int16_t offset : {-2, 32767}) {
        builder.offsetOverrides = {{0, offset}};
        EXPECT_EQ(Read(builder).Elements[0].Count, 256) << offset;
    }
    EXPECT_EQ(host.messages.size(), 2u);
}

TEST(MoxReader, AHostileFileHoldsABoundedNumberOfEntries) {
    // Every element shares one stream of 255 entries; once the record holds 64 full lists' worth
    // it stops growing and each further element holds one blank entry.
    StreamBytes shared;
    for (int j = 0; j < 254; ++j)
        shared.Raw({4, 0});
    shared.Raw({4, 0}).End();
    MoxBuilder builder;
    builder.streams = {shared.bytes};
    builder.numElements = 400;
    const int16_t start = 22 + 400 * 12 + 2 + 400 * 2 + 400 * 2;
    for (int i = 0; i < 400; ++i)
        builder.offsetOverrides[i] = start;
    const std::vector<uint8_t> bytes = builder.Build();
    RecordingHost host;
    const FileRecord record = ReadMoxBytes(bytes, "BIG.MOX", 0);

    EXPECT_EQ(Numbers({record.Elements[63].Count, record.Elements[64].Count,
                       record.Elements[65].Count, record.Elements[399].Count}),
              Numbers({255, 64 * 256 - 64 * 255, 1, 1}));
    ASSERT_EQ(host.messages.size(), 400u - 64u);
    EXPECT_EQ(host.messages.front(), "Error in MOX file.  Around element number: 64");

    // A header alone that counts the most of everything still reads to a record of bounded size.
    std::vector<uint8_t> header(22, 0x7F);
    const FileRecord most = ReadMoxBytes(header, "MOST.MOX", 0);
    ASSERT_EQ(most.Elements.size(), 0x7F7Fu + 1);
    size_t entries = 0;
    for (const ElementList& list : most.Elements)
        entries += static_cast<size_t>(list.Count);
    EXPECT_LE(entries, static_cast<size_t>(kMaxEntriesPerRecord) + 0x7F7Fu);
    EXPECT_EQ(record.Elements[300].Items[0].Number, 30000);
    EXPECT_EQ(record.Elements[330].Items[0].Number, 0) << "33000 does not fit 16 bits";

    // Elements that share a short stream each hold all its entries, under numbers of their own.
    builder.streams = {StreamBytes().Line(1, 2, 3).Line(4, 5, 6).End().bytes};
    const FileRecord many = ReadMoxBytes(builder.Build(), "MANY.MOX", 0);
    EXPECT_EQ(Numbers({many.Elements[1].Items[1].Number, many.Elements[327].Items[1].Number,
                       many.Elements[328].Items[0].Number, many.Elements[399].Items[1].Att1,
                       many.Elements[399].Count}),
              Numbers({101, 32701, 0, 6, 2}));
}

TEST(MoxReader, FindsTheTextureInTheModelsFolderWhateverItsCase) {
    TempDir dir;
    MoxBuilder builder;
    builder.SetTexture("plane.tpc  ");
    WriteTestFile(dir.file("PLANEF.MOX"), builder.Build());
    RecordingTextureLoader loader;
    RecordingHost host;
    // Without a texture file the upper-cased name is asked for; with one, its own name.
    for (const std::string present : {"", "plane.pcx", "PLANE.PCX"}) {
        if (!present.empty())
            WriteTestFile(dir.file(present), {});
        const FileRecord record = READ_MOX(dir.file("PLANEF.MOX"), 4);
        EXPECT_EQ(loader.requests.back().path, dir.file(present.empty() ? "PLANE.PCX" : present));
        EXPECT_EQ(loader.requests.back().slot, 4);
        EXPECT_EQ(record.TextureID, static_cast<int32_t>(loader.requests.size()))
            << "the loader's texture";
        EXPECT_EQ(record.PointStep, 0.125f) << "the loader's point size step";
    }
    EXPECT_EQ(loader.requests.size(), 3u);
    EXPECT_TRUE(host.messages.empty());

    loader.answer = false;
    EXPECT_TRUE(READ_MOX(dir.file("PLANEF.MOX"), 0).Loaded);
    EXPECT_EQ(host.messages,
              (std::vector<std::string>{"Cannot load texture. Must be a PCX file!"}));
}

TEST(MoxReader, TheTextureNameIsUpperCasedAndEndsAtItsFiller) {
    const auto name = [](const std::string& stored) {
        TextureName texture{};
        std::copy(stored.begin(), stored.end(), texture.begin());
        return TextureFileName(texture);
    };
    EXPECT_EQ(name("plane.tpc"), "PLANE.PCX");
    EXPECT_EQ(name("a.tpc.tpc   "), "A.PCX.PCX");
    EXPECT_EQ(name(std::string("wing.pcx\0junk", 13)), "WING.PCX");
    EXPECT_EQ(name("caf\xE9.tpc"), "CAF\xC3\xA9.PCX") << "Latin-1 in, UTF-8 out";
    EXPECT_EQ(name("              "), "");
    EXPECT_EQ(TexturePath("C:\\m\\plane.mox", TextureName{'t', '.', 't', 'p', 'c'}), "C:\\m\\T.PCX")
        << "the folder is kept as written";
}
