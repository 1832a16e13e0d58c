// The 256 colours of the sample's textures: named colours first, a grey ramp behind them.
#pragma once

#include "indexedcanvas.h"

#include <cstdint>

enum PaintColour : uint8_t {
    kBlack,
    kWhite,
    kCamoGreen,
    kCamoEarth,
    kSky,
    kRoundelBlue,
    kRoundelRed,
    kRoundelYellow,
    kPanelLine,
    kPanelLineLight,
    kMetal,
    kMetalDark,
    kExhaust,
    kGlass,
    kGlassLight,
    kFrame,
    kCockpit,
    kTyre,
    kHub,
    kHelmet,
    kSkin,
    kGoggles,
    kBlood,
    kDeadSkin,
    kScorch,
    kFire,
    kBareMetal,
    kPropTip,
    kSpinnerLight,
    kSpinnerDark,
    kWell,
    kWellRib,
    kNoseArtBack,
    kNoseArtInk,
    kLetter,
    kTruckRed,
    kTruckRedDark,
    kTankSilver,
    kTankShade,
    kChrome,
    kWindow,
    kHeadlight,
    kWarningYellow,
    kNamedColours
};

Palette SamplePalette();
