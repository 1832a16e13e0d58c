// Program-wide settings and lists that live as long as the program: the options, the recent
// files and the open project.
#pragma once

#include "familynames.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

struct Colour {
    int32_t red = 0;
    int32_t green = 0;
    int32_t blue = 0;
};

struct ProjectRecord {
    int16_t Type = 0; // 1 once a .mox file was read or a project line named the kind
    std::string F, A, B, C, E, G, P;
    int16_t Span = 0;
    int16_t Length = 0;
    int16_t Height = 0;
    int16_t TopLeftX = 0;
    int16_t TopLeftY = 0;
    int16_t TopLeftZ = 0;
    std::string Top, Left, Front, Bottom, Right, Back;
    std::string Notes; // CR LF line ends
    int32_t LeftImage = 0;
    int32_t TopImage = 0;
    int32_t FrontImage = 0;
    int32_t BottomImage = 0;
    int32_t RightImage = 0;
    int32_t BackImage = 0;
    std::string ProjectFile; // empty when no project is open
};

inline constexpr const char* kNoRecent = "NONE";

struct ProgramState {
    std::array<std::string, 5> RecentModels{kNoRecent, kNoRecent, kNoRecent, kNoRecent, kNoRecent};
    std::array<std::string, 5> RecentProjects{kNoRecent, kNoRecent, kNoRecent, kNoRecent,
                                              kNoRecent};
    int16_t LineWeight = 1;
    Colour LineColour{255, 255, 255};
    Colour SkyColour{178, 229, 255};
    bool IncrementalSave = true;
    ProjectRecord ProjectData;
    // The rows of the family list cbo_1_mox as the last load left them; a project writes
    // "Type=MOX TMOD" when they are the four rows of an H family.
    std::vector<std::string> FamilyListRows = InitialFamilyListRows();
};

// The one program-wide state.
ProgramState& Program();
// Back to the start values (used at start-up and by tests).
void ResetProgramState();
