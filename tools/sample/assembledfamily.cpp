#include "assembledfamily.h"

#include "displaystates.h"
#include "elementkind.h"

#include <algorithm>

namespace {

bool Shows(const Piggyback& item, ShowState state) {
    return !HiddenByState(item, DisplayStates{state.pilot, state.gear, state.wing});
}

const FileRecord* MainFile(const SampleFamily& family) {
    for (const SampleFile& file : family) {
        if (file.slot == 0)
            return &file.record;
    }
    return nullptr;
}

Vec3 Placed(const FileRecord& record, const Node& node, const Node& hardpoint) {
    Vec3 at{double(node.X + hardpoint.X), double(node.Y + hardpoint.Y),
            double(node.Z + hardpoint.Z)};
    if (node.B > 0 && node.B < record.NumParts) {
        const Part& part = record.Parts[node.B - 1];
        at = at + Vec3{double(part.X), double(part.Y), double(part.Z)};
    }
    return at;
}

} // namespace

std::vector<AssembledPolygon> AssemblePolygons(const SampleFamily& family, ShowState state) {
    std::vector<AssembledPolygon> polygons;
    const FileRecord* main = MainFile(family);
    if (main == nullptr)
        return polygons;
    for (const SampleFile& file : family) {
        const FileRecord& record = file.record;
        const Node& hardpoint = main->HP[file.slot];
        for (int e = 0; e < record.NumElements; ++e) {
            const ElementList& list = record.Elements[e];
            for (int j = 0; j < list.Count; ++j) {
                const Piggyback& item = list.Items[j];
                if (item.Type < kTypeColouredPoly || item.Type == kTypeNull || !Shows(item, state))
                    continue;
                AssembledPolygon polygon;
                for (int c = 0; c < item.CRN; ++c)
                    polygon.push_back(Placed(record, record.Nodes[item.NodeList[c]], hardpoint));
                polygons.push_back(std::move(polygon));
            }
        }
    }
    return polygons;
}

ModelBox MeasureFamily(const SampleFamily& family) {
    ModelBox box;
    const FileRecord* main = MainFile(family);
    if (main == nullptr)
        return box;
    for (const SampleFile& file : family) {
        const FileRecord& record = file.record;
        for (int n = 0; n < record.NumNodes; ++n) {
            const Vec3 at = Placed(record, record.Nodes[n], main->HP[file.slot]);
            box.low = {std::min(box.low.x, at.x), std::min(box.low.y, at.y),
                       std::min(box.low.z, at.z)};
            box.high = {std::max(box.high.x, at.x), std::max(box.high.y, at.y),
                        std::max(box.high.z, at.z)};
        }
    }
    return box;
}
