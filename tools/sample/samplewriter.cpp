#include "samplewriter.h"

#include "assembledfamily.h"
#include "fighterfamily.h"
#include "fightertexture.h"
#include "filereplace.h"
#include "moxwriter.h"
#include "pcxwriter.h"
#include "projectfile.h"
#include "samplepalette.h"
#include "sampleproject.h"
#include "samplevehicle.h"
#include "threeview.h"
#include "vehicletexture.h"

#include <filesystem>
#include <system_error>

namespace {

// Pixels to a model unit in the 3-view drawings: about 650 pixels for the fighter's span.
constexpr double kDrawingScale = 3;

class SampleWriter {
public:
    SampleWriter(std::filesystem::path folder, std::vector<std::string>& written,
                 std::string& problem)
        : folder_(std::move(folder)), written_(written), problem_(problem) {}

    bool Family(const SampleFamily& family) {
        for (const SampleFile& file : family) {
            std::vector<uint8_t> bytes;
            std::string why;
            if (!BuildMoxBytes(file.record, bytes, why))
                return Fail(file.name, why);
            if (!Bytes(file.name, bytes))
                return false;
        }
        return true;
    }

    bool Texture(const std::string& name, const IndexedCanvas& canvas, const Palette& palette) {
        PcxPalette bytes{};
        for (std::size_t i = 0; i < palette.size(); ++i) {
            bytes[3 * i] = palette[i].red;
            bytes[3 * i + 1] = palette[i].green;
            bytes[3 * i + 2] = palette[i].blue;
        }
        return Encoded(name, EncodePcx8(canvas.Width(), canvas.Height(), canvas.Pixels(), bytes));
    }

    bool Drawing(const std::string& name, const IndexedCanvas& canvas, const Palette& palette) {
        std::vector<uint8_t> rgb;
        rgb.reserve(canvas.Pixels().size() * 3);
        for (uint8_t index : canvas.Pixels()) {
            rgb.push_back(palette[index].red);
            rgb.push_back(palette[index].green);
            rgb.push_back(palette[index].blue);
        }
        return Encoded(name, EncodePcx24(canvas.Width(), canvas.Height(), rgb));
    }

    bool Text(const std::string& name, const std::string& text) {
        std::string why;
        if (!ReplaceFileContents(Path(name), text, why))
            return Fail(name, why);
        written_.push_back(Path(name));
        return true;
    }

    std::string Path(const std::string& name) const { return (folder_ / name).string(); }

private:
    bool Encoded(const std::string& name, const std::vector<uint8_t>& bytes) {
        if (bytes.empty())
            return Fail(name, "the picture does not fit a PCX file");
        return Bytes(name, bytes);
    }

    bool Bytes(const std::string& name, const std::vector<uint8_t>& bytes) {
        std::string why;
        if (!ReplaceFileContents(Path(name), bytes, why))
            return Fail(name, why);
        written_.push_back(Path(name));
        return true;
    }

    bool Fail(const std::string& name, const std::string& why) {
        problem_ = name + ": " + why;
        return false;
    }

    std::filesystem::path folder_;
    std::vector<std::string>& written_;
    std::string& problem_;
};

} // namespace

bool WriteSample(const std::string& folder, std::vector<std::string>& written,
                 std::string& problem) {
    written.clear();
    std::error_code error;
    const std::filesystem::path root = std::filesystem::absolute(folder, error).lexically_normal();
    if (error || (std::filesystem::create_directories(root, error), error)) {
        problem = folder + ": " + error.message();
        return false;
    }
    SampleFamily fighter;
    SampleFamily truck;
    if (!BuildFighterFamily(fighter, problem) || !BuildVehicleFamily(truck, problem))
        return false;

    SampleWriter writer(root, written, problem);
    const Palette palette = SamplePalette();
    if (!writer.Family(fighter) ||
        !writer.Texture(kFighterTextureFile, PaintFighterTexture(), palette))
        return false;

    // The drawings show the fighter as it stands: gear down, the pilot in, the wings whole.
    const ModelBox box = MeasureFamily(fighter);
    const std::vector<AssembledPolygon> polygons = AssemblePolygons(fighter, ShowState{});
    const Palette ink = DrawingPalette();
    const std::pair<const char*, DrawingView> drawings[] = {
        {kTopDrawingFile, DrawingView::Top},
        {kLeftDrawingFile, DrawingView::Left},
        {kFrontDrawingFile, DrawingView::Front}};
    for (const auto& [name, view] : drawings) {
        if (!writer.Drawing(name, DrawThreeView(polygons, box, view, kDrawingScale), ink))
            return false;
    }
    const ProjectRecord project = SampleProject(root.string(), fighter, box);
    if (!writer.Text(kSampleProjectFile, ProjectFileText(project, false)))
        return false;

    return writer.Family(truck) &&
           writer.Texture(kVehicleTextureFile, PaintVehicleTexture(), palette);
}
