// Fuzzes the PCX reader: any bytes give a result, and a picture always has all its pixels.
#include "pcxreader.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    const PcxResult result = DecodePcx(data, size, "fuzz.pcx");
    if (result.picture) {
        const PcxImage& picture = *result.picture;
        if (picture.width <= 0 || picture.height <= 0 ||
            picture.rgb.size() != picture.RowBytes() * static_cast<std::size_t>(picture.height))
            std::abort();
    }
    return 0;
}
