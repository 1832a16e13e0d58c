#include "repeatedmessages.h"

#include "modelhost.h"

#include <cstddef>

namespace {

RepeatedMessages* openGate = nullptr;

constexpr std::size_t kMostRangesListed = 20;
constexpr std::size_t kMostNumbersKept = 100000;
constexpr int kMostDigits = 18;
constexpr const char* kNumberMark = "#";

// The text without its last run of digits, and that run as a number (-1 when there is none).
std::pair<std::string, int64_t> SplitNumber(const std::string& text) {
    const std::size_t last = text.find_last_of("0123456789");
    if (last == std::string::npos)
        return {text, -1};
    std::size_t first = last;
    while (first > 0 && text[first - 1] >= '0' && text[first - 1] <= '9')
        --first;
    int64_t number = -1;
    if (last - first < kMostDigits)
        number = std::stoll(text.substr(first, last - first + 1));
    return {text.substr(0, first) + kNumberMark + text.substr(last + 1), number};
}

// "2-100, 205, 300-310": the numbers in the order met, runs of consecutive ones joined.
std::string Ranges(const std::vector<int64_t>& numbers) {
    std::string text;
    std::size_t listed = 0;
    for (std::size_t i = 0; i < numbers.size();) {
        std::size_t end = i;
        while (end + 1 < numbers.size() && numbers[end + 1] == numbers[end] + 1)
            ++end;
        if (listed == kMostRangesListed)
            return text + ", ...";
        text += (text.empty() ? "" : ", ") + std::to_string(numbers[i]);
        if (end > i)
            text += "-" + std::to_string(numbers[end]);
        ++listed;
        i = end + 1;
    }
    return text;
}

} // namespace

RepeatedMessages::RepeatedMessages() : outer_(openGate) {
    openGate = this;
}

RepeatedMessages::~RepeatedMessages() {
    openGate = outer_;
    for (const std::string& key : order_) {
        const Repeats& repeated = repeats_.at(key);
        if (repeated.count == 0)
            continue;
        std::string summary = repeated.firstText + "\n\nThe same message came " +
                              std::to_string(repeated.count) +
                              (repeated.count == 1 ? " more time" : " more times");
        if (!repeated.numbers.empty())
            summary += ", for " + Ranges(repeated.numbers);
        ShowMessage(summary + ".");
    }
}

bool RepeatedMessages::Admit(const std::string& text) {
    const auto [key, number] = SplitNumber(text);
    const auto [place, first] = repeats_.try_emplace(key);
    if (first) {
        place->second.firstText = text;
        order_.push_back(key);
        return true;
    }
    ++place->second.count;
    if (number >= 0 && place->second.numbers.size() < kMostNumbersKept)
        place->second.numbers.push_back(number);
    return false;
}

RepeatedMessages* OpenMessageGate() {
    return openGate;
}
