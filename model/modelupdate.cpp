// The write of one numbered field from a panel, and the read of the same field.
#include "model.h"
#include "piggybacknumber.h"
#include "recordedchange.h"
#include "wholenumber.h"

#include <algorithm>
#include <type_traits>
#include <variant>

namespace {

constexpr char kTexturePad = ' ';

template <typename T, typename Record>
using Like = std::conditional_t<std::is_const_v<Record>, const T, T>;

// Where in a record a field lives; empty when the item it names does not exist.
template <typename Record>
using Slot = std::variant<std::monostate, Like<int16_t, Record>*, Like<int32_t, Record>*,
                          Like<uint8_t, Record>*, Like<TextureName, Record>*>;

// Entry `index` of `entries` when both the record's count and the array hold it.
template <typename Vector> auto* EntryAt(Vector& entries, int index, int count) {
    using Result = decltype(&entries[0]);
    if (index < 0 || index >= count || index >= static_cast<int>(entries.size()))
        return static_cast<Result>(nullptr);
    return &entries[static_cast<std::size_t>(index)];
}

template <typename Record>
Slot<Record> CornerSlot(Record& record, int32_t field, int16_t i, int j) {
    auto* item = FindPiggyback(record, i);
    if (item == nullptr)
        return {};
    auto& list = field == kFieldNodeList ? item->NodeList
                 : field == kFieldXMap   ? item->XMap
                                         : item->YMap;
    auto* entry = EntryAt(list, j, static_cast<int>(list.size()));
    if (entry == nullptr)
        return {};
    return entry;
}

template <typename Record>
Slot<Record> SlotOf(Record& record, const InfoField& row, int16_t i, int16_t j) {
    switch (row.target) {
    case FieldTarget::Head:
        if (row.field == kFieldRadius)
            return &record.Radius;
        return &record.Texture;
    case FieldTarget::Part: {
        // The spare entry counts: a file of no parts shows and keeps its zeroed spare.
        auto* part = EntryAt(record.Parts, i, static_cast<int>(record.Parts.size()));
        if (part == nullptr)
            return {};
        switch (row.field) {
        case kFieldPartCode:
            return &part->Code;
        case kFieldPartNum:
            return &part->Num;
        case kFieldPartX:
            return &part->X;
        case kFieldPartY:
            return &part->Y;
        default:
            return &part->Z;
        }
    }
    case FieldTarget::Element: {
        auto* plane = EntryAt(record.NRM, i, record.NumElements);
        if (plane == nullptr)
            return {};
        switch (row.field) {
        case kFieldNrmX:
            return &plane->X;
        case kFieldNrmY:
            return &plane->Y;
        case kFieldNrmZ:
            return &plane->Z;
        case kFieldNrmD:
            return &plane->D;
        default:
            return &plane->F;
        }
    }
    case FieldTarget::Node: {
        auto* node = EntryAt(record.Nodes, i, record.NumNodes);
        if (node == nullptr)
            return {};
        switch (row.field) {
        case kFieldNodeX:
            return &node->X;
        case kFieldNodeY:
            return &node->Y;
        case kFieldNodeZ:
            return &node->Z;
        default:
            return &node->B;
        }
    }
    case FieldTarget::Piggyback: {
        auto* item = FindPiggyback(record, i);
        if (item == nullptr)
            return {};
        switch (row.field) {
        case kFieldAction:
            return &item->COD;
        case kFieldFlag:
            return &item->Flag;
        case kFieldAtt1:
            return &item->Att1;
        default:
            return &item->Att2;
        }
    }
    case FieldTarget::Corner:
        return CornerSlot(record, row.field, i, j);
    }
    return {};
}

// The current file's slot of `field`, or an empty one.
template <typename Model> auto CurrentSlot(Model& owner, int32_t field, int16_t i, int16_t j) {
    using Record = std::remove_reference_t<decltype(owner.Files[0])>;
    const InfoField* row = FindInfoField(field);
    if (owner.M_Type != kMoxLoaded || row == nullptr || owner.m_currmox < 0 ||
        owner.m_currmox >= static_cast<int>(owner.Files.size()))
        return Slot<Record>{};
    return SlotOf(owner.Files[static_cast<std::size_t>(owner.m_currmox)], *row, i, j);
}

} // namespace

InfoWrite model::UpdateInfo(int32_t field, const std::string& value, int16_t i, int16_t j) {
    auto slot = CurrentSlot(*this, field, i, j);
    if (std::holds_alternative<std::monostate>(slot))
        return InfoWrite::Refused;
    const RecordedChange change(*this, FindInfoField(field)->recordField);
    if (TextureName** texture = std::get_if<TextureName*>(&slot)) {
        (*texture)->fill(kTexturePad);
        std::copy_n(value.begin(), std::min(value.size(), (*texture)->size()), (*texture)->begin());
        return InfoWrite::Written;
    }
    const std::optional<int64_t> number = WholeNumber(value);
    if (!number)
        return InfoWrite::Refused;
    const FieldWidth width = FindInfoField(field)->width;
    const int64_t stored = std::clamp(*number, WidthMin(width), WidthMax(width));
    // A corner naming a node that no byte can hold would name another node once cut down.
    if (stored != *number && field == kFieldNodeList)
        return InfoWrite::Refused;
    std::visit(
        [stored](auto target) {
            using Stored = std::remove_pointer_t<decltype(target)>;
            if constexpr (std::is_integral_v<Stored>)
                *target = static_cast<Stored>(stored);
        },
        slot);
    return stored == *number ? InfoWrite::Written : InfoWrite::Snapped;
}

std::optional<std::string> model::InfoText(int32_t field, int16_t i, int16_t j) const {
    const auto slot = CurrentSlot(*this, field, i, j);
    if (std::holds_alternative<std::monostate>(slot))
        return std::nullopt;
    if (const TextureName* const* texture = std::get_if<const TextureName*>(&slot))
        return std::string((*texture)->begin(), (*texture)->end());
    return std::visit(
        [](auto source) {
            if constexpr (std::is_integral_v<
                              std::remove_const_t<std::remove_pointer_t<decltype(source)>>>)
                return std::to_string(static_cast<int64_t>(*source));
            else
                return std::string();
        },
        slot);
}
