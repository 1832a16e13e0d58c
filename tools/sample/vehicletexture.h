// Paints the texture of the sample fuel truck, TMOD1.PCX: the cab's sides and front, the tank's
// sides with their lettering, a tyre and the colour swatches.
#pragma once

#include "indexedcanvas.h"

// 128 by 128 pixels in the colours of SamplePalette().
IndexedCanvas PaintVehicleTexture();
