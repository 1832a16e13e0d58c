// Picking in the view: which node or element lies under the cursor, and which axis line of the
// Move tool the user pressed. What a pick selects depends on the open panel tab: nodes in the
// Nodes tab, elements in every other.
#pragma once

#include <cstdint>

class frm_main;

// Selects the node (Nodes tab) or the element under the pixel (x, y) of the view and shows it in
// its panel. A miss, an overflow of the hit records, or a hit on something that is no node or
// piggyback of the current file (an axis line, geometry without a name of its own) clears both
// selections and leaves the panels as they are. Asks for a frame. Nothing without a model.
void ProcessSelection(int16_t x, int16_t y);

// Chooses the axis of the Move tool whose line lies under the pixel (x, y), through the axis
// handler of `window`, as the menu does; a press beside every line leaves the axis as it was.
// The selection never changes. Asks for a frame. Nothing without a model.
void ProcessSelectionMove(frm_main& window, int16_t x, int16_t y);
