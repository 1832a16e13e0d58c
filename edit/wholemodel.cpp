#include "wholemodel.h"

#include "editsteps.h"
#include "modelhost.h"
#include "recordedchange.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <sstream>
#include <string>

namespace {

constexpr const char* kRange = " (-32768 to 32767)";

const char* AxisName(int32_t axis) {
    return axis == kAxisX ? "X" : axis == kAxisY ? "Y" : "Z";
}

int NodeCount(const FileRecord& file) {
    return std::max(0, std::min<int>(file.NumNodes, static_cast<int>(file.Nodes.size())));
}

std::string FactorText(double factor) {
    std::ostringstream text;
    text << factor;
    return text.str();
}

bool InRange(double value) {
    return value >= kCoordinateMin && value <= kCoordinateMax;
}

// Asks before a factor that collapses or mirrors the model.
bool AgreedToFactor(double factor) {
    const std::string what = factor == 0.0 ? " puts every node of this file at the origin."
                                           : " mirrors every node of this file through the origin.";
    return Host().ShowMessage(
               "Scaling by " + FactorText(factor) + what + " Do you want to scale it?",
               MessageButtons::YesNo, MessageIcon::Question, "Rescale?") == MessageAnswer::Yes;
}

} // namespace

bool MoveAllNodes(model& m, int32_t Axis, int16_t dist) {
    FileRecord* file = EditableFile(m);
    Node probe;
    if (file == nullptr || CoordinateOf(probe, Axis) == nullptr)
        return false;
    const int nodes = NodeCount(*file);
    for (int n = 0; n < nodes; ++n) {
        const int moved = *CoordinateOf(file->Nodes[n], Axis) + dist;
        if (moved < kCoordinateMin || moved > kCoordinateMax) {
            ShowMessage("Moving the model by " + std::to_string(dist) + " along " + AxisName(Axis) +
                        " would take " + AxisName(Axis) + " of node " + std::to_string(n) + " to " +
                        std::to_string(moved) + ", beyond the range of a coordinate" + kRange +
                        ". Nothing was moved.");
            return false;
        }
    }
    const RecordedChange change(m, std::string("Move model along ") + AxisName(Axis));
    for (int n = 0; n < nodes; ++n) {
        int16_t* coordinate = CoordinateOf(file->Nodes[n], Axis);
        *coordinate = static_cast<int16_t>(*coordinate + dist);
    }
    return true;
}

bool Rescale(model& m, double Factor) {
    FileRecord* file = EditableFile(m);
    if (file == nullptr)
        return false;
    const int nodes = NodeCount(*file);
    if (!std::isfinite(Factor)) {
        ShowMessage("The scale " + FactorText(Factor) + " is no number. Nothing was scaled.");
        return false;
    }
    if (Factor <= 0.0 && nodes > 0 && !AgreedToFactor(Factor))
        return false;
    constexpr std::array<int32_t, 3> kAxesInOrder{kAxisX, kAxisY, kAxisZ};
    // The default rounding of the floating-point unit sends halves to the even neighbour.
    const auto scaled = [Factor](int16_t value) {
        return std::nearbyint(static_cast<double>(value) * Factor);
    };
    for (int n = 0; n < nodes; ++n) {
        for (const int32_t axis : kAxesInOrder) {
            const double result = scaled(*CoordinateOf(file->Nodes[n], axis));
            if (!InRange(result)) {
                ShowMessage("Scaling by " + FactorText(Factor) + " would take " + AxisName(axis) +
                            " of node " + std::to_string(n) + " to " + FactorText(result) +
                            ", beyond the range of a coordinate" + kRange +
                            ". Nothing was scaled.");
                return false;
            }
        }
    }
    const RecordedChange change(m, "Rescale");
    for (int n = 0; n < nodes; ++n) {
        for (const int32_t axis : kAxesInOrder) {
            int16_t* coordinate = CoordinateOf(file->Nodes[n], axis);
            *coordinate = static_cast<int16_t>(scaled(*coordinate));
        }
    }
    return true;
}
