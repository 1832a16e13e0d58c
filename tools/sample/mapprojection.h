// Texture mapping by projection: a face's corners take the texture position of their model
// position seen along one axis, so that neighbouring faces meet without a seam and whatever is
// painted at a model position shows there on the model.
#pragma once

#include "indexedcanvas.h"
#include "recordbuilder.h"
#include "vec3.h"

#include <cstdint>

enum class Axis { X, Y, Z };

double Coordinate(Vec3 point, Axis axis);

struct MapProjection {
    Axis across = Axis::X; // model axis that runs along the texture's columns
    double colAtZero = 0;
    double colPerUnit = 1;
    Axis down = Axis::Z; // model axis that runs down the texture's rows
    double rowAtZero = 0;
    double rowPerUnit = -1;

    PixelPoint PixelOf(Vec3 point) const;
    // Model coordinates along `across` and `down` of a texture position.
    double AcrossAt(double col) const { return (col - colAtZero) / colPerUnit; }
    double DownAt(double row) const { return (row - rowAtZero) / rowPerUnit; }
};

MapProjection MakeProjection(Axis across, double colAtZero, double colPerUnit, Axis down,
                             double rowAtZero, double rowPerUnit);

// The map byte of a texture position: 0 to 255 over the whole texture of `size` pixels.
uint8_t MapByte(double pixel, int size);

// A corner at `at` mapped through `projection` onto a texture of `width` by `height` pixels.
FaceCorner MappedCorner(Vec3 at, const MapProjection& projection, int width, int height);

// A corner at `at` whose map points at the texture position `pixel`.
FaceCorner PinnedCorner(Vec3 at, PixelPoint pixel, int width, int height);
