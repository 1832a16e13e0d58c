// The sample fighter as an F family: the main file PDEMOF.MOX with the nose art PDEMOC.MOX at
// hardpoint 27 and the wings PDEMOE.MOX (right) and PDEMOG.MOX (left) at hardpoints 28 and 29,
// all sharing the texture PDEMO.TPC, which stands for PDEMO.PCX.
#pragma once

#include "samplefamily.h"

#include <string>

constexpr const char* kFighterTextureFile = "PDEMO.PCX";

bool BuildFighterFamily(SampleFamily& family, std::string& problem);
