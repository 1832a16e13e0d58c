// Removing a whole element, or one piggyback of an element's list. Both close the gap, renumber
// what follows, mend the selection when the last one went and refill tabs 1 and 3.
#pragma once

#include "model.h"

#include <cstdint>

// Removes the element of the Number `number` with its list, plane and children. Every PART byte
// and both Root bytes that named it become 255, those above it drop by one. The last element of a
// file stays.
void Delete_Element(model& m, int16_t number);

// Removes the piggyback `number` from its element's list. The last entry of a list stays.
void Delete_Piggyback(model& m, int16_t number);
