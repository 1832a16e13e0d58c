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
#include <tuple>

namespace {

using Bytes = std::vector<uint8_t>;

constexpr std::size_t kBitsPerPixelAt = 3;
constexpr std::size_t kXMinAt = 4;
constexpr std::size_t kYMinAt = 6;
constexpr std::size_t kXMaxAt = 8;
constexpr std::size_t kYMaxAt = 10;
constexpr std::size_t kPlanesAt = 65;
constexpr std::size_t kBytesPerLineAt = 66;

// `file` with the little-endian field of `width` bytes at `at` set to `value`.
Bytes Changed(Bytes file, std::size_t at, int value, int width = 2) {
    file[at] = static_cast<uint8_t>(value & 0xFF);
    if (width == 2)
        file[at + 1] = static_cast<uint8_t>((value >> 8) & 0xFF);
    return file;
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
    const Bytes header = Changed(Bytes(written.begin(), written.begin() + kPcxHeaderBytes),
                                 kBytesPerLineAt, bytesPerLine);
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
        ASSERT_EQ(std::pair(picture.width, picture.height), std::pair(rowSize, c.height));
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
                const PcxImage picture = Picture(EncodePcx24(width, height, rgb, options));
                EXPECT_EQ(std::tie(picture.width, picture.height, picture.rgb),
                          std::tie(width, height, rgb));
            }
        }
    }
}

TEST(PcxReader, CutsA256ColourRunThatCrossesTheEndOfARow) {
    struct Case {
        int width, height, bytesPerLine;
        Bytes data;
        Bytes indices;
    };
    const Case cases[] = {
        // The rest of the run is dropped, the next row starts behind it.
        {4, 2, 4, {0xC6, 5, 1, 2, 3, 4}, {5, 5, 5, 5, 1, 2, 3, 4}},
        // A run starting in the padding writes nothing and x stays.
        {3, 1, 4, {1, 0xC5, 2, 0xC2, 9, 4}, {1, 2, 2, 4}},
        // A run that ends inside the row fills the padding.
        {3, 1, 4, {0xC4, 6}, {6, 6, 6, 6}},
        // A run of length zero writes nothing.
        {2, 1, 2, {0xC0, 9, 7, 8}, {7, 8}},
        // A header wider than its rows cuts at the row end.
        {6, 2, 2, {0xC5, 3, 0xC1, 4, 1}, {3, 3, 4, 1}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE("case " + std::to_string(&c - cases));
        const PcxImage picture = Picture(PaletteFile(c.width, c.height, c.bytesPerLine, c.data));
        EXPECT_EQ(picture.width, c.bytesPerLine);
        EXPECT_EQ(picture.rgb, PaletteColours(c.indices, TestPalette()));
    }
}

TEST(PcxReader, TakesThePaletteFromTheEndOfTheFile) {
    const Bytes file = EncodePcx8(6, 4, TestIndices(6, 4, 3), TestPalette());
    // Bytes between the pixel data and the palette are never reached.
    Bytes spaced = file;
    spaced.insert(spaced.end() - kPcxPaletteBlockBytes, 20, 0xAB);
    EXPECT_EQ(Picture(spaced).rgb, Picture(file).rgb);
}

TEST(PcxReader, RefusesFilesItCannotShowWithTheirMessages) {
    TempDir folder;
    RecordingHost host;
    const std::string path = folder.file("texture.pcx");
    const Bytes palette8 = EncodePcx8(3, 3, TestIndices(3, 3, 1), TestPalette());
    const Bytes trueColour = EncodePcx24(3, 3, TestRgb(3, 3, 1));
    const std::string sorry = "message plain: Sorry, can't load " + path + "!";
    const std::string noPalette = "message exclamation: The PCX that was passed didn't have a "
                                  "256 colour palette! Can't read it!";
    struct Row {
        Bytes file;
        PcxOutcome outcome;
        std::string call; // what the user is shown, if anything
    };
    std::vector<Row> rows;
    Bytes unmarked = palette8;
    unmarked[unmarked.size() - kPcxPaletteBlockBytes] = 0;
    rows.push_back({unmarked, PcxOutcome::NoPalette, noPalette});
    rows.push_back(
        {Bytes(palette8.begin(), palette8.begin() + 700), PcxOutcome::NoPalette, noPalette});
    for (const Bytes& file : {palette8, trueColour}) {
        for (const int depth : {1, 4, 24})
            rows.push_back(
                {Changed(file, kBitsPerPixelAt, depth, 1), PcxOutcome::WrongDepth, sorry});
        // Other plane counts and sizes that are not positive give no picture and no message.
        for (const int planes : {0, 2, 4})
            rows.push_back(
                {Changed(file, kPlanesAt, planes, 1), PcxOutcome::UnsupportedPlanes, ""});
        rows.push_back({Changed(file, kXMaxAt, -5), PcxOutcome::BadSize, ""});
        rows.push_back({Changed(file, kYMinAt, 100), PcxOutcome::BadSize, ""});
        rows.push_back({Changed(file, kBytesPerLineAt, 0), PcxOutcome::BadSize, ""});
        rows.push_back({Changed(file, kBytesPerLineAt, -2), PcxOutcome::BadSize, ""});
        rows.push_back({Changed(file, kYMinAt, -32768), PcxOutcome::Picture, ""});
        // Nor does one that would need more than 256 MB.
        Bytes huge = Changed(Changed(file, kXMinAt, -32768), kXMaxAt, 32767);
        huge = Changed(Changed(Changed(huge, kBytesPerLineAt, 32767), kYMinAt, -32768), kYMaxAt,
                       32767);
        rows.push_back({huge, PcxOutcome::TooLarge, ""});
    }
    for (const Row& row : rows) {
        SCOPED_TRACE("row " + std::to_string(&row - rows.data()));
        EXPECT_EQ(DecodePcx(row.file, path).outcome, row.outcome);
        WriteFileBytes(path, row.file);
        host.calls.clear();
        EXPECT_EQ(LoadPCX(path).has_value(), row.outcome == PcxOutcome::Picture);
        EXPECT_EQ(host.calls, row.call.empty() ? std::vector<std::string>{}
                                               : std::vector<std::string>{row.call});
    }
    host.calls.clear();
    EXPECT_FALSE(LoadPCX(folder.file("missing.pcx")));
    EXPECT_TRUE(host.calls.empty());
}

TEST(PcxReader, SurvivesShortAndLyingFiles) {
    const Bytes palette8 = EncodePcx8(21, 9, TestIndices(21, 9, 2), TestPalette());
    const Bytes trueColour = EncodePcx24(21, 9, TestRgb(21, 9, 2));

    // A header taller than its data: the rows past the data are black.
    const PcxImage tallPicture = Picture(Changed(trueColour, kYMaxAt, 19));
    ASSERT_EQ(tallPicture.height, 20);
    EXPECT_EQ(Bytes(tallPicture.rgb.begin(), tallPicture.rgb.begin() + 21 * 3 * 9),
              TestRgb(21, 9, 2));
    EXPECT_TRUE(std::all_of(tallPicture.rgb.end() - 21 * 3 * 5, tallPicture.rgb.end(),
                            [](uint8_t byte) { return byte == 0; }));
    // In a 256-colour file the palette block is read as pixels first (its bytes of 0xC0 and
    // above as runs), then zeros: index 0.
    const PcxImage tall8Picture = Picture(Changed(palette8, kYMaxAt, 2999));
    ASSERT_EQ(tall8Picture.height, 3000);
    const Bytes rows = Columns(tall8Picture, 21);
    EXPECT_EQ(Bytes(rows.begin(), rows.begin() + 21 * 3 * 9),
              PaletteColours(TestIndices(21, 9, 2), TestPalette()));
    const Bytes blank = PaletteColours(Bytes(22 * 1000, 0), TestPalette());
    EXPECT_TRUE(std::equal(blank.begin(), blank.end(), tall8Picture.rgb.end() - 22 * 3 * 1000));

    // Widths wider than the bytes per line read on into the next plane row, or are cut.
    EXPECT_EQ(Picture(Changed(trueColour, kXMaxAt, 200)).width, 201);
    EXPECT_EQ(Picture(Changed(palette8, kXMaxAt, 200)).width, 22);
}

} // namespace
