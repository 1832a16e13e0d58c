#include "partspanel.h"

#include "currentmodel.h"
#include "fieldcommit.h"
#include "infofields.h"
#include "panelrows.h"
#include "viewsettings.h"
#include "wholenumber.h"

#include <QComboBox>
#include <QSpinBox>

namespace {

const QStringList kCodes = {"0. Heading", "1. Pitch", "2. Roll"};
const QStringList kNums = {"0", "1", "2", "3", "4", "5", "6", "7"};
// Each row names its Code by its first character and its Num by its third.
const QStringList kPredefRows = {"-- NONE --",
                                 "2-0 Wing L.G. - No Fold",
                                 "2-1 Wing L.G. - Fold Left",
                                 "2-2 Wing L.G. - Fold Right",
                                 "2-3 Same as 2-1",
                                 "2-4 Gear Rotates X-Axis",
                                 "2-4 Left Eng. in Twins",
                                 "2-5 Right Eng. in Twins",
                                 "2-6 No.1 Eng. in 4-Engs",
                                 "2-7 No.4 Eng. in 4-Engs",
                                 "1-1 Gear Retracts Rear",
                                 "1-2 Gear Retracts to Right",
                                 "1-3 Same as 1-2"};
constexpr int kCodeCharacter = 0;
constexpr int kNumCharacter = 2;
constexpr int kRollCode = 2;
constexpr int kPitchCode = 1;
constexpr int kFirstTwinRow = 4;
constexpr int kNoneRow = 0;
constexpr int kLastPitchNum = 3;

// The digit at `at` of a row's text; a character that is no digit counts 0.
int DigitAt(const QString& text, int at) {
    return at < text.size() && text[at].isDigit() ? text[at].digitValue() : 0;
}

} // namespace

PartsPanel::PartsPanel(QWidget& frame) : QObject(&frame) {
    PanelRows rows(frame);
    upd_2_part =
        &rows.AddSpin("Part #:", "txt_2_part", "upd_2_part", 0, 0, SpinWithBuddy::Buddy::ReadOnly);
    cbo_2_code = &rows.AddList("Heading/Pitch/Roll:", "cbo_2_code", kCodes);
    cbo_2_num = &rows.AddList("Num:", "cbo_2_num", kNums);
    cbo_2_predef = &rows.AddList("Predef. Insert Code:", "cbo_2_predef", kPredefRows, true);
    upd_2_x = &rows.AddFieldSpin("X Pos:", kFieldPartX);
    upd_2_y = &rows.AddFieldSpin("Y Pos:", kFieldPartY);
    upd_2_z = &rows.AddFieldSpin("Z Pos:", kFieldPartZ);
    rows.Finish();

    const auto part = [this] { return ShownPart(); };
    BindSpinField(*upd_2_x, {kFieldPartX, part, {}});
    BindSpinField(*upd_2_y, {kFieldPartY, part, {}});
    BindSpinField(*upd_2_z, {kFieldPartZ, part, {}});
    connect(upd_2_part, &SpinWithBuddy::Changed, this, [] { CurrentModel().WriteInfo(kPartsTab); });
    connect(cbo_2_code, &QComboBox::activated, this, &PartsPanel::cbo_2_code_Click);
    connect(cbo_2_num, &QComboBox::activated, this, &PartsPanel::cbo_2_num_Click);
    connect(cbo_2_predef, &QComboBox::activated, this, &PartsPanel::cbo_2_predef_Click);
}

int16_t PartsPanel::ShownPart() const {
    const std::optional<int64_t> number = WholeNumber(upd_2_part->buddy().text().toStdString());
    constexpr int16_t kNoPart = -1;
    return number ? static_cast<int16_t>(*number) : kNoPart;
}

int PartsPanel::PredefRow(int code, int num) {
    if (code == kRollCode)
        return num < kFirstTwinRow ? num + 1 : num + 2;
    // Pitch 0 and pitch numbers above 3 have no row of their own.
    if (code == kPitchCode && num >= 1 && num <= kLastPitchNum)
        return num + (kPredefRows.size() - 1 - kLastPitchNum);
    return kNoneRow;
}

void PartsPanel::Fill() {
    const int16_t part = upd_2_part->spin().value();
    const model& current = CurrentModel();
    const auto stored = [&](int32_t field) {
        return WholeNumber(current.InfoText(field, part, -1).value_or(""));
    };
    const std::optional<int64_t> x = stored(kFieldPartX);
    if (!x)
        return;
    upd_2_x->Show(static_cast<int>(*x));
    upd_2_y->Show(static_cast<int>(stored(kFieldPartY).value_or(0)));
    upd_2_z->Show(static_cast<int>(stored(kFieldPartZ).value_or(0)));
    const int code = static_cast<int>(stored(kFieldPartCode).value_or(0));
    if (code >= cbo_2_code->count())
        return;
    cbo_2_code->setCurrentIndex(code);
    const int num = static_cast<int>(stored(kFieldPartNum).value_or(0));
    if (num >= cbo_2_num->count())
        return;
    cbo_2_num->setCurrentIndex(num);
    cbo_2_predef->setCurrentIndex(PredefRow(code, num));
}

void PartsPanel::cbo_2_predef_Click(int row) {
    const QString text = cbo_2_predef->itemText(row);
    const int code = DigitAt(text, kCodeCharacter);
    const int num = DigitAt(text, kNumCharacter);
    cbo_2_code->setCurrentIndex(code);
    cbo_2_num->setCurrentIndex(num);
    cbo_2_code_Click(code);
    cbo_2_num_Click(num);
}

void PartsPanel::cbo_2_code_Click(int index) {
    CurrentModel().UpdateInfo(kFieldPartCode, std::to_string(index), ShownPart(), -1);
}

void PartsPanel::cbo_2_num_Click(int index) {
    CurrentModel().UpdateInfo(kFieldPartNum, std::to_string(index), ShownPart(), -1);
}
