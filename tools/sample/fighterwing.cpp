#include "fighterwing.h"

#include "facemaker.h"
#include "fighteratlas.h"
#include "fighterbody.h"
#include "fighterdesign.h"
#include "samplecodes.h"

#include <cmath>

namespace {

constexpr TextureSize kTexture{kFighterTextureSize, kFighterTextureSize};
constexpr int kRoundelCorners = 8;
constexpr int kWheelCorners = 8;

// The corners of the wing's section at span station y, from the leading edge around over the top.
Vec3 Nose(double y) {
    return {LeadingEdgeX(y) - kNoseDepth, y, WingMidZ(y)};
}
Vec3 UpperLead(double y) {
    return {LeadingEdgeX(y), y, UpperZ(y)};
}
Vec3 UpperTrail(double y) {
    return {TrailingEdgeX(y), y, UpperZ(y)};
}
Vec3 TrailPoint(double y) {
    return {TrailingEdgeX(y) + kTrailingWedge, y, WingMidZ(y)};
}
Vec3 LowerTrail(double y) {
    return {TrailingEdgeX(y), y, LowerZ(y)};
}
Vec3 LowerLead(double y) {
    return {LeadingEdgeX(y), y, LowerZ(y)};
}
Vec3 OnUpper(double x, double y) {
    return {x, y, UpperZ(y)};
}
Vec3 OnLower(double x, double y) {
    return {x, y, LowerZ(y)};
}

// A strip of a face between two span stations, from its front edge to its rear edge.
using EdgePoint = Vec3 (*)(double);
std::vector<Vec3> Strip(EdgePoint frontEdge, EdgePoint rearEdge, double inner, double outer) {
    return {frontEdge(inner), rearEdge(inner), rearEdge(outer), frontEdge(outer)};
}

// Builds the right wing; the left wing is the same with every point mirrored, which keeps the
// map of each corner, since both wings share the painted views.
class WingMaker {
public:
    WingMaker(bool leftWing)
        : left_(leftWing), builder_(kFighterTextureName),
          damageCode_(leftWing ? kCodeLeftWingDamage : kCodeRightWingDamage),
          gearCode_(leftWing ? kCodeLeftGear : kCodeRightGear) {}

    bool Build(FileRecord& record, std::string& problem) {
        AddUpperFace();
        AddLowerFace();
        AddEdges();
        AddAileron();
        AddGear();
        for (double y : kGunY)
            builder_.AddHardpoint(Place(Nose(y)), kHardpointGun);
        return builder_.Build(record, problem);
    }

private:
    Vec3 Place(Vec3 point) const { return left_ ? MirrorY(point) : point; }

    void Add(Face face, Vec3 outward) {
        for (FaceCorner& corner : face.corners)
            corner.at = Place(corner.at);
        builder_.AddFace(std::move(face), Place(outward));
    }

    void AddProjected(const std::vector<Vec3>& corners, WingSurface surface, Vec3 outward,
                      FaceStyle style = Style(kTypeTexturedPoly), int body = 0) {
        Add(ProjectedFace(corners, WingProjection(surface, false), kTexture, style, body), outward);
    }

    FaceStyle Whole() const { return Style(kTypeTexturedPoly, damageCode_, kWingWhole); }
    FaceStyle Torn() const { return Style(kTypeTexturedPoly, damageCode_, kWingDamaged); }

    // The strip of a face outboard of kDamageY, whole, or torn along the tear, which leaves its
    // rear edge at `rearTearY`.
    void AddOuterPanel(EdgePoint front, EdgePoint rear, WingSurface whole, WingSurface torn,
                       Vec3 outward, double rearTearY) {
        AddProjected(Strip(front, rear, kDamageY, kWingSpan), whole, outward, Whole());
        AddProjected({front(kDamageY), rear(kDamageY), rear(rearTearY), front(kTearLeadingY)}, torn,
                     outward, Torn());
    }

    // The upper face: root panel, the roundel in a square surrounded by eight pieces, and the
    // outer panel, whole or torn.
    void AddUpperFace() {
        const Vec3 up{0, 0, 1};
        const double inner = kWingRoundelY - kWingRoundelSquare;
        const double outer = kWingRoundelY + kWingRoundelSquare;
        const double front = kWingRoundelX - kWingRoundelSquare;
        const double rear = kWingRoundelX + kWingRoundelSquare;
        AddProjected(Strip(UpperLead, UpperTrail, 0, inner), WingSurface::Top, up);
        AddProjected(
            {UpperLead(inner), OnUpper(front, inner), OnUpper(front, outer), UpperLead(outer)},
            WingSurface::Top, up);
        AddProjected(
            {OnUpper(rear, inner), UpperTrail(inner), UpperTrail(outer), OnUpper(rear, outer)},
            WingSurface::Top, up);
        std::vector<Vec3> roundel;
        std::vector<Vec3> square;
        for (int k = 0; k < kRoundelCorners; ++k) {
            const double angle = 2 * M_PI * k / kRoundelCorners;
            roundel.push_back(OnUpper(kWingRoundelX + kWingRoundelCorner * std::cos(angle),
                                      kWingRoundelY + kWingRoundelCorner * std::sin(angle)));
            // Rays at every eighth of a turn meet the square at its corners and mid-sides.
            square.push_back(
                OnUpper(kWingRoundelX + kWingRoundelSquare * std::round(std::cos(angle)),
                        kWingRoundelY + kWingRoundelSquare * std::round(std::sin(angle))));
        }
        for (int k = 0; k < kRoundelCorners; ++k) {
            const int next = (k + 1) % kRoundelCorners;
            AddProjected({roundel[k], roundel[next], square[next], square[k]}, WingSurface::Top,
                         up);
        }
        AddProjected(roundel, WingSurface::Top, up);
        AddOuterPanel(UpperLead, UpperTrail, WingSurface::Top, WingSurface::TopTorn, up,
                      kTearTrailingY);
    }

    // The lower face: root panel, the strip with the wheel well, a middle panel and the outer
    // panel, whole or torn.
    void AddLowerFace() {
        const Vec3 down{0, 0, -1};
        AddProjected(Strip(LowerLead, LowerTrail, 0, kWellInnerY), WingSurface::Bottom, down);
        AddProjected({LowerLead(kWellInnerY), OnLower(kWellFrontX, kWellInnerY),
                      OnLower(kWellFrontX, kWellOuterY), LowerLead(kWellOuterY)},
                     WingSurface::Bottom, down);
        AddProjected({OnLower(kWellRearX, kWellInnerY), LowerTrail(kWellInnerY),
                      LowerTrail(kWellOuterY), OnLower(kWellRearX, kWellOuterY)},
                     WingSurface::Bottom, down);
        // The well: doors shut with the gear up, open with it down.
        const std::vector<Vec3> well{
            OnLower(kWellFrontX, kWellInnerY), OnLower(kWellRearX, kWellInnerY),
            OnLower(kWellRearX, kWellOuterY), OnLower(kWellFrontX, kWellOuterY)};
        AddProjected(well, WingSurface::Bottom, down, Style(kTypeTexturedPoly, gearCode_, kGearUp));
        Add(ProjectedFace(well, WellOpenProjection(false), kTexture,
                          Style(kTypeTexturedPoly, gearCode_, kGearDown)),
            down);
        AddProjected(Strip(LowerLead, LowerTrail, kWellOuterY, kDamageY), WingSurface::Bottom,
                     down);
        AddOuterPanel(LowerLead, LowerTrail, WingSurface::Bottom, WingSurface::BottomTorn, down,
                      kTearTrailingY);
    }

    // Leading edge bevels, trailing edge wedges and the tip; the outer parts go with the panel.
    void AddEdges() {
        const Vec3 frontUp{-1, 0, 1};
        const Vec3 frontDown{-1, 0, -1};
        const Vec3 rearUp{0.3, 0, 1};
        const Vec3 rearDown{0.3, 0, -1};
        AddProjected(Strip(Nose, UpperLead, 0, kDamageY), WingSurface::Top, frontUp);
        AddOuterPanel(Nose, UpperLead, WingSurface::Top, WingSurface::TopTorn, frontUp,
                      kTearLeadingY);
        AddProjected(Strip(Nose, LowerLead, 0, kDamageY), WingSurface::Bottom, frontDown);
        AddOuterPanel(Nose, LowerLead, WingSurface::Bottom, WingSurface::BottomTorn, frontDown,
                      kTearLeadingY);
        AddProjected(Strip(UpperTrail, TrailPoint, 0, kAileronInnerY), WingSurface::Top, rearUp);
        AddProjected(Strip(UpperTrail, TrailPoint, kAileronOuterY, kWingSpan), WingSurface::Top,
                     rearUp, Whole());
        AddProjected(Strip(LowerTrail, TrailPoint, 0, kAileronInnerY), WingSurface::Bottom,
                     rearDown);
        AddProjected(Strip(LowerTrail, TrailPoint, kAileronOuterY, kWingSpan), WingSurface::Bottom,
                     rearDown, Whole());
        const double y = kWingSpan;
        Add(PlainFace(
                {Nose(y), UpperLead(y), UpperTrail(y), TrailPoint(y), LowerTrail(y), LowerLead(y)},
                SwatchOf(kCamoGreen), kTexture, Whole()),
            Vec3{0, 1, 0});
    }

    // The aileron fills the trailing edge wedge between its two stations; it goes with the
    // outer panel when the wing is torn.
    void AddAileron() {
        const double middle = (kAileronInnerY + kAileronOuterY) / 2;
        const int body = builder_.AddPart(
            kPartPitch, left_ ? kLeftAileronNum : kRightAileronNum,
            Place(Vec3{TrailingEdgeX(middle), middle, std::round(WingMidZ(middle))}));
        AddProjected(Strip(UpperTrail, TrailPoint, kAileronInnerY, kAileronOuterY),
                     WingSurface::Top, {0.3, 0, 1}, Whole(), body);
        AddProjected(Strip(LowerTrail, TrailPoint, kAileronInnerY, kAileronOuterY),
                     WingSurface::Bottom, {0.3, 0, -1}, Whole(), body);
        builder_.AddLine(Place(UpperTrail(kAileronInnerY)), Place(UpperTrail(kAileronOuterY)),
                         kPanelLine);
    }

    // Leg and wheel, shown with the gear down.
    void AddGear() {
        const FaceStyle down = Style(kTypeTexturedPoly, gearCode_, kGearDown);
        const double legTop = LowerZ(kGearLegY);
        const std::vector<Vec3> leg{{kGearLegFrontX, kGearLegY, legTop},
                                    {kGearLegRearX, kGearLegY, legTop},
                                    {kWheelX + 1, kGearLegY, kWheelZ},
                                    {kWheelX - 1, kGearLegY, kWheelZ}};
        Add(PlainFace(leg, SwatchOf(kMetal), kTexture, down), {0, 1, 0});
        Add(PlainFace(leg, SwatchOf(kMetal), kTexture, down), {0, -1, 0});

        const std::vector<PixelPoint> tyreMap = RegularPixels(
            InRect(kTyreRect, 0.5, 0.5), kTyreRect.width / 2.0 - 0.5, kWheelCorners, 0);
        for (OrientedFace& part :
             WheelFaces({kWheelX, 0, kWheelZ}, kWheelInnerY, kWheelOuterY, kWheelRadius, tyreMap,
                        SwatchOf(kTyre), kTexture, down))
            Add(std::move(part.face), part.outward);
    }

    bool left_;
    RecordBuilder builder_;
    uint8_t damageCode_;
    uint8_t gearCode_;
};

} // namespace

bool BuildFighterWing(bool leftWing, FileRecord& record, std::string& problem) {
    return WingMaker(leftWing).Build(record, problem);
}
