// What the glTF and OBJ writers are given: the assembled family, its textures as PNG, the unit of
// length, and the one mapping of the model's axes (X length, Y span, Z height) to the exports'
// Y-up axes.
#pragma once

#include "familyscene.h"

#include <cstdint>
#include <string>
#include <vector>

// One model unit in metres.
constexpr double kMetresPerUnit = 0.0448;

struct ExportTexture {
    std::string pngName; // the file name the PNG gets beside a .gltf or .obj file
    std::vector<uint8_t> png;
};

struct ExportScene {
    std::vector<SceneFile> files;
    std::vector<ExportTexture> textures;
    std::vector<int> textureOfFile; // per file, the index in `textures`, or -1 for none
    double scale = kMetresPerUnit;  // output units per model unit
};

// X stays X, height Z becomes up Y, and span Y becomes -Z: a turn about X, so that the front
// sides stay front sides, and a Z-up tool that turns Y-up files back shows the model's own axes.
inline Vec3 ExportAxes(Vec3 model, double scale) {
    return Vec3{model.x * scale, model.z * scale, -model.y * scale};
}

// Writes `scene` as glTF: binary .glb with the textures inside when `binary`, else a .gltf text
// file with the textures as PNG files beside it. False, with `error`, when it cannot be written.
bool WriteGltf(const ExportScene& scene, const std::string& path, bool binary, std::string& error);

// Writes `scene` as a Wavefront OBJ file, with its materials in a .mtl file and the textures as
// PNG files beside it.
bool WriteObj(const ExportScene& scene, const std::string& path, std::string& error);
