#include "projectfile.h"

#include "asciicase.h"

#include <cctype>
#include <limits>

namespace {

constexpr int kProjectTypeMox = 1;

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

void AddLine(std::string& text, const std::string& line) {
    text += line + kProjectLineEnd;
}

} // namespace

bool ReadProjectLine(std::istream& in, std::string& line) {
    line.clear();
    std::istream::int_type c = in.get();
    if (c == std::istream::traits_type::eof())
        return false;
    while (c != std::istream::traits_type::eof()) {
        if (c == '\n')
            break;
        if (c == '\r') {
            if (in.peek() == '\n')
                in.get();
            break;
        }
        line += static_cast<char>(c);
        c = in.get();
    }
    return true;
}

bool SplitProjectLine(const std::string& line, ProjectLine& result) {
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos)
        return false;
    result.key = UpperAscii(line.substr(0, equals));
    result.value = line.substr(equals + 1);
    return true;
}

bool ParseProjectNumber(const std::string& value, int16_t& number) {
    std::size_t begin = 0;
    std::size_t end = value.size();
    while (begin < end && IsBlank(value[begin]))
        ++begin;
    while (end > begin && IsBlank(value[end - 1]))
        --end;
    bool negative = false;
    if (begin < end && (value[begin] == '-' || value[begin] == '+')) {
        negative = value[begin] == '-';
        ++begin;
    }
    if (begin == end)
        return false;
    // Stops as soon as the range is left, so no count of digits can overflow; a negative number
    // may reach 32768.
    int32_t magnitude = 0;
    const int32_t limit = negative ? -int32_t{std::numeric_limits<int16_t>::min()}
                                   : int32_t{std::numeric_limits<int16_t>::max()};
    for (std::size_t i = begin; i < end; ++i) {
        if (std::isdigit(static_cast<unsigned char>(value[i])) == 0)
            return false;
        magnitude = magnitude * 10 + (value[i] - '0');
        if (magnitude > limit)
            return false;
    }
    number = static_cast<int16_t>(negative ? -magnitude : magnitude);
    return true;
}

std::string ProjectFileText(const ProjectRecord& project, bool hFamily) {
    std::string text;
    if (project.Type == kProjectTypeMox)
        AddLine(text, hFamily ? "Type=MOX TMOD" : "Type=MOX");
    AddLine(text, "F=" + project.F);
    AddLine(text, "A=" + project.A);
    AddLine(text, "B=" + project.B);
    AddLine(text, "C=" + project.C);
    AddLine(text, "E=" + project.E);
    AddLine(text, "G=" + project.G);
    AddLine(text, "P=" + project.P);
    AddLine(text, "");
    AddLine(text, "Span=" + std::to_string(project.Span));
    AddLine(text, "Length=" + std::to_string(project.Length));
    AddLine(text, "Height=" + std::to_string(project.Height));
    AddLine(text, "");
    AddLine(text, "TopLeftX=" + std::to_string(project.TopLeftX));
    AddLine(text, "TopLeftY=" + std::to_string(project.TopLeftY));
    AddLine(text, "TopLeftZ=" + std::to_string(project.TopLeftZ));
    AddLine(text, "");
    AddLine(text, "Top=" + project.Top);
    AddLine(text, "Left=" + project.Left);
    AddLine(text, "Front=" + project.Front);
    AddLine(text, "Notes=" + project.Notes);
    return text;
}
