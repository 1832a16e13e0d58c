// moxtool project: what loading a .3vw project brings into the editor, without a window.
#include "collectinghost.h"
#include "commandsupport.h"
#include "model.h"
#include "programstate.h"
#include "projectfile.h"

#include <algorithm>
#include <iostream>
#include <iterator>

namespace {

constexpr const char* kDescription =
    "Loads a project as the editor does and prints what it brought: the model kind, the family's "
    "files and whether each loaded, the dimensions, the 3-view drawings, the notes, and the "
    "messages of the load.";
constexpr const char* kUsage = "moxtool project FILE.3vw";

struct SlotField {
    const char* key;
    std::string ProjectRecord::*path;
};

const SlotField kSlots[] = {
    {"F", &ProjectRecord::F}, {"A", &ProjectRecord::A}, {"B", &ProjectRecord::B},
    {"C", &ProjectRecord::C}, {"E", &ProjectRecord::E}, {"G", &ProjectRecord::G},
    {"P", &ProjectRecord::P},
};

struct ViewField {
    const char* name;
    std::string ProjectRecord::*path;
};

const ViewField kViews[] = {
    {"top", &ProjectRecord::Top},     {"left", &ProjectRecord::Left},
    {"front", &ProjectRecord::Front}, {"bottom", &ProjectRecord::Bottom},
    {"right", &ProjectRecord::Right}, {"back", &ProjectRecord::Back},
};

std::string ShownPath(const std::string& path) {
    return path.empty() ? "(none)" : path;
}

void PrintProject(const model& loaded, const ProjectRecord& project, std::ostream& out) {
    out << "  type: " << project.Type << (loaded.M_Type == kMoxLoaded ? " (.mox family)" : "")
        << "\n  family list:";
    const std::vector<std::string>& rows = Program().FamilyListRows;
    for (size_t row = 0; row < rows.size(); ++row)
        out << (row == 0 ? " " : " | ") << rows[row];
    out << "\n";
    for (size_t slot = 0; slot < std::size(kSlots); ++slot) {
        const std::string& path = project.*kSlots[slot].path;
        out << "  " << kSlots[slot].key << " (slot " << slot << "): " << ShownPath(path);
        if (!path.empty() && path != kNoPath)
            out << (loaded.CheckMOX(static_cast<int16_t>(slot)) ? " - loaded" : " - not loaded");
        out << "\n";
    }
    out << "  span " << project.Span << ", length " << project.Length << ", height "
        << project.Height << "\n  top left: x " << project.TopLeftX << ", y " << project.TopLeftY
        << ", z " << project.TopLeftZ << "\n";
    for (const ViewField& view : kViews)
        out << "  " << view.name << " view: " << ShownPath(project.*view.path) << "\n";
    const std::string& notes = project.Notes;
    out << "  notes:" << (notes.empty() ? " (none)" : "") << "\n";
    for (size_t start = 0; !notes.empty() && start <= notes.size();) {
        const size_t end = std::min(notes.find(kProjectLineEnd, start), notes.size());
        out << "    " << notes.substr(start, end - start) << "\n";
        start = end + std::char_traits<char>::length(kProjectLineEnd);
    }
}

int RunProject(const Arguments& args) {
    ResetProgramState();
    CollectingHost host;
    model loaded;
    loaded.LoadProject(args[0]);
    const bool failed =
        std::any_of(host.messages.begin(), host.messages.end(), [](const std::string& message) {
            return message == kProjectNotFound || message == kProjectError;
        });
    std::cout << "project " << args[0] << "\n";
    if (!(failed && loaded.Files.empty()))
        PrintProject(loaded, Program().ProjectData, std::cout);
    for (const std::string& message : host.messages)
        std::cout << "  message: " << message << "\n";
    return failed ? kExitFailure : kExitOk;
}

} // namespace

ToolCommand ProjectCommand() {
    return {"project", "show what a .3vw project loads: files, dimensions, drawings, notes", kUsage,
            kDescription, [](CLI::App& command) {
                return DefinePositionals(command, {{"FILE", "the project file"}}, RunProject);
            }};
}
