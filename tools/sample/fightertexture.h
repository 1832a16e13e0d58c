// Paints the texture of the sample fighter, PDEMO.PCX: camouflage, roundels, code letters, fin
// flash and panel lines on the views that the faces are projected on, the pilot pictures of the
// hood, the damage of a torn wing, and the small pictures and colour swatches.
#pragma once

#include "indexedcanvas.h"

// 256 by 256 pixels in the colours of SamplePalette().
IndexedCanvas PaintFighterTexture();
