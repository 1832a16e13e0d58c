// Writes the starting corpus of every fuzz target: make_fuzz_seeds DIR writes DIR/fuzz_NAME/*.
#include "pcxwriter.h"
#include "testpictures.h"
#include "projectseeds.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

bool WriteSeed(const fs::path& folder, const std::string& name,
               const std::vector<uint8_t>& bytes) {
    std::ofstream out(folder / name, std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()),
              static_cast<std::streamsize>(bytes.size()));
    return static_cast<bool>(out);
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

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: make_fuzz_seeds DIR\n";
        return 2;
    }
    const fs::path root = argv[1];
    fs::create_directories(root);
    if (!WritePcxSeeds(root / "fuzz_pcx")) {
        std::cerr << "make_fuzz_seeds: cannot write the seeds under " << root << "\n";
        return 1;
    }
    WriteProjectSeeds(argv[1]);
    return 0;
}
