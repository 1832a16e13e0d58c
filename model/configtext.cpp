#include "configtext.h"

#include <cstddef>
#include <cstdio>
#include <string_view>

namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kRecentInUse = 4;
constexpr int kLowestLineWeight = 1;
constexpr int kHighestLineWeight = 10;
constexpr int kHighestComponent = 255;
// "rrr,ggg,bbb": three digits each, joined by commas.
constexpr std::size_t kColourLength = 11;

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    const std::size_t last = text.find_last_not_of(" \t");
    return text.substr(first, last - first + 1);
}

bool AllDigits(std::string_view text) {
    if (text.empty())
        return false;
    for (const char c : text) {
        if (c < '0' || c > '9')
            return false;
    }
    return true;
}

// A whole number of at most three digits; -1 when `text` is not one.
int SmallNumber(std::string_view text) {
    if (!AllDigits(text) || text.size() > 3)
        return -1;
    int value = 0;
    for (const char c : text)
        value = value * 10 + (c - '0');
    return value;
}

// The colour "rrr,ggg,bbb" into `colour`; anything else leaves it as it was.
void ReadColour(std::string_view value, Colour& colour) {
    if (value.size() != kColourLength || value[3] != ',' || value[7] != ',')
        return;
    const int red = SmallNumber(value.substr(0, 3));
    const int green = SmallNumber(value.substr(4, 3));
    const int blue = SmallNumber(value.substr(8, 3));
    if (red < 0 || green < 0 || blue < 0 || red > kHighestComponent || green > kHighestComponent ||
        blue > kHighestComponent)
        return;
    colour = {red, green, blue};
}

bool SameWord(std::string_view text, std::string_view word) {
    if (text.size() != word.size())
        return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char a = text[i] >= 'A' && text[i] <= 'Z' ? static_cast<char>(text[i] + 32) : text[i];
        const char b = word[i] >= 'A' && word[i] <= 'Z' ? static_cast<char>(word[i] + 32) : word[i];
        if (a != b)
            return false;
    }
    return true;
}

// A recent key "Recent1".."Recent4" or "Project1".."Project4": the entry it names, or nullptr.
std::string* RecentEntry(std::string_view key, ProgramState& state) {
    for (auto [prefix, list] : {std::pair{std::string_view("Recent"), &state.RecentModels},
                                std::pair{std::string_view("Project"), &state.RecentProjects}}) {
        if (key.size() == prefix.size() + 1 && key.substr(0, prefix.size()) == prefix &&
            key.back() >= '1' && key.back() < static_cast<char>('1' + kRecentInUse))
            return &(*list)[static_cast<std::size_t>(key.back() - '1')];
    }
    return nullptr;
}

void ReadLine(std::string_view line, ProgramState& state) {
    const std::size_t blank = line.find(' ');
    if (blank == std::string_view::npos)
        return;
    const std::string_view key = line.substr(0, blank);
    const std::string_view value = line.substr(blank + 1);
    const std::string_view trimmed = Trimmed(value);
    if (std::string* entry = RecentEntry(key, state)) {
        if (!value.empty() && value != kNoRecent)
            *entry = std::string(value);
    } else if (key == "LineWeight") {
        const int weight = SmallNumber(trimmed);
        if (weight >= kLowestLineWeight && weight <= kHighestLineWeight)
            state.LineWeight = static_cast<int16_t>(weight);
    } else if (key == "LineColour") {
        if (trimmed != "0")
            ReadColour(value, state.LineColour);
    } else if (key == "SkyColour") {
        if (trimmed != "0")
            ReadColour(value, state.SkyColour);
    } else if (key == "IncrementalSave") {
        if (SameWord(trimmed, "True"))
            state.IncrementalSave = true;
        else if (SameWord(trimmed, "False"))
            state.IncrementalSave = false;
    }
}

std::string ColourText(const Colour& colour) {
    char text[kColourLength + 1];
    std::snprintf(text, sizeof text, "%03d,%03d,%03d", colour.red, colour.green, colour.blue);
    return text;
}

} // namespace

void ReadConfigText(const std::string& text, ProgramState& state) {
    std::string_view rest = text;
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        std::string_view line = rest.substr(0, end);
        rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        ReadLine(line, state);
    }
}

std::string ConfigText(const ProgramState& state) {
    std::string text;
    const auto line = [&text](const std::string& key, const std::string& value) {
        text += key + ' ' + value;
        text += kLineEnd;
    };
    for (std::size_t i = 0; i < kRecentInUse; ++i)
        line("Recent" + std::to_string(i + 1), state.RecentModels[i]);
    for (std::size_t i = 0; i < kRecentInUse; ++i)
        line("Project" + std::to_string(i + 1), state.RecentProjects[i]);
    line("LineWeight", std::to_string(state.LineWeight));
    line("LineColour", ColourText(state.LineColour));
    line("SkyColour", ColourText(state.SkyColour));
    line("IncrementalSave", state.IncrementalSave ? "True" : "False");
    return text;
}

void ResetConfigValues(ProgramState& state) {
    const ProgramState defaults;
    state.RecentModels = defaults.RecentModels;
    state.RecentProjects = defaults.RecentProjects;
    state.LineWeight = defaults.LineWeight;
    state.LineColour = defaults.LineColour;
    state.SkyColour = defaults.SkyColour;
    state.IncrementalSave = defaults.IncrementalSave;
}
