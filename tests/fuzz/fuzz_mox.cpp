// Any bytes as a model file: the reader survives them, and what the writer makes of the record
// reads back and writes again to the very same bytes.
#include "moxreader.h"
#include "moxwriter.h"

#include <cstdlib>

namespace {
// Header positions of the part, node and element counts.
constexpr size_t kCountsAt = 16;
constexpr size_t kCountsEnd = 22;

// Each count becomes a 12-bit signed number of the same low bits. The reader's handling of a
// count depends on its sign and on whether its tables fit the file, the stream offsets and the
// 16-bit entry numbers, all of which this range still crosses; counts up to 32767 only repeat the
// same work per element many times over, so that a run would try a few thousand inputs rather
// than tens of thousands.
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
