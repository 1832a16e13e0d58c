// The measures of the assembled model: the extent of the nodes along one axis, with each node's
// part pivot and the hardpoint of its file added.
#include "model.h"

#include <algorithm>
#include <limits>

namespace {

enum class Axis { Span, Length, Height };

constexpr int32_t kSmallest = 0;
constexpr int32_t kLargest = 1;
constexpr int32_t kMin16 = std::numeric_limits<int16_t>::min();
constexpr int32_t kMax16 = std::numeric_limits<int16_t>::max();

// Nodes, hardpoints and part pivots all have Y, Z and X.
template <typename Point> int32_t Along(const Point& point, Axis axis) {
    switch (axis) {
    case Axis::Span:
        return point.Y;
    case Axis::Length:
        return point.X;
    case Axis::Height:
        return point.Z;
    }
    return 0;
}

int16_t Clamp16(int32_t value) {
    return static_cast<int16_t>(std::clamp(value, kMin16, kMax16));
}

// A node of a movable part is placed by the part's pivot; one whose B names no part record has
// no position and is left out.
bool PivotOf(const FileRecord& file, const Node& node, Axis axis, int32_t& pivot) {
    pivot = 0;
    if (node.B == 0)
        return true;
    const int part = node.B - 1;
    if (part < 0 || part >= file.NumParts - 1 || part >= static_cast<int>(file.Parts.size()))
        return false;
    pivot = Along(file.Parts[part], axis);
    return true;
}

// The coordinates stay 16-bit: a node that the assembly would carry beyond the 16-bit range is
// counted at the nearest limit, and so is a difference beyond it.
int16_t Measure(const model& m, bool all, int32_t result, Axis axis) {
    int32_t smallest = 0;
    int32_t largest = 0;
    if (m.M_Type == kMoxLoaded && !m.Files.empty()) {
        const int first = all ? 0 : m.m_currmox;
        const int last = all ? kLastFamilySlot : m.m_currmox;
        const FileRecord& main = m.Files[0];
        for (int k = std::max(first, 0); k <= last; ++k) {
            if (k >= static_cast<int>(m.Files.size()) || k >= static_cast<int>(main.HP.size()))
                break;
            const FileRecord& file = m.Files[k];
            const int32_t hardpoint = Along(main.HP[k], axis);
            const int count = std::min<int>(file.NumNodes, static_cast<int>(file.Nodes.size()));
            for (int n = 0; n < count; ++n) {
                const Node& node = file.Nodes[n];
                int32_t pivot = 0;
                if (!PivotOf(file, node, axis, pivot))
                    continue;
                const int32_t v = Clamp16(Along(node, axis) + hardpoint + pivot);
                smallest = std::min(smallest, v);
                largest = std::max(largest, v);
            }
        }
    }
    if (result == kSmallest)
        return Clamp16(smallest);
    if (result == kLargest)
        return Clamp16(largest);
    return Clamp16(largest - smallest);
}

} // namespace

int16_t model::GetSpan(bool all, int32_t result) const {
    return Measure(*this, all, result, Axis::Span);
}

int16_t model::GetLength(bool all, int32_t result) const {
    return Measure(*this, all, result, Axis::Length);
}

int16_t model::GetHeight(bool all, int32_t result) const {
    return Measure(*this, all, result, Axis::Height);
}
