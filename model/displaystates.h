// The display states of the aircraft (gear, pilot, wing damage) and which polygons each shows: a
// polygon whose display code ties it to a state shows only while its Flag equals that state.
#pragma once

#include "filerecord.h"

#include <cstdint>

struct DisplayStates {
    int32_t pilot = 0; // 0 alive, 1 dead, 2 bailed out
    int32_t lg = 1;    // 0 gear up, 1 down
    int32_t wing = 0;  // 0 undamaged, 1 damaged
};

// True when the polygon `item` is hidden in `states`. The state codes are 145 tail wheels, 151 and
// 152 left and right gear (gear), 146 pilot picture (pilot), 148 and 149 left and right wing
// damage (wing); every other code shows always. Hardpoints are not filtered: the caller asks this
// of polygons only.
bool HiddenByState(const Piggyback& item, const DisplayStates& states);
