// moxtool texture: the picture it writes, and the acceptance corpus of real PCX files from other
// programs.
#include "bytefile.h"
#include "moxbuilder.h"
#include "pcxreader.h"
#include "pcxwriter.h"
#include "runtool.h"
#include "tempdir.h"
#include "testpictures.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <tuple>

namespace {

using Bytes = std::vector<uint8_t>;

struct Ppm {
    int width = 0;
    int height = 0;
    Bytes rgb;
};

Ppm ReadPpm(const std::string& path) {
    const Bytes bytes = ReadFileBytes(path);
    std::istringstream header(std::string(bytes.begin(), bytes.end()));
    std::string magic;
    int maxval = 0;
    Ppm ppm;
    header >> magic >> ppm.width >> ppm.height >> maxval;
    if (magic != "P6" || maxval != 255 || !header)
        return {};
    const auto start = static_cast<std::ptrdiff_t>(header.tellg()) + 1;
    ppm.rgb.assign(bytes.begin() + std::min<std::ptrdiff_t>(start, bytes.size()), bytes.end());
    return ppm;
}

TEST(TextureCommand, WritesThePictureTheEditorDecodes) {
    TempDir folder;
    const Bytes file = EncodePcx8(5, 2, TestIndices(5, 2, 4), TestPalette());
    WriteFileBytes(folder.file("in.pcx"), file);

    ASSERT_EQ(RunTool({"texture", folder.file("in.pcx"), folder.file("out.ppm")}).status, 0);
    const Ppm ppm = ReadPpm(folder.file("out.ppm"));
    EXPECT_EQ(std::make_tuple(ppm.width, ppm.height, ppm.rgb),
              std::make_tuple(6, 2, DecodePcx(file, "in.pcx").picture->rgb));

    ASSERT_EQ(RunTool({"texture", folder.file("in.pcx"), folder.file("out.PNG")}).status, 0);
    // The PNG signature and a header of width 6 and height 2.
    const Bytes png = ReadFileBytes(folder.file("out.PNG"));
    EXPECT_EQ(Bytes(png.begin(), png.begin() + std::min<size_t>(png.size(), 24)),
              (Bytes{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13,
                     'I',  'H', 'D', 'R', 0,    0,    0,    6,    0, 0, 0, 2}));
}

// Real files written by other programs. A file that must be refused passes with a non-zero exit;
// a decodable one must match its reference in the reference's columns (a 256-colour picture may
// be wider, by its padding columns).
TEST(TextureCommand, DecodesTheAcceptanceCorpus) {
    const std::filesystem::path corpus = PCX_CORPUS_DIR;
    if (!std::filesystem::is_directory(corpus))
        GTEST_SKIP() << "no PCX corpus at " << corpus;

    TempDir folder;
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(corpus)) {
        const std::filesystem::path in = entry.path();
        if (in.extension() != ".pcx")
            continue;
        ++files;
        const std::string name = in.stem().string();
        SCOPED_TRACE(name);
        const std::string out = folder.file(name + ".ppm");
        const ToolRun run = RunTool({"texture", in.string(), out});
        if (name.rfind("bad_", 0) == 0) {
            EXPECT_EQ(run.status, 2);
            continue;
        }
        ASSERT_EQ(run.status, 0) << run.err;
        const Ppm got = ReadPpm(out);
        const Ppm want = ReadPpm((corpus / (name + ".ref.ppm")).string());
        ASSERT_GT(want.width, 0);
        ASSERT_EQ(got.height, want.height);
        ASSERT_GE(got.width, want.width);
        ASSERT_EQ(got.rgb.size(), static_cast<std::size_t>(got.width * got.height * 3));
        for (int y = 0; y < want.height; ++y) {
            const auto gotRow = got.rgb.begin() + y * got.width * 3;
            const auto wantRow = want.rgb.begin() + y * want.width * 3;
            ASSERT_TRUE(std::equal(wantRow, wantRow + want.width * 3, gotRow)) << "row " << y;
        }
    }
    EXPECT_GT(files, 0);
}

} // namespace
