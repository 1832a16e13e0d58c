// Messages of one load: a damaged file can report the same trouble once per element, tens of
// thousands of boxes. While a RepeatedMessages stands, a plain message that comes again with only
// its number changed shows no box; when it ends, one box per such message tells how many more
// there were and for which numbers. Questions always show. moxtool opens none and prints them all.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

class RepeatedMessages {
public:
    RepeatedMessages();
    ~RepeatedMessages();
    RepeatedMessages(const RepeatedMessages&) = delete;
    RepeatedMessages& operator=(const RepeatedMessages&) = delete;

    // True when `text` is to be shown; false when it repeats a message shown since the gate
    // opened, which is then counted for the summary.
    bool Admit(const std::string& text);

private:
    struct Repeats {
        std::string firstText;
        std::vector<int64_t> numbers;
        int64_t count = 0;
    };
    // By the message's text with its number taken out, in the order first shown.
    std::map<std::string, Repeats> repeats_;
    std::vector<std::string> order_;
    RepeatedMessages* outer_ = nullptr;
};

// The gate that stands now, or nullptr.
RepeatedMessages* OpenMessageGate();
