// Fuzzes the PCX reader: any bytes give a result, and a picture always has all its pixels.
#include "pcxreader.h"

#include <cstdlib>

// Pictures above this size take the same paths as smaller ones but slow the fuzzer down a
// thousandfold; the limit itself is one of the paths.
constexpr std::size_t kFuzzPictureBytes = std::size_t{1} << 20;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    const PcxResult result = DecodePcx(data, size, "fuzz.pcx", kFuzzPictureBytes);
    if (result.picture) {
        const PcxImage& picture = *result.picture;
        if (picture.width <= 0 || picture.height <= 0 ||
            picture.rgb.size() != picture.RowBytes() * static_cast<std::size_t>(picture.height))
            std::abort();
    }
    return 0;
}
