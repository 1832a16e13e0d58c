// The .mox writer: the bytes it writes, how it packs the streams, and how it keeps an old file
// whole when a save cannot be completed.
#include "elementkind.h"
#include "moxbuilder.h"
#include "moxreader.h"
#include "moxwriter.h"
#include "recordinghost.h"
#include "tempdir.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <sys/resource.h>

namespace {

FileRecord ReadBack(const std::vector<uint8_t>& bytes) {
    return ReadMoxBytes(bytes, "A.MOX", 0);
}

// A stream of Coloured Polys `length` bytes long, its closing byte included.
std::vector<uint8_t> StreamOfLength(int length) {
    StreamBytes stream;
    int left = length - 1;
    while (left > 0) {
        const int corners = std::min(left, 255) - 3;
        stream.ColouredPoly(std::vector<uint8_t>(static_cast<size_t>(corners), 0), 1);
        left -= corners + 3;
    }
    return stream.End().bytes;
}

std::vector<std::string> FilesIn(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

TEST(MoxWriter, WritesTheTablesThenTheStreamsBackToBack) {
    MoxBuilder builder;
    builder.radius = 300;
    builder.SetTexture("PLANE.TPC");
    builder.parts = {Part{1, 2, 3, 4, 5}};
    builder.nodes = {Node{1, 2, 3, 0}, Node{4, 5, 6, 1}};
    builder.planes = {NRMRecord{0, 16384, 0, 99, 1}, NRMRecord{16384, 0, 0, -5, 0}};
    builder.root = {1, 255};
    builder.children = {{255, 255}, {0, 255}};
    builder.streams = {
        StreamBytes()
            .Raw({0x94, 0x01, 0x05, 0x03, 0x00, 0x20, 0x40, 0x01, 0x70, 0x40, 0x01, 0x30, 0x08,
                  0x00, 0x07, 0xFF})
            .bytes,
        StreamBytes().Line(0, 1, 7).Hardpoint(25, 1).End().bytes,
    };
    const std::vector<uint8_t> original = builder.Build();
    const std::vector<uint8_t> saved = SavedBytes(ReadBack(original));

    std::vector<uint8_t> expected = original;
    expected.push_back(0x00);
    EXPECT_EQ(saved, expected) << "only the trailing 00 is added";

    builder.trailer = {0x00};
    EXPECT_EQ(SavedBytes(ReadBack(builder.Build())), builder.Build());
}

TEST(MoxWriter, LeavesOutWhatTheReaderAddedForItself) {
    FileRecord record = ReadBack([] {
        MoxBuilder builder;
        builder.nodes = {Node{}};
        builder.streams = {StreamBytes().Line(0, 0, 1).ColouredPoly({0}, 2).End().bytes,
                           StreamBytes().End().bytes};
        return builder.Build();
    }());
    ElementList& list = record.Elements[0];
    // A NULL entry in the middle, a Flag without a display code, a kind no table names.
    list.Items[0].Type = kTypeNull;
    list.Items[1].Flag = 3;
    list.Items[1].Type = 0;
    list.Items[1].XMap = {9, 0};
    list.Items[1].YMap = {8, 0};
    list.Items[1].Att2 = 5;
    record.Elements[1].Count = 0;

    const FileRecord again = ReadBack(SavedBytes(record));
    ASSERT_EQ(again.Elements[0].Count, 1);
    const Piggyback& item = again.Elements[0].Items[0];
    EXPECT_EQ(item.Type, 0);
    EXPECT_EQ(item.Flag, 0);
    EXPECT_EQ(item.XMap, (std::vector<uint8_t>{9, 0}));
    EXPECT_EQ(item.YMap, (std::vector<uint8_t>{8, 0}));
    EXPECT_EQ(item.Att1, 2);
    EXPECT_EQ(item.Att2, 5);
    EXPECT_EQ(again.Elements[1].Count, 1);
    EXPECT_EQ(again.Elements[1].Items[0].Type, kTypeNull) << "an empty list is written as FF";

    // Behind a display code any Type value reads back as it was.
    list.Items[1].COD = 150;
    list.Items[1].Type = 77;
    EXPECT_EQ(ReadBack(SavedBytes(record)).Elements[0].Items[0].Type, 77);
    EXPECT_EQ(ReadBack(SavedBytes(record)).Elements[0].Items[0].Flag, 3);

    list.Items[1].Type = kTypeNull;
    EXPECT_EQ(ReadBack(SavedBytes(record)).Elements[0].Items[0].Type, kTypeNull);
}

TEST(MoxWriter, CountsThatOutrunTheArraysAreFilledWithZeros) {
    FileRecord record;
    record.NumParts = 3;
    record.NumNodes = 2;
    record.NumElements = 2;
    record.Nodes = {Node{5, 5, 5, 5}};
    Piggyback item;
    item.Type = kTypeTexturedPoly;
    item.CRN = 4;
    item.NodeList = {1};
    record.Elements.resize(1);
    record.Elements[0].Items = {item};
    record.Elements[0].Count = 9;

    const FileRecord again = ReadBack(SavedBytes(record));
    EXPECT_EQ(again.NumParts, 3);
    EXPECT_EQ(again.Parts[1].X, 0);
    EXPECT_EQ(again.Nodes[0].X, 5);
    EXPECT_EQ(again.Nodes[1].X, 0);
    ASSERT_EQ(again.Elements[0].Count, 1);
    EXPECT_EQ(again.Elements[0].Items[0].NodeList, (std::vector<uint8_t>{1, 0, 0, 0, 0}));
    EXPECT_EQ(again.Elements[1].Items[0].Type, kTypeNull);
}

TEST(MoxWriter, StreamsMustStartWithinTheOffsetRange) {
    TempDir dir;
    const std::string target = dir.file("BIG.MOX");
    MoxBuilder builder;
    const int firstStream = 22 + 2 * 12 + 2 + 2 * 2 + 2 * 2;
    builder.streams = {StreamOfLength(kMaxStreamOffset - firstStream), StreamBytes().End().bytes};
    FileRecord record = ReadBack(builder.Build());
    ASSERT_EQ(record.Offsets[1], kMaxStreamOffset);

    RecordingHost host;
    EXPECT_TRUE(SAVE_MOX(record, target));
    EXPECT_EQ(ReadFileBytes(target).size(), static_cast<size_t>(kMaxStreamOffset) + 2);
    EXPECT_TRUE(host.messages.empty());

    const std::vector<uint8_t> before = ReadFileBytes(target);
    record.Elements[0].Items[0].CRN += 1;
    record.Elements[0].Items[0].NodeList.push_back(0);
    EXPECT_FALSE(SAVE_MOX(record, target));
    EXPECT_EQ(host.messages, (std::vector<std::string>{"Error in Save... the streams of element 1 "
                                                       "would start beyond byte 32767"}));
    EXPECT_EQ(ReadFileBytes(target), before) << "nothing is written";
    EXPECT_EQ(FilesIn(dir.path()), (std::vector<std::string>{"BIG.MOX"}));
}

TEST(MoxWriter, AFailedSaveLeavesTheOldFileWhole) {
    TempDir dir;
    const std::string target = dir.file("PLANEF.MOX");
    const std::vector<uint8_t> old(100, 0x5A);
    WriteTestFile(target, old);
    MoxBuilder builder;
    builder.nodes.resize(60);
    builder.streams = {StreamBytes().End().bytes};
    const FileRecord record = ReadBack(builder.Build());
    RecordingHost host;

    // The file system refuses to let any file grow beyond 200 bytes half way through the write.
    rlimit saved{};
    getrlimit(RLIMIT_FSIZE, &saved);
    const auto previous = std::signal(SIGXFSZ, SIG_IGN);
    rlimit small = saved;
    small.rlim_cur = 200;
    setrlimit(RLIMIT_FSIZE, &small);
    const bool written = SAVE_MOX(record, target);
    setrlimit(RLIMIT_FSIZE, &saved);
    std::signal(SIGXFSZ, previous);

    EXPECT_FALSE(written);
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].rfind("Error in Save... cannot write " + target, 0), 0u)
        << host.messages[0];
    EXPECT_EQ(ReadFileBytes(target), old);
    EXPECT_EQ(FilesIn(dir.path()), (std::vector<std::string>{"PLANEF.MOX"}));

    // A target that is a folder cannot be replaced either.
    std::filesystem::create_directory(dir.file("FOLDER.MOX"));
    EXPECT_FALSE(SAVE_MOX(record, dir.file("FOLDER.MOX")));
    EXPECT_EQ(host.messages.size(), 2u);
    EXPECT_TRUE(std::filesystem::is_directory(dir.file("FOLDER.MOX")));
    EXPECT_EQ(FilesIn(dir.path()), (std::vector<std::string>{"FOLDER.MOX", "PLANEF.MOX"}));

    EXPECT_FALSE(SAVE_MOX(record, ""));
    EXPECT_EQ(host.messages.size(), 2u) << "an empty name does nothing";

    EXPECT_TRUE(SAVE_MOX(record, target));
    EXPECT_EQ(ReadFileBytes(target).size(), builder.Build().size() + 1);
}
