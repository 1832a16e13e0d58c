// The measures of the sample fighter, in model units (0.0448 m), shared by its geometry and by
// the texture painted for it. The nose points to -X, the right wing to +Y, Z is up.
#pragma once

#include "vec3.h"

// Fuselage: octagonal sections, each the base octagon scaled by a whole factor so that the faces
// between two sections are exactly flat.
struct FuselageStation {
    double x;
    double centreZ;
    double scale;
};
constexpr FuselageStation kStations[] = {
    {-90, 0, 3}, {-74, 1, 4}, {-50, 2, 5}, {-20, 2, 5}, {30, 2, 5}, {70, 5, 3}, {104, 8, 1},
};
constexpr int kStationCount = sizeof(kStations) / sizeof(kStations[0]);
// Half width of the base octagon, half width of its top and bottom faces, half height, and half
// height of its upright sides.
constexpr double kBaseHalfWidth = 3;
constexpr double kBaseTopHalfWidth = 1;
constexpr double kBaseHalfHeight = 4;
constexpr double kBaseSideHalfHeight = 2;

// Propeller and spinner, turning about the propeller's pivot.
constexpr Vec3 kPropellerPivot{-95, 0, 0};
constexpr double kSpinnerTipX = -104;
constexpr double kSpinnerBaseX = -91;
constexpr double kSpinnerRadius = 7;
constexpr double kBladeRootRadius = 5;
constexpr double kBladeTipRadius = 40;
constexpr double kBladeRootHalfWidth = 3;
constexpr double kBladeTipHalfWidth = 2;

// Cockpit: the windscreen from the top face of the fuselage at station kCockpitStation up to the
// hood; the sliding hood from kHoodFrontX to kHoodRearX, which slides back by kHoodSlide when the
// pilot has bailed out; the fixed fairing behind it down to the top face at station
// kFairingStation.
constexpr int kCockpitStation = 3;
constexpr int kFairingStation = 4;
constexpr double kHoodFrontX = -8;
constexpr double kHoodRearX = 14;
constexpr double kHoodSlide = 16;
constexpr double kCanopyBaseHalfWidth = 8;
constexpr double kCanopyBaseZ = 19;
constexpr double kCanopyTopHalfWidth = 5;
constexpr double kCanopyTopZ = 31;
constexpr double kFairingBaseHalfWidth = 7;
constexpr double kFairingBaseZ = 20;
constexpr double kFairingTopHalfWidth = 4;
constexpr double kFairingTopZ = 30;
// The pilot's head, a box.
constexpr double kHeadFrontX = -2;
constexpr double kHeadRearX = 4;
constexpr double kHeadHalfWidth = 3;
constexpr double kHeadBottomZ = 23;
constexpr double kHeadTopZ = 29;

// Fin and rudder (x, z outlines in the plane y = 0), tailplane and elevator (x, y outlines of the
// right half in the plane z = kTailplaneZ).
struct Point2 {
    double a;
    double b;
};
constexpr Point2 kFinOutline[] = {{76, 10}, {100, 10}, {100, 44}, {96, 48}, {89, 47}};
constexpr Point2 kRudderOutline[] = {{100, 6}, {109, 8}, {112, 30}, {108, 42}, {100, 44}};
constexpr Vec3 kRudderPivot{100, 0, 26};
constexpr double kTailplaneZ = 10;
constexpr Point2 kTailplaneOutline[] = {{78, 0}, {98, 0}, {98, 38}, {93, 40}, {86, 38}};
constexpr Point2 kElevatorOutline[] = {{98, 3}, {98, 38}, {103, 36}, {107, 20}, {106, 3}};
constexpr Vec3 kElevatorPivot{98, 0, 10};
// Fin flash on both sides of the fin.
constexpr double kFinFlashFrontX = 80;
constexpr double kFinFlashRearX = 92;
constexpr double kFinFlashBottomZ = 16;
constexpr double kFinFlashTopZ = 40;

// Tail wheel: a hexagonal wheel between two fork plates, down and retracted.
constexpr double kTailWheelX = 96;
constexpr double kTailWheelDownZ = -17;
constexpr double kTailWheelUpZ = 0;
constexpr double kTailWheelRadius = 4;
constexpr double kTailWheelHalfWidth = 1.5;
constexpr double kTailForkHalfWidth = 2.5;
constexpr double kTailForkTopZ = 3;

// Markings on the fuselage sides.
constexpr double kFuselageRoundelX = 44;
constexpr double kFuselageRoundelZ = 6;
constexpr double kFuselageRoundelRadius = 10;
constexpr double kBandFrontX = 62;
constexpr double kBandRearX = 69;
constexpr double kExhaustFrontX = -82;
constexpr double kExhaustRearX = -58;
constexpr double kExhaustZ = 4;
constexpr double kCamouflageLowZ = -5;

// Wings, in the frame of a wing file whose origin is the wing root hardpoint. The right wing runs
// to +Y, the left wing is its mirror image. Leading edge x = kLeadingEdgeX + y * kEdgeSweep,
// trailing edge x = kTrailingEdgeX - y * kEdgeSweep; the upper and lower faces rise by
// kDihedral per unit of span.
constexpr Vec3 kRightWingRoot{-8, 15, -5};
constexpr double kWingSpan = 96;
constexpr double kLeadingEdgeX = -12;
constexpr double kTrailingEdgeX = 32;
constexpr double kEdgeSweep = 1.0 / 8;
constexpr double kDihedral = 1.0 / 16;
constexpr double kWingHalfThickness = 3;
constexpr double kNoseDepth = 3;      // the leading edge bevel ahead of the upper face
constexpr double kTrailingWedge = 10; // the trailing edge wedge behind the upper face
// The roundel on the upper face, in a square strip of the span.
constexpr double kWingRoundelX = 10;
constexpr double kWingRoundelY = 50;
constexpr double kWingRoundelSquare = 10; // half the side of the square around it
constexpr double kWingRoundelCorner = 9;  // radius of the corners of its octagon
constexpr double kWingRoundelRadius = 11;
constexpr double kWingRoundelRedRadius = 4.5;
// Outboard of kDamageY the wing is whole or torn; the tear runs from the trailing edge at
// kTearTrailingY to the leading edge at kTearLeadingY.
constexpr double kDamageY = 60;
constexpr double kTearTrailingY = 70;
constexpr double kTearLeadingY = 84;
static_assert(kWingRoundelY + kWingRoundelSquare == kDamageY,
              "the roundel's strip ends where the outer panel begins");
constexpr double kAileronInnerY = 62;
constexpr double kAileronOuterY = 92;
// The main gear: a wheel well in the lower face, a leg and a wheel.
constexpr double kWellInnerY = 16;
constexpr double kWellOuterY = 34;
constexpr double kWellFrontX = -2;
constexpr double kWellRearX = 18;
constexpr double kGearLegY = 29;
constexpr double kGearLegFrontX = 4;
constexpr double kGearLegRearX = 8;
constexpr double kWheelX = 6;
constexpr double kWheelZ = -36;
constexpr double kWheelRadius = 7;
constexpr double kWheelInnerY = 21;
constexpr double kWheelOuterY = 27;
// Guns in the leading edge.
constexpr double kGunY[] = {30, 38};

// The nose art panel: a connected file hung 1 unit outside the left side of the nose, with its
// mirror image on the right side.
constexpr Vec3 kNoseArtCentre{-36, -16, 5};
constexpr double kNoseArtHalfLength = 14;
constexpr double kNoseArtHalfHeight = 7;

// Underside bomb rack and the aerial wire from the fairing to the fin.
constexpr Vec3 kBombRack{-10, 0, -18};
constexpr Vec3 kAerialFront{20, 0, 27};
constexpr Vec3 kAerialRear{92, 0, 47};

// Wing geometry helpers.
inline double LeadingEdgeX(double y) {
    return kLeadingEdgeX + y * kEdgeSweep;
}
inline double TrailingEdgeX(double y) {
    return kTrailingEdgeX - y * kEdgeSweep;
}
inline double WingMidZ(double y) {
    return y * kDihedral;
}
inline double UpperZ(double y) {
    return WingMidZ(y) + kWingHalfThickness;
}
inline double LowerZ(double y) {
    return WingMidZ(y) - kWingHalfThickness;
}
