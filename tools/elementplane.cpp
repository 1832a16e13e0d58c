#include "elementplane.h"

#include "elementkind.h"
#include "nodeposition.h"
#include "polygonplane.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr uint8_t kFirstPolygonType = kTypeColouredPoly;
constexpr uint8_t kLastPolygonType = 254;
constexpr int kPolygonCorners = 3;

} // namespace

bool IsPolygon(const Piggyback& item) {
    return item.Type >= kFirstPolygonType && item.Type <= kLastPolygonType;
}

bool PolygonCorners(const FileRecord& record, const Piggyback& item, std::vector<Vec3>& corners) {
    corners.clear();
    if (item.CRN > item.NodeList.size())
        return false;
    for (int corner = 0; corner < item.CRN; ++corner) {
        NodePosition at;
        if (!AssembledPosition(record, item.NodeList[corner], Node{}, at))
            return false;
        corners.push_back(Vec3{double(at.x), double(at.y), double(at.z)});
    }
    return true;
}

double LargestDistance(const std::vector<Vec3>& points, Vec3 normal, Vec3 point) {
    const Vec3 unit = Normalised(normal);
    double largest = 0;
    for (const Vec3& at : points)
        largest = std::max(largest, std::abs(Dot(at - point, unit)));
    return largest;
}

double LargestDistance(const std::vector<Vec3>& points, const NRMRecord& plane) {
    double largest = 0;
    for (const Vec3& at : points)
        largest = std::max(largest, std::abs(DistanceFromPlane(plane, at)));
    return largest;
}

bool IsConvex(const std::vector<Vec3>& corners) {
    const Vec3 normal = FrontArea(corners);
    const size_t count = corners.size();
    for (size_t i = 0; i < count; ++i) {
        const Vec3 in = corners[(i + 1) % count] - corners[i];
        const Vec3 out = corners[(i + 2) % count] - corners[(i + 1) % count];
        // The front normal sees the stored corners run clockwise: every turn is to the right.
        if (Dot(Cross(in, out), normal) > 0)
            return false;
    }
    return true;
}

PlaneFit FitElementPlane(const FileRecord& record, int element, NRMRecord& plane) {
    if (element < 0 || element >= record.NumElements ||
        element >= static_cast<int>(record.Elements.size()) ||
        element >= static_cast<int>(record.NRM.size()))
        return PlaneFit::NoPolygons;
    const ElementList& list = record.Elements[element];
    std::vector<std::vector<Vec3>> polygons;
    Vec3 area;
    std::vector<Vec3> points;
    for (int j = 0; j < list.Count && j < static_cast<int>(list.Items.size()); ++j) {
        std::vector<Vec3> corners;
        if (!IsPolygon(list.Items[j]) || list.Items[j].CRN < kPolygonCorners ||
            !PolygonCorners(record, list.Items[j], corners))
            continue;
        area = area + FrontArea(corners);
        points.insert(points.end(), corners.begin(), corners.end());
        polygons.push_back(std::move(corners));
    }
    if (polygons.empty() || Length(area) == 0)
        return PlaneFit::NoPolygons;
    const Vec3 normal = Normalised(area);
    for (const std::vector<Vec3>& corners : polygons) {
        if (Dot(FrontArea(corners), normal) < 0)
            return PlaneFit::Disagree;
    }
    const Vec3 centre = Centroid(points);
    if (LargestDistance(points, normal, centre) > kPlaneTolerance)
        return PlaneFit::Disagree;
    const int16_t kept = record.NRM[element].F;
    plane = FixedPointPlane(normal, centre);
    plane.F = kept;
    return PlaneFit::Agreed;
}
