#include "polygonplane.h"

#include <cmath>

Vec3 FrontArea(const std::vector<Vec3>& corners) {
    // Newell's sum gives the normal from which the corners run counter-clockwise; the front
    // side is the other one.
    Vec3 sum;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Vec3& a = corners[i];
        const Vec3& b = corners[(i + 1) % corners.size()];
        sum.x += (a.y - b.y) * (a.z + b.z);
        sum.y += (a.z - b.z) * (a.x + b.x);
        sum.z += (a.x - b.x) * (a.y + b.y);
    }
    return -sum;
}

Vec3 FrontNormal(const std::vector<Vec3>& corners) {
    return Normalised(FrontArea(corners));
}

NRMRecord FixedPointPlane(Vec3 normal, Vec3 point) {
    NRMRecord plane;
    plane.X = static_cast<int16_t>(std::lround(normal.x * kNormalOne));
    plane.Y = static_cast<int16_t>(std::lround(normal.y * kNormalOne));
    plane.Z = static_cast<int16_t>(std::lround(normal.z * kNormalOne));
    plane.D = static_cast<int32_t>(
        std::lround(plane.X * point.x + plane.Y * point.y + plane.Z * point.z));
    return plane;
}

double DistanceFromPlane(const NRMRecord& plane, Vec3 point) {
    const Vec3 normal{double(plane.X), double(plane.Y), double(plane.Z)};
    const double length = Length(normal);
    if (length == 0)
        return 0;
    return (Dot(normal, point) - plane.D) / length;
}
