#include "latin1text.h"

namespace {
constexpr unsigned kTwoByteLead = 0xC0;
constexpr unsigned kContinuation = 0x80;
constexpr unsigned kContinuationMask = 0xC0;
constexpr unsigned kPayloadMask = 0x3F;
} // namespace

std::string Latin1ToUtf8(const std::string& latin1) {
    std::string utf8;
    utf8.reserve(latin1.size() * 2);
    for (const char c : latin1) {
        const unsigned byte = static_cast<unsigned char>(c);
        if (byte < 0x80) {
            utf8 += c;
        } else {
            utf8 += static_cast<char>(kTwoByteLead | (byte >> 6));
            utf8 += static_cast<char>(kContinuation | (byte & kPayloadMask));
        }
    }
    return utf8;
}

bool Utf8ToLatin1(const std::string& utf8, std::string& latin1) {
    latin1.clear();
    for (size_t i = 0; i < utf8.size(); ++i) {
        const unsigned byte = static_cast<unsigned char>(utf8[i]);
        if (byte < 0x80) {
            latin1 += static_cast<char>(byte);
            continue;
        }
        // Only the lead bytes C2 and C3 encode U+0080 to U+00FF in the shortest form.
        if ((byte != 0xC2 && byte != 0xC3) || i + 1 >= utf8.size())
            return false;
        const unsigned next = static_cast<unsigned char>(utf8[++i]);
        if ((next & kContinuationMask) != kContinuation)
            return false;
        latin1 += static_cast<char>(((byte & 0x1F) << 6) | (next & kPayloadMask));
    }
    return true;
}
