#include "projectpaths.h"

#include "currentmodel.h"
#include "programstate.h"
#include "projectfile.h"

#include <cctype>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

bool IsAbsolute(const std::string& path) {
    if (!path.empty() && (path.front() == '/' || path.front() == '\\'))
        return true;
    // A Windows drive, as projects written on Windows name their files.
    return path.size() >= 2 && std::isalpha(static_cast<unsigned char>(path[0])) && path[1] == ':';
}

} // namespace

std::string PathFromFolder(const std::string& path, const std::string& folder) {
    if (path.empty() || path == kNoPath || folder.empty() || IsAbsolute(path))
        return path;
    return (fs::path(folder) / path).string();
}

std::string FolderOf(const std::string& file) {
    if (file.empty())
        return {};
    std::error_code error;
    const fs::path absolute = fs::absolute(fs::path(file), error);
    return error ? fs::path(file).parent_path().string() : absolute.parent_path().string();
}

std::string ResolveTypedPath(const std::string& path) {
    const std::string& project = Program().ProjectData.ProjectFile;
    if (!project.empty())
        return PathFromFolder(path, FolderOf(project));
    const model& current = CurrentModel();
    if (!current.Files.empty() && !current.Files[0].Filename.empty())
        return PathFromFolder(path, FolderOf(current.Files[0].Filename));
    return path;
}
