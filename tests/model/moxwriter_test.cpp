// The .mox writer: the bytes it writes, how it packs the streams, and how it keeps an old file
// whole when a save cannot be completed.
#include "elementkind.h"
#include "modelfiles.h"
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

} // namespace

TEST(MoxWriter, LeavesOutWhatTheReaderAddedForItself) {
    MoxBuilder builder;
    builder.nodes = {Node{}};
    builder.streams = {StreamBytes().Line(0, 0, 1).ColouredPoly({0}, 2).End().bytes,
                       StreamBytes().End().bytes};
    FileRecord record = ReadBack(builder.Build());
    // A NULL entry in the middle, a Flag without a display code, a kind no table names, and an
    // empty list, which is written as FF.
    record.Elements[0].Items[0].Type = kTypeNull;
    Piggyback& item = record.Elements[0].Items[1];
    item.Flag = 3;
    item.Type = 0;
    item.XMap = {9, 0};
    item.YMap = {8, 0};
    item.Att2 = 5;
    record.Elements[1].Count = 0;
    EXPECT_EQ(Entries(ReadBack(SavedBytes(record))),
              (std::vector<std::string>{"0 0,0, t0 c1 n0,0, x9,0, y8,0, a2,5,",
                                        "100 0,0, t255 c0 n x y a0,0,"}));

    // Behind a display code any Type value reads back as it was.
    item.COD = 150;
    item.Type = 77;
    EXPECT_EQ(Entries(ReadBack(SavedBytes(record)))[0], "0 150,3, t77 c1 n0,0, x9,0, y8,0, a2,5,");
    item.Type = kTypeNull;
    EXPECT_EQ(Entries(ReadBack(SavedBytes(record)))[0], "0 0,0, t255 c0 n x y a0,0,");
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
    record.Elements = {ElementList{{item}, 9}};

    const FileRecord again = ReadBack(SavedBytes(record));
    EXPECT_EQ(Numbers({again.NumParts, again.Parts[1].X, again.Nodes[0].X, again.Nodes[1].X}),
              "3,0,5,0,");
    EXPECT_EQ(Entries(again),
              (std::vector<std::string>{"0 0,0, t5 c4 n1,0,0,0,0, x0,0,0,0,0, y0,0,0,0,0, a0,0,",
                                        "100 0,0, t255 c0 n x y a0,0,"}));
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

    // Tables that end just below the limit leave room for the first stream.
    MoxBuilder tables;
    tables.nodes.resize(4084);
    tables.streams.assign(4, StreamBytes().End().bytes);
    EXPECT_EQ(ReadBack(SavedBytes(ReadBack(tables.Build()))).Offsets[0], 32760);

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
    EXPECT_EQ(FilesIn(dir.path()), (std::vector<std::string>{"FOLDER.MOX", "PLANEF.MOX"}));

    EXPECT_FALSE(SAVE_MOX(record, ""));
    EXPECT_EQ(host.messages.size(), 2u) << "an empty name does nothing";
}
