// Any bytes as a model file: the reader survives them, and what the writer makes of the record
// reads back and writes again to the very same bytes.
#include "moxreader.h"
#include "moxwriter.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const FileRecord first = ReadMoxBytes(std::vector<uint8_t>(data, data + size), "FUZZ.MOX", 0);
    std::vector<uint8_t> saved;
    std::string problem;
    if (!BuildMoxBytes(first, saved, problem))
        return 0;
    const FileRecord second = ReadMoxBytes(saved, "FUZZ.MOX", 0);
    std::vector<uint8_t> again;
    if (!BuildMoxBytes(second, again, problem) || again != saved)
        std::abort();
    return 0;
}
