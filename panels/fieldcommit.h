// How a panel control writes its numbered field: the Enter commit of a text field (character
// test, snap to the bounds, write) and the write of a spin step, both through model.UpdateInfo of
// the open model. Where the record took something other than the text, the field shows what the
// record holds: a text that is no number ("", "-", "1-2") leaves the record as it was, and a value
// beyond the record field's width shows the bound that was stored.
#pragma once

#include <QString>

#include <cstdint>
#include <functional>

class EnterField;
class QLineEdit;
class SpinWithBuddy;

// The field a control writes and the item it names, read at the moment of the write: `item` is
// the `i` of UpdateInfo, `corner` its `j` (none: -1).
struct FieldAddress {
    int32_t field = 0;
    std::function<int16_t()> item;
    std::function<int16_t()> corner;
};

// Writes the text of `control` to its field and shows the record's value where it differs.
void WriteField(QLineEdit& control, const FieldAddress& address);

// The Enter commit of a numeric field: the character test, the snap to `min` and `max` shown in
// the field, then the write.
void CommitNumber(QLineEdit& control, int32_t min, int32_t max, const FieldAddress& address);

// Binds a spin with its buddy to a field: Enter in the buddy commits with the spin's bounds of
// the moment, and a change of the spin writes the buddy's text.
void BindSpinField(SpinWithBuddy& control, FieldAddress address);
// Binds a text field without a spin to a field with the fixed range of the field table.
void BindTextField(EnterField& control, FieldAddress address);
