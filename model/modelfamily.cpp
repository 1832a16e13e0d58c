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

namespace {

constexpr const char* kSaveOneCommand = "ONE";
constexpr const char* kSaveAllCommand = "ALL";
constexpr const char* kNothingToSaveMessage =
    "Only .mox models can be saved. This file was not read, so nothing was written.";
constexpr const char* kMainEnding = ".MOX";

std::string NextSaveName(const std::string& filename) {
    return Program().IncrementalSave ? IncrementalName(filename) : filename;
}

} // namespace

bool model::CheckMOX(int16_t num) const {
    return num >= 0 && num < static_cast<int>(Files.size()) && Files[num].Loaded;
}

void model::ReadSlot(const std::string& filename, int16_t slot) {
    Files[slot] = READ_MOX(OnDiskPath(filename), slot);
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
        Journal = ChangeJournal();
        ReadSlot(Filename, 0);
        const Family family = FamilyOf(Filename);
        if (family == Family::None)
            break;
        // Only the main letter brings the family: any other file of it loads alone as slot 0.
        const char main = MainLetter(family);
        if (FamilyLetter(Filename) == main &&
            Host().ShowMessage(kConnectedFilesQuestion, MessageButtons::YesNo,
                               MessageIcon::Question, kProgramTitle) == MessageAnswer::Yes) {
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
        if (SAVE_MOX(file, written))
            Journal.MarkSaved(m_currmox);
    } else if (Filename == kSaveAllCommand) {
        for (int k = 0; k <= kLastFamilySlot; ++k) {
            if (!Files[k].Loaded)
                continue;
            written = NextSaveName(Files[k].Filename);
            if (SAVE_MOX(Files[k], written))
                Journal.MarkSaved(static_cast<int16_t>(k));
            Files[k].Filename = written;
        }
    } else {
        // Save As: the record keeps its own name, so the next plain save goes there again.
        if (SAVE_MOX(Files[m_currmox], Filename))
            Journal.MarkSaved(m_currmox);
    }
    const std::string current = Files[m_currmox].Filename;
    if (PushRecent(Program().RecentModels, written, current))
        Host().UpdateRecentMenus();
    Host().SetWindowTitle(kTitlePrefix + BareFileName(current));
}
