#include "sampleproject.h"

#include "projectfile.h"

#include <cmath>
#include <filesystem>

namespace {

constexpr int16_t kProjectTypeMox = 1;

constexpr const char* kNotes[] = {
    "Demo fighter made by moxtool sample.",
    "Main file PDEMOF.MOX: fuselage, propeller, canopy, pilot, tail and tail wheel.",
    "PDEMOC.MOX: nose art at hardpoint 27.",
    "PDEMOE.MOX and PDEMOG.MOX: right and left wing at hardpoints 28 and 29.",
    "Try the gear, pilot and wing damage states, and the rendering sequence.",
};

int16_t Whole(double value) {
    return static_cast<int16_t>(std::lround(value));
}

} // namespace

ProjectRecord SampleProject(const std::string& folder, const SampleFamily& family,
                            const ModelBox& box) {
    auto path = [&](const std::string& name) {
        return (std::filesystem::path(folder) / name).string();
    };
    ProjectRecord project;
    project.Type = kProjectTypeMox;
    std::string* slots[] = {&project.F, &project.A, &project.B, &project.C,
                            &project.E, &project.G, &project.P};
    for (std::string* slot : slots)
        *slot = kNoPath;
    for (const SampleFile& file : family)
        *slots[file.slot] = path(file.name);
    const Vec3 size = box.high - box.low;
    project.Span = Whole(size.y);
    project.Length = Whole(size.x);
    project.Height = Whole(size.z);
    project.TopLeftX = Whole(box.low.x);
    project.TopLeftY = Whole(box.low.y);
    project.TopLeftZ = Whole(box.high.z);
    project.Top = path(kTopDrawingFile);
    project.Left = path(kLeftDrawingFile);
    project.Front = path(kFrontDrawingFile);
    for (const char* line : kNotes)
        project.Notes += (project.Notes.empty() ? "" : kProjectLineEnd) + std::string(line);
    return project;
}
