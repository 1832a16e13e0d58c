// The naming rules of model families: file kinds by extension, the H and F families, which letter
// takes which slot, the rows of the family list, and the numbered names of incremental saves.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// What a file is, by the last three characters of its name in upper case.
enum class FileKind { Mox, Moy, ThreeDS, Other };

enum class Family { None, H, F };

// The family letter and the extension behind it: "F.MOX".
inline constexpr std::size_t kLetterAndExtensionLength = 5;

// What opening the main file of a family asks.
inline constexpr const char* kConnectedFilesQuestion = "Load this model AND connected models?";

// A connected file: its slot in Files and the ending that replaces the main file's letter and
// extension ("L.MOX").
struct ConnectedFile {
    int16_t slot;
    const char* ending;
};

FileKind FileKindOf(const std::string& filename);

// The part of a path behind its last '/' or '\'. Both count, so that names carried over from
// systems with backslash paths (projects, recent lists) still give their bare name here.
std::string BareFileName(const std::string& path);

// The family a name belongs to, by its bare name: "TMOD..." is an H family, "P..." an F family,
// compared in upper case. Nothing else of the name counts, so "PANELF.MOX" is an F family.
Family FamilyOf(const std::string& filename);

// The family letter: the character in front of the four-character extension, in upper case;
// '\0' when the name is too short to have one.
char FamilyLetter(const std::string& filename);

// H for the H family, F for the F family.
char MainLetter(Family family);

// The connected files in the order in which a load reads them.
std::vector<ConnectedFile> ConnectedFiles(Family family);

// Everything of a name but its family letter and extension: the name less its last five
// characters.
std::string FamilyStem(const std::string& filename);

// The rows of the family list (cbo_1_mox); the row number is the slot.
std::vector<std::string> FamilyListRows(Family family);

// The rows the family list holds before any family was loaded.
std::vector<std::string> InitialFamilyListRows();

// The next name of an incremental save: "PLANEF.MOX" -> "PLANEF_001.MOX", "PLANEF_009.MOX" ->
// "PLANEF_010.MOX", "PLANEF_999.MOX" -> "PLANEF_1000.MOX" (and that one -> "PLANEF_1000_001.MOX").
// The extension is the last four characters when they begin with a dot; a name without one is
// numbered at its end. An empty name stays empty: there is nothing to number.
std::string IncrementalName(const std::string& filename);

// Puts `entry` at the top of a recent list when the top entry differs from `compared`; the others
// move down one place and the fourth falls off. Returns whether the list changed. `entry` is a
// copy, so it may name an entry of the list itself.
bool PushRecent(std::array<std::string, 5>& list, const std::string& compared, std::string entry);
