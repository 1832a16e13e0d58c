#include "fightertexture.h"

#include "fighteratlas.h"
#include "fighterdesign.h"
#include "pixelfont.h"
#include "samplepalette.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kLetterScale = 2;
constexpr double kHolePositions[][3] = {
    // x, y, radius in the frame of a wing file
    {4, 66, 2.5},
    {14, 72, 3},
    {-2, 76, 2},
    {8, 80, 1.5},
    {18, 64, 1.5}};

// Two-tone camouflage as a smooth pattern of model coordinates, so that neighbouring views agree.
bool CamouflageGreen(double a, double b) {
    return std::sin(a / 14.0 + 1.7 * std::sin(b / 19.0)) + 0.8 * std::sin(b / 12.0 - a / 23.0 + 1) >
           0.15;
}

PaintColour Camouflage(double a, double b) {
    return CamouflageGreen(a, b) ? kCamoGreen : kCamoEarth;
}

void DrawModelLine(IndexedCanvas& canvas, const MapProjection& projection, Vec3 from, Vec3 to,
                   PaintColour colour) {
    canvas.DrawLine(projection.PixelOf(from), projection.PixelOf(to), colour);
}

// Text whose letters stand upright and read from left to right in the texture, spanning the
// model positions `fromX` to `toX` along the side of the fuselage.
void DrawSideText(IndexedCanvas& canvas, const MapProjection& projection, const char* text,
                  double fromX, double toX, double topZ) {
    const PixelPoint a = projection.PixelOf({fromX, 0, topZ});
    const PixelPoint b = projection.PixelOf({toX, 0, topZ});
    canvas.DrawText(static_cast<int>(std::lround(std::min(a.col, b.col))),
                    static_cast<int>(std::lround(a.row)), text, kLetterScale, kLetter);
}

void PaintSide(IndexedCanvas& canvas, bool right) {
    const MapProjection projection = SideProjection(right);
    PaintRegion(canvas, right ? kSideRightRect : kSideLeftRect, projection, [](double x, double z) {
        const bool band = x >= kBandFrontX && x <= kBandRearX;
        const bool flash = x >= kFinFlashFrontX && x <= kFinFlashRearX && z >= kFinFlashBottomZ &&
                           z <= kFinFlashTopZ;
        if (flash) {
            const double third = (kFinFlashRearX - kFinFlashFrontX) / 3;
            if (x < kFinFlashFrontX + third)
                return kRoundelRed;
            return x < kFinFlashFrontX + 2 * third ? kWhite : kRoundelBlue;
        }
        if (band)
            return kSky;
        const double line = kCamouflageLowZ + 2 * std::sin(x / 15.0);
        return z > line ? Camouflage(x, z) : kSky;
    });
    // Panel lines at the joints of the cowling and the fuselage.
    for (int s = 1; s + 1 < kStationCount; ++s) {
        const FuselageStation& station = kStations[s];
        const double h = kBaseHalfHeight * station.scale;
        DrawModelLine(canvas, projection, {station.x, 0, station.centreZ + h},
                      {station.x, 0, station.centreZ - h}, kPanelLine);
    }
    DrawModelLine(canvas, projection, {kRudderPivot.x, 0, 6}, {kRudderPivot.x, 0, 44}, kPanelLine);
    // Six exhaust stubs on the cowling.
    constexpr int kStubs = 6;
    const double pitch = (kExhaustRearX - kExhaustFrontX) / kStubs;
    for (int i = 0; i < kStubs; ++i) {
        const double x = kExhaustFrontX + i * pitch;
        const PixelPoint a = projection.PixelOf({x, 0, kExhaustZ + 1.5});
        const PixelPoint b = projection.PixelOf({x + pitch - 1, 0, kExhaustZ - 1.5});
        canvas.FillPolygon({{a.col, a.row}, {b.col, a.row}, {b.col, b.row}, {a.col, b.row}},
                           kExhaust);
    }
    // Roundel with a yellow outer ring, squadron letters ahead of it and the aircraft's letter
    // behind it.
    const PixelPoint roundel = projection.PixelOf({kFuselageRoundelX, 0, kFuselageRoundelZ});
    const double r = kFuselageRoundelRadius;
    DrawRings(canvas, roundel,
              {{r, kRoundelYellow},
               {r * 0.83, kRoundelBlue},
               {r * 0.55, kWhite},
               {r * 0.28, kRoundelRed}});
    const double letterTop = kFuselageRoundelZ + kGlyphHeight;
    const double twoLetters = 2 * kGlyphAdvance * kLetterScale - kLetterScale;
    const double gap = 3;
    DrawSideText(canvas, projection, "SL", kFuselageRoundelX - r - gap - twoLetters,
                 kFuselageRoundelX - r - gap, letterTop);
    DrawSideText(canvas, projection, "K", kFuselageRoundelX + r + gap,
                 kFuselageRoundelX + r + gap + kGlyphWidth * kLetterScale, letterTop);
}

void PaintFuselageStrips(IndexedCanvas& canvas) {
    const MapProjection top = FuselageTopProjection();
    PaintRegion(canvas, kFuselageTopRect, top, [](double x, double y) {
        if (x >= kHoodFrontX && x <= kHoodRearX)
            return kCockpit;
        return Camouflage(x, y * 3);
    });
    const MapProjection bottom = FuselageBottomProjection();
    PaintRegion(canvas, kFuselageBottomRect, bottom, [](double, double) { return kSky; });
    for (int s = 1; s + 1 < kStationCount; ++s) {
        const double x = kStations[s].x;
        DrawModelLine(canvas, top, {x, -6, 0}, {x, 6, 0}, kPanelLine);
        DrawModelLine(canvas, bottom, {x, -6, 0}, {x, 6, 0}, kPanelLineLight);
    }
}

void DrawHoles(IndexedCanvas& canvas, const MapProjection& projection) {
    for (const auto& hole : kHolePositions) {
        const PixelPoint centre = projection.PixelOf({hole[0], hole[1], 0});
        DrawRings(canvas, centre,
                  {{hole[2] + 1.5, kScorch}, {hole[2] + 0.5, kBareMetal}, {hole[2], kBlack}});
    }
    // A scorched, burning rim along the tear.
    const PixelPoint a = projection.PixelOf({TrailingEdgeX(kTearTrailingY), kTearTrailingY, 0});
    const PixelPoint b = projection.PixelOf({LeadingEdgeX(kTearLeadingY), kTearLeadingY, 0});
    for (int i = 0; i < 3; ++i) {
        const PaintColour colour = i == 0 ? kFire : kScorch;
        canvas.DrawLine({a.col, a.row - i}, {b.col, b.row - i}, colour);
    }
}

void PaintWings(IndexedCanvas& canvas) {
    const MapProjection top = WingProjection(WingSurface::Top, false);
    const MapProjection bottom = WingProjection(WingSurface::Bottom, false);
    PaintRegion(canvas, kWingTopRect, top, [](double x, double y) { return Camouflage(x, y); });
    PaintRegion(canvas, kWingBottomRect, bottom, [](double, double) { return kSky; });
    const std::pair<MapProjection, PaintColour> views[] = {{top, kPanelLine},
                                                           {bottom, kPanelLineLight}};
    for (const auto& [view, line] : views) {
        for (double y : {kWellInnerY, kDamageY - 20, kDamageY}) {
            DrawModelLine(canvas, view, {LeadingEdgeX(y), y, 0}, {TrailingEdgeX(y), y, 0}, line);
        }
        DrawModelLine(canvas, view, {TrailingEdgeX(kAileronInnerY), kAileronInnerY, 0},
                      {TrailingEdgeX(kAileronOuterY), kAileronOuterY, 0}, line);
        for (double y : kGunY)
            canvas.FillDisc(view.PixelOf({LeadingEdgeX(y) - 1.5, y, 0}), 1.2, kBlack);
    }
    // The roundel goes over the panel lines.
    DrawRings(canvas, top.PixelOf({kWingRoundelX, kWingRoundelY, 0}),
              {{kWingRoundelRadius, kRoundelBlue}, {kWingRoundelRedRadius, kRoundelRed}});
    // The doors of the wheel well, shut.
    const std::vector<PixelPoint> doors{bottom.PixelOf({kWellFrontX, kWellInnerY, 0}),
                                        bottom.PixelOf({kWellRearX, kWellInnerY, 0}),
                                        bottom.PixelOf({kWellRearX, kWellOuterY, 0}),
                                        bottom.PixelOf({kWellFrontX, kWellOuterY, 0})};
    canvas.DrawPolygonOutline(doors, kPanelLine);
    const double middleY = (kWellInnerY + kWellOuterY) / 2;
    DrawModelLine(canvas, bottom, {kWellFrontX, middleY, 0}, {kWellRearX, middleY, 0}, kPanelLine);

    const MapProjection topTorn = WingProjection(WingSurface::TopTorn, false);
    const MapProjection bottomTorn = WingProjection(WingSurface::BottomTorn, false);
    PaintRegion(canvas, kWingTopTornRect, topTorn,
                [](double x, double y) { return Camouflage(x, y); });
    PaintRegion(canvas, kWingBottomTornRect, bottomTorn, [](double, double) { return kSky; });
    DrawHoles(canvas, topTorn);
    DrawHoles(canvas, bottomTorn);

    // The open well: dark, with ribs.
    const MapProjection well = WellOpenProjection(false);
    PaintRegion(canvas, kWellOpenRect, well, [](double x, double) {
        return std::fmod(x - kWellFrontX, 5.0) < 1 ? kWellRib : kWell;
    });
    OutlineRect(canvas, kWellOpenRect, kBlack);
}

void PaintTail(IndexedCanvas& canvas) {
    const MapProjection top = TailProjection(false, false);
    const MapProjection bottom = TailProjection(true, false);
    PaintRegion(canvas, kTailTopRect, top, [](double x, double y) { return Camouflage(x, y); });
    PaintRegion(canvas, kTailBottomRect, bottom, [](double, double) { return kSky; });
    DrawModelLine(canvas, top, {kElevatorPivot.x, 0, 0}, {kElevatorPivot.x, 40, 0}, kPanelLine);
    DrawModelLine(canvas, bottom, {kElevatorPivot.x, 0, 0}, {kElevatorPivot.x, 40, 0},
                  kPanelLineLight);
}

void PaintHoods(IndexedCanvas& canvas) {
    for (PilotPicture picture : {PilotPicture::Alive, PilotPicture::Dead, PilotPicture::Empty}) {
        const MapProjection view = HoodProjection(picture, kHoodFrontX);
        const PixelRect& rect = picture == PilotPicture::Alive  ? kHoodAliveRect
                                : picture == PilotPicture::Dead ? kHoodDeadRect
                                                                : kHoodEmptyRect;
        PaintRegion(canvas, rect, view,
                    [](double, double z) { return z > kCanopyTopZ - 3 ? kGlassLight : kGlass; });
        const double headX = (kHeadFrontX + kHeadRearX) / 2;
        const double headZ = (kHeadBottomZ + kHeadTopZ) / 2;
        if (picture == PilotPicture::Alive) {
            canvas.FillDisc(view.PixelOf({headX, 0, headZ + 1}), 3.5, kHelmet);
            canvas.FillRect(static_cast<int>(view.PixelOf({headX - 3.5, 0, 0}).col),
                            static_cast<int>(view.PixelOf({0, 0, headZ + 1}).row), 4, 1, kGoggles);
        } else if (picture == PilotPicture::Dead) {
            canvas.FillDisc(view.PixelOf({headX - 2, 0, headZ - 2}), 3.5, kDeadSkin);
            canvas.FillDisc(view.PixelOf({headX + 4, 0, headZ + 2}), 2.5, kBlood);
            canvas.DrawLine(view.PixelOf({headX + 2, 0, kCanopyTopZ}),
                            view.PixelOf({headX + 7, 0, kCanopyBaseZ + 2}), kWhite);
        }
        // The frame: the sill, the arch at the top and a bow in the middle.
        canvas.FillRect(rect.col, rect.row + rect.height - 2, rect.width, 2, kFrame);
        canvas.FillRect(rect.col, rect.row, rect.width, 1, kFrame);
        canvas.FillRect(rect.col + rect.width - 2, rect.row, 2, rect.height, kFrame);
        canvas.FillRect(rect.col + rect.width / 2 + 4, rect.row, 1, rect.height, kFrame);
    }
}

void PaintPictures(IndexedCanvas& canvas) {
    // Nose art: the aircraft's name over a lightning bolt.
    const PixelRect& art = kNoseArtRect;
    canvas.FillRect(art.col, art.row, art.width, art.height, kNoseArtBack);
    OutlineRect(canvas, art, kNoseArtInk);
    canvas.DrawText(art.col + 3, art.row + 2, "DEMO", 1, kRoundelRed);
    canvas.FillPolygon({InRect(art, 0.08, 0.72), InRect(art, 0.55, 0.62), InRect(art, 0.5, 0.75),
                        InRect(art, 0.93, 0.66), InRect(art, 0.45, 0.92), InRect(art, 0.5, 0.8)},
                       kRoundelYellow);

    canvas.FillRect(kBladeRect.col, kBladeRect.row, kBladeRect.width, kBladeRect.height, kBlack);
    canvas.FillRect(kBladeRect.col, kBladeRect.row + kBladeRect.height - 6, kBladeRect.width, 6,
                    kPropTip);

    const PixelPoint tyre = InRect(kTyreRect, 0.5, 0.5);
    DrawRings(canvas, tyre, {{kTyreRect.width / 2.0, kTyre}, {3.5, kHub}, {1.2, kMetalDark}});

    PaintSwatches(canvas, kFighterSwatches);
}

} // namespace

IndexedCanvas PaintFighterTexture() {
    IndexedCanvas canvas(kFighterTextureSize, kFighterTextureSize, kMetal);
    PaintSide(canvas, false);
    PaintSide(canvas, true);
    PaintFuselageStrips(canvas);
    PaintWings(canvas);
    PaintTail(canvas);
    PaintHoods(canvas);
    PaintPictures(canvas);
    return canvas;
}
