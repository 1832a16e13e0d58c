#include "fighterbody.h"

#include "facemaker.h"
#include "fighteratlas.h"
#include "fighterdesign.h"
#include "fightertail.h"
#include "samplecodes.h"

#include <array>
#include <cmath>

namespace {

constexpr TextureSize kTexture{kFighterTextureSize, kFighterTextureSize};
constexpr int kSectionCorners = 8;
constexpr int kSpinnerCorners = 8;
constexpr int kBlades = 3;
// Faces of a section, counted from the upper right diagonal around over the top.
constexpr int kTopFace = 1;
constexpr int kBottomFace = 5;

using Section = std::array<Vec3, kSectionCorners>;

Section SectionAt(const FuselageStation& station) {
    const double w = kBaseHalfWidth * station.scale;
    const double topW = kBaseTopHalfWidth * station.scale;
    const double h = kBaseHalfHeight * station.scale;
    const double sideH = kBaseSideHalfHeight * station.scale;
    const Point2 shape[kSectionCorners] = {{w, sideH},   {topW, h},   {-topW, h}, {-w, sideH},
                                           {-w, -sideH}, {-topW, -h}, {topW, -h}, {w, -sideH}};
    Section section;
    for (int k = 0; k < kSectionCorners; ++k)
        section[k] = {station.x, shape[k].a, station.centreZ + shape[k].b};
    return section;
}

MapProjection FuselageFaceProjection(int face, Vec3 outward) {
    if (face == kTopFace)
        return FuselageTopProjection();
    if (face == kBottomFace)
        return FuselageBottomProjection();
    return SideProjection(outward.y > 0);
}

void AddFuselage(RecordBuilder& builder) {
    for (int s = 0; s + 1 < kStationCount; ++s) {
        const Section front = SectionAt(kStations[s]);
        const Section rear = SectionAt(kStations[s + 1]);
        const double centreZ = (kStations[s].centreZ + kStations[s + 1].centreZ) / 2;
        for (int k = 0; k < kSectionCorners; ++k) {
            const int next = (k + 1) % kSectionCorners;
            const std::vector<Vec3> corners{front[k], front[next], rear[next], rear[k]};
            const Vec3 middle = Centroid(corners);
            const Vec3 outward{0, middle.y, middle.z - centreZ};
            builder.AddFace(ProjectedFace(corners, FuselageFaceProjection(k, outward), kTexture),
                            outward);
        }
    }
    // The cowling's air intake and the end of the tail cone, in plain colours.
    const Section nose = SectionAt(kStations[0]);
    const Section tail = SectionAt(kStations[kStationCount - 1]);
    FaceStyle intake = Style(kTypeColouredPoly);
    intake.att1 = kExhaust;
    FaceStyle tailEnd = Style(kTypeColouredPoly);
    tailEnd.att1 = kCamoGreen;
    std::vector<FaceCorner> noseCorners;
    std::vector<FaceCorner> tailCorners;
    for (int k = 0; k < kSectionCorners; ++k) {
        noseCorners.push_back(FaceCorner{nose[k]});
        tailCorners.push_back(FaceCorner{tail[k]});
    }
    builder.AddFace(Face{intake, 0, noseCorners}, Vec3{-1, 0, 0});
    builder.AddFace(Face{tailEnd, 0, tailCorners}, Vec3{1, 0, 0});
}

void AddPropeller(RecordBuilder& builder) {
    const int body = builder.AddPart(kPartRoll, kPropellerNum, kPropellerPivot);
    const Vec3 axis{0, kPropellerPivot.y, kPropellerPivot.z};
    // The spinner shades from its tip to its base: a Gouraud Poly with a colour per corner.
    const Vec3 tip = axis + Vec3{kSpinnerTipX, 0, 0};
    const std::vector<Vec3> ring =
        RegularPolygon(axis + Vec3{kSpinnerBaseX, 0, 0}, {0, 1, 0}, {0, 0, 1}, kSpinnerRadius,
                       kSpinnerCorners, M_PI / kSpinnerCorners);
    for (int k = 0; k < kSpinnerCorners; ++k) {
        const Vec3& a = ring[k];
        const Vec3& b = ring[(k + 1) % kSpinnerCorners];
        Face face{Style(kTypeGouraudPoly),
                  body,
                  {FaceCorner{tip, kSpinnerLight}, FaceCorner{a, kSpinnerDark},
                   FaceCorner{b, kSpinnerDark}}};
        const Vec3 middle = (a + b) * 0.5;
        builder.AddFace(face, Vec3{-0.5, middle.y - axis.y, middle.z - axis.z});
    }
    // Three flat blades in the plane of the pivot, painted on both sides.
    const Vec3 hub{kPropellerPivot.x, axis.y, axis.z};
    const std::vector<PixelPoint> bladeMap{InRect(kBladeRect, 0, 0), InRect(kBladeRect, 1, 0),
                                           InRect(kBladeRect, 1, 1), InRect(kBladeRect, 0, 1)};
    for (int k = 0; k < kBlades; ++k) {
        const double angle = M_PI / 2 + 2 * M_PI * k / kBlades;
        const Vec3 along{0, std::cos(angle), std::sin(angle)};
        const Vec3 across{0, -std::sin(angle), std::cos(angle)};
        const std::vector<Vec3> blade{hub + along * kBladeRootRadius + across * kBladeRootHalfWidth,
                                      hub + along * kBladeRootRadius - across * kBladeRootHalfWidth,
                                      hub + along * kBladeTipRadius - across * kBladeTipHalfWidth,
                                      hub + along * kBladeTipRadius + across * kBladeTipHalfWidth};
        builder.AddFace(PinnedFace(blade, bladeMap, kTexture, Style(kTypeTexturedPoly), body),
                        Vec3{-1, 0, 0});
        builder.AddFace(PinnedFace(blade, bladeMap, kTexture, Style(kTypeTexturedPoly), body),
                        Vec3{1, 0, 0});
    }
}

// The sliding hood with its front at `front`, showing one pilot picture on its side glazing.
void AddHood(RecordBuilder& builder, double front, PilotPicture picture, uint8_t flag) {
    const FaceStyle glass = Style(kTypeTransparentPoly, kCodePilot, flag);
    const double rear = front + (kHoodRearX - kHoodFrontX);
    for (double side : {-1.0, 1.0}) {
        const std::vector<Vec3> pane{{front, side * kCanopyBaseHalfWidth, kCanopyBaseZ},
                                     {rear, side * kCanopyBaseHalfWidth, kCanopyBaseZ},
                                     {rear, side * kCanopyTopHalfWidth, kCanopyTopZ},
                                     {front, side * kCanopyTopHalfWidth, kCanopyTopZ}};
        builder.AddFace(ProjectedFace(pane, HoodProjection(picture, front), kTexture, glass),
                        Vec3{0, side, 0.25});
    }
    const std::vector<Vec3> top{{front, -kCanopyTopHalfWidth, kCanopyTopZ},
                                {front, kCanopyTopHalfWidth, kCanopyTopZ},
                                {rear, kCanopyTopHalfWidth, kCanopyTopZ},
                                {rear, -kCanopyTopHalfWidth, kCanopyTopZ}};
    builder.AddFace(PlainFace(top, SwatchOf(kGlassLight), kTexture, glass), Vec3{0, 0, 1});
    const std::vector<Vec3> back{{rear, -kCanopyBaseHalfWidth, kCanopyBaseZ},
                                 {rear, kCanopyBaseHalfWidth, kCanopyBaseZ},
                                 {rear, kCanopyTopHalfWidth, kCanopyTopZ},
                                 {rear, -kCanopyTopHalfWidth, kCanopyTopZ}};
    builder.AddFace(PlainFace(back, SwatchOf(kGlass), kTexture, glass), Vec3{1, 0, 0});
}

void AddCanopy(RecordBuilder& builder) {
    const FaceStyle glass = Style(kTypeTransparentPoly);
    const Section cockpit = SectionAt(kStations[kCockpitStation]);
    const Vec3 baseLeft = cockpit[2];
    const Vec3 baseRight = cockpit[1];
    const std::vector<Vec3> screen{baseLeft,
                                   baseRight,
                                   {kHoodFrontX, kCanopyTopHalfWidth, kCanopyTopZ},
                                   {kHoodFrontX, -kCanopyTopHalfWidth, kCanopyTopZ}};
    builder.AddFace(PlainFace(screen, SwatchOf(kGlass), kTexture, glass), Vec3{-1, 0, 1});
    for (double side : {-1.0, 1.0}) {
        const std::vector<Vec3> quarter{side > 0 ? baseRight : baseLeft,
                                        {kHoodFrontX, side * kCanopyTopHalfWidth, kCanopyTopZ},
                                        {kHoodFrontX, side * kCanopyBaseHalfWidth, kCanopyBaseZ}};
        builder.AddFace(PlainFace(quarter, SwatchOf(kGlass), kTexture, glass),
                        Vec3{-0.3, side, 0.3});
    }
    // Closed while the pilot is alive or dead; slid back when he has bailed out.
    AddHood(builder, kHoodFrontX, PilotPicture::Alive, kPilotAlive);
    AddHood(builder, kHoodFrontX, PilotPicture::Dead, kPilotDead);
    AddHood(builder, kHoodFrontX + kHoodSlide, PilotPicture::Empty, kPilotBailedOut);

    // The fixed fairing behind the hood runs down to the top face of the fuselage.
    const Section rear = SectionAt(kStations[kFairingStation]);
    const std::vector<Vec3> fairingTop{{kHoodRearX, -kFairingTopHalfWidth, kFairingTopZ},
                                       {kHoodRearX, kFairingTopHalfWidth, kFairingTopZ},
                                       rear[1],
                                       rear[2]};
    builder.AddFace(ProjectedFace(fairingTop, FuselageTopProjection(), kTexture), Vec3{0.5, 0, 1});
    for (double side : {-1.0, 1.0}) {
        const std::vector<Vec3> flank{{kHoodRearX, side * kFairingBaseHalfWidth, kFairingBaseZ},
                                      {kHoodRearX, side * kFairingTopHalfWidth, kFairingTopZ},
                                      side > 0 ? rear[1] : rear[2]};
        builder.AddFace(ProjectedFace(flank, SideProjection(side > 0), kTexture),
                        Vec3{0.2, side, 0.5});
    }
}

// The pilot's head, a box: the face looks forward, the helmet covers the rest.
void AddPilotHead(RecordBuilder& builder, uint8_t flag, PaintColour face, PaintColour helmet) {
    const FaceStyle style = Style(kTypeTexturedPoly, kCodePilot, flag);
    const double x0 = kHeadFrontX;
    const double x1 = kHeadRearX;
    const double w = kHeadHalfWidth;
    const double z0 = kHeadBottomZ;
    const double z1 = kHeadTopZ;
    const PixelPoint faceMap = SwatchOf(face);
    const PixelPoint helmetMap = SwatchOf(helmet);
    builder.AddFace(
        PlainFace({{x0, -w, z0}, {x0, w, z0}, {x0, w, z1}, {x0, -w, z1}}, faceMap, kTexture, style),
        Vec3{-1, 0, 0});
    builder.AddFace(PlainFace({{x1, -w, z0}, {x1, w, z0}, {x1, w, z1}, {x1, -w, z1}}, helmetMap,
                              kTexture, style),
                    Vec3{1, 0, 0});
    for (double side : {-1.0, 1.0}) {
        builder.AddFace(
            PlainFace(
                {{x0, side * w, z0}, {x1, side * w, z0}, {x1, side * w, z1}, {x0, side * w, z1}},
                helmetMap, kTexture, style),
            Vec3{0, side, 0});
    }
    builder.AddFace(PlainFace({{x0, -w, z1}, {x1, -w, z1}, {x1, w, z1}, {x0, w, z1}}, helmetMap,
                              kTexture, style),
                    Vec3{0, 0, 1});
}

} // namespace

bool BuildFighterBody(FileRecord& record, std::string& problem) {
    RecordBuilder builder(kFighterTextureName);
    AddFuselage(builder);
    AddPropeller(builder);
    AddCanopy(builder);
    AddPilotHead(builder, kPilotAlive, kSkin, kHelmet);
    AddPilotHead(builder, kPilotDead, kBlood, kDeadSkin);
    AddFighterTail(builder);

    builder.AddHardpoint(kRightWingRoot, kHardpointSlot4);
    builder.AddHardpoint(MirrorY(kRightWingRoot), kHardpointSlot5);
    builder.AddHardpoint(kNoseArtCentre, kHardpointSlot3);
    builder.AddHardpoint(kBombRack, kHardpointBomb);
    builder.AddLine(kAerialFront, kAerialRear, kBlack);
    return builder.Build(record, problem);
}
