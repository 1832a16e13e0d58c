// The corner list of the selected piggyback (m_currelem): a corner added at the end, a corner
// removed, two corners exchanged. NodeList, XMap and YMap move together whatever the kind.
#pragma once

#include "model.h"

#include <cstdint>

// Appends a corner naming node 0 with map values 0. A piggyback of 255 corners gets no more.
void AddNodeToElement(model& m);

// Removes the corner at position `node` (not a node number). A polygon of three corners keeps
// them, with a message; so does a piggyback without corners. A position outside the list changes
// nothing.
void DeleteNodeFromElement(model& m, int16_t node);

// Exchanges the corners at positions `node1` and `node2`; a position outside the list changes
// nothing.
void SwapNodes(model& m, int16_t node1, int16_t node2);

// The plane of an element is never derived from its corners: this changes nothing.
void RecalcNormal(model& m, int16_t num);
