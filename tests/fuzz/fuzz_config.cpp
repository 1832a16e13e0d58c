// The configuration file reader over any bytes: it must never read outside the text, and what it
// keeps must be something the writer can write back and read again unchanged.
#include "configtext.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    ProgramState state;
    ReadConfigText(std::string(reinterpret_cast<const char*>(data), size), state);
    const std::string written = ConfigText(state);
    ProgramState again;
    ReadConfigText(written, again);
    if (ConfigText(again) != written)
        std::abort();
    return 0;
}
