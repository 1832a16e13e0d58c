// Planes of polygons as the model files hold them: the front side of a polygon is the side from
// which its stored corners run clockwise, and a stored plane is a fixed-point normal (16384 = 1)
// with the constant D such that x*X + y*Y + z*Z = D for its points.
#pragma once

#include "filerecord.h"
#include "vec3.h"

#include <vector>

constexpr double kNormalOne = 16384.0;

// Normal pointing to the polygon's front side, as long as twice the polygon's area; zero for a
// polygon without area.
Vec3 FrontArea(const std::vector<Vec3>& corners);
// The same normal of unit length.
Vec3 FrontNormal(const std::vector<Vec3>& corners);

// The stored plane with unit normal `normal` through `point`.
NRMRecord FixedPointPlane(Vec3 normal, Vec3 point);

// Signed distance of `point` from a stored plane in model units, positive on the normal's side.
double DistanceFromPlane(const NRMRecord& plane, Vec3 point);
