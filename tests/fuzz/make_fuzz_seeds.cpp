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

constexpr int kMoxSeeds = 40;

// Each seed's path under DIR and its bytes.
using Seeds = std::vector<std::pair<std::string, std::vector<uint8_t>>>;

Seeds AllSeeds() {
    // 256-colour and 24-bit files with odd widths, padded lines and runs across line ends, and one
    // without its palette marker; the fuzzer finds the other depths and plane counts from these.
    PcxWriteOptions padded;
    padded.bytesPerLine = 12;
    padded.padding = 0xC7;
    padded.runs = PcxRuns::AcrossLines;
    std::vector<uint8_t> unmarked = EncodePcx8(7, 5, TestIndices(7, 5, 1), TestPalette());
    unmarked[unmarked.size() - kPcxPaletteBlockBytes] = 0;
    Seeds seeds = {
        {"fuzz_pcx/palette.pcx", EncodePcx8(9, 6, TestIndices(9, 6, 2), TestPalette(), padded)},
        {"fuzz_pcx/rgb.pcx", EncodePcx24(11, 7, TestRgb(11, 7, 1), padded)},
        {"fuzz_pcx/no-palette-marker.pcx", unmarked}};

    // Generated model files of every kind, and their JSON form for the build command's reader.
    std::mt19937 random(1);
    RandomMoxOptions options;
    options.prefixedNulls = true;
    options.longLists = false;
    for (int seed = 0; seed < kMoxSeeds; ++seed) {
        const std::vector<uint8_t> bytes = RandomMox(random, options).Build();
        const std::string name = "/seed-" + std::to_string(seed);
        seeds.push_back({"fuzz_mox" + name, bytes});
        const std::string json = MoxToJson(ReadMoxBytes(bytes, "SEED.MOX", 0), {}).dump();
        seeds.push_back({"fuzz_moxjson" + name, {json.begin(), json.end()}});
    }

    // A configuration as the program writes it, with options away from their defaults, and
    // project files as the program writes them and as people edit them.
    ProgramState state;
    state.RecentModels[0] = "/models/with blanks/PLANEF.MOX";
    state.LineColour = {0, 7, 255};
    state.IncrementalSave = false;
    const std::pair<const char*, std::string> texts[] = {
        {"fuzz_config/written", ConfigText(state)},
        {"fuzz_project/family",
         "Type=MOX\r\nF=SHIPF.MOX\r\nA=SHIPA.MOX\r\nB=NONE\r\n\r\nSpan=1200\r\nLength=-32768\r\n"
         "TopLeftZ=7\r\nTop=top.pcx\r\nFront=front=1.pcx\r\nNotes=chord 2.1 m\r\n\r\nlast\r\n"},
        {"fuzz_project/tolerant",
         "notakey=1\nbottom=under.pcx\nspan= -12 \n\nf=TMOD1H.MOX\rb=TMOD1L.MOX"
         "\r\ntype=MOX TMOD\r\ntopleftz=+5\r\nNOTES=\xe9t\n\nb"},
        {"fuzz_project/no-equals", "Type=MOX\r\nF=SHIPF.MOX\r\njust words\r\nSpan=3\r\n"},
    };
    for (const auto& [name, text] : texts)
        seeds.push_back({name, {text.begin(), text.end()}});
    return seeds;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: make_fuzz_seeds DIR\n";
        return 2;
    }
    const std::filesystem::path root = argv[1];
    for (const auto& [name, bytes] : AllSeeds()) {
        const std::filesystem::path path = root / name;
        std::error_code error;
        std::filesystem::create_directories(path.parent_path(), error);
        if (!WriteFileBytes(path.string(), bytes)) {
            std::cerr << "make_fuzz_seeds: cannot write " << path << "\n";
            return 1;
        }
    }
    return 0;
}
