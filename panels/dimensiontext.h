// Model units in the user's units: metres and feet with inches, as the Centre Mover and the
// 3-View Data panels show them, and the numbers typed into their fields. One model unit is
// 0.0448 metres and 1.76 inches; the constants are used as they stand, so a length converted one
// way and back need not come home exactly. Ties of every rounding go to the even neighbour.
#pragma once

#include <cstdint>
#include <string>

// The number at the head of a text as a user reads it: blanks, an optional sign, digits with an
// optional decimal point; what follows is read past ("4.48 m" is 4.48). A text without a leading
// number counts as 0. Held in millionths, so the digits typed are taken exactly.
struct TypedNumber {
    int64_t millionths = 0;
    // Digits beyond the sixth decimal, none of them 0: the value lies just beyond `millionths`.
    bool beyond = false;
};
TypedNumber LeadingDecimal(const std::string& text);

// The typed number rounded to a whole, halves to the even neighbour.
int64_t RoundedWhole(const TypedNumber& number);
// A number held to the 16-bit range: one too large for a 16-bit field is stored as the nearest
// bound and never wrapped.
int16_t Hold16(int64_t value);
// The typed number at the head of `text`, rounded to a whole and held to the 16-bit range.
int16_t Whole16(const std::string& text);
// The number at the head of `text` / 100, for a rescale given in percent.
double PercentFactor(const std::string& text);

// "44.8 m": units × 0.0448 to two decimals, with no trailing zeros.
std::string MetricText(int64_t units);
// "14' 8\"": the whole feet of units × 1.76 / 12, then the inches left over rounded to a whole.
// Inches that round up to 12 stay 12, with no carry into the feet.
std::string FeetInchesText(int64_t units);
// The whole model units (the integer part) of the metres at the head of `text`.
int64_t UnitsFromMetres(const std::string& text);
