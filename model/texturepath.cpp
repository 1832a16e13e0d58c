#include "texturepath.h"

#include "latin1text.h"

#include <algorithm>
#include <filesystem>
#include <vector>

namespace {

std::string UpperAscii(std::string text) {
    for (char& c : text) {
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    }
    return text;
}

void ReplaceAll(std::string& text, const std::string& from, const std::string& to) {
    for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

// The folder part of a model's file name, up to and including the last separator.
std::string FolderOf(const std::string& filename) {
    const size_t slash = filename.find_last_of("/\\");
    return slash == std::string::npos ? std::string() : filename.substr(0, slash + 1);
}

// The entry of `folder` whose name is `wanted` up to the case of its ASCII letters: the exact
// name when it exists, else the first such name in sorted order, else `wanted` itself.
std::string MatchInFolder(const std::string& folder, const std::string& wanted) {
    namespace fs = std::filesystem;
    const fs::path dir = folder.empty() ? fs::path(".") : fs::path(folder);
    std::error_code error;
    if (fs::is_regular_file(dir / wanted, error))
        return wanted;
    std::vector<std::string> matches;
    for (fs::directory_iterator it(dir, error), end; !error && it != end; it.increment(error)) {
        const std::string name = it->path().filename().string();
        if (UpperAscii(name) == wanted)
            matches.push_back(name);
    }
    if (matches.empty())
        return wanted;
    return *std::min_element(matches.begin(), matches.end());
}

} // namespace

std::string TextureFileName(const TextureName& texture) {
    std::string name(texture.begin(), std::find(texture.begin(), texture.end(), 0));
    name.erase(name.find_last_not_of(' ') + 1);
    name = UpperAscii(name);
    ReplaceAll(name, ".TPC", ".PCX");
    return Latin1ToUtf8(name);
}

std::string TexturePath(const std::string& modelFilename, const TextureName& texture) {
    const std::string folder = FolderOf(modelFilename);
    return folder + MatchInFolder(folder, TextureFileName(texture));
}
