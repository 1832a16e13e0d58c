// The glTF writer of the exports, through tinygltf: one node per file of the family, under it one
// node per body with its mesh and the hardpoints as empty nodes.
#include "bytefile.h"
#include "exportscene.h"

#include <tiny_gltf.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <limits>
#include <sstream>

namespace {

constexpr double kPlainGrey = 0.7;

class GltfBuilder {
public:
    GltfBuilder(const ExportScene& scene, bool binary) : scene_(scene), binary_(binary) {
        gltf_.asset.version = "2.0";
        gltf_.asset.generator = "moxtool export";
        gltf_.buffers.emplace_back();
        gltf_.scenes.emplace_back();
        gltf_.defaultScene = 0;
        plainMaterial_ = AddPlainMaterial();
        for (size_t t = 0; t < scene.textures.size(); ++t)
            textureMaterials_.push_back(AddTexturedMaterial(scene.textures[t]));
    }

    tinygltf::Model Build() {
        for (size_t f = 0; f < scene_.files.size(); ++f) {
            const SceneFile& file = scene_.files[f];
            const int textured = scene_.textureOfFile[f] < 0
                                     ? plainMaterial_
                                     : textureMaterials_[scene_.textureOfFile[f]];
            tinygltf::Node node;
            node.name = file.name;
            node.translation = Translation(file.origin);
            for (const SceneBody& body : file.bodies)
                node.children.push_back(AddBody(body, textured));
            gltf_.scenes[0].nodes.push_back(AddNode(std::move(node)));
        }
        return std::move(gltf_);
    }

private:
    int AddNode(tinygltf::Node node) {
        gltf_.nodes.push_back(std::move(node));
        return static_cast<int>(gltf_.nodes.size()) - 1;
    }

    std::vector<double> Translation(Vec3 at) const {
        const Vec3 mapped = ExportAxes(at, scene_.scale);
        return {mapped.x, mapped.y, mapped.z};
    }

    int AddPlainMaterial() {
        tinygltf::Material material;
        material.name = "plain";
        material.pbrMetallicRoughness.baseColorFactor = {kPlainGrey, kPlainGrey, kPlainGrey, 1.0};
        material.pbrMetallicRoughness.metallicFactor = 0.0;
        gltf_.materials.push_back(material);
        return static_cast<int>(gltf_.materials.size()) - 1;
    }

    int AddTexturedMaterial(const ExportTexture& texture) {
        tinygltf::Image image;
        image.name = texture.pngName;
        image.mimeType = "image/png";
        if (binary_)
            image.bufferView = AddView(texture.png.data(), texture.png.size(), 0);
        else
            image.uri = texture.pngName;
        gltf_.images.push_back(image);
        tinygltf::Sampler sampler;
        sampler.magFilter = TINYGLTF_TEXTURE_FILTER_LINEAR;
        sampler.minFilter = TINYGLTF_TEXTURE_FILTER_LINEAR;
        gltf_.samplers.push_back(sampler);
        tinygltf::Texture gltfTexture;
        gltfTexture.source = static_cast<int>(gltf_.images.size()) - 1;
        gltfTexture.sampler = static_cast<int>(gltf_.samplers.size()) - 1;
        gltf_.textures.push_back(gltfTexture);
        tinygltf::Material material;
        material.name = texture.pngName;
        material.pbrMetallicRoughness.baseColorTexture.index =
            static_cast<int>(gltf_.textures.size()) - 1;
        material.pbrMetallicRoughness.metallicFactor = 0.0;
        gltf_.materials.push_back(material);
        return static_cast<int>(gltf_.materials.size()) - 1;
    }

    // Appends bytes to the one buffer, 4-byte aligned, and a view of them.
    int AddView(const void* data, size_t size, int target) {
        std::vector<unsigned char>& buffer = gltf_.buffers[0].data;
        buffer.resize((buffer.size() + 3) / 4 * 4);
        tinygltf::BufferView view;
        view.buffer = 0;
        view.byteOffset = buffer.size();
        view.byteLength = size;
        view.target = target;
        const auto* bytes = static_cast<const unsigned char*>(data);
        buffer.insert(buffer.end(), bytes, bytes + size);
        gltf_.bufferViews.push_back(view);
        return static_cast<int>(gltf_.bufferViews.size()) - 1;
    }

    int AddAccessor(const std::vector<float>& values, int type, int components) {
        tinygltf::Accessor accessor;
        accessor.bufferView =
            AddView(values.data(), values.size() * sizeof(float), TINYGLTF_TARGET_ARRAY_BUFFER);
        accessor.componentType = TINYGLTF_COMPONENT_TYPE_FLOAT;
        accessor.type = type;
        accessor.count = values.size() / components;
        accessor.minValues.assign(components, std::numeric_limits<double>::max());
        accessor.maxValues.assign(components, std::numeric_limits<double>::lowest());
        for (size_t i = 0; i < values.size(); ++i) {
            accessor.minValues[i % components] =
                std::min<double>(accessor.minValues[i % components], values[i]);
            accessor.maxValues[i % components] =
                std::max<double>(accessor.maxValues[i % components], values[i]);
        }
        gltf_.accessors.push_back(accessor);
        return static_cast<int>(gltf_.accessors.size()) - 1;
    }

    // The polygons of one kind (textured or not) as one primitive, each a fan of triangles.
    bool AddPrimitive(const SceneBody& body, bool textured, int material, tinygltf::Mesh& mesh) {
        std::vector<float> positions;
        std::vector<float> map;
        std::vector<uint32_t> indices;
        for (const ScenePolygon& polygon : body.polygons) {
            if (polygon.textured != textured || polygon.corners.size() < 3)
                continue;
            const auto first = static_cast<uint32_t>(positions.size() / 3);
            for (size_t c = 0; c < polygon.corners.size(); ++c) {
                const Vec3 at = ExportAxes(polygon.corners[c], scene_.scale);
                positions.insert(positions.end(), {float(at.x), float(at.y), float(at.z)});
                if (textured)
                    map.insert(map.end(), {float(polygon.map[c][0]), float(polygon.map[c][1])});
            }
            for (uint32_t c = 1; c + 1 < polygon.corners.size(); ++c)
                indices.insert(indices.end(), {first, first + c, first + c + 1});
        }
        if (indices.empty())
            return false;
        tinygltf::Primitive primitive;
        primitive.mode = TINYGLTF_MODE_TRIANGLES;
        primitive.material = material;
        primitive.attributes["POSITION"] = AddAccessor(positions, TINYGLTF_TYPE_VEC3, 3);
        if (textured)
            primitive.attributes["TEXCOORD_0"] = AddAccessor(map, TINYGLTF_TYPE_VEC2, 2);
        tinygltf::Accessor index;
        index.bufferView = AddView(indices.data(), indices.size() * sizeof(uint32_t),
                                   TINYGLTF_TARGET_ELEMENT_ARRAY_BUFFER);
        index.componentType = TINYGLTF_COMPONENT_TYPE_UNSIGNED_INT;
        index.type = TINYGLTF_TYPE_SCALAR;
        index.count = indices.size();
        gltf_.accessors.push_back(index);
        primitive.indices = static_cast<int>(gltf_.accessors.size()) - 1;
        mesh.primitives.push_back(primitive);
        return true;
    }

    int AddBody(const SceneBody& body, int texturedMaterial) {
        tinygltf::Node node;
        node.name = body.name;
        node.translation = Translation(body.origin);
        tinygltf::Mesh mesh;
        mesh.name = body.name;
        AddPrimitive(body, true, texturedMaterial, mesh);
        AddPrimitive(body, false, plainMaterial_, mesh);
        if (!mesh.primitives.empty()) {
            gltf_.meshes.push_back(mesh);
            node.mesh = static_cast<int>(gltf_.meshes.size()) - 1;
        }
        for (const SceneHardpoint& hardpoint : body.hardpoints) {
            tinygltf::Node empty;
            empty.name = hardpoint.name;
            empty.translation = Translation(hardpoint.at);
            node.children.push_back(AddNode(std::move(empty)));
        }
        return AddNode(std::move(node));
    }

    const ExportScene& scene_;
    bool binary_;
    tinygltf::Model gltf_;
    int plainMaterial_ = -1;
    std::vector<int> textureMaterials_;
};

} // namespace

bool WriteGltf(const ExportScene& scene, const std::string& path, bool binary, std::string& error) {
    const tinygltf::Model gltf = GltfBuilder(scene, binary).Build();
    tinygltf::TinyGLTF writer;
    // Images are either inside the buffer or PNG files this program writes; the library is not to
    // encode pictures of its own.
    writer.SetImageWriter(nullptr, nullptr);
    std::ostringstream out;
    if (!writer.WriteGltfSceneToStream(&gltf, out, !binary, binary)) {
        error = path + ": the glTF library could not write the scene";
        return false;
    }
    const std::string text = out.str();
    if (!WriteFileBytes(path, std::vector<uint8_t>(text.begin(), text.end()))) {
        error = path + ": cannot write";
        return false;
    }
    if (binary)
        return true;
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    for (const ExportTexture& texture : scene.textures) {
        if (!WriteFileBytes((folder / texture.pngName).string(), texture.png)) {
            error = (folder / texture.pngName).string() + ": cannot write";
            return false;
        }
    }
    return true;
}
