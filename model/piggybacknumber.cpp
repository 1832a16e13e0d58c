#include "piggybacknumber.h"

#include <string>

int16_t MakeNumber(int element, int position) {
    return static_cast<int16_t>(element * 100 + position);
}

PiggybackRef SplitNumber(int16_t number) {
    const std::string text = std::to_string(number);
    const std::string tail = text.size() > 2 ? text.substr(text.size() - 2) : text;
    // A tail such as "-5" reads as -5, as the value of the characters would.
    const int position = std::stoi(tail);
    return {(number - position) / 100, position};
}

namespace {

template <typename Record> auto* FindIn(Record& record, int16_t number) {
    const PiggybackRef ref = SplitNumber(number);
    using Result = decltype(&record.Elements[0].Items[0]);
    if (ref.element < 0 || ref.position < 0 || ref.element >= record.NumElements ||
        ref.element >= static_cast<int>(record.Elements.size()))
        return static_cast<Result>(nullptr);
    auto& list = record.Elements[ref.element];
    if (ref.position >= list.Count || ref.position >= static_cast<int>(list.Items.size()))
        return static_cast<Result>(nullptr);
    return &list.Items[ref.position];
}

} // namespace

const Piggyback* FindPiggyback(const FileRecord& record, int16_t number) {
    return FindIn(record, number);
}

Piggyback* FindPiggyback(FileRecord& record, int16_t number) {
    return FindIn(record, number);
}

bool GetElementNode(const FileRecord& record, int16_t number, int corner, Node& node) {
    const Piggyback* item = FindPiggyback(record, number);
    if (item == nullptr || corner < 0 || corner >= static_cast<int>(item->NodeList.size()))
        return false;
    const int index = item->NodeList[corner];
    if (index >= record.NumNodes || index >= static_cast<int>(record.Nodes.size()))
        return false;
    node = record.Nodes[index];
    return true;
}
