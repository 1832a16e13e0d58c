// The display codes, hardpoint codes and part codes the sample models use.
#pragma once

#include "elementkind.h"

#include <cstdint>

// Display codes and their states: a polygon shows while its Flag equals the state.
constexpr uint8_t kCodeTailWheel = 145;      // gear: 0 up, 1 down
constexpr uint8_t kCodePilot = 146;          // pilot: 0 alive, 1 dead, 2 bailed out
constexpr uint8_t kCodeLeftWingDamage = 148; // wing: 0 whole, 1 damaged
constexpr uint8_t kCodeRightWingDamage = 149;
constexpr uint8_t kCodeLeftGear = 151;
constexpr uint8_t kCodeRightGear = 152;
constexpr uint8_t kCodeNoseArt = 153;
constexpr uint8_t kGearUp = 0;
constexpr uint8_t kGearDown = 1;
constexpr uint8_t kPilotAlive = 0;
constexpr uint8_t kPilotDead = 1;
constexpr uint8_t kPilotBailedOut = 2;
constexpr uint8_t kWingWhole = 0;
constexpr uint8_t kWingDamaged = 1;

// Hardpoint codes: those that hang the connected files, and weapon stations that fill no slot.
constexpr uint8_t kHardpointSlot1 = kHardpointCodes[0]; // A.MOX / S.MOX
constexpr uint8_t kHardpointSlot2 = kHardpointCodes[1]; // B.MOX / L.MOX
constexpr uint8_t kHardpointSlot3 = kHardpointCodes[2]; // C.MOX / D.MOX
constexpr uint8_t kHardpointSlot4 = kHardpointCodes[3]; // E.MOX
constexpr uint8_t kHardpointSlot5 = kHardpointCodes[4]; // G.MOX
constexpr uint8_t kHardpointGun = 1;
constexpr uint8_t kHardpointBomb = 30;

// Part rotation axes.
constexpr uint8_t kPartHeading = 0;
constexpr uint8_t kPartPitch = 1;
constexpr uint8_t kPartRoll = 2;
// Part numbers of the fighter: the propeller counts as the engine; the control surfaces take
// numbers of the pitch axis that name no gear.
constexpr uint8_t kPropellerNum = 4;
constexpr uint8_t kRudderNum = 0;
constexpr uint8_t kElevatorNum = 4;
constexpr uint8_t kRightAileronNum = 5;
constexpr uint8_t kLeftAileronNum = 6;
