#include "foldersearch.h"

#include <algorithm>
#include <filesystem>

namespace {

char UpperAscii(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

} // namespace

bool SameIgnoringCase(const std::string& a, const std::string& b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return UpperAscii(x) == UpperAscii(y);
           });
}

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
