// Where the relative paths of a project lead. The program never changes its working folder: a
// relative path in a .3vw file (model files and view images) is taken from the project file's own
// folder, so a project moved together with its files still opens whole, and a relative path typed
// in a panel is taken from the folder of the open project, else from that of the main model file.
#pragma once

#include <string>

// `path` taken from `folder` when it is relative. An absolute path (one that starts with a "/" or
// a "\", or with a drive letter and ":"), an empty path and "NONE" stay as they are.
std::string PathFromFolder(const std::string& path, const std::string& folder);

// The folder that holds `file`, made absolute against the working folder; "" for an empty name.
std::string FolderOf(const std::string& file);

// A path a panel was given: taken from the folder of the open project, else of the open main
// model file, else left as it is.
std::string ResolveTypedPath(const std::string& path);
