// The command line of the editor: the whole line is the name of one model to open.
#pragma once

#include <string>

// The arguments after the program's name, joined by single blanks and taken whole: no quotes
// are removed and nothing is split off.
std::string CommandLine(int argc, const char* const* argv);

// Opens the model named on the command line into CurrentModel. Runs with the GL context current,
// so that the model's texture reaches the view.
void OpenModelFromCommandLine(const std::string& fileName);
