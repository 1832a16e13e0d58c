// Finding a file by a name whose letters may stand in another case than on disk: model files
// carry names in upper case, and the disk may be case-sensitive.
#pragma once

#include <string>

// The entry of `folder` ("" for the current folder) that is `name` up to the case of its ASCII
// letters: `name` itself when it exists, else the first such entry in name order, else "".
std::string FindEntryIgnoringCase(const std::string& folder, const std::string& name);

// The folder part of `path`: up to and including its last '/' or '\'; "" for a bare name.
std::string FolderPart(const std::string& path);

// `path` as it is on disk: its folder part followed by the entry of that folder that is its bare
// name up to case; `path` itself when there is no such entry.
std::string OnDiskPath(const std::string& path);
