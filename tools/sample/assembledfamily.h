// A generated family put together the way the editor shows it: every node at its place in the
// family's frame (its part's pivot and its file's hardpoint added), the polygons that show in one
// state of gear, pilot and wing, and the box the whole family fills.
#pragma once

#include "samplefamily.h"
#include "vec3.h"

#include <vector>

struct ShowState {
    int gear = 1;  // 0 up, 1 down
    int pilot = 0; // 0 alive, 1 dead, 2 bailed out
    int wing = 0;  // 0 whole, 1 damaged
};

// The corners of one polygon in their stored order.
using AssembledPolygon = std::vector<Vec3>;

std::vector<AssembledPolygon> AssemblePolygons(const SampleFamily& family, ShowState state);

// Smallest and largest coordinates over every node of the family, measured from the origin as
// the editor measures a model, so the box always holds the origin.
struct ModelBox {
    Vec3 low;
    Vec3 high;
};
ModelBox MeasureFamily(const SampleFamily& family);
