// Finding an image file by a name a model gives: model files name their texture in upper case,
// with Windows separators and trailing blanks or NULs, and the disk may be case-sensitive.
#pragma once

#include <string>

// The path of the existing file that `path` names, or "" when there is none. Trailing NULs and
// blanks are dropped and backslashes read as folder separators; a folder or file name that does
// not exist as written is matched against the names in its folder ignoring case.
std::string ResolveImagePath(const std::string& path);
