#include "fieldcommit.h"

#include "currentmodel.h"
#include "enterfield.h"
#include "formchecks.h"
#include "infofields.h"
#include "spinwithbuddy.h"

#include <QSpinBox>

namespace {

int16_t CornerOf(const FieldAddress& address) {
    constexpr int16_t kNone = -1;
    return address.corner ? address.corner() : kNone;
}

} // namespace

void WriteField(QLineEdit& control, const FieldAddress& address) {
    const int16_t item = address.item();
    const int16_t corner = CornerOf(address);
    model& current = CurrentModel();
    if (current.UpdateInfo(address.field, control.text().toStdString(), item, corner) ==
        InfoWrite::Written)
        return;
    if (const std::optional<std::string> stored = current.InfoText(address.field, item, corner))
        control.setText(QString::fromStdString(*stored));
}

void CommitNumber(QLineEdit& control, int32_t min, int32_t max, const FieldAddress& address) {
    if (!MainForm::AlphaNumeric(control.text(), false, true))
        return;
    control.setText(MainForm::CheckMinMax(control.text(), min, max));
    WriteField(control, address);
}

void BindSpinField(SpinWithBuddy& control, FieldAddress address) {
    QObject::connect(&control.buddy(), &EnterField::Committed, &control, [&control, address] {
        CommitNumber(control.buddy(), control.spin().minimum(), control.spin().maximum(), address);
        control.FollowBuddy();
    });
    QObject::connect(&control, &SpinWithBuddy::Changed, &control, [&control, address] {
        WriteField(control.buddy(), address);
        control.FollowBuddy();
    });
}

void BindTextField(EnterField& control, FieldAddress address) {
    const InfoField* row = FindInfoField(address.field);
    const int32_t min = row != nullptr ? row->min : 0;
    const int32_t max = row != nullptr ? row->max : 0;
    QObject::connect(&control, &EnterField::Committed, &control,
                     [&control, address, min, max] { CommitNumber(control, min, max, address); });
}
