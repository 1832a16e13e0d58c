#include "familymeasures.h"

#include "collectinghost.h"
#include "familynames.h"
#include "model.h"

#include <cstdio>

namespace {

constexpr double kMetresPerUnit = 0.0448;
constexpr int kFamilySlots = 7;

std::string Metres(int16_t units) {
    char text[32];
    std::snprintf(text, sizeof text, "%.3f m", units * kMetresPerUnit);
    return text;
}

using Measure = int16_t (model::*)(bool, int32_t) const;

void PrintAxis(std::ostream& out, const char* name, const model& family, Measure measure) {
    const int16_t smallest = (family.*measure)(true, 0);
    const int16_t largest = (family.*measure)(true, 1);
    const int16_t size = (family.*measure)(true, 2);
    out << "    " << name << ": " << size << " (" << Metres(size) << "), from " << smallest << " ("
        << Metres(smallest) << ") to " << largest << " (" << Metres(largest) << ")\n";
}

} // namespace

bool IsFamilyMainFile(const std::string& path) {
    const Family family = FamilyOf(path);
    return family != Family::None && FileKindOf(path) == FileKind::Mox &&
           FamilyLetter(path) == MainLetter(family);
}

void PrintFamilyMeasures(const std::string& path, std::ostream& out) {
    CollectingHost host;
    host.questionAnswer = MessageAnswer::Yes;
    model family;
    std::string filename = path;
    family.Load(filename);

    const std::vector<std::string> rows = FamilyListRows(FamilyOf(path));
    out << "  family:";
    for (int slot = 0; slot < kFamilySlots && slot < static_cast<int>(rows.size()); ++slot) {
        out << (slot == 0 ? " " : ", ") << rows[slot] << " "
            << (family.CheckMOX(static_cast<int16_t>(slot)) ? "loaded" : "missing");
    }
    out << "\n  assembled measures (all files, part pivots and hardpoints added):\n";
    PrintAxis(out, "span", family, &model::GetSpan);
    PrintAxis(out, "length", family, &model::GetLength);
    PrintAxis(out, "height", family, &model::GetHeight);
    for (const std::string& message : host.messages) {
        if (message != kConnectedFilesQuestion)
            out << "  message: " << message << "\n";
    }
}
