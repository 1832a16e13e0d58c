#include "foldersearch.h"

#include "asciicase.h"

#include <filesystem>

std::string FindEntryIgnoringCase(const std::string& folder, const std::string& name) {
    namespace fs = std::filesystem;
    const fs::path dir = folder.empty() ? fs::path(".") : fs::path(folder);
    std::error_code error;
    if (fs::exists(dir / name, error))
        return name;
    std::string found;
    for (fs::directory_iterator it(dir, error), end; !error && it != end; it.increment(error)) {
        const std::string entry = it->path().filename().string();
        if (SameIgnoringCase(entry, name) && (found.empty() || entry < found))
            found = entry;
    }
    return found;
}

std::string FolderPart(const std::string& path) {
    const std::size_t separator = path.find_last_of("/\\");
    return separator == std::string::npos ? std::string() : path.substr(0, separator + 1);
}

std::string OnDiskPath(const std::string& path) {
    const std::string folder = FolderPart(path);
    const std::string found = FindEntryIgnoringCase(folder, path.substr(folder.size()));
    return found.empty() ? path : folder + found;
}
