#include "texturepath.h"

#include "asciicase.h"
#include "foldersearch.h"
#include "latin1text.h"

#include <algorithm>

namespace {

void ReplaceAll(std::string& text, const std::string& from, const std::string& to) {
    for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
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
    return OnDiskPath(FolderPart(modelFilename) + TextureFileName(texture));
}
