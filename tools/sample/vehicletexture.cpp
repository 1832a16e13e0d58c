#include "vehicletexture.h"

#include "pixelfont.h"
#include "samplepalette.h"
#include "vehicleatlas.h"
#include "vehicledesign.h"

#include <cmath>
#include <cstring>

namespace {

constexpr int kFuelLetterScale = 2;
constexpr double kStripeBelowAxis = 10;
// The cab's window, door and the arch over the front wheel, in model units.
constexpr double kWindowBottomZ = 42;
constexpr double kWindowTopZ = 56;
constexpr double kDoorFrontX = -74;
constexpr double kDoorRearX = -48;
constexpr double kDoorBottomZ = 22;

void PaintCab(IndexedCanvas& canvas) {
    const MapProjection side = CabSideProjection(false);
    PaintRegion(canvas, kCabSideRect, side, [](double x, double z) {
        const double dx = x - kFrontAxleX;
        const double dz = z - kWheelCentreZ;
        if (dx * dx + dz * dz < (kTruckWheelRadius + 3) * (kTruckWheelRadius + 3))
            return kBlack;
        if (z > kWindowBottomZ && z < kWindowTopZ && x > kDoorFrontX + 2 && x < kCabRearX - 3)
            return kWindow;
        const bool doorEdge = (std::abs(x - kDoorFrontX) < 0.5 || std::abs(x - kDoorRearX) < 0.5) &&
                              z > kDoorBottomZ && z < kWindowTopZ + 2;
        return doorEdge ? kTruckRedDark : kTruckRed;
    });
    canvas.FillRect(static_cast<int>(side.PixelOf({kDoorRearX - 5, 0, 0}).col),
                    static_cast<int>(side.PixelOf({0, 0, kWindowBottomZ - 4}).row), 3, 1, kChrome);

    const MapProjection front = CabFrontProjection();
    PaintRegion(canvas, kCabFrontRect, front, [](double y, double z) {
        if (z > kWindowBottomZ && z < kWindowTopZ && std::abs(y) < kCabHalfWidth - 3)
            return kWindow;
        if (z > 22 && z < 36 && std::abs(y) < 12)
            return std::fmod(z, 3.0) < 1.5 ? kChrome : kBlack;
        return kTruckRed;
    });
    for (double y : {-19.0, 19.0})
        canvas.FillDisc(front.PixelOf({0, y, 29}), 4, kHeadlight);
}

void PaintTank(IndexedCanvas& canvas) {
    const MapProjection side = TankSideProjection(false);
    PaintRegion(canvas, kTankSideRect, side, [](double x, double z) {
        if (x < kTankFrontX + 4 || x > kTankRearX - 4)
            return kTankShade;
        if (std::abs(z - (kTankAxisZ - kStripeBelowAxis)) < 1)
            return kTruckRed;
        return kTankSilver;
    });
    const char* text = "FUEL";
    const int width =
        static_cast<int>(std::strlen(text)) * kGlyphAdvance * kFuelLetterScale - kFuelLetterScale;
    // Centred on the flank, half way up the drum.
    const int top = static_cast<int>(side.PixelOf({0, 0, kTankAxisZ}).row) -
                    kGlyphHeight * kFuelLetterScale / 2;
    canvas.DrawText(kTankSideRect.col + (kTankSideRect.width - width) / 2, top, text,
                    kFuelLetterScale, kTruckRed);
}

} // namespace

IndexedCanvas PaintVehicleTexture() {
    IndexedCanvas canvas(kVehicleTextureSize, kVehicleTextureSize, kTruckRed);
    PaintCab(canvas);
    PaintTank(canvas);
    DrawRings(canvas, InRect(kTruckTyreRect, 0.5, 0.5),
              {{kTruckTyreRect.width / 2.0, kBlack}, {5, kChrome}, {2, kMetalDark}});
    PaintSwatches(canvas, kTruckSwatches);
    return canvas;
}
