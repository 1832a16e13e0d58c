#include "dimensiontext.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <limits>

namespace {

constexpr int64_t kMillion = 1000000;
// Beyond this many whole digits every conversion leaves the 16-bit range long before, so the
// digits that follow change nothing that can be stored.
constexpr int64_t kLargestWhole = 1000000000;
// 0.0448 metres to the unit: 448 ten-thousandths of a metre.
constexpr int64_t kTenThousandthsPerUnit = 448;
// 1.76 inches to the unit, 12 inches to the foot: 176 / 1200 = 11 / 75 feet to the unit.
constexpr int64_t kFootNumerator = 11;
constexpr int64_t kFootDenominator = 75;
constexpr int64_t kInchesPerFoot = 12;

// numerator / denominator (denominator > 0) to the nearest whole, an exact half to the even one.
int64_t DivideToEven(int64_t numerator, int64_t denominator) {
    int64_t quotient = numerator / denominator;
    int64_t remainder = numerator % denominator;
    if (remainder < 0) {
        remainder += denominator;
        --quotient;
    }
    const int64_t twice = 2 * remainder;
    if (twice > denominator || (twice == denominator && quotient % 2 != 0))
        ++quotient;
    return quotient;
}

} // namespace

TypedNumber LeadingDecimal(const std::string& text) {
    std::size_t at = 0;
    while (at < text.size() && (text[at] == ' ' || text[at] == '\t'))
        ++at;
    bool negative = false;
    if (at < text.size() && (text[at] == '-' || text[at] == '+'))
        negative = text[at++] == '-';
    const auto digit = [&](std::size_t i) {
        return i < text.size() && std::isdigit(static_cast<unsigned char>(text[i])) != 0;
    };
    TypedNumber number;
    int64_t whole = 0;
    for (; digit(at); ++at)
        whole = std::min(whole * 10 + (text[at] - '0'), kLargestWhole);
    int64_t fraction = 0;
    if (at < text.size() && text[at] == '.') {
        ++at;
        for (int64_t scale = kMillion / 10; digit(at); ++at, scale /= 10) {
            if (scale > 0)
                fraction += (text[at] - '0') * scale;
            else if (text[at] != '0')
                number.beyond = true;
        }
    }
    number.millionths = whole * kMillion + fraction;
    if (negative)
        number.millionths = -number.millionths;
    return number;
}

int64_t RoundedWhole(const TypedNumber& number) {
    const int64_t magnitude = std::llabs(number.millionths);
    int64_t whole = magnitude / kMillion;
    const int64_t rest = magnitude % kMillion;
    constexpr int64_t half = kMillion / 2;
    // A half followed by more digits is more than a half.
    if (rest > half || (rest == half && (number.beyond || whole % 2 != 0)))
        ++whole;
    return number.millionths < 0 ? -whole : whole;
}

int16_t Hold16(int64_t value) {
    return static_cast<int16_t>(std::clamp<int64_t>(value, std::numeric_limits<int16_t>::min(),
                                                    std::numeric_limits<int16_t>::max()));
}

int16_t Whole16(const std::string& text) {
    return Hold16(RoundedWhole(LeadingDecimal(text)));
}

double PercentFactor(const std::string& text) {
    constexpr double kPercent = 100.0;
    return static_cast<double>(LeadingDecimal(text).millionths) / kMillion / kPercent;
}

std::string MetricText(int64_t units) {
    constexpr int64_t kTenThousandthsPerHundredth = 100;
    const int64_t hundredths =
        DivideToEven(units * kTenThousandthsPerUnit, kTenThousandthsPerHundredth);
    const int64_t magnitude = std::llabs(hundredths);
    std::string text = (hundredths < 0 ? "-" : "") + std::to_string(magnitude / 100);
    const int64_t cents = magnitude % 100;
    if (cents != 0) {
        text += '.' + std::to_string(cents / 10);
        if (cents % 10 != 0)
            text += std::to_string(cents % 10);
    }
    return text + " m";
}

// A negative length shows its sign once, before the feet.
std::string FeetInchesText(int64_t units) {
    const int64_t magnitude = std::llabs(units);
    const int64_t feet = magnitude * kFootNumerator / kFootDenominator;
    const int64_t left = magnitude * kFootNumerator - feet * kFootDenominator;
    const int64_t inches = DivideToEven(left * kInchesPerFoot, kFootDenominator);
    return (units < 0 ? "-" : "") + std::to_string(feet) + "' " + std::to_string(inches) + '"';
}

int64_t UnitsFromMetres(const std::string& text) {
    // Millionths of a metre over 44800 millionths to the unit; the division cuts toward zero.
    constexpr int64_t kMillionthsPerUnit = kTenThousandthsPerUnit * (kMillion / 10000);
    return LeadingDecimal(text).millionths / kMillionthsPerUnit;
}
