#include "vehicleatlas.h"

#include "vehicledesign.h"

MapProjection CabSideProjection(bool right) {
    return MakeProjection(Axis::X,
                          right ? kCabSideRect.col + kCabRearX : kCabSideRect.col - kChassisFrontX,
                          right ? -1 : 1, Axis::Z, kCabSideRect.row + kCabTopZ, -1);
}

MapProjection CabFrontProjection() {
    return MakeProjection(Axis::Y, kCabFrontRect.col + kCabFrontRect.width / 2.0, -1, Axis::Z,
                          kCabFrontRect.row + kCabTopZ, -1);
}

MapProjection TankSideProjection(bool right) {
    return MakeProjection(
        Axis::X, right ? kTankSideRect.col + kTankRearX : kTankSideRect.col - kTankFrontX,
        right ? -1 : 1, Axis::Z, kTankSideRect.row + kTankAxisZ + kTankRadius, -1);
}

PixelPoint TruckSwatch(PaintColour colour) {
    return SwatchOf(kTruckSwatches, colour);
}
