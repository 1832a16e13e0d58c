// moxtool export: the assembled family in glTF or OBJ, for the 3D tools model makers use.
#include "commandsupport.h"
#include "exportscene.h"
#include "pcxreader.h"
#include "pngfile.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <map>
#include <memory>

namespace {

constexpr const char* kUsage =
    "moxtool export FILE.mox OUT.(glb|gltf|obj) [--gear up|down] [--pilot alive|dead|bailed] "
    "[--wing ok|damaged] [--no-family] [--units metres|model]";
constexpr const char* kDescription =
    "Writes the whole family as the editor paints it: each connected file at its hardpoint, each "
    "movable part as an object of its own at its pivot, the polygons of the chosen display states "
    "as fans of triangles, with the texture as PNG (inside a .glb, beside a .gltf or .obj) and the "
    "hardpoints as empty objects. Lengths in metres (0.0448 per model unit) unless --units model; "
    "height goes up the Y axis (docs/moxtool.md).";

struct ExportOptions {
    std::string in;
    std::string out;
    std::string gear = "down";
    std::string pilot = "alive";
    std::string wing = "ok";
    std::string units = "metres";
    bool noFamily = false;
};

enum class Format { Glb, Gltf, Obj, Unknown };

Format FormatOf(const std::string& path) {
    const std::string extension = LowerCaseExtension(path);
    if (extension == ".glb")
        return Format::Glb;
    if (extension == ".gltf")
        return Format::Gltf;
    if (extension == ".obj")
        return Format::Obj;
    return Format::Unknown;
}

// The textures of the files as PNG, each picture once; a file whose texture cannot be read gets
// none, and its polygons are plain.
void GatherTextures(ExportScene& scene, const std::string& outStem) {
    std::map<std::string, int> byPath;
    for (const SceneFile& file : scene.files) {
        auto found = byPath.find(file.texturePath);
        if (found == byPath.end()) {
            int index = -1;
            const PcxResult picture = ReadPcx(file.texturePath);
            ExportTexture texture;
            if (picture.picture && EncodePng(picture.picture->width, picture.picture->height,
                                             picture.picture->rgb, texture.png)) {
                texture.pngName = outStem + "_" +
                                  std::filesystem::path(file.texturePath).stem().string() + ".png";
                scene.textures.push_back(std::move(texture));
                index = static_cast<int>(scene.textures.size()) - 1;
            } else {
                PrintError(file.name + ": texture " + file.texturePath +
                           " cannot be read; its polygons are exported without it");
            }
            found = byPath.emplace(file.texturePath, index).first;
        }
        scene.textureOfFile.push_back(found->second);
    }
}

int RunExport(const ExportOptions& options) {
    const Format format = FormatOf(options.out);
    if (format == Format::Unknown) {
        PrintError(options.out + ": the output must end in .glb, .gltf or .obj");
        return kExitFailure;
    }
    model family;
    std::string error;
    if (!LoadModelFamily(options.in, !options.noFamily, family, error)) {
        PrintError(error);
        return kExitFailure;
    }
    DisplayStates states;
    states.lg = options.gear == "up" ? 0 : 1;
    states.pilot = options.pilot == "dead" ? 1 : options.pilot == "bailed" ? 2 : 0;
    states.wing = options.wing == "damaged" ? 1 : 0;

    ExportScene scene;
    scene.files = AssembleScene(family, states);
    scene.scale = options.units == "model" ? 1.0 : kMetresPerUnit;
    GatherTextures(scene, std::filesystem::path(options.out).stem().string());
    const bool written = format == Format::Obj
                             ? WriteObj(scene, options.out, error)
                             : WriteGltf(scene, options.out, format == Format::Glb, error);
    if (!written) {
        PrintError(error);
        return kExitFailure;
    }
    return kExitOk;
}

} // namespace

ToolCommand ExportCommand() {
    return {"export", "write the assembled family as glTF (.glb, .gltf) or OBJ", kUsage,
            kDescription, [](CLI::App& command) -> CommandRun {
                auto options = std::make_shared<ExportOptions>();
                command.add_option("FILE", options->in, "the model file")->required();
                command.add_option("OUT", options->out, "the file to write: .glb, .gltf or .obj")
                    ->required();
                command.add_option("--gear", options->gear, "landing gear, default down")
                    ->check(CLI::IsMember({"up", "down"}));
                command.add_option("--pilot", options->pilot, "pilot, default alive")
                    ->check(CLI::IsMember({"alive", "dead", "bailed"}));
                command.add_option("--wing", options->wing, "wing damage, default ok")
                    ->check(CLI::IsMember({"ok", "damaged"}));
                command.add_option("--units", options->units, "metres (default) or model units")
                    ->check(CLI::IsMember({"metres", "model"}));
                command.add_flag("--no-family", options->noFamily,
                                 "export the file alone, without its connected files");
                return [options] { return RunExport(*options); };
            }};
}
