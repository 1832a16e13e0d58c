#include "displaystates.h"

namespace {

constexpr uint8_t kCodeTailwheels = 145;
constexpr uint8_t kCodePilot = 146;
constexpr uint8_t kCodeLeftWingDamage = 148;
constexpr uint8_t kCodeRightWingDamage = 149;
constexpr uint8_t kCodeLeftGear = 151;
constexpr uint8_t kCodeRightGear = 152;

} // namespace

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
