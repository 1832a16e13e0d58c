// The family part of moxtool info: a main file loaded with its connected files, and the measures
// of the assembled model.
#pragma once

#include <ostream>
#include <string>

// True when `path` names the main file of a family (letter F of a "P..." name, H of "TMOD...").
bool IsFamilyMainFile(const std::string& path);

// Loads the family of the main file `path` as the editor does when asked to load the connected
// files too, and prints which files loaded and the measures of the assembled model in model
// units and metres.
void PrintFamilyMeasures(const std::string& path, std::ostream& out);
