// What the PCX writer puts on disk: the header, the runs and the palette block.
#include "pcxwriter.h"
#include "tempdir.h"
#include "testpictures.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace {

using Bytes = std::vector<uint8_t>;

constexpr std::size_t kHeaderBytes = 128;

int Int16At(const Bytes& bytes, std::size_t at) {
    return static_cast<int16_t>(bytes[at] | (bytes[at + 1] << 8));
}

Bytes Data(const Bytes& file, std::size_t trailer) {
    return Bytes(file.begin() + kHeaderBytes, file.end() - static_cast<std::ptrdiff_t>(trailer));
}

TEST(PcxWriter, WritesTheHeaderAndPaletteOfA256ColourFile) {
    const Bytes file = EncodePcx8(5, 3, Bytes(15, 1), TestPalette());
    ASSERT_GT(file.size(), kHeaderBytes + 769);
    EXPECT_EQ(file[0], 10);
    EXPECT_EQ(file[1], 5);
    EXPECT_EQ(file[2], 1);
    EXPECT_EQ(file[3], 8);
    EXPECT_EQ(Int16At(file, 4), 0);
    EXPECT_EQ(Int16At(file, 6), 0);
    EXPECT_EQ(Int16At(file, 8), 4);
    EXPECT_EQ(Int16At(file, 10), 2);
    EXPECT_EQ(file[65], 1);
    EXPECT_EQ(Int16At(file, 66), 6);
    EXPECT_EQ(file[file.size() - 769], 12);
    const PcxPalette palette = TestPalette();
    EXPECT_TRUE(std::equal(palette.begin(), palette.end(), file.end() - 768));

    const Bytes trueColour = EncodePcx24(5, 3, Bytes(45, 1));
    EXPECT_EQ(trueColour[65], 3);
    EXPECT_EQ(Int16At(trueColour, 66), 6);
}

TEST(PcxWriter, EncodesRunsPerPlaneRowOrAcrossLines) {
    // Three rows of four pixels of 7, bytes per line 4.
    const Bytes sevens(12, 7);
    EXPECT_EQ(Data(EncodePcx8(4, 3, sevens, TestPalette()), 769),
              (Bytes{0xC4, 7, 0xC4, 7, 0xC4, 7}));
    PcxWriteOptions across;
    across.runs = PcxRuns::AcrossLines;
    EXPECT_EQ(Data(EncodePcx8(4, 3, sevens, TestPalette(), across), 769), (Bytes{0xCC, 7}));

    // A single byte of 0xC0 or above must be written as a run of one; padding is written too.
    PcxWriteOptions padded;
    padded.bytesPerLine = 4;
    padded.padding = 9;
    EXPECT_EQ(Data(EncodePcx8(3, 1, {0xBF, 0xC0, 0xFF}, TestPalette(), padded), 769),
              (Bytes{0xBF, 0xC1, 0xC0, 0xC1, 0xFF, 9}));

    // Runs longer than 63 are split; true colour writes a red, a green and a blue plane row.
    EXPECT_EQ(Data(EncodePcx8(70, 1, Bytes(70, 2), TestPalette()), 769), (Bytes{0xFF, 2, 0xC7, 2}));
    EXPECT_EQ(Data(EncodePcx24(2, 1, {1, 2, 3, 1, 2, 3}), 0), (Bytes{0xC2, 1, 0xC2, 2, 0xC2, 3}));
}

TEST(PcxWriter, RefusesSizesAHeaderCannotHoldAndWritesFiles) {
    EXPECT_TRUE(EncodePcx8(0, 1, {}, TestPalette()).empty());
    EXPECT_TRUE(EncodePcx8(2, 2, Bytes(3), TestPalette()).empty());
    EXPECT_TRUE(EncodePcx24(kMaxPcxSide + 1, 1, Bytes((kMaxPcxSide + 1) * 3), {}).empty());
    EXPECT_TRUE(EncodePcx24(1, -1, {}).empty());

    TempDir folder;
    const std::string path = folder.file("drawing.pcx");
    ASSERT_TRUE(WritePcx24(path, 2, 2, TestRgb(2, 2, 1)));
    std::ifstream in(path, std::ios::binary);
    const Bytes onDisk{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    EXPECT_EQ(onDisk, EncodePcx24(2, 2, TestRgb(2, 2, 1)));
    EXPECT_FALSE(WritePcx8(folder.file("missing/x.pcx"), 1, 1, {0}, TestPalette()));
}

} // namespace
