#include "recordbuilder.h"

#include "polygonplane.h"
#include "splittree.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <map>
#include <tuple>

namespace {

// Faces whose unit normals differ by less than this, and whose planes lie closer than
// kSamePlaneDistance, share one element.
constexpr double kSameNormal = 1e-4;
constexpr double kSamePlaneDistance = 0.05;
// A plane fitted to rounded corners replaces the drawn one only while they agree this well.
constexpr double kFittedAgreement = 0.99;
constexpr int kMaxNodes = 256;
constexpr int kMaxElements = 255;
// Positions 0 to 99 give every piggyback a Number of its own.
constexpr int kMaxReliablePiggybacks = 100;
constexpr int kMaxCorners = 255;
constexpr int kHeaderBytes = 22;
constexpr int kPartBytes = 8;
constexpr int kPlaneBytes = 12;
constexpr int kRootBytes = 2;
constexpr int kChildBytes = 2;
constexpr int kNodeBytes = 8;
constexpr int kOffsetBytes = 2;
constexpr uint8_t kStreamEnd = 255;

// Hardpoint codes that fill the HP slots 1 to 6, in slot order.
constexpr uint8_t kSlotCodes[] = {25, 26, 27, 28, 29, 10};

int16_t Whole(double value) {
    return static_cast<int16_t>(std::lround(value));
}

bool FitsInt16(double value) {
    return std::lround(value) >= std::numeric_limits<int16_t>::min() &&
           std::lround(value) <= std::numeric_limits<int16_t>::max();
}

// Bytes of one entry in a stream, display prefix included.
int EntryBytes(const Piggyback& item) {
    const int prefix = item.COD != 0 ? 2 : 0;
    switch (item.Type) {
    case kTypeColouredLine:
        return prefix + 1 + 3;
    case kTypeHardpoint:
        return prefix + 1 + 2;
    case kTypeColouredPoly:
        return prefix + 1 + 1 + item.CRN + 1;
    case kTypeGouraudPoly:
        return prefix + 1 + 1 + 2 * item.CRN;
    default:
        return prefix + 1 + 1 + 3 * item.CRN + 2;
    }
}

uint8_t FirstByte(const Piggyback& item) {
    return item.COD != 0 ? item.COD : item.Type;
}

// The offsets a save gives and the hardpoints a load finds; false when a stream would start
// beyond what an offset can hold.
bool SetOffsetsAndHardpoints(FileRecord& record, std::string& problem) {
    int position = kHeaderBytes + kPartBytes * (record.NumParts - 1) +
                   (kPlaneBytes + kChildBytes + kOffsetBytes) * record.NumElements + kRootBytes +
                   kNodeBytes * record.NumNodes;
    record.Offsets.assign(record.NumElements + 1, 0);
    for (int e = 0; e < record.NumElements; ++e) {
        if (position > kMaxStreamOffset) {
            problem = "the streams pass the 32767th byte";
            return false;
        }
        record.Offsets[e] = static_cast<int16_t>(position);
        const ElementList& list = record.Elements[e];
        for (int j = 0; j < list.Count; ++j) {
            const Piggyback& item = list.Items[j];
            position += EntryBytes(item);
            for (std::size_t slot = 0; slot < std::size(kSlotCodes); ++slot) {
                if (item.Type == kTypeHardpoint && item.Att1 == kSlotCodes[slot])
                    record.HP[slot + 1] = record.Nodes[item.NodeList[0]];
            }
        }
        position += 1; // the stream's closing byte
    }
    return true;
}

Vec3 PivotOf(const FileRecord& record, int body) {
    if (body == 0)
        return {};
    const Part& part = record.Parts[body - 1];
    return {double(part.X), double(part.Y), double(part.Z)};
}

// The distance of the farthest node from the file's origin, rounded up.
int16_t RadiusOf(const FileRecord& record) {
    double radius = 0;
    for (int n = 0; n < record.NumNodes; ++n) {
        const Node& node = record.Nodes[n];
        radius = std::max(radius, Length(Vec3{double(node.X), double(node.Y), double(node.Z)} +
                                         PivotOf(record, node.B)));
    }
    return static_cast<int16_t>(std::ceil(radius));
}

} // namespace

RecordBuilder::RecordBuilder(const std::string& textureName) {
    std::memcpy(texture_.data(), textureName.data(),
                std::min<std::size_t>(textureName.size(), texture_.size()));
}

int RecordBuilder::AddPart(uint8_t code, uint8_t num, Vec3 pivot) {
    Part part;
    part.Code = code;
    part.Num = num;
    part.X = Whole(pivot.x);
    part.Y = Whole(pivot.y);
    part.Z = Whole(pivot.z);
    parts_.push_back(part);
    return static_cast<int>(parts_.size());
}

int RecordBuilder::GroupFor(int body, Vec3 normal, double constant) {
    for (std::size_t i = 0; i < groups_.size(); ++i) {
        const Group& group = groups_[i];
        if (group.body == body && Length(group.normal - normal) < kSameNormal &&
            std::abs(group.constant - constant) < kSamePlaneDistance)
            return static_cast<int>(i);
    }
    groups_.push_back(Group{body, normal, constant, {}});
    return static_cast<int>(groups_.size()) - 1;
}

void RecordBuilder::AddFace(Face face, Vec3 outward) {
    std::vector<Vec3> points;
    for (const FaceCorner& corner : face.corners)
        points.push_back(corner.at);
    Vec3 normal = FrontNormal(points);
    if (Dot(normal, outward) < 0) {
        std::reverse(face.corners.begin(), face.corners.end());
        normal = -normal;
    }
    const int group = GroupFor(face.body, normal, Dot(normal, points.front()));
    groups_[group].items.push_back(Item{face.style, face.body, std::move(face.corners)});
}

void RecordBuilder::AddLine(Vec3 from, Vec3 to, uint8_t colour) {
    FaceStyle style;
    style.type = kTypeColouredLine;
    style.att1 = colour;
    loose_.push_back(Item{style, 0, {FaceCorner{from}, FaceCorner{to}}});
}

void RecordBuilder::AddHardpoint(Vec3 at, uint8_t code) {
    FaceStyle style;
    style.type = kTypeHardpoint;
    style.att1 = code;
    loose_.push_back(Item{style, 0, {FaceCorner{at}}});
}

int RecordBuilder::NearestGroup(const std::vector<FaceCorner>& corners) const {
    int best = -1;
    double bestDistance = std::numeric_limits<double>::max();
    for (std::size_t i = 0; i < groups_.size(); ++i) {
        double distance = 0;
        for (const FaceCorner& corner : corners)
            distance += std::abs(Dot(groups_[i].normal, corner.at) - groups_[i].constant);
        if (distance < bestDistance) {
            bestDistance = distance;
            best = static_cast<int>(i);
        }
    }
    return best;
}

bool RecordBuilder::Build(FileRecord& record, std::string& problem) const {
    std::vector<Group> groups = groups_;
    for (const Item& item : loose_) {
        const int nearest = NearestGroup(item.corners);
        if (nearest < 0)
            groups.push_back(Group{0, Vec3{0, 0, 1}, item.corners.front().at.z, {item}});
        else
            groups[nearest].items.push_back(item);
    }
    if (groups.size() > std::size_t(kMaxElements)) {
        problem = "too many elements: " + std::to_string(groups.size());
        return false;
    }

    record = FileRecord{};
    record.Texture = texture_;
    record.NumParts = static_cast<int16_t>(parts_.size() + 1);
    record.Parts = parts_;
    record.Parts.push_back(Part{});
    record.NumElements = static_cast<int16_t>(groups.size());
    record.NRM.assign(groups.size() + 1, NRMRecord{});
    record.PART.assign(groups.size() + 1, ChildPair{0, 0});
    record.Elements.assign(groups.size() + 1, ElementList{});

    std::map<std::tuple<int16_t, int16_t, int16_t, int16_t>, int> nodeIndex;
    std::vector<std::vector<Vec3>> elementPoints(groups.size());

    for (std::size_t e = 0; e < groups.size(); ++e) {
        const Group& group = groups[e];
        if (group.items.size() > std::size_t(kMaxReliablePiggybacks)) {
            problem = "too many piggybacks in element " + std::to_string(e);
            return false;
        }
        ElementList& list = record.Elements[e];
        // The plane is fitted to the corners as stored, in whole units, so that rounding moves
        // them as little as possible off it.
        Vec3 fitted;
        std::vector<Vec3> polygonPoints;
        for (const Item& item : group.items) {
            // A corner is painted at its node plus its part's pivot, in whole units.
            const Vec3 pivot = PivotOf(record, item.body);
            Piggyback entry;
            entry.COD = item.style.cod;
            entry.Flag = item.style.cod != 0 ? item.style.flag : 0;
            entry.Type = item.style.type;
            entry.Att1 = item.style.att1;
            entry.Att2 = item.style.att2;
            if (item.corners.size() > std::size_t(kMaxCorners)) {
                problem = "too many corners in element " + std::to_string(e);
                return false;
            }
            entry.CRN = static_cast<uint8_t>(item.corners.size());
            const bool textured = entry.Type >= kTypeTexturedPoly;
            const bool coloured = entry.Type == kTypeGouraudPoly;
            std::vector<Vec3> placed;
            for (const FaceCorner& corner : item.corners) {
                if (!FitsInt16(corner.at.x) || !FitsInt16(corner.at.y) || !FitsInt16(corner.at.z)) {
                    problem = "a corner lies beyond the 16-bit range";
                    return false;
                }
                const Vec3 painted{double(Whole(corner.at.x)), double(Whole(corner.at.y)),
                                   double(Whole(corner.at.z))};
                const Vec3 stored = painted - pivot;
                const auto key = std::make_tuple(Whole(stored.y), Whole(stored.z), Whole(stored.x),
                                                 int16_t(item.body));
                auto found = nodeIndex.find(key);
                if (found == nodeIndex.end())
                    found = nodeIndex.emplace(key, int(nodeIndex.size())).first;
                if (found->second >= kMaxNodes) {
                    problem = "more than 256 nodes";
                    return false;
                }
                entry.NodeList.push_back(static_cast<uint8_t>(found->second));
                if (textured || coloured)
                    entry.XMap.push_back(corner.xmap);
                if (textured)
                    entry.YMap.push_back(corner.ymap);
                elementPoints[e].push_back(painted);
                placed.push_back(painted);
            }
            if (entry.Type >= kTypeColouredPoly) {
                fitted = fitted + FrontArea(placed);
                polygonPoints.insert(polygonPoints.end(), placed.begin(), placed.end());
            }
            // The arrays run to index CRN: one spare entry, as the reader sizes them.
            entry.NodeList.push_back(0);
            if (textured || coloured)
                entry.XMap.push_back(0);
            if (textured)
                entry.YMap.push_back(0);
            list.Items.push_back(std::move(entry));
        }
        list.Count = static_cast<int16_t>(list.Items.size());
        for (int16_t j = 0; j < list.Count; ++j) {
            list.Items[j].Number = static_cast<int16_t>(e * 100 + j);
            list.Items[j].NextByte = j + 1 < list.Count ? FirstByte(list.Items[j + 1]) : kStreamEnd;
        }
        list.Items.push_back(Piggyback{});

        const Vec3 normal = Dot(Normalised(fitted), group.normal) > kFittedAgreement
                                ? Normalised(fitted)
                                : group.normal;
        // Lines and hardpoints go with the plane of their element's polygons, and so does its
        // place in the tree.
        if (!polygonPoints.empty())
            elementPoints[e] = polygonPoints;
        record.NRM[e] = FixedPointPlane(normal, Centroid(elementPoints[e]));
    }

    record.NumNodes = static_cast<int16_t>(nodeIndex.size());
    record.Nodes.assign(nodeIndex.size() + 1, Node{});
    for (const auto& [key, index] : nodeIndex)
        record.Nodes[index] =
            Node{std::get<0>(key), std::get<1>(key), std::get<2>(key), std::get<3>(key)};

    BuildSplitTree(elementPoints, record);

    record.Radius = RadiusOf(record);
    return SetOffsetsAndHardpoints(record, problem);
}
