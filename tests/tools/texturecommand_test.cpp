// moxtool texture run as a program: the picture it writes, its exit status and messages, and the
// acceptance corpus of real PCX files from other programs.
#include "pcxreader.h"
#include "pcxwriter.h"
#include "tempdir.h"
#include "testpictures.h"

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <fstream>
#include <iterator>
#include <sstream>

namespace {

using Bytes = std::vector<uint8_t>;

struct ProgramRun {
    int status = -1; // the exit status, or -1 when the program did not exit by itself
    std::string errors;
};

Bytes ReadAll(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return Bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void WriteAll(const std::string& path, const Bytes& bytes) {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
}

ProgramRun Moxtool(const TempDir& folder, const std::string& words) {
    const std::string errors = folder.file("stderr.txt");
    const std::string command =
        std::string("'") + MOXTOOL_PATH + "' " + words + " >/dev/null 2>'" + errors + "'";
    const int wait = std::system(command.c_str());
    ProgramRun run;
    if (wait != -1 && WIFEXITED(wait))
        run.status = WEXITSTATUS(wait);
    const Bytes text = ReadAll(errors);
    run.errors.assign(text.begin(), text.end());
    return run;
}

std::string Texture(const std::string& in, const std::string& out) {
    return "texture '" + in + "' '" + out + "'";
}

struct Ppm {
    int width = 0;
    int height = 0;
    Bytes rgb;
};

Ppm ReadPpm(const std::string& path) {
    const Bytes bytes = ReadAll(path);
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
    const Bytes indices = TestIndices(5, 2, 4);
    const Bytes file = EncodePcx8(5, 2, indices, TestPalette());
    WriteAll(folder.file("in.pcx"), file);

    ASSERT_EQ(Moxtool(folder, Texture(folder.file("in.pcx"), folder.file("out.ppm"))).status, 0);
    const Ppm ppm = ReadPpm(folder.file("out.ppm"));
    EXPECT_EQ(ppm.width, 6);
    EXPECT_EQ(ppm.height, 2);
    EXPECT_EQ(ppm.rgb, DecodePcx(file, "in.pcx").picture->rgb);

    ASSERT_EQ(Moxtool(folder, Texture(folder.file("in.pcx"), folder.file("out.PNG"))).status, 0);
    const Bytes png = ReadAll(folder.file("out.PNG"));
    ASSERT_GT(png.size(), 24u);
    EXPECT_EQ(Bytes(png.begin() + 1, png.begin() + 4), (Bytes{'P', 'N', 'G'}));
    EXPECT_EQ(png[19], 6); // IHDR width, big-endian
    EXPECT_EQ(png[23], 2); // IHDR height
}

TEST(TextureCommand, ExitsWithStatus2WhenNoPictureResults) {
    TempDir folder;
    Bytes file = EncodePcx8(3, 3, TestIndices(3, 3, 1), TestPalette());
    const std::string out = folder.file("out.ppm");

    file[3] = 4;
    WriteAll(folder.file("deep.pcx"), file);
    ProgramRun run = Moxtool(folder, Texture(folder.file("deep.pcx"), out));
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.errors.find("Sorry, can't load " + folder.file("deep.pcx") + "!"),
              std::string::npos);

    file[3] = 8;
    file[65] = 4;
    WriteAll(folder.file("planes.pcx"), file);
    EXPECT_EQ(Moxtool(folder, Texture(folder.file("planes.pcx"), out)).status, 2);
    EXPECT_EQ(Moxtool(folder, Texture(folder.file("missing.pcx"), out)).status, 2);
    EXPECT_FALSE(std::filesystem::exists(out));

    file[65] = 1;
    WriteAll(folder.file("good.pcx"), file);
    EXPECT_EQ(Moxtool(folder, Texture(folder.file("good.pcx"), folder.file("out.bmp"))).status, 2);
    EXPECT_EQ(Moxtool(folder, "texture").status, 2);
    EXPECT_EQ(Moxtool(folder, "texture --help").status, 0);
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
        const ProgramRun run = Moxtool(folder, Texture(in.string(), out));
        if (name.rfind("bad_", 0) == 0) {
            EXPECT_EQ(run.status, 2);
            continue;
        }
        ASSERT_EQ(run.status, 0) << run.errors;
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
