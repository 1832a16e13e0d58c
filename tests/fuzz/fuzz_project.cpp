// Feeds arbitrary text to LoadProject as a .3vw file. What loads without an error must save and
// load again to the same numbers.
#include "model.h"
#include "moxbuilder.h"
#include "programstate.h"
#include "recordinghost.h"
#include "tempdir.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <tuple>

namespace {

// A folder holding a small family that the texts can name.
struct Workspace {
    Workspace() {
        for (const char* name : {"SHIPF.MOX", "SHIPA.MOX", "TMOD1H.MOX", "TMOD1L.MOX"})
            WriteSmallModel(dir.file(name), 40);
    }
    TempDir dir;
    std::string project = dir.file("fuzz.3vw");
    std::string saved = dir.file("saved.3vw");
};

bool LoadedCleanly(const RecordingHost& host) {
    return std::none_of(host.messages.begin(), host.messages.end(), [](const std::string& text) {
        return text == "Error in Project File" || text == "Could not find project file";
    });
}

// The numbers of a project that a save and a load must keep.
auto Numbers(const ProjectRecord& project) {
    return std::tie(project.Span, project.Length, project.Height, project.TopLeftX,
                    project.TopLeftY, project.TopLeftZ, project.Type);
}

// Loads the text, and when it loads without an error saves it and loads it again; false when the
// second load differs.
bool SaveAndLoadKeepNumbers(const Workspace& workspace) {
    ResetProgramState();
    RecordingHost host;
    model m;
    m.LoadProject(workspace.project);
    for (bool all : {true, false})
        for (int32_t result = 0; result < 3; ++result)
            (void)(m.GetSpan(all, result) + m.GetLength(all, result) + m.GetHeight(all, result));
    if (!LoadedCleanly(host) || m.Files.empty())
        return true;
    const ProjectRecord first = Program().ProjectData;
    Program().ProjectData.ProjectFile = workspace.saved;
    m.SaveProject();
    ResetProgramState();
    model again;
    again.LoadProject(workspace.saved);
    return LoadedCleanly(host) && Numbers(Program().ProjectData) == Numbers(first);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static Workspace workspace;
    // Model and picture names stay inside the workspace: a text naming other folders could have
    // the load read device files or anything else on the machine.
    if (std::memchr(data, '/', size) != nullptr)
        return 0;
    std::ofstream(workspace.project, std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    // Plain file names find the workspace's files while the text loads; the fuzzer's own relative
    // paths (corpus, findings) need the folder it was started in.
    const std::filesystem::path started = std::filesystem::current_path();
    std::filesystem::current_path(workspace.dir.path());
    const bool kept = SaveAndLoadKeepNumbers(workspace);
    std::filesystem::current_path(started);
    if (!kept)
        std::abort();
    return 0;
}
