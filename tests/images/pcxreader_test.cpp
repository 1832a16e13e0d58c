// The PCX reader on files the writer makes, and on files changed byte by byte to be odd, short or
// lying.
#include "bytefile.h"
#include "pcxreader.h"
#include "pcxwriter.h"
#include "recordinghost.h"
#include "tempdir.h"
#include "testpictures.h"

#include <gtest/gtest.h>

#include <iterator>

namespace {

using Bytes = std::vector<uint8_t>;

constexpr std::size_t kBitsPerPixelAt = 3;
constexpr std::size_t kXMinAt = 4;
constexpr std::size_t kYMinAt = 6;
constexpr std::size_t kXMaxAt = 8;
constexpr std::size_t kYMaxAt = 10;
constexpr std::size_t kPlanesAt = 65;
constexpr std::size_t kBytesPerLineAt = 66;

void PutInt16(Bytes& bytes, std::size_t at, int value) {
    bytes[at] = static_cast<uint8_t>(value & 0xFF);
    bytes[at + 1] = static_cast<uint8_t>((value >> 8) & 0xFF);
}

Bytes Joined(std::initializer_list<Bytes> parts) {
    Bytes joined;
    for (const Bytes& part : parts)
        std::copy(part.begin(), part.end(), std::back_inserter(joined));
    return joined;
}

// The first `width` columns of the picture.
Bytes Columns(const PcxImage& picture, int width) {
    Bytes rgb;
    for (int y = 0; y < picture.height; ++y) {
        const auto row = picture.rgb.begin() + static_cast<std::ptrdiff_t>(picture.RowBytes()) * y;
        rgb.insert(rgb.end(), row, row + width * 3);
    }
    return rgb;
}

// A 256-colour file with the writer's header (bytes per line set) and palette around `data`.
Bytes PaletteFile(int width, int height, int bytesPerLine, const Bytes& data) {
    PcxWriteOptions options;
    options.bytesPerLine = bytesPerLine;
    const Bytes written = EncodePcx8(
        width, height, Bytes(static_cast<std::size_t>(width * height), 0), TestPalette(), options);
    Bytes header(written.begin(), written.begin() + kPcxHeaderBytes);
    PutInt16(header, kBytesPerLineAt, bytesPerLine);
    return Joined({header, data, Bytes(written.end() - kPcxPaletteBlockBytes, written.end())});
}

PcxImage Picture(const Bytes& file) {
    PcxResult result = DecodePcx(file, "test.pcx");
    EXPECT_EQ(result.outcome, PcxOutcome::Picture);
    return result.picture.value_or(PcxImage{});
}

TEST(PcxReader, Reads256ColourFilesAsWideAsTheirRows) {
    struct Case {
        int width, height, bytesPerLine;
        uint8_t padding;
    };
    // The writer rounds odd widths up to an even number of bytes per line; the padding columns
    // are part of the picture, in the colour of the padding byte.
    for (const Case c : {Case{1, 1, 0, 0}, Case{5, 3, 0, 0}, Case{64, 64, 0, 0}, Case{79, 20, 0, 0},
                         Case{7, 9, 10, 200}}) {
        SCOPED_TRACE(std::to_string(c.width) + "x" + std::to_string(c.height));
        const Bytes indices = TestIndices(c.width, c.height, 17);
        PcxWriteOptions options;
        options.bytesPerLine = c.bytesPerLine;
        options.padding = c.padding;
        const PcxImage picture =
            Picture(EncodePcx8(c.width, c.height, indices, TestPalette(), options));

        const int rowSize = c.bytesPerLine > 0 ? c.bytesPerLine : c.width + c.width % 2;
        ASSERT_EQ(picture.width, rowSize);
        ASSERT_EQ(picture.height, c.height);
        EXPECT_EQ(Columns(picture, c.width), PaletteColours(indices, TestPalette()));
        for (int x = c.width; x < rowSize; ++x) {
            const Bytes padding(picture.rgb.begin() + x * 3, picture.rgb.begin() + x * 3 + 3);
            EXPECT_EQ(padding, PaletteColours({c.padding}, TestPalette()));
        }
    }
}

TEST(PcxReader, ReadsTrueColourFilesWhereverTheRunsEnd) {
    for (const PcxRuns runs : {PcxRuns::WithinPlaneRows, PcxRuns::AcrossLines}) {
        for (const int bytesPerLine : {0, 40}) {
            for (const auto& [width, height] : {std::pair{1, 1}, {23, 42}, {31, 7}, {64, 64}}) {
                SCOPED_TRACE(std::to_string(width) + "x" + std::to_string(height));
                const Bytes rgb = TestRgb(width, height, 5);
                PcxWriteOptions options;
                options.runs = runs;
                options.bytesPerLine = bytesPerLine;
                options.padding = 0xEE;
                const Bytes file = EncodePcx24(width, height, rgb, options);
                const PcxImage picture = Picture(file);
                EXPECT_EQ(picture.width, width);
                EXPECT_EQ(picture.height, height);
                EXPECT_EQ(picture.rgb, rgb);
            }
        }
    }
}

TEST(PcxReader, CutsA256ColourRunThatCrossesTheEndOfARow) {
    struct Case {
        const char* what;
        int width, height, bytesPerLine;
        Bytes data;
        Bytes indices;
    };
    const Case cases[] = {
        {"the rest of the run is dropped, the next row starts behind it",
         4,
         2,
         4,
         {0xC6, 5, 1, 2, 3, 4},
         {5, 5, 5, 5, 1, 2, 3, 4}},
        {"a run starting in the padding writes nothing and x stays",
         3,
         1,
         4,
         {1, 0xC5, 2, 0xC2, 9, 4},
         {1, 2, 2, 4}},
        {"a run that ends inside the row fills the padding", 3, 1, 4, {0xC4, 6}, {6, 6, 6, 6}},
        {"a run of length zero writes nothing", 2, 1, 2, {0xC0, 9, 7, 8}, {7, 8}},
        {"a header wider than its rows cuts at the row end",
         6,
         2,
         2,
         {0xC5, 3, 0xC1, 4, 1},
         {3, 3, 4, 1}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const PcxImage picture = Picture(PaletteFile(c.width, c.height, c.bytesPerLine, c.data));
        EXPECT_EQ(picture.width, c.bytesPerLine);
        EXPECT_EQ(picture.rgb, PaletteColours(c.indices, TestPalette()));
    }
}

TEST(PcxReader, TakesThePaletteFromTheEndOfTheFile) {
    const Bytes indices = TestIndices(6, 4, 3);
    const Bytes file = EncodePcx8(6, 4, indices, TestPalette());

    // Bytes between the pixel data and the palette are never reached.
    Bytes spaced = file;
    spaced.insert(spaced.end() - kPcxPaletteBlockBytes, 20, 0xAB);
    EXPECT_EQ(Picture(spaced).rgb, Picture(file).rgb);

    // Pixel data that stops early is made up from what follows: the palette block, then zeros.
    const Bytes cut = Joined({Bytes(file.begin(), file.begin() + kPcxHeaderBytes + 3),
                              Bytes(file.end() - kPcxPaletteBlockBytes, file.end())});
    const PcxImage early = Picture(cut);
    EXPECT_EQ(early.width, 6);
    EXPECT_EQ(early.height, 4);
}

TEST(PcxReader, RefusesFilesItCannotShowWithTheirMessages) {
    TempDir folder;
    RecordingHost host;
    const Bytes palette8 = EncodePcx8(3, 3, TestIndices(3, 3, 1), TestPalette());
    auto load = [&](const Bytes& bytes) {
        const std::string path = folder.file("texture.pcx");
        WriteFileBytes(path, bytes);
        host.calls.clear();
        return LoadPCX(path);
    };
    const std::string path = folder.file("texture.pcx");

    for (const uint8_t depth : {1, 4, 24}) {
        Bytes file = palette8;
        file[kBitsPerPixelAt] = depth;
        EXPECT_FALSE(load(file));
        EXPECT_EQ(host.calls,
                  (std::vector<std::string>{"message plain: Sorry, can't load " + path + "!"}));
    }

    const std::string noPalette = "message exclamation: The PCX that was passed didn't have a "
                                  "256 colour palette! Can't read it!";
    Bytes unmarked = palette8;
    unmarked[unmarked.size() - kPcxPaletteBlockBytes] = 0;
    const Bytes tooShort(palette8.begin(), palette8.begin() + 700);
    for (const Bytes& file : {unmarked, tooShort}) {
        EXPECT_FALSE(load(file));
        EXPECT_EQ(host.calls, std::vector<std::string>{noPalette});
    }

    // Other plane counts give no picture and no message, whatever the file holds.
    for (const uint8_t planes : {0, 2, 4}) {
        Bytes file = palette8;
        file[kPlanesAt] = planes;
        EXPECT_FALSE(load(file));
        EXPECT_TRUE(host.calls.empty());
    }
    host.calls.clear();
    EXPECT_FALSE(LoadPCX(folder.file("missing.pcx")));
    EXPECT_TRUE(host.calls.empty());
}

TEST(PcxReader, SurvivesShortAndLyingFiles) {
    const Bytes palette8 = EncodePcx8(21, 9, TestIndices(21, 9, 2), TestPalette());
    const Bytes trueColour = EncodePcx24(21, 9, TestRgb(21, 9, 2));

    // A header taller than its data: the rows past the data are black.
    Bytes tall = trueColour;
    PutInt16(tall, kYMaxAt, 19);
    const PcxImage tallPicture = Picture(tall);
    ASSERT_EQ(tallPicture.height, 20);
    EXPECT_EQ(Bytes(tallPicture.rgb.begin(), tallPicture.rgb.begin() + 21 * 3 * 9),
              TestRgb(21, 9, 2));
    EXPECT_TRUE(std::all_of(tallPicture.rgb.end() - 21 * 3 * 5, tallPicture.rgb.end(),
                            [](uint8_t byte) { return byte == 0; }));
    // In a 256-colour file the palette block is read as pixels first (its bytes of 0xC0 and
    // above as runs), then zeros: index 0.
    Bytes tall8 = palette8;
    PutInt16(tall8, kYMaxAt, 2999);
    const PcxImage tall8Picture = Picture(tall8);
    ASSERT_EQ(tall8Picture.height, 3000);
    const Bytes rows = Columns(tall8Picture, 21);
    EXPECT_EQ(Bytes(rows.begin(), rows.begin() + 21 * 3 * 9),
              PaletteColours(TestIndices(21, 9, 2), TestPalette()));
    const Bytes blank = PaletteColours(Bytes(22 * 1000, 0), TestPalette());
    EXPECT_TRUE(std::equal(blank.begin(), blank.end(), tall8Picture.rgb.end() - 22 * 3 * 1000));

    // Widths wider than the bytes per line read on into the next plane row, or are cut.
    Bytes wide = trueColour;
    PutInt16(wide, kXMaxAt, 200);
    EXPECT_EQ(Picture(wide).width, 201);
    Bytes wide8 = palette8;
    PutInt16(wide8, kXMaxAt, 200);
    EXPECT_EQ(Picture(wide8).width, 22);

    // Sizes that are not positive, or would need more than 256 MB, give no picture and no message.
    struct Lie {
        std::size_t at;
        int value;
        PcxOutcome outcome;
    };
    for (const Bytes* file : {&palette8, &trueColour}) {
        for (const Lie lie :
             {Lie{kXMaxAt, -5, PcxOutcome::BadSize}, Lie{kYMinAt, 100, PcxOutcome::BadSize},
              Lie{kBytesPerLineAt, 0, PcxOutcome::BadSize},
              Lie{kBytesPerLineAt, -2, PcxOutcome::BadSize},
              Lie{kYMinAt, -32768, PcxOutcome::Picture}}) {
            Bytes lying = *file;
            PutInt16(lying, lie.at, lie.value);
            const PcxResult result = DecodePcx(lying, "lying.pcx");
            EXPECT_EQ(result.outcome, lie.outcome);
            EXPECT_TRUE(result.message.empty());
        }
        Bytes huge = *file;
        PutInt16(huge, kXMinAt, -32768);
        PutInt16(huge, kXMaxAt, 32767);
        PutInt16(huge, kBytesPerLineAt, 32767);
        PutInt16(huge, kYMinAt, -32768);
        PutInt16(huge, kYMaxAt, 32767);
        EXPECT_EQ(DecodePcx(huge, "huge.pcx").outcome, PcxOutcome::TooLarge);
    }
}

} // namespace
