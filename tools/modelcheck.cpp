#include "modelcheck.h"

#include "elementkind.h"
#include "elementplane.h"
#include "elementreach.h"
#include "moxwriter.h"
#include "nodeposition.h"
#include "pcxreader.h"
#include "polygonplane.h"
#include "texturepath.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <set>

namespace {

// Positions 0 to 99 give a piggyback a Number of its own.
constexpr int kReliablePiggybacks = 100;
constexpr int kPolygonCorners = 3;
constexpr int kLineCorners = 2;
constexpr int kHardpointCorners = 1;
constexpr int kPiggybacksPerNumber = 100;

int ElementCount(const FileRecord& record) {
    const size_t held = std::min({record.Elements.size(), record.NRM.size(), record.PART.size()});
    return std::clamp<int>(record.NumElements, 0, static_cast<int>(held));
}

int NodeCount(const FileRecord& record) {
    return std::clamp<int>(record.NumNodes, 0, static_cast<int>(record.Nodes.size()));
}

// A list the reader gave up on holds blank entries, not the file's.
bool Unreadable(const ElementList& list) {
    return list.Count > kMaxPiggybacks;
}

int PiggybackCount(const ElementList& list) {
    return std::clamp<int>(list.Count, 0, static_cast<int>(list.Items.size()));
}

Vec3 NormalOf(const NRMRecord& plane) {
    return Vec3{double(plane.X), double(plane.Y), double(plane.Z)};
}

bool HasNormal(const NRMRecord& plane) {
    return plane.X != 0 || plane.Y != 0 || plane.Z != 0;
}

// A polygon whose corners can be placed, that has at least three corners, none twice, and lies
// flat; the only ones whose plane and shape can be judged.
struct Shape {
    std::vector<Vec3> corners;
    Vec3 area;
};

enum class ShapeProblem { None, FewCorners, RepeatedCorner, Unplaced, NoArea, NotPlanar };

ShapeProblem ShapeOf(const FileRecord& record, const Piggyback& item, Shape& shape) {
    if (item.CRN < kPolygonCorners)
        return ShapeProblem::FewCorners;
    if (item.CRN > item.NodeList.size())
        return ShapeProblem::Unplaced;
    const std::set<uint8_t> distinct(item.NodeList.begin(), item.NodeList.begin() + item.CRN);
    if (distinct.size() != item.CRN)
        return ShapeProblem::RepeatedCorner;
    if (!PolygonCorners(record, item, shape.corners))
        return ShapeProblem::Unplaced;
    shape.area = FrontArea(shape.corners);
    if (Length(shape.area) == 0)
        return ShapeProblem::NoArea;
    if (LargestDistance(shape.corners, shape.area, Centroid(shape.corners)) > kPlaneTolerance)
        return ShapeProblem::NotPlanar;
    return ShapeProblem::None;
}

class Checker {
public:
    explicit Checker(const FileRecord& record) : record_(record) {}

    std::vector<Finding> Run(const std::vector<std::string>& messages) {
        const bool listsCut = CheckListLengths();
        if (!listsCut)
            ReaderMessages(messages);
        CheckSaveLayout();
        CheckReferences();
        CheckNodes();
        CheckTree();
        for (int e = 0; e < ElementCount(record_); ++e) {
            CheckPlane(e);
            CheckPiggybacks(e);
        }
        CheckNodeUse();
        return std::move(findings_);
    }

    // The plane problems of element `e`, without noting them.
    bool PlaneIsWrong(int e) {
        const size_t before = findings_.size();
        CheckPlane(e);
        const ElementList& list = record_.Elements[e];
        for (int j = 0; !Unreadable(list) && j < PiggybackCount(list); ++j) {
            Shape shape;
            if (IsPolygon(list.Items[j]) &&
                ShapeOf(record_, list.Items[j], shape) == ShapeProblem::None)
                CheckAgainstPlane(e, j, shape);
        }
        return findings_.size() > before;
    }

private:
    void Add(Severity severity, const char* rule, const char* subject, int index,
             std::string text) {
        findings_.push_back(Finding{severity, rule, subject, index, std::move(text)});
    }

    // The reader stops at 256 entries and gives every later element a blank list; one finding
    // tells it, in place of one message per element.
    bool CheckListLengths() {
        int first = -1;
        int cut = 0;
        for (int e = 0; e < ElementCount(record_); ++e) {
            if (!Unreadable(record_.Elements[e]))
                continue;
            first = first < 0 ? e : first;
            ++cut;
        }
        if (first < 0)
            return false;
        Add(Severity::Error, "too-many-entries", "element", first,
            "more than " + std::to_string(kMaxPiggybacks) + " entries in the list" +
                (cut > 1
                     ? "; the " + std::to_string(cut - 1) + " elements after it could not be read"
                     : ""));
        return true;
    }

    void ReaderMessages(const std::vector<std::string>& messages) {
        std::set<std::string> seen;
        for (const std::string& message : messages) {
            if (seen.insert(message).second)
                Add(Severity::Error, "reader-message", "", -1, "reading shows: " + message);
        }
    }

    void CheckSaveLayout() {
        std::vector<uint8_t> bytes;
        std::string problem;
        if (!BuildMoxBytes(record_, bytes, problem))
            Add(Severity::Error, "stream-offset", "", -1, "cannot be saved: " + problem);
    }

    void CheckReferences() {
        const int elements = ElementCount(record_);
        const auto beyond = [&](uint8_t element) {
            return element != kNoElement && element >= record_.NumElements;
        };
        if (beyond(record_.Root[0]))
            Add(Severity::Error, "element-reference", "", -1,
                "Root(0) names element " + std::to_string(record_.Root[0]) + ", beyond the " +
                    std::to_string(record_.NumElements) + " elements");
        for (int e = 0; e < elements; ++e) {
            for (int side = 0; side < 2; ++side) {
                if (beyond(record_.PART[e][side]))
                    Add(Severity::Error, "element-reference", "element", e,
                        "PART(" + std::to_string(side) + ") names element " +
                            std::to_string(record_.PART[e][side]) + ", beyond the " +
                            std::to_string(record_.NumElements) + " elements");
            }
        }
    }

    void CheckNodes() {
        for (int n = 0; n < NodeCount(record_); ++n) {
            bool valid = false;
            PartOfBody(record_, record_.Nodes[n].B, valid);
            if (!valid)
                Add(Severity::Error, "node-part", "node", n,
                    "B is " + std::to_string(record_.Nodes[n].B) +
                        ", but the file has parts 1 to " + std::to_string(record_.NumParts - 1));
        }
    }

    void CheckTree() {
        const ElementReach reach = ReachFromRoot(record_);
        std::set<int> cycleTargets;
        for (const ElementLink& link : reach.cycles) {
            cycleTargets.insert(link.element);
            Add(Severity::Error, "tree-cycle", "element", link.parent,
                "PART(" + std::to_string(link.side) + ") leads back to element " +
                    std::to_string(link.element) + ", which lies above it in the tree");
        }
        for (int e = 0; e < static_cast<int>(reach.timesReached.size()); ++e) {
            const int times = reach.timesReached[e];
            if (times == 0)
                Add(Severity::Warning, "unreached-element", "element", e,
                    "the walk from Root(0) never reaches it: it is not drawn in the rendering "
                    "sequence");
            else if (times > 1 && cycleTargets.count(e) == 0)
                Add(Severity::Warning, "element-shared", "element", e,
                    "named as a child " + std::to_string(times) +
                        " times: the walk paints it more than once");
        }
    }

    void CheckPlane(int e) {
        const NRMRecord& plane = record_.NRM[e];
        if (!HasNormal(plane)) {
            Add(Severity::Warning, "zero-normal", "element", e,
                "the plane has no normal (Invalid Splitting Plane)");
            return;
        }
        const double length = Length(NormalOf(plane));
        if (std::abs(length - kNormalOne) > kNormalLengthTolerance)
            Add(Severity::Warning, "normal-length", "element", e,
                "the normal is " + std::to_string(std::lround(length)) + " long, not " +
                    std::to_string(std::lround(kNormalOne)));
    }

    void CheckAgainstPlane(int e, int j, const Shape& shape) {
        const NRMRecord& plane = record_.NRM[e];
        if (!HasNormal(plane))
            return;
        const int number = e * kPiggybacksPerNumber + j;
        const double off = LargestDistance(shape.corners, plane);
        if (off > kPlaneTolerance)
            Add(Severity::Warning, "corner-off-plane", "piggyback", number,
                "a corner lies " + std::to_string(std::lround(off)) +
                    " units off its element's plane");
        if (Dot(shape.area, NormalOf(plane)) < 0)
            Add(Severity::Warning, "facing-against-normal", "piggyback", number,
                "its front side (stored corners clockwise) faces against its element's normal");
    }

    void CheckPiggybacks(int e) {
        const ElementList& list = record_.Elements[e];
        if (Unreadable(list))
            return;
        const int count = PiggybackCount(list);
        if (count > kReliablePiggybacks)
            Add(Severity::Warning, "piggyback-numbers", "element", e,
                std::to_string(count) + " piggybacks: those from position 100 on share their "
                                        "numbers with piggybacks of later elements");
        for (int j = 0; j < count; ++j) {
            const Piggyback& item = list.Items[j];
            if (item.Type == kTypeNull)
                continue;
            const int number = e * kPiggybacksPerNumber + j;
            CheckCorners(item, number);
            if (item.Type == kTypeHardpoint)
                CheckHardpointCode(item, number);
            if (IsPolygon(item))
                CheckPolygon(e, j, item);
        }
    }

    void CheckCorners(const Piggyback& item, int number) {
        if ((item.Type == kTypeColouredLine && item.CRN != kLineCorners) ||
            (item.Type == kTypeHardpoint && item.CRN != kHardpointCorners))
            Add(Severity::Error, "corner-count", "piggyback", number,
                "kind " + std::to_string(item.Type) + " with " + std::to_string(item.CRN) +
                    " corners, not " +
                    std::to_string(item.Type == kTypeColouredLine ? kLineCorners
                                                                  : kHardpointCorners));
        const int corners = std::min<int>(item.CRN, static_cast<int>(item.NodeList.size()));
        for (int c = 0; c < corners; ++c) {
            if (item.NodeList[c] >= record_.NumNodes) {
                Add(Severity::Error, "corner-node", "piggyback", number,
                    "corner " + std::to_string(c) + " names node " +
                        std::to_string(item.NodeList[c]) + ", beyond the " +
                        std::to_string(record_.NumNodes) + " nodes");
                return;
            }
        }
    }

    void CheckHardpointCode(const Piggyback& item, int number) {
        if (HardpointSlot(item.Att1) == 0)
            return;
        const auto [earlier, fresh] = hardpointCodes_.emplace(item.Att1, number);
        if (!fresh)
            Add(Severity::Warning, "same-hardpoint-code", "piggyback", number,
                "hardpoint code " + std::to_string(item.Att1) + " stands also at piggyback " +
                    std::to_string(earlier->second) + "; this later one places the connected file");
    }

    void CheckPolygon(int e, int j, const Piggyback& item) {
        const int number = e * kPiggybacksPerNumber + j;
        Shape shape;
        switch (ShapeOf(record_, item, shape)) {
        case ShapeProblem::FewCorners:
            Add(Severity::Warning, "few-corners", "piggyback", number,
                "a polygon of " + std::to_string(item.CRN) + " corners");
            return;
        case ShapeProblem::RepeatedCorner:
            Add(Severity::Warning, "repeated-corner", "piggyback", number,
                "a node stands at two corners of the polygon");
            return;
        case ShapeProblem::NotPlanar:
            Add(Severity::Warning, "not-planar", "piggyback", number,
                "the corners lie more than " + std::to_string(std::lround(kPlaneTolerance)) +
                    " unit from one plane");
            return;
        case ShapeProblem::Unplaced:
        case ShapeProblem::NoArea:
            return;
        case ShapeProblem::None:
            break;
        }
        if (!IsConvex(shape.corners))
            Add(Severity::Warning, "not-convex", "piggyback", number,
                "the polygon is not convex: exports and the simulator may fill it wrongly");
        CheckAgainstPlane(e, j, shape);
    }

    void CheckNodeUse() {
        std::vector<bool> used(static_cast<size_t>(NodeCount(record_)), false);
        for (int e = 0; e < ElementCount(record_); ++e) {
            const ElementList& list = record_.Elements[e];
            for (int j = 0; j < PiggybackCount(list); ++j) {
                const Piggyback& item = list.Items[j];
                const int corners = std::min<int>(item.CRN, static_cast<int>(item.NodeList.size()));
                for (int c = 0; c < corners; ++c) {
                    if (item.NodeList[c] < used.size())
                        used[item.NodeList[c]] = true;
                }
            }
        }
        for (size_t n = 0; n < used.size(); ++n) {
            if (!used[n])
                Add(Severity::Warning, "unused-node", "node", static_cast<int>(n),
                    "no corner uses it");
        }
    }

    const FileRecord& record_;
    std::vector<Finding> findings_;
    std::map<uint8_t, int> hardpointCodes_;
};

} // namespace

std::vector<Finding> CheckRecord(const FileRecord& record,
                                 const std::vector<std::string>& messages) {
    return Checker(record).Run(messages);
}

std::vector<Finding> CheckTexture(const FileRecord& record) {
    const std::string name = TextureFileName(record.Texture);
    if (name.empty())
        return {Finding{Severity::Warning, "texture", "", -1, "names no texture file"}};
    const std::string path = TexturePath(record.Filename, record.Texture);
    if (!std::filesystem::exists(path))
        return {Finding{Severity::Warning, "texture", "", -1,
                        "the texture " + name + " is not in the model's folder"}};
    if (!ReadPcx(path).picture)
        return {Finding{Severity::Warning, "texture", "", -1,
                        "the texture " + name + " is not a readable PCX file"}};
    return {};
}

bool PlaneIsWrong(const FileRecord& record, int element) {
    return element >= 0 && element < ElementCount(record) && Checker(record).PlaneIsWrong(element);
}
