// What the moxtool commands share: reading their input files with a one-line error, and the
// form of error lines.
#pragma once

#include "commands.h"
#include "filerecord.h"
#include "model.h"

#include <string>
#include <utility>
#include <vector>

// A required argument of a command: its name in the usage and what it is.
using ArgumentName = std::pair<const char*, const char*>;

// Declares the required arguments `names` of a command without options, in order; the result
// runs `run` on their values.
CommandRun DefinePositionals(CLI::App& command, const std::vector<ArgumentName>& names,
                             int (*run)(const Arguments& args));

// Prints "moxtool: TEXT" on stderr.
void PrintError(const std::string& text);

// Reads a model file as the editor does. Returns false, with `error` naming the file and what is
// wrong, when it is not a readable file. `messages` gets what reading it showed the user.
bool ReadModelFile(const std::string& path, FileRecord& record, std::vector<std::string>& messages,
                   std::string& error);

// Loads the model `path` as the editor does, with its connected files when `connected` and it is
// the main file of a family. False, with `error`, when the file itself cannot be read.
bool LoadModelFamily(const std::string& path, bool connected, model& family, std::string& error);

// The extension of `path` with its dot, in lower case: "OUT.GLB" gives ".glb".
std::string LowerCaseExtension(const std::string& path);

// Reads a whole text file; false with `error` naming the file when it cannot.
bool ReadTextFile(const std::string& path, std::string& text, std::string& error);

// Writes `record` with SAVE_MOX; false with `error` ("FILE: Error in Save...") when it fails.
bool WriteModelFile(const FileRecord& record, const std::string& path, std::string& error);
