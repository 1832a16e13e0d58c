// Small helpers that turn outlines into faces for the RecordBuilder: mapped by projection, pinned
// to given texture positions, or painted in one colour of the texture.
#pragma once

#include "mapprojection.h"
#include "recordbuilder.h"
#include "vec3.h"

#include <vector>

struct TextureSize {
    int width = 0;
    int height = 0;
};

FaceStyle Style(uint8_t type, uint8_t cod = 0, uint8_t flag = 0);

// Every corner mapped through `projection`.
Face ProjectedFace(const std::vector<Vec3>& corners, const MapProjection& projection,
                   TextureSize texture, FaceStyle style = {}, int body = 0);
// Corner i mapped to the texture position `pixels[i]`.
Face PinnedFace(const std::vector<Vec3>& corners, const std::vector<PixelPoint>& pixels,
                TextureSize texture, FaceStyle style = {}, int body = 0);
// Every corner mapped to one texture position, so the face shows one colour.
Face PlainFace(const std::vector<Vec3>& corners, PixelPoint pixel, TextureSize texture,
               FaceStyle style = {}, int body = 0);

// `count` corners on a circle of `radius` about `centre` in the plane spanned by the unit
// vectors `u` and `v`, the first at angle `startAngle` (radians) from `u` toward `v`.
std::vector<Vec3> RegularPolygon(Vec3 centre, Vec3 u, Vec3 v, double radius, int count,
                                 double startAngle);
// The texture positions of the same corners on a circle about `centre` of `radius` pixels.
std::vector<PixelPoint> RegularPixels(PixelPoint centre, double radius, int count,
                                      double startAngle);

// A face with the direction its front is to look toward.
struct OrientedFace {
    Face face;
    Vec3 outward;
};
OrientedFace MirroredFace(OrientedFace face);

// A wheel turning about a line along Y through `centre`: a disc mapped to `discMap` at each side,
// between `innerY` and `outerY`, and the tread between them in the colour at `tread`.
std::vector<OrientedFace> WheelFaces(Vec3 centre, double innerY, double outerY, double radius,
                                     const std::vector<PixelPoint>& discMap, PixelPoint tread,
                                     TextureSize texture, FaceStyle style);

// The four corners of the face of the box from `low` to `high` that looks along `direction`,
// one of the six axis directions.
std::vector<Vec3> BoxFace(Vec3 low, Vec3 high, Vec3 direction);

std::vector<Vec3> Mirrored(const std::vector<Vec3>& points);
