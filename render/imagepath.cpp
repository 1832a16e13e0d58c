#include "imagepath.h"

#include "foldersearch.h"

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

// `folder / name` as it is on disk, or an empty path when neither it nor a name differing only in
// case exists.
fs::path FindEntry(const fs::path& folder, const fs::path& name) {
    const std::string found = FindEntryIgnoringCase(folder.string(), name.string());
    return found.empty() ? fs::path() : folder / found;
}

} // namespace

std::string ResolveImagePath(const std::string& path) {
    std::string cleaned = path;
    while (!cleaned.empty() && (cleaned.back() == '\0' || cleaned.back() == ' '))
        cleaned.pop_back();
    std::replace(cleaned.begin(), cleaned.end(), '\\', '/');
    if (cleaned.empty())
        return {};

    std::error_code error;
    if (fs::is_regular_file(cleaned, error))
        return cleaned;

    fs::path found;
    for (const fs::path& part : fs::path(cleaned)) {
        if (part.empty())
            continue;
        if (part == part.root_directory() || part == part.root_name() || part == "." ||
            part == "..") {
            found /= part;
            continue;
        }
        found = FindEntry(found, part);
        if (found.empty())
            return {};
    }
    return fs::is_regular_file(found, error) ? found.string() : std::string();
}
