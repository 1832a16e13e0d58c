// The operations on the node table of the current file: a new node, the clearing or removal of
// the nodes no corner names, and the step of the node on the Nodes tab along one axis.
#pragma once

#include "model.h"

#include <cstdint>

// Appends a node at the origin with body 0 and shows it on the Nodes tab (upd_4_node). A file
// that already holds 256 nodes gets none: no corner could name it.
void AddNode(model& m);

// Asks, then either sets every node that no polygon, line or hardpoint names to 0 (`zero`), or
// removes those nodes and renumbers every corner. A corner naming a node past the table ends the
// call before the question, with nothing changed.
void RemoveNodes(model& m, bool zero);

// Steps the spin upd_4_x, upd_4_y or upd_4_z of the Nodes tab by `dist`, within its range of
// -32767 to 32767; the spin's handler stores the value in the node the tab shows, whatever
// `node` says.
void MoveNode(model& m, int16_t node, int32_t Axis, int16_t dist);
