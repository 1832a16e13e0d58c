// The open model: the files of its family and the view and selection state that the painter and
// the panels share.
#pragma once

#include "changejournal.h"
#include "familynames.h"
#include "filerecord.h"
#include "infofields.h"

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

// What is loaded.
enum ModelType : int32_t { kNothingLoaded = 0, kMoxLoaded = 1, kMoyLoaded = 2, k3dsLoaded = 3 };

class model {
public:
    int16_t m_currmox = 0;
    float m_zoom = 0.0f;
    float m_xpos = 0.0f;
    float m_ypos = 0.0f;
    float m_xrot = 0.0f;
    float m_yrot = 0.0f;
    float m_bank = 0.0f;
    int16_t m_currelem = -1;
    int16_t m_currnode = 0;
    int32_t m_pilot = 0;
    int32_t m_lg = 1;
    int32_t m_wing = 0;
    bool RenderType = false;
    int32_t M_Type = kNothingLoaded;

    // Empty until a family or a project is loaded, then kFileSlots records.
    std::vector<FileRecord> Files;

    // The changes made to Files since the load, for Undo and Redo (changejournal.h).
    ChangeJournal Journal;

    // The project file (modelproject.cpp).
    void SaveProject();
    void LoadProject(const std::string& Filename);
    // The family (modelfamily.cpp). Load rewrites `Filename` to the main file of the family and
    // always returns false; callers load into a fresh model.
    bool CheckMOX(int16_t num) const;
    bool Load(std::string& Filename);
    // "ONE" saves the current file, "ALL" every loaded file, any other text saves the current
    // file under that path.
    void Save(const std::string& Filename);
    // The assembled model's extent along one axis (modelmeasures.cpp): `result` 0 the smallest
    // coordinate, 1 the largest, any other the difference; `all` the whole family or the file
    // m_currmox only.
    int16_t GetSpan(bool all, int32_t result) const;
    int16_t GetLength(bool all, int32_t result) const;
    int16_t GetHeight(bool all, int32_t result) const;

    // Fills the panel of tab `TabNum` (1 to 7) from the current file; nothing unless a .mox
    // family is open (modelinfo.cpp).
    void WriteInfo(int32_t TabNum) const;
    // Writes one numbered field (infofields.h) of the current file from the text `value`; `i`
    // and `j` name the item as the field's row says, -1 where unused. Nothing unless a .mox
    // family is open (modelupdate.cpp). A texture name is taken as Latin-1 bytes.
    InfoWrite UpdateInfo(int32_t field, const std::string& value, int16_t i, int16_t j);
    // What a field of the current file holds, as UpdateInfo takes it: a decimal number, or the
    // 14 bytes of the texture name. None where UpdateInfo would write nothing for want of a file
    // or an item.
    std::optional<std::string> InfoText(int32_t field, int16_t i, int16_t j) const;

    // Take back the newest change, or bring back the last one taken back (modelundo.cpp). A
    // selection that names no piggyback or node any more is cleared. False when there was
    // nothing to do.
    bool Undo();
    bool Redo();

private:
    // Reads `filename` into Files(slot) and notes the slot in the record.
    void ReadSlot(const std::string& filename, int16_t slot);
    // Clears the family list cbo_1_mox and fills it with the rows of `family`.
    static void FillFamilyList(Family family);
    // Treats one line of a project; the key "Notes" reads the rest of `in`. Returns false for a
    // line that is not a project line.
    bool TreatProjectLine(const std::string& text, std::istream& in);
    // Brings the window back to its state after a load: first tab, main file, X axis, perspective
    // view, no selection, pilot alive, gear down, wings whole. A model load also turns the
    // element, piggyback, node and part spins back to 0.
    void ResetWindow(bool resetSpins);
};
