// The checks and the guard that every panel of frm_main shares: the character test of a typed
// value, the snap of a number to a control's bounds, and the flag `wait`.
#pragma once

#include <QString>

#include <cstdint>

namespace MainForm {

// True while a spin's value is being set from code where its change handler must not write.
// A plain flag: set true around such a step and false after it, never counted.
inline bool wait = false;

// Tests `value` character by character. With only `numOK` every character must be a digit or a
// minus sign, with only `alphaOK` a letter A to Z or a to z; both allow anything, neither nothing.
// Each offending character shows its own message, so three bad characters show three boxes.
bool AlphaNumeric(const QString& value, bool alphaOK, bool numOK);

// `max` when the number `value` is above it, `min` when below, otherwise `value` itself, text
// unchanged, so leading zeros stay. A text that is no whole number comes back unchanged.
QString CheckMinMax(const QString& value, int32_t min, int32_t max);

} // namespace MainForm
