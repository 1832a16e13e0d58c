#include "fightertail.h"

#include "facemaker.h"
#include "fighteratlas.h"
#include "fighterdesign.h"
#include "samplecodes.h"

namespace {

constexpr TextureSize kTexture{kFighterTextureSize, kFighterTextureSize};
constexpr int kTailWheelCorners = 6;

template <std::size_t N> std::vector<Vec3> InSideView(const Point2 (&outline)[N]) {
    std::vector<Vec3> corners;
    for (const Point2& point : outline)
        corners.push_back({point.a, 0, point.b});
    return corners;
}

template <std::size_t N> std::vector<Vec3> InPlanView(const Point2 (&outline)[N], double z) {
    std::vector<Vec3> corners;
    for (const Point2& point : outline)
        corners.push_back({point.a, point.b, z});
    return corners;
}

// A flat plate painted on both sides: its front toward `normal` with `frontMap`, its back with
// `backMap`.
void AddPlate(RecordBuilder& builder, const std::vector<Vec3>& corners, Vec3 normal,
              const MapProjection& frontMap, const MapProjection& backMap, int body) {
    const FaceStyle style = Style(kTypeTexturedPoly);
    builder.AddFace(ProjectedFace(corners, frontMap, kTexture, style, body), normal);
    builder.AddFace(ProjectedFace(corners, backMap, kTexture, style, body), -normal);
}

void AddFinAndRudder(RecordBuilder& builder) {
    const int rudder = builder.AddPart(kPartHeading, kRudderNum, kRudderPivot);
    AddPlate(builder, InSideView(kFinOutline), {0, 1, 0}, SideProjection(true),
             SideProjection(false), 0);
    AddPlate(builder, InSideView(kRudderOutline), {0, 1, 0}, SideProjection(true),
             SideProjection(false), rudder);
}

void AddTailplane(RecordBuilder& builder) {
    const int elevator = builder.AddPart(kPartPitch, kElevatorNum, kElevatorPivot);
    for (bool left : {false, true}) {
        std::vector<Vec3> fixed = InPlanView(kTailplaneOutline, kTailplaneZ);
        std::vector<Vec3> moving = InPlanView(kElevatorOutline, kTailplaneZ);
        if (left) {
            fixed = Mirrored(fixed);
            moving = Mirrored(moving);
        }
        AddPlate(builder, fixed, {0, 0, 1}, TailProjection(false, left), TailProjection(true, left),
                 0);
        AddPlate(builder, moving, {0, 0, 1}, TailProjection(false, left),
                 TailProjection(true, left), elevator);
    }
}

void AddTailWheel(RecordBuilder& builder) {
    const PixelPoint tyreCentre = InRect(kTyreRect, 0.5, 0.5);
    const std::vector<PixelPoint> tyreMap =
        RegularPixels(tyreCentre, kTyreRect.width / 2.0 - 0.5, kTailWheelCorners, 0);
    for (uint8_t flag : {kGearUp, kGearDown}) {
        const double z = flag == kGearDown ? kTailWheelDownZ : kTailWheelUpZ;
        for (double side : {-1.0, 1.0}) {
            const std::vector<Vec3> disc =
                RegularPolygon({kTailWheelX, side * kTailWheelHalfWidth, z}, {1, 0, 0}, {0, 0, 1},
                               kTailWheelRadius, kTailWheelCorners, 0);
            builder.AddFace(
                PinnedFace(disc, tyreMap, kTexture, Style(kTypeTexturedPoly, kCodeTailWheel, flag)),
                Vec3{0, side, 0});
        }
    }
    // The fork shows only with the wheel down.
    const double forkFront = kTailWheelX - 3;
    const double forkRear = kTailWheelX + 2;
    for (double side : {-1.0, 1.0}) {
        const double y = side * kTailForkHalfWidth;
        const std::vector<Vec3> fork{{forkFront, y, kTailForkTopZ},
                                     {forkRear, y, kTailForkTopZ},
                                     {kTailWheelX + 1, y, kTailWheelDownZ},
                                     {kTailWheelX - 1, y, kTailWheelDownZ}};
        builder.AddFace(PlainFace(fork, SwatchOf(kMetalDark), kTexture,
                                  Style(kTypeTexturedPoly, kCodeTailWheel, kGearDown)),
                        Vec3{0, side, 0});
    }
}

} // namespace

void AddFighterTail(RecordBuilder& builder) {
    AddTailplane(builder);
    AddFinAndRudder(builder);
    AddTailWheel(builder);
}
