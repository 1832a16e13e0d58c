// Writes the starting corpus of every fuzz target: make_fuzz_seeds DIR writes DIR/fuzz_NAME/*.
#include "bytefile.h"
#include "configtext.h"
#include "moxjson.h"
#include "moxreader.h"
#include "pcxwriter.h"
#include "projectseeds.h"
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

// 256-colour and 24-bit files: odd widths, padded lines, runs that cross line ends, and files
// the reader refuses (other depths and plane counts, no palette marker).
bool WritePcxSeeds(const fs::path& folder) {
    fs::create_directories(folder);
    PcxWriteOptions padded;
    padded.bytesPerLine = 12;
    padded.padding = 0xC7;
    PcxWriteOptions across;
    across.runs = PcxRuns::AcrossLines;
    const PcxPalette palette = TestPalette();

    std::vector<uint8_t> fourPlanes = EncodePcx24(6, 4, TestRgb(6, 4, 4));
    fourPlanes[65] = 4;
    std::vector<uint8_t> fourBits = EncodePcx8(6, 4, TestIndices(6, 4, 5), palette);
    fourBits[3] = 4;
    std::vector<uint8_t> unmarked = EncodePcx8(6, 4, TestIndices(6, 4, 6), palette);
    unmarked[unmarked.size() - 769] = 0;

    return WriteSeed(folder, "palette-odd-width.pcx",
                     EncodePcx8(7, 5, TestIndices(7, 5, 1), palette)) &&
           WriteSeed(folder, "palette-padded.pcx",
                     EncodePcx8(9, 6, TestIndices(9, 6, 2), palette, padded)) &&
           WriteSeed(folder, "palette-runs-across-lines.pcx",
                     EncodePcx8(8, 8, TestIndices(8, 8, 3), palette, across)) &&
           WriteSeed(folder, "rgb-odd-width.pcx", EncodePcx24(11, 7, TestRgb(11, 7, 1))) &&
           WriteSeed(folder, "rgb-padded.pcx", EncodePcx24(9, 4, TestRgb(9, 4, 2), padded)) &&
           WriteSeed(folder, "rgb-runs-across-lines.pcx",
                     EncodePcx24(13, 6, TestRgb(13, 6, 3), across)) &&
           WriteSeed(folder, "four-planes.pcx", fourPlanes) &&
           WriteSeed(folder, "four-bits.pcx", fourBits) &&
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

// A configuration as the program writes it, with every option away from its default.
bool WriteConfigSeed(const fs::path& folder) {
    fs::create_directories(folder);
    ProgramState state;
    state.RecentModels[0] = "/models/with blanks/PLANEF.MOX";
    state.RecentProjects[1] = "/models/TRACE.3vw";
    state.LineWeight = 3;
    state.LineColour = {0, 7, 255};
    state.IncrementalSave = false;
    const std::string text = ConfigText(state);
    return WriteSeed(folder, "written", {text.begin(), text.end()});
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: make_fuzz_seeds DIR\n";
        return 2;
    }
    const fs::path root = argv[1];
    fs::create_directories(root);
    if (!WriteMoxSeeds(root) || !WritePcxSeeds(root / "fuzz_pcx") ||
        !WriteConfigSeed(root / "fuzz_config")) {
        std::cerr << "make_fuzz_seeds: cannot write the seeds under " << root << "\n";
        return 1;
    }
    WriteProjectSeeds(argv[1]);
    return 0;
}
