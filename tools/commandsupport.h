// What the moxtool commands share: reading their input files with a one-line error, help
// requests, and the form of error lines.
#pragma once

#include "commands.h"
#include "filerecord.h"

#include <string>
#include <vector>

// True when the words ask for the command's help.
bool HelpRequested(const Arguments& args);

// Prints "moxtool: TEXT" on stderr.
void PrintError(const std::string& text);

// Prints a command's usage on stderr and returns the exit status of a usage error.
int UsageError(const char* usage);

// Reads a model file as the editor does. Returns false, with `error` naming the file and what is
// wrong, when it is not a readable file. `messages` gets what reading it showed the user.
bool ReadModelFile(const std::string& path, FileRecord& record, std::vector<std::string>& messages,
                   std::string& error);

// Reads a whole text file; false with `error` naming the file when it cannot.
bool ReadTextFile(const std::string& path, std::string& text, std::string& error);

// Writes `record` with SAVE_MOX; false with `error` ("FILE: Error in Save...") when it fails.
bool WriteModelFile(const FileRecord& record, const std::string& path, std::string& error);
