#include "threeview.h"

#include "polygonplane.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr uint8_t kPaper = 0;
constexpr uint8_t kInk = 1;
constexpr uint8_t kFirstShade = 2;
constexpr int kShades = 8;
// Grey of a polygon seen edge-on and of one facing the eye.
constexpr int kDarkestGrey = 150;
constexpr int kLightestGrey = 235;

struct ViewFrame {
    Vec3 towardEye;
    PixelPoint (*project)(Vec3 point, const ModelBox& box, double scale);
    double width;
    double height;
};

PixelPoint TopPixel(Vec3 p, const ModelBox& box, double scale) {
    return {(p.x - box.low.x) * scale, (box.high.y - p.y) * scale};
}
PixelPoint LeftPixel(Vec3 p, const ModelBox& box, double scale) {
    return {(p.x - box.low.x) * scale, (box.high.z - p.z) * scale};
}
PixelPoint FrontPixel(Vec3 p, const ModelBox& box, double scale) {
    return {(box.high.y - p.y) * scale, (box.high.z - p.z) * scale};
}

ViewFrame FrameOf(DrawingView view, const ModelBox& box) {
    const Vec3 size = box.high - box.low;
    switch (view) {
    case DrawingView::Top:
        return {{0, 0, 1}, TopPixel, size.x, size.y};
    case DrawingView::Left:
        return {{0, -1, 0}, LeftPixel, size.x, size.z};
    case DrawingView::Front:
        break;
    }
    return {{-1, 0, 0}, FrontPixel, size.y, size.z};
}

} // namespace

IndexedCanvas DrawThreeView(const std::vector<AssembledPolygon>& polygons, const ModelBox& box,
                            DrawingView view, double pixelsPerUnit) {
    const ViewFrame frame = FrameOf(view, box);
    IndexedCanvas canvas(std::max(1, static_cast<int>(std::lround(frame.width * pixelsPerUnit))),
                         std::max(1, static_cast<int>(std::lround(frame.height * pixelsPerUnit))),
                         kPaper);
    // Painter's order: the polygons whose fronts face the eye, farthest first.
    struct Visible {
        double depth;
        double facing;
        const AssembledPolygon* polygon;
    };
    std::vector<Visible> visible;
    for (const AssembledPolygon& polygon : polygons) {
        const double facing = Dot(FrontNormal(polygon), frame.towardEye);
        if (facing > 0)
            visible.push_back({Dot(Centroid(polygon), frame.towardEye), facing, &polygon});
    }
    std::stable_sort(visible.begin(), visible.end(),
                     [](const Visible& a, const Visible& b) { return a.depth < b.depth; });
    for (const Visible& item : visible) {
        std::vector<PixelPoint> corners;
        for (const Vec3& corner : *item.polygon)
            corners.push_back(frame.project(corner, box, pixelsPerUnit));
        const int shade = std::min(kShades - 1, static_cast<int>(item.facing * kShades));
        canvas.FillPolygon(corners, static_cast<uint8_t>(kFirstShade + shade));
        canvas.DrawPolygonOutline(corners, kInk);
    }
    return canvas;
}

Palette DrawingPalette() {
    Palette palette{};
    palette[kPaper] = {255, 255, 255};
    palette[kInk] = {0, 0, 0};
    for (int shade = 0; shade < kShades; ++shade) {
        const auto grey = static_cast<uint8_t>(kDarkestGrey + (kLightestGrey - kDarkestGrey) *
                                                                  shade / (kShades - 1));
        palette[kFirstShade + shade] = {grey, grey, grey};
    }
    return palette;
}
