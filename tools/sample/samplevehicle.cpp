#include "samplevehicle.h"

#include "facemaker.h"
#include "recordbuilder.h"
#include "samplecodes.h"
#include "vehicleatlas.h"
#include "vehicledesign.h"

#include <cmath>

namespace {

constexpr const char* kVehicleTextureName = "TMOD1.TPC";
constexpr TextureSize kTexture{kVehicleTextureSize, kVehicleTextureSize};
constexpr int kWheelCorners = 8;
constexpr int kTankCorners = 8;
// The faces half way between the flank and the top or bottom count as flanks.
constexpr double kFlankTolerance = 1e-6;
constexpr Vec3 kDirections[] = {{-1, 0, 0}, {1, 0, 0},  {0, -1, 0},
                                {0, 1, 0},  {0, 0, -1}, {0, 0, 1}};

void AddWheels(RecordBuilder& builder, Vec3 centre) {
    const std::vector<PixelPoint> tyreMap = RegularPixels(
        InRect(kTruckTyreRect, 0.5, 0.5), kTruckTyreRect.width / 2.0 - 0.5, kWheelCorners, 0);
    for (const OrientedFace& face :
         WheelFaces(centre, kTruckWheelInnerY, kTruckWheelOuterY, kTruckWheelRadius, tyreMap,
                    TruckSwatch(kBlack), kTexture, Style(kTypeTexturedPoly))) {
        builder.AddFace(face.face, face.outward);
        const OrientedFace mirrored = MirroredFace(face);
        builder.AddFace(mirrored.face, mirrored.outward);
    }
}

bool BuildTruckMain(FileRecord& record, std::string& problem) {
    RecordBuilder builder(kVehicleTextureName);
    // The chassis frame shows below the tank and behind the cab.
    const Vec3 frameLow{kChassisFrontX, -kChassisHalfWidth, kChassisBottomZ};
    const Vec3 frameHigh{kChassisRearX, kChassisHalfWidth, kChassisTopZ};
    for (const Vec3& direction : kDirections)
        builder.AddFace(PlainFace(BoxFace(frameLow, frameHigh, direction),
                                  TruckSwatch(kTruckRedDark), kTexture),
                        direction);
    // The cab: its front and sides painted, its top and back in plain red.
    const Vec3 cabLow{kChassisFrontX, -kCabHalfWidth, kChassisTopZ};
    const Vec3 cabHigh{kCabRearX, kCabHalfWidth, kCabTopZ};
    for (double side : {-1.0, 1.0}) {
        const Vec3 direction{0, side, 0};
        builder.AddFace(ProjectedFace(BoxFace(cabLow, cabHigh, direction),
                                      CabSideProjection(side > 0), kTexture),
                        direction);
    }
    builder.AddFace(
        ProjectedFace(BoxFace(cabLow, cabHigh, {-1, 0, 0}), CabFrontProjection(), kTexture),
        Vec3{-1, 0, 0});
    for (const Vec3& direction : {Vec3{1, 0, 0}, Vec3{0, 0, 1}})
        builder.AddFace(
            PlainFace(BoxFace(cabLow, cabHigh, direction), TruckSwatch(kTruckRed), kTexture),
            direction);
    // A chrome bumper in a plain colour of the simulator's own.
    FaceStyle bumper = Style(kTypeColouredPoly);
    bumper.att1 = kChrome;
    Face bumperFace{bumper, 0, {}};
    for (const Vec3& corner : BoxFace({kBumperX, -kCabHalfWidth, kBumperBottomZ},
                                      {kBumperX, kCabHalfWidth, kBumperTopZ}, {-1, 0, 0}))
        bumperFace.corners.push_back(FaceCorner{corner});
    builder.AddFace(bumperFace, Vec3{-1, 0, 0});
    AddWheels(builder, {kFrontAxleX, 0, kWheelCentreZ});

    builder.AddHardpoint(kTankMount, kHardpointSlot1);
    builder.AddHardpoint(kCabinetMount, kHardpointSlot2);
    builder.AddHardpoint(kRearAxleMount, kHardpointSlot3);
    // The hose from the cabinet to the tank's filler.
    builder.AddLine(kCabinetMount + Vec3{-kCabinetHalfLength, 0, kCabinetHeight / 2},
                    kTankMount + Vec3{kTankRearX - 10, 0, 2 * kTankAxisZ}, kBlack);
    return builder.Build(record, problem);
}

bool BuildTank(FileRecord& record, std::string& problem) {
    RecordBuilder builder(kVehicleTextureName);
    const double startAngle = M_PI / kTankCorners;
    const Vec3 frontCentre{kTankFrontX, 0, kTankAxisZ};
    const Vec3 rearCentre{kTankRearX, 0, kTankAxisZ};
    const std::vector<Vec3> front =
        RegularPolygon(frontCentre, {0, 1, 0}, {0, 0, 1}, kTankRadius, kTankCorners, startAngle);
    const std::vector<Vec3> rear =
        RegularPolygon(rearCentre, {0, 1, 0}, {0, 0, 1}, kTankRadius, kTankCorners, startAngle);
    for (int k = 0; k < kTankCorners; ++k) {
        const int next = (k + 1) % kTankCorners;
        const std::vector<Vec3> band{front[k], front[next], rear[next], rear[k]};
        const Vec3 middle = Centroid(band);
        const Vec3 outward{0, middle.y, middle.z - kTankAxisZ};
        if (std::abs(outward.y) + kFlankTolerance >= std::abs(outward.z)) {
            // The flanks and the faces next to them carry the painted side, readable from
            // either side.
            builder.AddFace(ProjectedFace(band, TankSideProjection(outward.y > 0), kTexture),
                            outward);
        } else {
            builder.AddFace(
                PlainFace(band, TruckSwatch(outward.z > 0 ? kTankSilver : kTankShade), kTexture),
                outward);
        }
    }
    // The ends shade from the rim to the middle: Gouraud Polys with a colour per corner.
    for (const auto& [ring, direction] :
         {std::pair{front, Vec3{-1, 0, 0}}, std::pair{rear, Vec3{1, 0, 0}}}) {
        Face end{Style(kTypeGouraudPoly), 0, {}};
        for (std::size_t k = 0; k < ring.size(); ++k)
            end.corners.push_back(
                FaceCorner{ring[k], k < ring.size() / 2 ? kTankSilver : kTankShade});
        builder.AddFace(end, direction);
    }
    return builder.Build(record, problem);
}

bool BuildCabinet(FileRecord& record, std::string& problem) {
    RecordBuilder builder(kVehicleTextureName);
    const Vec3 low{-kCabinetHalfLength, -kCabinetHalfWidth, 0};
    const Vec3 high{kCabinetHalfLength, kCabinetHalfWidth, kCabinetHeight};
    for (const Vec3& direction : kDirections) {
        if (direction.z < 0)
            continue;
        const PaintColour colour = direction.x > 0   ? kWarningYellow
                                   : direction.z > 0 ? kTruckRedDark
                                                     : kTruckRed;
        builder.AddFace(PlainFace(BoxFace(low, high, direction), TruckSwatch(colour), kTexture),
                        direction);
    }
    return builder.Build(record, problem);
}

bool BuildRearAxle(FileRecord& record, std::string& problem) {
    RecordBuilder builder(kVehicleTextureName);
    AddWheels(builder, {0, 0, 0});
    return builder.Build(record, problem);
}

} // namespace

bool BuildVehicleFamily(SampleFamily& family, std::string& problem) {
    family = {
        {"TMOD1H.MOX", 0, {}}, {"TMOD1S.MOX", 1, {}}, {"TMOD1L.MOX", 2, {}}, {"TMOD1D.MOX", 3, {}}};
    return BuildTruckMain(family[0].record, problem) && BuildTank(family[1].record, problem) &&
           BuildCabinet(family[2].record, problem) && BuildRearAxle(family[3].record, problem);
}
