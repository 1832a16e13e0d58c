// The geometry of an element's polygons against planes: where their corners stand in the file's
// own frame, how far they lie from a plane, whether they are flat and convex, and the one plane
// the polygons of an element agree on.
#pragma once

#include "filerecord.h"
#include "vec3.h"

#include <vector>

// Corners that lie farther than this from a plane, in model units, are off it: whole-unit
// corners of a sound face stay within about 0.9 of its plane.
constexpr double kPlaneTolerance = 1.0;

// True for the kinds the painter paints as polygons: 3 to 254.
bool IsPolygon(const Piggyback& item);

// The polygon's corners in stored order, each at its node plus its part's pivot. False when a
// corner names no node, or cannot be placed.
bool PolygonCorners(const FileRecord& record, const Piggyback& item, std::vector<Vec3>& corners);

// The largest distance of `points` from the plane through `point` with normal `normal` (any
// length but zero).
double LargestDistance(const std::vector<Vec3>& points, Vec3 normal, Vec3 point);

// The largest distance of a stored plane from `points`; 0 for a plane without a normal.
double LargestDistance(const std::vector<Vec3>& points, const NRMRecord& plane);

// True when the polygon turns the same way at every corner, seen along its own normal.
bool IsConvex(const std::vector<Vec3>& corners);

enum class PlaneFit { Agreed, Disagree, NoPolygons };

// The plane the polygons of element `element` agree on: the normal of their summed front areas,
// through the mean of their corners, in fixed point with D as the tree walk reads it, and `F`
// of the stored plane kept. The polygons disagree when one of them faces away from that normal
// or a corner lies off the plane.
PlaneFit FitElementPlane(const FileRecord& record, int element, NRMRecord& plane);
