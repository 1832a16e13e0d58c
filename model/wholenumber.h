// Reading whole numbers from the text of a panel field.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

// The number a text is: an optional minus sign, then at least one digit, and nothing else.
// Leading zeros are allowed ("007" is 7). Empty text, a lone "-" or "1-2" are no number. A number
// too long for 64 bits comes back as a value beyond every field's range, keeping its sign.
std::optional<int64_t> WholeNumber(const std::string& text);

// The whole number at the start of a text, with what follows ignored: "12-3" gives 12, "-" none.
std::optional<int64_t> LeadingNumber(const std::string& text);
