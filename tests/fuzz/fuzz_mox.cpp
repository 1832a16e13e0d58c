// Any bytes as a model file: the reader survives them, and what the writer makes of the record
// reads back and writes again to the very same bytes.
#include "moxreader.h"
#include "moxwriter.h"

#include <cstdlib>

namespace {
// Where the header's three counts lie: parts, nodes and elements.
constexpr size_t kCountsAt[] = {16, 18, 20};

// What the reader and writer do with a count turns on its sign and on whether its tables fit the
// file; with elements, also on whether their streams start below 32 kB. Each count keeps its low
// 9 bits as a signed number (-256 to 255). Corners name nodes by a byte and the tree names
// elements by a byte, so larger counts only lengthen the tables and repeat the same work per
// element: every element gets a list of its own, made, written, read back and written again, and
// an input counting 500 elements cost twice one counting 255. The model tests read the largest
// counts, and the entry numbers past element 327 that no longer fit 16 bits.
void FoldCounts(std::vector<uint8_t>& bytes) {
    for (const size_t at : kCountsAt) {
        if (at + 1 >= bytes.size())
            return;
        // The lowest bit of the high byte is the sign of the 9-bit count.
        bytes[at + 1] = (bytes[at + 1] & 1) != 0 ? 0xFF : 0x00;
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
