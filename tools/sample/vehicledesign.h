// The measures of the sample fuel truck, in model units; the nose points to -X.
#pragma once

#include "vec3.h"

// Chassis frame, cab and front wheels of the main file.
constexpr double kChassisFrontX = -80;
constexpr double kChassisRearX = 80;
constexpr double kChassisHalfWidth = 22;
constexpr double kChassisBottomZ = 10;
constexpr double kChassisTopZ = 18;
constexpr double kCabRearX = -42;
constexpr double kCabHalfWidth = 26;
constexpr double kCabTopZ = 60;
constexpr double kBumperX = -82;
constexpr double kBumperBottomZ = 8;
constexpr double kBumperTopZ = 15;
constexpr double kFrontAxleX = -62;
constexpr double kWheelCentreZ = 12;
constexpr double kTruckWheelRadius = 12;
constexpr double kTruckWheelInnerY = 23;
constexpr double kTruckWheelOuterY = 30;

// Hardpoints of the connected files: the tank, the hose cabinet and the rear axle.
constexpr Vec3 kTankMount{10, 0, kChassisTopZ};
constexpr Vec3 kCabinetMount{72, 0, kChassisTopZ};
constexpr Vec3 kRearAxleMount{50, 0, kWheelCentreZ};

// The tank: an octagonal drum along X in the frame of its file.
constexpr double kTankFrontX = -42;
constexpr double kTankRearX = 52;
constexpr double kTankRadius = 21;
constexpr double kTankAxisZ = 20;
// The hose cabinet: a box in the frame of its file.
constexpr double kCabinetHalfLength = 8;
constexpr double kCabinetHalfWidth = 22;
constexpr double kCabinetHeight = 28;
