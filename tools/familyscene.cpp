#include "familyscene.h"

#include "elementkind.h"
#include "elementplane.h"
#include "nodeposition.h"
#include "texturepath.h"

#include <filesystem>

namespace {

// Map bytes run 0 to 255 across the whole texture.
constexpr double kMapDivisor = 255.0;
constexpr uint8_t kFirstMappedType = kTypeTexturedPoly;

Vec3 ToVec(const NodePosition& at) {
    return Vec3{double(at.x), double(at.y), double(at.z)};
}

// The body a polygon or hardpoint goes with: that of its first corner's node.
int BodyOf(const FileRecord& record, uint8_t node, int bodies) {
    const int body = node < record.Nodes.size() ? record.Nodes[node].B : 0;
    return body >= 0 && body < bodies ? body : 0;
}

bool Place(const FileRecord& record, const SceneBody& body, uint8_t node, Vec3& at) {
    NodePosition position;
    if (!AssembledPosition(record, node, Node{}, position))
        return false;
    at = ToVec(position) - body.origin;
    return true;
}

void AddPolygon(const FileRecord& record, const Piggyback& item, SceneBody& body) {
    ScenePolygon polygon;
    polygon.textured = item.Type >= kFirstMappedType;
    for (int corner = item.CRN - 1; corner >= 0; --corner) {
        Vec3 at;
        if (corner >= static_cast<int>(item.NodeList.size()) ||
            !Place(record, body, item.NodeList[corner], at))
            return;
        polygon.corners.push_back(at);
        if (polygon.textured) {
            if (corner >= static_cast<int>(item.XMap.size()) ||
                corner >= static_cast<int>(item.YMap.size()))
                return;
            polygon.map.push_back(
                {item.XMap[corner] / kMapDivisor, item.YMap[corner] / kMapDivisor});
        }
    }
    body.polygons.push_back(std::move(polygon));
}

SceneFile AssembleFile(const FileRecord& record, const Node& hardpoint,
                       const DisplayStates& states) {
    SceneFile file;
    file.name = std::filesystem::path(record.Filename).stem().string();
    file.origin = Vec3{double(hardpoint.X), double(hardpoint.Y), double(hardpoint.Z)};
    file.texturePath = TexturePath(record.Filename, record.Texture);
    file.bodies.push_back(SceneBody{file.name + " body", Vec3{}, {}, {}});
    for (int p = 0; p + 1 < record.NumParts && p < static_cast<int>(record.Parts.size()); ++p) {
        const Part& part = record.Parts[p];
        file.bodies.push_back(SceneBody{file.name + " part " + std::to_string(p + 1),
                                        Vec3{double(part.X), double(part.Y), double(part.Z)},
                                        {},
                                        {}});
    }
    const int bodies = static_cast<int>(file.bodies.size());
    const int elements =
        std::min<int>(record.NumElements, static_cast<int>(record.Elements.size()));
    for (int e = 0; e < elements; ++e) {
        const ElementList& list = record.Elements[e];
        const int count = std::min<int>(list.Count, static_cast<int>(list.Items.size()));
        for (int j = 0; j < count; ++j) {
            const Piggyback& item = list.Items[j];
            if (item.NodeList.empty())
                continue;
            SceneBody& body = file.bodies[BodyOf(record, item.NodeList[0], bodies)];
            if (item.Type == kTypeHardpoint) {
                Vec3 at;
                if (Place(record, body, item.NodeList[0], at))
                    body.hardpoints.push_back(
                        SceneHardpoint{file.name + " hardpoint " + std::to_string(item.Att1) +
                                           " at " + std::to_string(e * 100 + j),
                                       at});
            } else if (IsPolygon(item) && !HiddenByState(item, states)) {
                AddPolygon(record, item, body);
            }
        }
    }
    return file;
}

} // namespace

std::vector<SceneFile> AssembleScene(const model& family, const DisplayStates& states) {
    std::vector<SceneFile> scene;
    if (family.Files.empty())
        return scene;
    const FileRecord& main = family.Files[0];
    for (int slot = 0; slot <= kLastFamilySlot && slot < static_cast<int>(family.Files.size());
         ++slot) {
        if (family.Files[slot].Loaded)
            scene.push_back(AssembleFile(family.Files[slot], main.HP[slot], states));
    }
    return scene;
}
