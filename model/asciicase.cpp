#include "asciicase.h"

#include <algorithm>

char UpperAscii(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

std::string UpperAscii(std::string text) {
    for (char& c : text)
        c = UpperAscii(c);
    return text;
}

bool SameIgnoringCase(const std::string& a, const std::string& b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return UpperAscii(x) == UpperAscii(y);
           });
}
