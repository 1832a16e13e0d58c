// Where things lie in the fighter's texture PDEMO.PCX (256 by 256, 256 colours): the painted
// views that faces are projected on, the small pictures and the colour swatches.
#pragma once

#include "mapprojection.h"
#include "samplepalette.h"
#include "texturelayout.h"

constexpr int kFighterTextureSize = 256;

// The fuselage, fin and rudder as seen from the left and from the right; the top and bottom
// faces of the fuselage seen from above and below.
constexpr PixelRect kSideLeftRect{0, 0, 204, 68};
constexpr PixelRect kSideRightRect{0, 68, 204, 68};
constexpr PixelRect kFuselageTopRect{0, 233, 204, 11};
constexpr PixelRect kFuselageBottomRect{0, 244, 204, 11};
// A wing seen from above and from below, whole, and its outer part torn; both wings share them.
constexpr PixelRect kWingTopRect{0, 136, 58, 97};
constexpr PixelRect kWingBottomRect{58, 136, 58, 97};
constexpr PixelRect kWingTopTornRect{116, 136, 58, 37};
constexpr PixelRect kWingBottomTornRect{116, 173, 58, 37};
// The tailplane and elevator seen from above and from below.
constexpr PixelRect kTailTopRect{174, 136, 32, 41};
constexpr PixelRect kTailBottomRect{206, 136, 32, 41};
// Small pictures.
constexpr PixelRect kNoseArtRect{206, 2, 28, 14};
constexpr PixelRect kHoodAliveRect{206, 20, 22, 12};
constexpr PixelRect kHoodDeadRect{206, 34, 22, 12};
constexpr PixelRect kHoodEmptyRect{206, 48, 22, 12};
constexpr PixelRect kBladeRect{240, 20, 6, 40};
constexpr PixelRect kTyreRect{206, 62, 16, 16};
constexpr PixelRect kWellOpenRect{206, 80, 20, 18};
constexpr SwatchGrid kFighterSwatches{174, 180};

enum class PilotPicture { Alive, Dead, Empty };
enum class WingSurface { Top, Bottom, TopTorn, BottomTorn };

MapProjection SideProjection(bool rightSide);
MapProjection FuselageTopProjection();
MapProjection FuselageBottomProjection();
// In the frame of a wing file; `leftWing` mirrors the span.
MapProjection WingProjection(WingSurface surface, bool leftWing);
MapProjection WellOpenProjection(bool leftWing);
MapProjection TailProjection(bool bottom, bool leftHalf);
// The hood's side glazing seen from the side, for a hood whose front stands at `hoodFrontX`.
MapProjection HoodProjection(PilotPicture picture, double hoodFrontX);
// In the frame of the nose art file, whose origin is the centre of the left panel.
MapProjection NoseArtProjection(bool rightSide);

// The texture position of the middle of the fighter's swatch of `colour`.
PixelPoint SwatchOf(PaintColour colour);
