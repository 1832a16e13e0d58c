#include "texturepath.h"

#include "foldersearch.h"
#include "latin1text.h"

#include <algorithm>

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
    const std::string wanted = TextureFileName(texture);
    const std::string found = FindEntryIgnoringCase(folder, wanted);
    return folder + (found.empty() ? wanted : found);
}
