#include "mapprojection.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double kMapSteps = 255.0;
}

double Coordinate(Vec3 point, Axis axis) {
    switch (axis) {
    case Axis::X:
        return point.x;
    case Axis::Y:
        return point.y;
    case Axis::Z:
        return point.z;
    }
    return 0;
}

PixelPoint MapProjection::PixelOf(Vec3 point) const {
    return {colAtZero + colPerUnit * Coordinate(point, across),
            rowAtZero + rowPerUnit * Coordinate(point, down)};
}

MapProjection MakeProjection(Axis across, double colAtZero, double colPerUnit, Axis down,
                             double rowAtZero, double rowPerUnit) {
    MapProjection projection;
    projection.across = across;
    projection.colAtZero = colAtZero;
    projection.colPerUnit = colPerUnit;
    projection.down = down;
    projection.rowAtZero = rowAtZero;
    projection.rowPerUnit = rowPerUnit;
    return projection;
}

uint8_t MapByte(double pixel, int size) {
    const long value = std::lround(pixel * kMapSteps / size);
    return static_cast<uint8_t>(std::clamp<long>(value, 0, 255));
}

FaceCorner MappedCorner(Vec3 at, const MapProjection& projection, int width, int height) {
    return PinnedCorner(at, projection.PixelOf(at), width, height);
}

FaceCorner PinnedCorner(Vec3 at, PixelPoint pixel, int width, int height) {
    return FaceCorner{at, MapByte(pixel.col, width), MapByte(pixel.row, height)};
}
