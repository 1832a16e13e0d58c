#include "sequencewalk.h"

#include "framemessages.h"

#include <GL/gl.h>

#include <algorithm>
#include <bitset>
#include <cmath>
#include <limits>

namespace {

constexpr double kRadiansPerDegree = 0.017453292519943278;
// The camera's pitch counts from the horizon, the viewing direction's polar angle from +Z.
constexpr double kPitchToPolarDegrees = 90.0;
// Plane normals are fixed point with 16384 standing for 1.
constexpr double kNormalUnit = 16384.0;
constexpr int kPiggybacksPerElementNumber = 100;
constexpr int kElementNumbers = 256;

struct Direction {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

// The unit viewing direction of the current walk; the eye counts as standing at distance 1 from
// the origin along it.
Direction ViewVector;
// The elements the current walk has reached.
std::bitset<kElementNumbers> reached;

Direction ViewVectorOf(const DrawSettings& settings) {
    const double heading = settings.xrot * kRadiansPerDegree;
    const double polar = (settings.yrot + kPitchToPolarDegrees) * kRadiansPerDegree;
    return {std::cos(heading) * std::sin(polar), std::sin(heading) * std::sin(polar),
            std::cos(polar)};
}

// Positive when the eye stands in front of the plane: (n . V - D) / 16384, worked out as the
// eye moved by D along the first axis on which the normal is not zero, each product divided
// before it is added.
double SideOfPlane(const NRMRecord& plane) {
    Direction point = ViewVector;
    if (plane.Z != 0) {
        point.z -= static_cast<double>(plane.D) / plane.Z;
    } else if (plane.Y != 0) {
        point.y -= static_cast<double>(plane.D) / plane.Y;
    } else if (plane.X != 0) {
        point.x -= static_cast<double>(plane.D) / plane.X;
    } else {
        NoteFrameMessage(kInvalidSplittingPlane);
        point = Direction{};
    }
    return plane.Y * point.y / kNormalUnit + plane.X * point.x / kNormalUnit +
           plane.Z * point.z / kNormalUnit;
}

// The piggybacks of one element in list order: white outlines in line view, the selection red
// whichever file it belongs to.
void PaintElement(const FileRecord& record, int element, const Node& displacement,
                  const DrawSettings& settings) {
    const ElementList& list = record.Elements[static_cast<size_t>(element)];
    const int count = std::min<int>(list.Count, static_cast<int>(list.Items.size()));
    for (int position = 0; position < count; ++position) {
        const int number = element * kPiggybacksPerElementNumber + position;
        if (number > std::numeric_limits<int16_t>::max())
            return;
        glColor3f(1.0f, 1.0f, 1.0f);
        if (!settings.texture)
            glPolygonMode(GL_FRONT, GL_LINE);
        if (number == settings.currelem) {
            glColor3f(1.0f, 0.0f, 0.0f);
            if (!settings.texture)
                glPolygonMode(GL_FRONT, GL_FILL);
        }
        DrawElement(record, static_cast<int16_t>(number), displacement, settings);
    }
}

void Walk(const FileRecord& record, int element, const Node& displacement,
          const DrawSettings& settings) {
    if (element == kNoElement)
        return;
    // An element beyond the file's tables ends this branch. So does one the walk has reached
    // before: a child that leads back up the path would walk forever, and children shared by
    // several parents could multiply the walk beyond any wait. Each element is painted at most
    // once, and the walk takes at most as many steps as the file has elements.
    if (element < 0 || element >= record.NumElements ||
        static_cast<size_t>(element) >=
            std::min({record.Elements.size(), record.NRM.size(), record.PART.size()}) ||
        reached.test(static_cast<size_t>(element)))
        return;
    reached.set(static_cast<size_t>(element));
    const ChildPair& children = record.PART[static_cast<size_t>(element)];
    // A tie, and a plane without a normal, go first child first.
    const bool eyeInFront = SideOfPlane(record.NRM[static_cast<size_t>(element)]) > 0.0;
    Walk(record, children[eyeInFront ? 1 : 0], displacement, settings);
    PaintElement(record, element, displacement, settings);
    Walk(record, children[eyeInFront ? 0 : 1], displacement, settings);
}

} // namespace

void WalkSequence(const FileRecord& record, int16_t element, bool first, const Node& displacement,
                  const DrawSettings& settings) {
    if (first) {
        ViewVector = ViewVectorOf(settings);
        reached.reset();
    }
    Walk(record, element, displacement, settings);
}
