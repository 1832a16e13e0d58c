// The main file of the sample fighter, PDEMOF.MOX: fuselage and engine cowling, spinner and
// propeller, canopy and pilot, tail and tail wheel, the hardpoints that hang its connected files
// and its weapon stations.
#pragma once

#include "filerecord.h"

#include <string>

constexpr const char* kFighterTextureName = "PDEMO.TPC";

bool BuildFighterBody(FileRecord& record, std::string& problem);
