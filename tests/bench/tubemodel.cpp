#include "tubemodel.h"

#include <cmath>
#include <iterator>

namespace {

constexpr int kElements = 255;
constexpr int kPolygonsPerElement = 6;
constexpr int kRings = 15;     // along X
constexpr int kRingNodes = 16; // around X
constexpr double kPi = 3.14159265358979323846;
// The hardpoint codes that place the connected files of an F family, slots 1 to 6.
constexpr uint8_t kHardpointCodes[] = {25, 26, 27, 28, 29, 10};

} // namespace

// Its ring nodes come first; the main file adds one node per hardpoint. Every element holds the
// same number of textured quads, mapped over the texture. With at most 256 nodes a file cannot
// hold 1530 quads side by side: each quad of the tube is painted about seven times, as the
// polygons of a full file must overlap.
MoxBuilder TubeFile(bool withHardpoints) {
    MoxBuilder file;
    file.SetTexture("BENCH.TPC");
    for (int ring = 0; ring < kRings; ++ring)
        for (int around = 0; around < kRingNodes; ++around) {
            const double angle = 2 * kPi * around / kRingNodes;
            file.nodes.push_back(Node{static_cast<int16_t>(std::lround(30 * std::cos(angle))),
                                      static_cast<int16_t>(std::lround(30 * std::sin(angle))),
                                      static_cast<int16_t>(-100 + ring * 14), 0});
        }
    const int quads = (kRings - 1) * kRingNodes;
    for (int element = 0; element < kElements; ++element) {
        StreamBytes stream;
        for (int k = 0; k < kPolygonsPerElement; ++k) {
            const int quad = (element * kPolygonsPerElement + k) % quads;
            const int ring = quad / kRingNodes;
            const int around = quad % kRingNodes;
            const auto corner = [&](int r, int a) {
                return StreamBytes::Corner{
                    static_cast<uint8_t>((ring + r) * kRingNodes + (around + a) % kRingNodes),
                    static_cast<uint8_t>(around * 16 + a * 15),
                    static_cast<uint8_t>(ring * 17 + r * 16)};
            };
            stream.MappedPoly(5, {corner(0, 0), corner(1, 0), corner(1, 1), corner(0, 1)}, 0, 0);
        }
        if (withHardpoints && element == 0)
            for (size_t slot = 0; slot < std::size(kHardpointCodes); ++slot) {
                file.nodes.push_back(
                    Node{static_cast<int16_t>((static_cast<int>(slot) - 3) * 45), 0, 0, 0});
                stream.Hardpoint(kHardpointCodes[slot],
                                 static_cast<uint8_t>(file.nodes.size() - 1));
            }
        file.streams.push_back(stream.End().bytes);
    }
    return file;
}
