// The display states of the aircraft (gear, pilot, wing damage) and which polygons each shows: a
// polygon whose display code ties it to a state shows only while its Flag equals that state.
#pragma once

#include "filerecord.h"

#include <cstdint>

constexpr uint8_t kCodeTailwheels = 145;
constexpr uint8_t kCodePilot = 146;
constexpr uint8_t kCodeLeftWingDamage = 148;
constexpr uint8_t kCodeRightWingDamage = 149;
constexpr uint8_t kCodeLeftGear = 151;
constexpr uint8_t kCodeRightGear = 152;

struct DisplayStates {
    int32_t pilot = 0; // 0 alive, 1 dead, 2 bailed out
    int32_t lg = 1;    // 0 gear up, 1 down
    int32_t wing = 0;  // 0 undamaged, 1 damaged
};

// True when the polygon `item` is hidden in `states`. Every code but the six state codes shows
// always. Hardpoints are not filtered: the caller asks this of polygons only.
bool HiddenByState(const Piggyback& item, const DisplayStates& states);
