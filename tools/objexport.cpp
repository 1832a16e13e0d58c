// The Wavefront OBJ writer of the exports: one object per body of each file, its corners where
// the family puts them (OBJ has no hierarchy), and a point object for each hardpoint.
#include "bytefile.h"
#include "exportscene.h"

#include <filesystem>
#include <sstream>

namespace {

constexpr const char* kPlainMaterial = "plain";

bool WriteText(const std::string& path, const std::string& text, std::string& error) {
    if (WriteFileBytes(path, std::vector<uint8_t>(text.begin(), text.end())))
        return true;
    error = path + ": cannot write";
    return false;
}

// OBJ names end at a blank.
std::string ObjName(std::string name) {
    for (char& c : name) {
        if (c == ' ')
            c = '_';
    }
    return name;
}

std::string TextureMaterial(int texture) {
    return "texture" + std::to_string(texture);
}

} // namespace

bool WriteObj(const ExportScene& scene, const std::string& path, std::string& error) {
    const std::filesystem::path target(path);
    const std::filesystem::path folder = target.parent_path();
    const std::string mtlName = target.stem().string() + ".mtl";

    std::ostringstream mtl;
    mtl << "newmtl " << kPlainMaterial << "\nKd 0.7 0.7 0.7\n";
    for (size_t t = 0; t < scene.textures.size(); ++t)
        mtl << "\nnewmtl " << TextureMaterial(static_cast<int>(t)) << "\nKd 1 1 1\nmap_Kd "
            << scene.textures[t].pngName << "\n";

    std::ostringstream obj;
    obj << "# moxtool export\nmtllib " << mtlName << "\n";
    int vertices = 0;
    int maps = 0;
    const auto vertex = [&](Vec3 at) {
        const Vec3 mapped = ExportAxes(at, scene.scale);
        obj << "v " << mapped.x << " " << mapped.y << " " << mapped.z << "\n";
        return ++vertices;
    };
    for (size_t f = 0; f < scene.files.size(); ++f) {
        const SceneFile& file = scene.files[f];
        const int texture = scene.textureOfFile[f];
        for (const SceneBody& body : file.bodies) {
            const Vec3 origin = file.origin + body.origin;
            obj << "o " << ObjName(body.name) << "\n";
            for (const ScenePolygon& polygon : body.polygons) {
                if (polygon.corners.size() < 3)
                    continue;
                const bool textured = polygon.textured && texture >= 0;
                obj << "usemtl " << (textured ? TextureMaterial(texture) : kPlainMaterial) << "\n";
                std::vector<std::string> corners;
                for (size_t c = 0; c < polygon.corners.size(); ++c) {
                    std::string corner = std::to_string(vertex(origin + polygon.corners[c]));
                    if (textured) {
                        // OBJ counts v from the bottom of the picture.
                        obj << "vt " << polygon.map[c][0] << " " << 1.0 - polygon.map[c][1] << "\n";
                        corner += "/" + std::to_string(++maps);
                    }
                    corners.push_back(corner);
                }
                // A polygon is written as a fan of triangles, as the glTF export does.
                for (size_t c = 1; c + 1 < corners.size(); ++c)
                    obj << "f " << corners[0] << " " << corners[c] << " " << corners[c + 1] << "\n";
            }
            for (const SceneHardpoint& hardpoint : body.hardpoints) {
                obj << "o " << ObjName(hardpoint.name) << "\n";
                const int point = vertex(origin + hardpoint.at);
                obj << "p " << point << "\n";
            }
        }
    }

    if (!WriteText(path, obj.str(), error) ||
        !WriteText((folder / mtlName).string(), mtl.str(), error))
        return false;
    for (const ExportTexture& texture : scene.textures) {
        if (!WriteFileBytes((folder / texture.pngName).string(), texture.png)) {
            error = (folder / texture.pngName).string() + ": cannot write";
            return false;
        }
    }
    return true;
}
