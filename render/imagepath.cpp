#include "imagepath.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

bool SameIgnoringCase(const std::string& a, const std::string& b) {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](unsigned char x, unsigned char y) {
               return std::tolower(x) == std::tolower(y);
           });
}

// `folder / name` as it is on disk, or an empty path when neither it nor a name differing only in
// case exists.
fs::path FindEntry(const fs::path& folder, const fs::path& name) {
    std::error_code error;
    const fs::path exact = folder / name;
    if (fs::exists(exact, error))
        return exact;
    const fs::path searched = folder.empty() ? fs::path(".") : folder;
    const std::string wanted = name.string();
    for (fs::directory_iterator it(searched, error), end; !error && it != end;
         it.increment(error)) {
        const fs::path entry = it->path().filename();
        if (SameIgnoringCase(entry.string(), wanted))
            return folder / entry;
    }
    return {};
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
