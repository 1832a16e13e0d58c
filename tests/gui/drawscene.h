// Small model files built in memory for the painter's tests, a fixed camera looking at them, and
// the screen positions of model points in a frame.
#pragma once

#include "editorfixture.h"
#include "filerecord.h"

#include <QPoint>

#include <cstdint>
#include <vector>

// A loaded file under construction. Squares are laid in the plane Y = 0, which the test camera
// sees face on: X to the right, Z up.
class TestFile {
public:
    TestFile();

    uint8_t AddNode(int16_t x, int16_t y, int16_t z, int16_t body = 0);
    // Four nodes of a square around (x, z) in the plane at depth `y`, stored clockwise as the
    // camera sees them, so that its front faces the camera; `facingAway` stores them the other
    // way round.
    std::vector<uint8_t> AddSquare(int16_t x, int16_t z, int16_t half, bool facingAway = false,
                                   int16_t y = 0);
    // A new element with these piggybacks; their Numbers are set. Returns the element index.
    int AddElement(std::vector<Piggyback> items);

    FileRecord record;
};

// A polygon kind mapped with the file's texture, and a state code that shows a piggyback in one
// pilot state only.
constexpr uint8_t kTextured = 5;
constexpr uint8_t kCodePilot = 146;
inline const Rgb kWhite{255, 255, 255};
inline const Rgb kBlack{0, 0, 0};
inline const Rgb kRed{255, 0, 0};
inline const Rgb kGreen{0, 255, 0};
inline const Rgb kBlue{0, 0, 255};

// A piggyback of `type` over these nodes, a polygon's map spanning the whole texture; of type
// kTypeHardpoint over one node, a hardpoint.
Piggyback Polygon(uint8_t type, const std::vector<uint8_t>& nodes, uint8_t cod = 0,
                  uint8_t flag = 0);

// Puts the files into the open model's slots (the first is the main file), marks the model as a
// loaded .mox family and moves the camera of a fresh model 100 units in front of the origin,
// looking along +Y.
void InstallFamily(std::vector<FileRecord> files);

// Where a model point lands in the frame last painted (image rows counted from the top). The GL
// context must be current.
QPoint OnScreen(double x, double y, double z);

// True when each component of `a` lies within `tolerance` of that of `b`.
bool Near(const Rgb& a, const Rgb& b, int tolerance);

// A texture of one row of texels of these colours, made in the current context with
// nearest-texel sampling.
int32_t StripTexture(const std::vector<Rgb>& texels);
