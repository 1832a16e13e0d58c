// The sample fuel truck as an H family: the main file TMOD1H.MOX (chassis, cab, front wheels)
// with the tank TMOD1S.MOX, the hose cabinet TMOD1L.MOX and the rear axle TMOD1D.MOX at its
// hardpoints 25, 26 and 27. All four share the texture TMOD1.TPC, which stands for TMOD1.PCX.
#pragma once

#include "samplefamily.h"

#include <string>

constexpr const char* kVehicleTextureFile = "TMOD1.PCX";

bool BuildVehicleFamily(SampleFamily& family, std::string& problem);
