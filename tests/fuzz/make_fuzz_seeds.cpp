// Writes the starting corpus of every fuzz target: make_fuzz_seeds DIR writes DIR/fuzz_NAME/*.
#include "projectseeds.h"

#include <filesystem>
#include <iostream>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: make_fuzz_seeds DIR\n";
        return 2;
    }
    std::filesystem::create_directories(argv[1]);
    WriteProjectSeeds(argv[1]);
    return 0;
}
