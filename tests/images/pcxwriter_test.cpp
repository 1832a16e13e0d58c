// What the PCX writer puts on disk: the header, the runs and the palette block.
#include "bytefile.h"
#include "pcxwriter.h"
#include "tempdir.h"
#include "testpictures.h"

#include <gtest/gtest.h>

namespace {

using Bytes = std::vector<uint8_t>;

constexpr std::size_t kHeaderBytes = 128;

Bytes Data(const Bytes& file, std::size_t trailer) {
    return Bytes(file.begin() + kHeaderBytes, file.end() - static_cast<std::ptrdiff_t>(trailer));
}

TEST(PcxWriter, WritesTheHeaderAndPaletteOfA256ColourFile) {
    // Maker, version, run encoding, bits per pixel, the window 0,0 to 4,2; one plane, six bytes
    // per line; the palette behind its marker ends the file.
    const Bytes file = EncodePcx8(5, 3, Bytes(15, 1), TestPalette());
    ASSERT_GT(file.size(), kHeaderBytes + 769);
    EXPECT_EQ(Bytes(file.begin(), file.begin() + 12), (Bytes{10, 5, 1, 8, 0, 0, 0, 0, 4, 0, 2, 0}));
    EXPECT_EQ(Bytes(file.begin() + 65, file.begin() + 68), (Bytes{1, 6, 0}));
    EXPECT_EQ(file[file.size() - 769], 12);
    const PcxPalette palette = TestPalette();
    EXPECT_TRUE(std::equal(palette.begin(), palette.end(), file.end() - 768));

    const Bytes trueColour = EncodePcx24(5, 3, Bytes(45, 1));
    EXPECT_EQ(Bytes(trueColour.begin() + 65, trueColour.begin() + 68), (Bytes{3, 6, 0}));
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
    Bytes onDisk;
    ASSERT_TRUE(ReadFileBytes(path, onDisk));
    EXPECT_EQ(onDisk, EncodePcx24(2, 2, TestRgb(2, 2, 1)));
    EXPECT_FALSE(WritePcx8(folder.file("missing/x.pcx"), 1, 1, {0}, TestPalette()));
}

} // namespace
