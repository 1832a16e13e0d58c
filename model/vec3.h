// Points and directions in model units of a file's own frame (or of the assembled family), with
// the few operations the geometry of planes, the sample generator and the exports need.
#pragma once

#include <cmath>
#include <vector>

struct Vec3 {
    double x = 0;
    double y = 0;
    double z = 0;
};

inline Vec3 operator+(Vec3 a, Vec3 b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline Vec3 operator-(Vec3 a, Vec3 b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline Vec3 operator-(Vec3 a) {
    return {-a.x, -a.y, -a.z};
}
inline Vec3 operator*(Vec3 a, double s) {
    return {a.x * s, a.y * s, a.z * s};
}
inline double Dot(Vec3 a, Vec3 b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline Vec3 Cross(Vec3 a, Vec3 b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double Length(Vec3 a) {
    return std::sqrt(Dot(a, a));
}
inline Vec3 Normalised(Vec3 a) {
    const double length = Length(a);
    return length > 0 ? a * (1.0 / length) : Vec3{};
}
// The same point seen in the other half of the span.
inline Vec3 MirrorY(Vec3 a) {
    return {a.x, -a.y, a.z};
}

// The mean of the points; the origin for none.
inline Vec3 Centroid(const std::vector<Vec3>& points) {
    Vec3 sum;
    for (const Vec3& point : points)
        sum = sum + point;
    return points.empty() ? sum : sum * (1.0 / double(points.size()));
}
