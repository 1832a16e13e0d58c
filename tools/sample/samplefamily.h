// A model family of the sample as generated: each file's record with its name and family slot.
#pragma once

#include "filerecord.h"

#include <string>
#include <vector>

struct SampleFile {
    std::string name; // file name without a folder, e.g. "PDEMOF.MOX"
    int slot = 0;     // index in Files; 0 is the main file
    FileRecord record;
};

using SampleFamily = std::vector<SampleFile>;
