// Where things lie in the truck's texture TMOD1.PCX (128 by 128, 256 colours): the painted cab
// and tank that faces are projected on, a tyre and the colour swatches.
#pragma once

#include "mapprojection.h"
#include "texturelayout.h"

constexpr int kVehicleTextureSize = 128;

constexpr PixelRect kCabSideRect{0, 0, 40, 44};
constexpr PixelRect kCabFrontRect{40, 0, 54, 44};
constexpr PixelRect kTankSideRect{0, 44, 96, 44};
constexpr PixelRect kTruckTyreRect{100, 48, 24, 24};
constexpr SwatchGrid kTruckSwatches{0, 88};

// Each side is painted as it is seen, so `right` runs the picture the other way along X.
MapProjection CabSideProjection(bool right);
MapProjection CabFrontProjection();
MapProjection TankSideProjection(bool right);
// The truck's swatch of `colour`.
PixelPoint TruckSwatch(PaintColour colour);
