#include "familynames.h"

#include "asciicase.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <utility>

namespace {

constexpr std::size_t kExtensionLength = 4; // ".MOX", with its dot
constexpr std::size_t kNumberLength = 3;    // the "001" of "_001"
constexpr int kMaxRecentEntry = 3;          // entries 0 to 3 are in use

bool StartsWith(const std::string& text, const std::string& start) {
    return text.compare(0, start.size(), start) == 0;
}

bool AllDigits(const std::string& text) {
    return std::all_of(text.begin(), text.end(),
                       [](unsigned char c) { return std::isdigit(c) != 0; });
}

std::string ExtensionOf(const std::string& filename) {
    if (filename.size() >= kExtensionLength && filename[filename.size() - kExtensionLength] == '.')
        return filename.substr(filename.size() - kExtensionLength);
    return {};
}

} // namespace

FileKind FileKindOf(const std::string& filename) {
    const std::string tail =
        UpperAscii(filename.size() >= 3 ? filename.substr(filename.size() - 3) : filename);
    if (tail == "MOX")
        return FileKind::Mox;
    if (tail == "MOY")
        return FileKind::Moy;
    if (tail == "3DS")
        return FileKind::ThreeDS;
    return FileKind::Other;
}

std::string BareFileName(const std::string& path) {
    const std::size_t separator = path.find_last_of("/\\");
    return separator == std::string::npos ? path : path.substr(separator + 1);
}

Family FamilyOf(const std::string& filename) {
    const std::string bare = UpperAscii(BareFileName(filename));
    if (StartsWith(bare, "TMOD"))
        return Family::H;
    if (StartsWith(bare, "P"))
        return Family::F;
    return Family::None;
}

char FamilyLetter(const std::string& filename) {
    if (filename.size() < kLetterAndExtensionLength)
        return '\0';
    return UpperAscii(filename[filename.size() - kLetterAndExtensionLength]);
}

char MainLetter(Family family) {
    switch (family) {
    case Family::H:
        return 'H';
    case Family::F:
        return 'F';
    case Family::None:
        break;
    }
    return '\0';
}

std::vector<ConnectedFile> ConnectedFiles(Family family) {
    switch (family) {
    case Family::H:
        return {{2, "L.MOX"}, {3, "D.MOX"}, {1, "S.MOX"}};
    case Family::F:
        return {{1, "A.MOX"}, {2, "B.MOX"}, {3, "C.MOX"}, {4, "E.MOX"}, {5, "G.MOX"}, {6, "P.MOX"}};
    case Family::None:
        break;
    }
    return {};
}

std::string FamilyStem(const std::string& filename) {
    return filename.size() >= kLetterAndExtensionLength
               ? filename.substr(0, filename.size() - kLetterAndExtensionLength)
               : std::string{};
}

std::vector<std::string> FamilyListRows(Family family) {
    switch (family) {
    case Family::H:
        return {"MAIN MODEL (H)", "S.MOX", "L.MOX", "D.MOX"};
    case Family::F:
        return {"MAIN MODEL (F)", "A.MOX", "B.MOX", "C.MOX", "E.MOX", "G.MOX", "P.MOX"};
    case Family::None:
        break;
    }
    return {};
}

std::vector<std::string> InitialFamilyListRows() {
    return {"MAIN MODEL", "A.MOX", "B.MOX", "C.MOX", "E.MOX", "G.MOX", "P.MOX"};
}

std::string IncrementalName(const std::string& filename) {
    if (filename.empty())
        return filename;
    const std::string extension = ExtensionOf(filename);
    const std::string body = filename.substr(0, filename.size() - extension.size());
    const std::size_t numbered = kNumberLength + 1;
    if (body.size() >= numbered && body[body.size() - numbered] == '_') {
        const std::string digits = body.substr(body.size() - kNumberLength);
        if (AllDigits(digits)) {
            char next[16];
            std::snprintf(next, sizeof next, "%03d", std::stoi(digits) + 1);
            return body.substr(0, body.size() - kNumberLength) + next + extension;
        }
    }
    return body + "_001" + extension;
}

bool PushRecent(std::array<std::string, 5>& list, const std::string& compared, std::string entry) {
    if (list[0] == compared)
        return false;
    for (int i = kMaxRecentEntry; i > 0; --i)
        list[i] = list[i - 1];
    list[0] = std::move(entry);
    return true;
}
