// Reading and writing .3vw projects: a model family, the real aircraft's dimensions, the
// placement of 3-view drawings and free notes.
#include "model.h"

#include "familynames.h"
#include "filereplace.h"
#include "modelhost.h"
#include "programstate.h"
#include "projectfile.h"
#include "projectpaths.h"
#include "textureloader.h"

#include <exception>
#include <filesystem>
#include <fstream>

namespace {

constexpr const char* kNotAPicture = "Cannot load 3-View. Must be a PCX file!";
constexpr const char* kNoModelForProject =
    "No model is open, so there is no project to save. Load a model or a project first.";
constexpr const char* kNoProjectFile =
    "No project file is open. Create one with \"Create Project\" on the 3-View Data tab.";
constexpr const char* kProjectNotWritten =
    "Could not write the project file. The file on disk was left as it was.";
constexpr int kViewImageSlot = 7;
constexpr std::size_t kHFamilyRows = 4;

struct ModelKey {
    const char* key;
    int16_t slot;
    std::string ProjectRecord::*path;
    const char* caption;
};

const ModelKey kModelKeys[] = {
    {"F", 0, &ProjectRecord::F, "Loading _F.MOX"}, {"A", 1, &ProjectRecord::A, "Loading _A.MOX"},
    {"B", 2, &ProjectRecord::B, "Loading _B.MOX"}, {"C", 3, &ProjectRecord::C, "Loading _C.MOX"},
    {"E", 4, &ProjectRecord::E, "Loading _E.MOX"}, {"G", 5, &ProjectRecord::G, "Loading _G.MOX"},
    {"P", 6, &ProjectRecord::P, "Loading _P.MOX"},
};

struct ViewKey {
    const char* key;
    std::string ProjectRecord::*path;
    int32_t ProjectRecord::*image;
    const char* caption;
};

const ViewKey kViewKeys[] = {
    {"BOTTOM", &ProjectRecord::Bottom, &ProjectRecord::BottomImage, "Loading Underside View"},
    {"RIGHT", &ProjectRecord::Right, &ProjectRecord::RightImage, "Loading Right View"},
    {"BACK", &ProjectRecord::Back, &ProjectRecord::BackImage, "Loading Back View"},
    {"TOP", &ProjectRecord::Top, &ProjectRecord::TopImage, "Loading Top View"},
    {"FRONT", &ProjectRecord::Front, &ProjectRecord::FrontImage, "Loading Front View"},
    {"LEFT", &ProjectRecord::Left, &ProjectRecord::LeftImage, "Loading Left View"},
};

struct NumberKey {
    const char* key;
    int16_t ProjectRecord::*field;
};

const NumberKey kNumberKeys[] = {
    {"SPAN", &ProjectRecord::Span},         {"LENGTH", &ProjectRecord::Length},
    {"HEIGHT", &ProjectRecord::Height},     {"TOPLEFTX", &ProjectRecord::TopLeftX},
    {"TOPLEFTY", &ProjectRecord::TopLeftY}, {"TOPLEFTZ", &ProjectRecord::TopLeftZ},
};

// The folder that relative paths of the project being loaded are taken from.
std::string ProjectFolder() {
    return FolderOf(Program().ProjectData.ProjectFile);
}

void LoadViewImage(const ViewKey& view, const std::string& path) {
    ProjectRecord& project = Program().ProjectData;
    project.*view.path = path;
    if (path == kNoPath) {
        project.*view.image = 0;
        return;
    }
    Host().SetHelpCaption(view.caption);
    TextureLoader* loader = CurrentTextureLoader();
    if (loader != nullptr && !loader->LoadGLTexture(PathFromFolder(path, ProjectFolder()),
                                                    project.*view.image, kViewImageSlot))
        ShowMessage(kNotAPicture);
}

// Every line after "Notes=" belongs to the notes.
void ReadNotes(std::istream& in, const std::string& first) {
    std::string& notes = Program().ProjectData.Notes;
    notes = first;
    std::string line;
    while (ReadProjectLine(in, line))
        notes += kProjectLineEnd + line;
}

} // namespace

// Returns false when the line is not a project line; what it did up to then stays done.
bool model::TreatProjectLine(const std::string& text, std::istream& in) {
    ProjectLine line;
    if (!SplitProjectLine(text, line))
        return false;
    ProjectRecord& project = Program().ProjectData;
    if (line.key == "TYPE") {
        // The value keeps its case: "mox" names no model kind.
        if (line.value.compare(0, 3, "MOX") == 0) {
            project.Type = 1;
            M_Type = kMoxLoaded;
            FillFamilyList(Family::F);
        }
        if (line.value.size() >= 4 && line.value.compare(line.value.size() - 4, 4, "TMOD") == 0)
            FillFamilyList(Family::H);
        return true;
    }
    for (const ModelKey& slotKey : kModelKeys) {
        if (line.key != slotKey.key)
            continue;
        project.*slotKey.path = line.value;
        if (line.value != kNoPath) {
            Host().SetHelpCaption(slotKey.caption);
            ReadSlot(PathFromFolder(line.value, ProjectFolder()), slotKey.slot);
        }
        return true;
    }
    for (const NumberKey& number : kNumberKeys) {
        if (line.key == number.key)
            return ParseProjectNumber(line.value, project.*number.field);
    }
    for (const ViewKey& view : kViewKeys) {
        if (line.key == view.key) {
            LoadViewImage(view, line.value);
            return true;
        }
    }
    if (line.key == "NOTES")
        ReadNotes(in, line.value);
    return true;
}

void model::LoadProject(const std::string& Filename) {
    // A copy: the caller may hand in an entry of the recent list, which this load reorders.
    const std::string path = Filename;
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        ShowMessage(kProjectNotFound, MessageIcon::Information);
        return;
    }
    std::ifstream in(path, std::ios::binary);
    Files.assign(kFileSlots, FileRecord{});
    Journal = ChangeJournal();
    const std::string caption = Host().HelpCaption();
    Host().SetHelpBold(true);
    Program().ProjectData.ProjectFile = path;

    bool understood = in.is_open();
    try {
        std::string line;
        while (understood && ReadProjectLine(in, line)) {
            if (!line.empty())
                understood = TreatProjectLine(line, in);
            Host().LetEventsRun();
        }
        understood = understood && !in.bad();
    } catch (const std::exception&) {
        understood = false;
    }
    in.close();
    if (!understood) {
        // lbl_help keeps the last "Loading" caption in bold, and what was read stays loaded.
        ShowMessage(kProjectError);
        return;
    }
    Host().SetHelpCaption(caption);
    Host().SetHelpBold(false);
    m_currmox = 0;
    if (PushRecent(Program().RecentProjects, path, path))
        Host().UpdateRecentMenus();
    Host().SetWindowTitle(kTitlePrefix + BareFileName(path));
    ResetWindow(false);
}

void model::SaveProject() {
    if (Files.size() != kFileSlots) {
        ShowMessage(kNoModelForProject, MessageIcon::Exclamation);
        return;
    }
    ProjectRecord& project = Program().ProjectData;
    if (project.ProjectFile.empty()) {
        ShowMessage(kNoProjectFile, MessageIcon::Exclamation);
        return;
    }
    // A path the project gave that still names the file keeps its form, so that relative paths
    // stay relative and the project can move with its files.
    const std::string folder = FolderOf(project.ProjectFile);
    for (const ModelKey& slotKey : kModelKeys) {
        const std::string& name = Files[slotKey.slot].Filename;
        std::string& path = project.*slotKey.path;
        if (name.empty())
            path = kNoPath;
        else if (PathFromFolder(path, folder) != name)
            path = name;
    }
    for (std::string* view : {&project.Top, &project.Left, &project.Front}) {
        if (view->empty())
            *view = kNoPath;
    }
    const bool hFamily = Program().FamilyListRows.size() == kHFamilyRows;
    std::string problem;
    if (!ReplaceFileContents(project.ProjectFile, ProjectFileText(project, hFamily), problem))
        ShowMessage(kProjectNotWritten + ("\n" + problem), MessageIcon::Exclamation);
}
