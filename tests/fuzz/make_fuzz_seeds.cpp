// Writes the starting corpus of every fuzz target: make_fuzz_seeds DIR writes DIR/fuzz_NAME/*.
#include "moxjson.h"
#include "moxreader.h"
#include "randommox.h"
#include "projectseeds.h"

#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

constexpr int kSeedsPerTarget = 40;

void WriteSeed(const std::filesystem::path& folder, int number, const std::string& bytes) {
    std::filesystem::create_directories(folder);
    std::ofstream(folder / ("seed-" + std::to_string(number)), std::ios::binary) << bytes;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: make_fuzz_seeds DIR\n";
        return 2;
    }
    const std::filesystem::path root = argv[1];
    std::mt19937 random(1);
    RandomMoxOptions options;
    options.prefixedNulls = true;
    options.longLists = false;
    for (int seed = 0; seed < kSeedsPerTarget; ++seed) {
        const std::vector<uint8_t> bytes = RandomMox(random, options).Build();
        WriteSeed(root / "fuzz_mox", seed, std::string(bytes.begin(), bytes.end()));
        const FileRecord record = ReadMoxBytes(bytes, "SEED.MOX", 0);
        WriteSeed(root / "fuzz_moxjson", seed, MoxToJson(record, {}).dump());
    }
    WriteProjectSeeds(argv[1]);
    return 0;
}
