// The nose art file of the sample fighter, PDEMOC.MOX: a painted panel on each side of the nose,
// hung at the main file's hardpoint 27.
#pragma once

#include "filerecord.h"

#include <string>

bool BuildNoseArt(FileRecord& record, std::string& problem);
