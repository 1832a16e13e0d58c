#include "fighteratlas.h"

#include "fighterdesign.h"

namespace {

// Model units at the left and top edges of the painted views.
constexpr double kSideFrontX = -92;
constexpr double kSideRearX = 112;
constexpr double kSideTopZ = 49;
constexpr double kStripHalfWidth = 5.5;
constexpr double kWingFrontX = -15;
constexpr double kTailFrontX = 77;

const PixelRect& HoodRect(PilotPicture picture) {
    switch (picture) {
    case PilotPicture::Alive:
        return kHoodAliveRect;
    case PilotPicture::Dead:
        return kHoodDeadRect;
    case PilotPicture::Empty:
        break;
    }
    return kHoodEmptyRect;
}

} // namespace

MapProjection SideProjection(bool rightSide) {
    // Each side is painted as it is seen, so the nose is on the left of the left view and on
    // the right of the right view.
    if (rightSide)
        return MakeProjection(Axis::X, kSideRightRect.col + kSideRearX, -1, Axis::Z,
                              kSideRightRect.row + kSideTopZ, -1);
    return MakeProjection(Axis::X, kSideLeftRect.col - kSideFrontX, 1, Axis::Z,
                          kSideLeftRect.row + kSideTopZ, -1);
}

MapProjection FuselageTopProjection() {
    return MakeProjection(Axis::X, kFuselageTopRect.col - kSideFrontX, 1, Axis::Y,
                          kFuselageTopRect.row + kStripHalfWidth, -1);
}

MapProjection FuselageBottomProjection() {
    return MakeProjection(Axis::X, kFuselageBottomRect.col - kSideFrontX, 1, Axis::Y,
                          kFuselageBottomRect.row + kStripHalfWidth, 1);
}

MapProjection WingProjection(WingSurface surface, bool leftWing) {
    const double spanSign = leftWing ? -1 : 1;
    switch (surface) {
    case WingSurface::Top:
        return MakeProjection(Axis::X, kWingTopRect.col - kWingFrontX, 1, Axis::Y, kWingTopRect.row,
                              spanSign);
    case WingSurface::Bottom:
        return MakeProjection(Axis::X, kWingBottomRect.col - kWingFrontX, 1, Axis::Y,
                              kWingBottomRect.row, spanSign);
    case WingSurface::TopTorn:
        return MakeProjection(Axis::X, kWingTopTornRect.col - kWingFrontX, 1, Axis::Y,
                              kWingTopTornRect.row - kDamageY, spanSign);
    case WingSurface::BottomTorn:
        break;
    }
    return MakeProjection(Axis::X, kWingBottomTornRect.col - kWingFrontX, 1, Axis::Y,
                          kWingBottomTornRect.row - kDamageY, spanSign);
}

MapProjection WellOpenProjection(bool leftWing) {
    return MakeProjection(Axis::X, kWellOpenRect.col - kWellFrontX, 1, Axis::Y,
                          kWellOpenRect.row - kWellInnerY, leftWing ? -1 : 1);
}

MapProjection TailProjection(bool bottom, bool leftHalf) {
    const PixelRect& rect = bottom ? kTailBottomRect : kTailTopRect;
    return MakeProjection(Axis::X, rect.col - kTailFrontX, 1, Axis::Y, rect.row, leftHalf ? -1 : 1);
}

MapProjection HoodProjection(PilotPicture picture, double hoodFrontX) {
    const PixelRect& rect = HoodRect(picture);
    return MakeProjection(Axis::X, rect.col - hoodFrontX, 1, Axis::Z, rect.row + kCanopyTopZ, -1);
}

MapProjection NoseArtProjection(bool rightSide) {
    const double centreCol = kNoseArtRect.col + kNoseArtRect.width / 2.0;
    const double centreRow = kNoseArtRect.row + kNoseArtRect.height / 2.0;
    return MakeProjection(Axis::X, centreCol, rightSide ? -1 : 1, Axis::Z, centreRow, -1);
}

PixelPoint SwatchOf(PaintColour colour) {
    return SwatchOf(kFighterSwatches, colour);
}
