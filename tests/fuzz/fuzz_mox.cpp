// Any bytes as a model file: the reader survives them, and what the writer makes of the record
// reads back and writes again to the very same bytes.
#include "moxreader.h"
#include "moxwriter.h"

#include <cstdlib>

namespace {
// A header count: where it lies, and how many of its low bits it keeps as a signed number.
struct FoldedCount {
    size_t at;
    int bits;
};

// What the reader and writer do with a count turns on its sign and on whether its tables fit the
// file; with elements, also on whether their streams start below 32 kB and whether entry numbers
// (element * 100 + position) fit 16 bits. Parts and nodes keep 9 bits (-256 to 255): corners name
// nodes by a byte, so more nodes only lengthen the tables. Elements keep 10 bits (-512 to 511),
// which crosses element 328. Larger counts only repeat the same work per element, so that a run
// would try a few thousand inputs instead of tens of thousands; the model tests read the largest
// counts.
constexpr FoldedCount kCounts[] = {{16, 9}, {18, 9}, {20, 10}};

void FoldCounts(std::vector<uint8_t>& bytes) {
    for (const FoldedCount& count : kCounts) {
        if (count.at + 1 >= bytes.size())
            return;
        const auto keep = static_cast<uint8_t>((1u << (count.bits - 8)) - 1);
        const auto sign = static_cast<uint8_t>(1u << (count.bits - 9));
        const auto high = static_cast<uint8_t>(bytes[count.at + 1] & keep);
        bytes[count.at + 1] = (high & sign) ? static_cast<uint8_t>(high | ~keep) : high;
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
