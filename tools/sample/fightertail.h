// The tail of the sample fighter: fin and rudder, tailplane and elevators, and the tail wheel
// that shows down or retracted with the gear.
#pragma once

#include "recordbuilder.h"

void AddFighterTail(RecordBuilder& builder);
