// Reading and writing back many generated files: what a save writes reads back as the same
// record, and a second save gives the same bytes as the first.
#include "moxreader.h"
#include "moxwriter.h"
#include "randommox.h"
#include "recordcompare.h"

#include <gtest/gtest.h>

namespace {

constexpr int kFiles = 400;

std::vector<uint8_t> Saved(const FileRecord& record) {
    std::vector<uint8_t> bytes;
    std::string problem;
    EXPECT_TRUE(BuildMoxBytes(record, bytes, problem)) << problem;
    return bytes;
}

} // namespace

TEST(MoxRoundTrip, GeneratedFilesReadBackAsTheSameRecord) {
    std::mt19937 random(20240601);
    for (int file = 0; file < kFiles; ++file) {
        const std::vector<uint8_t> original = RandomMox(random).Build();
        const FileRecord first = ReadMoxBytes(original, "R.MOX", 0);
        const std::vector<uint8_t> saved = Saved(first);
        const FileRecord second = ReadMoxBytes(saved, "R.MOX", 0);
        ASSERT_EQ(RecordDifference(first, second), "") << "file " << file;
        ASSERT_EQ(Saved(second), saved) << "file " << file;
        if (first.NumElements > 0) {
            const int tables = 22 + 8 * std::max(first.NumParts - 1, 0) + 16 * first.NumElements +
                               2 + 8 * first.NumNodes;
            ASSERT_EQ(second.Offsets[0], tables) << "the first stream follows the offset table";
        }
    }
}

TEST(MoxRoundTrip, DroppedNullEntriesLeaveASecondSaveUnchanged) {
    std::mt19937 random(7);
    RandomMoxOptions options;
    options.prefixedNulls = true;
    int dropped = 0;
    for (int file = 0; file < kFiles; ++file) {
        const FileRecord first = ReadMoxBytes(RandomMox(random, options).Build(), "R.MOX", 0);
        const std::vector<uint8_t> saved = Saved(first);
        const FileRecord second = ReadMoxBytes(saved, "R.MOX", 0);
        dropped += RecordDifference(first, second).empty() ? 0 : 1;
        ASSERT_EQ(Saved(second), saved) << "file " << file;
    }
    EXPECT_GT(dropped, 0) << "some files held NULL entries that the save dropped";
}
