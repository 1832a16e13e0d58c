#include "facemaker.h"

#include <cmath>

FaceStyle Style(uint8_t type, uint8_t cod, uint8_t flag) {
    FaceStyle style;
    style.type = type;
    style.cod = cod;
    style.flag = flag;
    return style;
}

Face ProjectedFace(const std::vector<Vec3>& corners, const MapProjection& projection,
                   TextureSize texture, FaceStyle style, int body) {
    Face face{style, body, {}};
    for (const Vec3& corner : corners)
        face.corners.push_back(MappedCorner(corner, projection, texture.width, texture.height));
    return face;
}

Face PinnedFace(const std::vector<Vec3>& corners, const std::vector<PixelPoint>& pixels,
                TextureSize texture, FaceStyle style, int body) {
    Face face{style, body, {}};
    for (std::size_t i = 0; i < corners.size(); ++i)
        face.corners.push_back(PinnedCorner(corners[i], pixels[i], texture.width, texture.height));
    return face;
}

Face PlainFace(const std::vector<Vec3>& corners, PixelPoint pixel, TextureSize texture,
               FaceStyle style, int body) {
    return PinnedFace(corners, std::vector<PixelPoint>(corners.size(), pixel), texture, style,
                      body);
}

std::vector<Vec3> RegularPolygon(Vec3 centre, Vec3 u, Vec3 v, double radius, int count,
                                 double startAngle) {
    std::vector<Vec3> corners;
    for (int i = 0; i < count; ++i) {
        const double angle = startAngle + 2 * M_PI * i / count;
        corners.push_back(centre + u * (radius * std::cos(angle)) + v * (radius * std::sin(angle)));
    }
    return corners;
}

std::vector<PixelPoint> RegularPixels(PixelPoint centre, double radius, int count,
                                      double startAngle) {
    std::vector<PixelPoint> pixels;
    for (int i = 0; i < count; ++i) {
        const double angle = startAngle + 2 * M_PI * i / count;
        pixels.push_back(
            {centre.col + radius * std::cos(angle), centre.row - radius * std::sin(angle)});
    }
    return pixels;
}

OrientedFace MirroredFace(OrientedFace face) {
    for (FaceCorner& corner : face.face.corners)
        corner.at = MirrorY(corner.at);
    face.outward = MirrorY(face.outward);
    return face;
}

std::vector<OrientedFace> WheelFaces(Vec3 centre, double innerY, double outerY, double radius,
                                     const std::vector<PixelPoint>& discMap, PixelPoint tread,
                                     TextureSize texture, FaceStyle style) {
    const int count = static_cast<int>(discMap.size());
    const std::vector<Vec3> inner =
        RegularPolygon({centre.x, innerY, centre.z}, {1, 0, 0}, {0, 0, 1}, radius, count, 0);
    const std::vector<Vec3> outer =
        RegularPolygon({centre.x, outerY, centre.z}, {1, 0, 0}, {0, 0, 1}, radius, count, 0);
    std::vector<OrientedFace> faces{{PinnedFace(inner, discMap, texture, style), {0, -1, 0}},
                                    {PinnedFace(outer, discMap, texture, style), {0, 1, 0}}};
    for (int k = 0; k < count; ++k) {
        const int next = (k + 1) % count;
        const std::vector<Vec3> band{inner[k], inner[next], outer[next], outer[k]};
        const Vec3 middle = Centroid(band);
        faces.push_back({PlainFace(band, tread, texture, style),
                         {middle.x - centre.x, 0, middle.z - centre.z}});
    }
    return faces;
}

std::vector<Vec3> BoxFace(Vec3 low, Vec3 high, Vec3 direction) {
    const double x = direction.x > 0 ? high.x : low.x;
    const double y = direction.y > 0 ? high.y : low.y;
    const double z = direction.z > 0 ? high.z : low.z;
    if (direction.x != 0)
        return {{x, low.y, low.z}, {x, high.y, low.z}, {x, high.y, high.z}, {x, low.y, high.z}};
    if (direction.y != 0)
        return {{low.x, y, low.z}, {high.x, y, low.z}, {high.x, y, high.z}, {low.x, y, high.z}};
    return {{low.x, low.y, z}, {high.x, low.y, z}, {high.x, high.y, z}, {low.x, high.y, z}};
}

std::vector<Vec3> Mirrored(const std::vector<Vec3>& points) {
    std::vector<Vec3> result;
    for (const Vec3& point : points)
        result.push_back(MirrorY(point));
    return result;
}
