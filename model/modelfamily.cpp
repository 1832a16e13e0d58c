// Loading and saving a model family: which files belong together, which slot each takes, what
// the user is asked, the names of incremental saves, and the window's state after a load.
#include "model.h"

#include "axiscode.h"
#include "familynames.h"
#include "foldersearch.h"
#include "modelhost.h"
#include "moxreader.h"
#include "moxwriter.h"
#include "programstate.h"

#include <filesystem>

namespace {

constexpr const char* kTitle = "Skylathe";
constexpr const char* kTitlePrefix = "Skylathe - ";
constexpr const char* kSaveOneCommand = "ONE";
constexpr const char* kSaveAllCommand = "ALL";
constexpr const char* kNothingToSaveMessage =
    "Only .mox models can be saved. This file was not read, so nothing was written.";
constexpr const char* kMainEnding = ".MOX";
constexpr int kLastFamilySlot = 6;

// Family names are built in upper case ("PLANEA.MOX"), and the family letter and extension of a
// file on disk may be in either case. When no file has the exact name, a file in the same folder
// whose name differs only in the case of its last five characters is taken instead; the first in
// name order wins when there are several.
std::string OnDiskName(const std::string& filename) {
    namespace fs = std::filesystem;
    std::error_code error;
    if (filename.size() < kLetterAndExtensionLength || fs::exists(filename, error))
        return filename;
    const fs::path wanted(filename);
    const std::string bare = wanted.filename().string();
    if (bare.size() < kLetterAndExtensionLength)
        return filename;
    const std::string fixedPart = bare.substr(0, bare.size() - kLetterAndExtensionLength);
    const std::string ending = bare.substr(bare.size() - kLetterAndExtensionLength);
    const fs::path folder = wanted.has_parent_path() ? wanted.parent_path() : fs::path(".");
    std::string found;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (name.size() == bare.size() && name.compare(0, fixedPart.size(), fixedPart) == 0 &&
            SameIgnoringCase(name.substr(fixedPart.size()), ending) &&
            (found.empty() || name < found))
            found = name;
    }
    if (found.empty())
        return filename;
    return wanted.has_parent_path() ? (folder / found).string() : found;
}

std::string NextSaveName(const std::string& filename) {
    return Program().IncrementalSave ? IncrementalName(filename) : filename;
}

} // namespace

bool model::CheckMOX(int16_t num) const {
    return num >= 0 && num < static_cast<int>(Files.size()) && Files[num].Loaded;
}

void model::ReadSlot(const std::string& filename, int16_t slot) {
    Files[slot] = READ_MOX(OnDiskName(filename), slot);
    Files[slot].Index = slot;
}

void model::FillFamilyList(Family family) {
    Program().FamilyListRows = FamilyListRows(family);
    Host().SetFamilyList(Program().FamilyListRows);
}

bool model::Load(std::string& Filename) {
    switch (FileKindOf(Filename)) {
    case FileKind::Moy:
        M_Type = kMoyLoaded;
        break;
    case FileKind::ThreeDS:
        M_Type = k3dsLoaded;
        break;
    case FileKind::Other:
        break;
    case FileKind::Mox: {
        M_Type = kMoxLoaded;
        Files.assign(kFileSlots, FileRecord{});
        ReadSlot(Filename, 0);
        const Family family = FamilyOf(Filename);
        if (family == Family::None)
            break;
        // Only the main letter brings the family: any other file of it loads alone as slot 0.
        const char main = MainLetter(family);
        if (FamilyLetter(Filename) == main &&
            Host().ShowMessage(kConnectedFilesQuestion, MessageButtons::YesNo,
                               MessageIcon::Question, kTitle) == MessageAnswer::Yes) {
            const std::string stem = FamilyStem(Filename);
            for (const ConnectedFile& connected : ConnectedFiles(family))
                ReadSlot(stem + connected.ending, connected.slot);
            Filename = stem + main + kMainEnding;
        }
        FillFamilyList(family);
        m_currmox = 0;
        break;
    }
    }
    if (PushRecent(Program().RecentModels, Filename, Filename))
        Host().UpdateRecentMenus();
    // A .moy or .3ds file fills no Files, and the title stays as it was.
    if (!Files.empty())
        Host().SetWindowTitle(kTitlePrefix + BareFileName(Files[0].Filename));
    ResetWindow(true);
    return false;
}

void model::ResetWindow(bool resetSpins) {
    ModelHost& host = Host();
    host.ShowFirstEditTab();
    host.SetFamilyListRow(0);
    host.SetShowThisMoxOnly(false);
    m_currmox = 0;
    host.SetModifyAxis(kAxisX);
    if (resetSpins) {
        for (const char* spin : {"upd_3_pb", "upd_3_elem", "upd_4_node", "upd_2_part"})
            host.SetSpinValue(spin, 0);
    }
    host.ShowPerspectiveView();
    m_currelem = -1;
    m_pilot = 0;
    host.SetToolbarImage("Pilot", "PilotAlive");
    m_lg = 1;
    host.SetToolbarImage("LG", "LGDown");
    m_wing = 0;
    host.SetToolbarImage("Wing", "WingOK");
}

void model::Save(const std::string& Filename) {
    if (M_Type == kNothingLoaded)
        return;
    if (M_Type != kMoxLoaded) {
        ShowMessage(kNothingToSaveMessage, MessageIcon::Exclamation);
        return;
    }
    if (Files.size() != kFileSlots || m_currmox < 0 || m_currmox >= kFileSlots)
        return;
    std::string written = Filename;
    if (Filename == kSaveOneCommand) {
        FileRecord& file = Files[m_currmox];
        file.Filename = NextSaveName(file.Filename);
        written = file.Filename;
        SAVE_MOX(file, written);
    } else if (Filename == kSaveAllCommand) {
        for (int k = 0; k <= kLastFamilySlot; ++k) {
            if (!Files[k].Loaded)
                continue;
            written = NextSaveName(Files[k].Filename);
            SAVE_MOX(Files[k], written);
            Files[k].Filename = written;
        }
    } else {
        // Save As: the record keeps its own name, so the next plain save goes there again.
        SAVE_MOX(Files[m_currmox], Filename);
    }
    const std::string current = Files[m_currmox].Filename;
    if (PushRecent(Program().RecentModels, written, current))
        Host().UpdateRecentMenus();
    Host().SetWindowTitle(kTitlePrefix + BareFileName(current));
}
