// Writes the starting corpus of every fuzz target: make_fuzz_seeds DIR writes DIR/fuzz_NAME/*.
#include "bytefile.h"
#include "configtext.h"
#include "moxjson.h"
#include "moxreader.h"
#include "pcxreader.h"
#include "pcxwriter.h"
#include "randommox.h"
#include "testpictures.h"

#include <filesystem>
#include <iostream>
#include <random>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

bool WriteSeed(const fs::path& folder, const std::string& name, const std::vector<uint8_t>& bytes) {
    return WriteFileBytes((folder / name).string(), bytes);
}

// 256-colour and 24-bit files with odd widths, padded lines and runs across line ends, and one
// without its palette marker; the fuzzer finds the other depths and plane counts from these.
bool WritePcxSeeds(const fs::path& folder) {
    fs::create_directories(folder);
    PcxWriteOptions padded;
    padded.bytesPerLine = 12;
    padded.padding = 0xC7;
    padded.runs = PcxRuns::AcrossLines;
    const PcxPalette palette = TestPalette();
    std::vector<uint8_t> unmarked = EncodePcx8(7, 5, TestIndices(7, 5, 1), palette);
    unmarked[unmarked.size() - kPcxPaletteBlockBytes] = 0;
    return WriteSeed(folder, "palette.pcx",
                     EncodePcx8(9, 6, TestIndices(9, 6, 2), palette, padded)) &&
           WriteSeed(folder, "rgb.pcx", EncodePcx24(11, 7, TestRgb(11, 7, 1), padded)) &&
           WriteSeed(folder, "no-palette-marker.pcx", unmarked);
}

constexpr int kMoxSeeds = 40;

// Generated model files of every kind, and their JSON form for the build command's reader.
bool WriteMoxSeeds(const fs::path& root) {
    fs::create_directories(root / "fuzz_mox");
    fs::create_directories(root / "fuzz_moxjson");
    std::mt19937 random(1);
    RandomMoxOptions options;
    options.prefixedNulls = true;
    options.longLists = false;
    bool written = true;
    for (int seed = 0; seed < kMoxSeeds; ++seed) {
        const std::vector<uint8_t> bytes = RandomMox(random, options).Build();
        const std::string name = "seed-" + std::to_string(seed);
        const std::string json = MoxToJson(ReadMoxBytes(bytes, "SEED.MOX", 0), {}).dump();
        written = WriteSeed(root / "fuzz_mox", name, bytes) &&
                  WriteSeed(root / "fuzz_moxjson", name, {json.begin(), json.end()}) && written;
    }
    return written;
}

// A configuration as the program writes it, with options away from their defaults, and project
// files as the program writes them and as people edit them.
bool WriteTextSeeds(const fs::path& root) {
    ProgramState state;
    state.RecentModels[0] = "/models/with blanks/PLANEF.MOX";
    state.LineColour = {0, 7, 255};
    state.IncrementalSave = false;
    const std::vector<std::pair<std::string, std::string>> seeds = {
        {"fuzz_config/written", ConfigText(state)},
        {"fuzz_project/family",
         "Type=MOX\r\nF=SHIPF.MOX\r\nA=SHIPA.MOX\r\nB=NONE\r\n\r\nSpan=1200\r\nLength=-32768\r\n"
         "TopLeftZ=7\r\nTop=top.pcx\r\nFront=front=1.pcx\r\nNotes=chord 2.1 m\r\n\r\nlast\r\n"},
        {"fuzz_project/tolerant",
         "notakey=1\nbottom=under.pcx\nspan= -12 \n\nf=TMOD1H.MOX\rb=TMOD1L.MOX"
         "\r\ntype=MOX TMOD\r\ntopleftz=+5\r\nNOTES=\xe9t\n\nb"},
        {"fuzz_project/no-equals", "Type=MOX\r\nF=SHIPF.MOX\r\njust words\r\nSpan=3\r\n"},
    };
    bool written = true;
    for (const auto& [name, text] : seeds) {
        fs::create_directories((root / name).parent_path());
        written = WriteSeed(root, name, {text.begin(), text.end()}) && written;
    }
    return written;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: make_fuzz_seeds DIR\n";
        return 2;
    }
    const fs::path root = argv[1];
    fs::create_directories(root);
    if (!WriteMoxSeeds(root) || !WritePcxSeeds(root / "fuzz_pcx") || !WriteTextSeeds(root)) {
        std::cerr << "make_fuzz_seeds: cannot write the seeds under " << root << "\n";
        return 1;
    }
    return 0;
}
