// The wing files of the sample fighter: the right wing PDEMOE.MOX and its mirror image, the left
// wing PDEMOG.MOX. Each holds its aileron, its main gear in both positions, whole and torn
// versions of its outer panel, a roundel, and two guns.
#pragma once

#include "filerecord.h"

#include <string>

bool BuildFighterWing(bool leftWing, FileRecord& record, std::string& problem);
