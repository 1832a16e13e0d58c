// Any bytes as a model file: the reader survives them, and what the writer makes of the record
// reads back and writes again to the very same bytes.
#include "moxreader.h"
#include "moxwriter.h"

#include <cstdlib>

namespace {
// Header positions of the part, node and element counts.
constexpr size_t kCountsAt = 16;
constexpr size_t kCountsEnd = 22;

// Each count becomes the 10-bit signed number of its low bits, -512 to 511. What the reader and
// writer do with a count turns on its sign, on whether its tables fit the file and its streams
// start below 32 kB, and on whether entry numbers (element * 100 + position) fit 16 bits, and this
// range crosses all of those; larger counts only repeat the same work per element, so that a run
// would try a few thousand inputs instead of tens of thousands. The model tests read the largest
// counts.
void FoldCounts(std::vector<uint8_t>& bytes) {
    for (size_t at = kCountsAt; at + 1 < kCountsEnd && at + 1 < bytes.size(); at += 2) {
        const auto high = static_cast<uint8_t>(bytes[at + 1] & 0x03);
        bytes[at + 1] = (high & 0x02) ? static_cast<uint8_t>(high | 0xFC) : high;
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::vector<uint8_t> bytes(data, data + size);
    FoldCounts(bytes);
    const FileRecord first = ReadMoxBytes(bytes, "FUZZ.MOX", 0);
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
