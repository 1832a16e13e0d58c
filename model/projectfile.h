// The text of a .3vw project file: reading its lines, splitting them into key and value, reading
// its numbers, and the text a project is written as. The file is 8-bit text; bytes stay as they
// are.
#pragma once

#include "programstate.h"

#include <cstdint>
#include <istream>
#include <string>

inline constexpr const char* kProjectLineEnd = "\r\n";
inline constexpr const char* kNoPath = "NONE";
// The messages of a project load that failed.
inline constexpr const char* kProjectNotFound = "Could not find project file";
inline constexpr const char* kProjectError = "Error in Project File";

struct ProjectLine {
    std::string key; // in upper case
    std::string value;
};

// Reads the next line; CR LF, a CR alone and an LF alone all end a line. Returns false at the end
// of the text when no line is left.
bool ReadProjectLine(std::istream& in, std::string& line);

// Splits a line at its first "=" into the key, turned to upper case, and the value, unchanged.
// Returns false for a line without "=".
bool SplitProjectLine(const std::string& line, ProjectLine& result);

// Reads a project number: decimal digits with an optional sign, blanks allowed around it, and a
// value from -32768 to 32767. Returns false, leaving `number` alone, for anything else.
bool ParseProjectNumber(const std::string& value, int16_t& number);

// The whole text of a project as it is written; `hFamily` chooses "Type=MOX TMOD" over
// "Type=MOX". Paths are written as they stand in `project`.
std::string ProjectFileText(const ProjectRecord& project, bool hFamily);
