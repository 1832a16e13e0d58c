#include "wholenumber.h"

namespace {

// Far beyond the widest field (32 bits) and far from the end of 64 bits, so that adding digits
// to it can't overflow.
constexpr int64_t kBeyondEveryField = int64_t{1} << 40;
constexpr int kDecimal = 10;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Reads the number at the start of `text`; `used` is how many characters it took.
std::optional<int64_t> ReadNumber(const std::string& text, std::size_t& used) {
    std::size_t at = 0;
    const bool negative = at < text.size() && text[at] == '-';
    if (negative)
        ++at;
    const std::size_t firstDigit = at;
    int64_t value = 0;
    for (; at < text.size() && IsDigit(text[at]); ++at) {
        if (value < kBeyondEveryField)
            value = value * kDecimal + (text[at] - '0');
    }
    used = at;
    if (at == firstDigit)
        return std::nullopt;
    return negative ? -value : value;
}

} // namespace

std::optional<int64_t> WholeNumber(const std::string& text) {
    std::size_t used = 0;
    const std::optional<int64_t> number = ReadNumber(text, used);
    if (used != text.size())
        return std::nullopt;
    return number;
}

std::optional<int64_t> LeadingNumber(const std::string& text) {
    std::size_t used = 0;
    return ReadNumber(text, used);
}
