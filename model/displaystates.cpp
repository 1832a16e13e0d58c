#include "displaystates.h"

bool HiddenByState(const Piggyback& item, const DisplayStates& states) {
    switch (item.COD) {
    case kCodeTailwheels:
    case kCodeLeftGear:
    case kCodeRightGear:
        return item.Flag != states.lg;
    case kCodePilot:
        return item.Flag != states.pilot;
    case kCodeLeftWingDamage:
    case kCodeRightWingDamage:
        return item.Flag != states.wing;
    default:
        return false;
    }
}
