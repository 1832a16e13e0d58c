#include "formchecks.h"

#include "modelhost.h"
#include "wholenumber.h"

#include <QList>

namespace {

constexpr const char* kMustBeNumerical = "Invalid Character in Value.  Must be numerical";
constexpr const char* kMustBeAlphabetical = "Invalid Character in Value.  Must be alphabetical";

bool IsNumerical(uint c) {
    return (c >= '0' && c <= '9') || c == '-';
}

bool IsAlphabetical(uint c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

} // namespace

namespace MainForm {

bool AlphaNumeric(const QString& value, bool alphaOK, bool numOK) {
    if (alphaOK == numOK)
        return alphaOK;
    bool allPass = true;
    for (const uint c : value.toUcs4()) {
        if (numOK ? IsNumerical(c) : IsAlphabetical(c))
            continue;
        allPass = false;
        ShowMessage(numOK ? kMustBeNumerical : kMustBeAlphabetical);
    }
    return allPass;
}

QString CheckMinMax(const QString& value, int32_t min, int32_t max) {
    const std::optional<int64_t> number = WholeNumber(value.toStdString());
    if (number && *number > max)
        return QString::number(max);
    if (number && *number < min)
        return QString::number(min);
    return value;
}

} // namespace MainForm
