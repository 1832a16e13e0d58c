// Finding a file by a name whose letters may stand in another case than on disk: model files
// carry names in upper case, and the disk may be case-sensitive.
#pragma once

#include <string>

// True when `a` and `b` differ at most in the case of their ASCII letters.
bool SameIgnoringCase(const std::string& a, const std::string& b);

// The entry of `folder` ("" for the current folder) that is `name` up to the case of its ASCII
// letters: `name` itself when it exists, else the first such entry in name order, else "".
std::string FindEntryIgnoringCase(const std::string& folder, const std::string& name);
