#include "scenefingerprint.h"

#include "changejournal.h"
#include "memberwise.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

namespace {

template <typename T> struct IsSequence : std::false_type {};
template <typename T> struct IsSequence<std::vector<T>> : std::true_type {};
template <typename T, std::size_t N> struct IsSequence<std::array<T, N>> : std::true_type {};

// A multiply-and-xor hash, a word at a time: it runs sixty times a second over the whole model,
// so it has to be cheap. Structs without padding and arrays of them go in as their bytes; any
// other struct member by member.
class Fingerprint {
public:
    template <typename T> void Add(const T& value) {
        if constexpr (std::is_arithmetic_v<T> || std::is_enum_v<T>) {
            static_assert(sizeof(T) <= sizeof(uint64_t), "a number fits one word");
            uint64_t word = 0;
            std::memcpy(&word, &value, sizeof(T));
            Mix(word);
        } else if constexpr (std::is_pointer_v<T>) {
            Add(value != nullptr);
            if (value != nullptr)
                Add(*value);
        } else if constexpr (std::is_same_v<T, ChangeJournal>) {
            // The journal is what Undo restores, never what a frame shows.
        } else if constexpr (std::is_same_v<T, std::string>) {
            AddBytes(value.data(), value.size());
        } else if constexpr (std::has_unique_object_representations_v<T>) {
            AddBytes(&value, sizeof(T));
        } else if constexpr (IsSequence<T>::value) {
            using Entry = typename T::value_type;
            if constexpr (std::has_unique_object_representations_v<Entry>) {
                AddBytes(value.data(), value.size() * sizeof(Entry));
            } else {
                Add(value.size());
                for (const Entry& entry : value)
                    Add(entry);
            }
        } else {
            memberwise::ForEachMember(value, [&](const auto& member) { Add(member); });
        }
    }

    uint64_t Value() const { return hash_; }

private:
    void Mix(uint64_t word) {
        hash_ = (hash_ ^ word) * kPrime;
        hash_ ^= hash_ >> 29;
    }
    void AddBytes(const void* data, size_t size) {
        Add(size);
        const auto* bytes = static_cast<const unsigned char*>(data);
        for (size_t at = 0; at < size; at += sizeof(uint64_t)) {
            uint64_t word = 0;
            std::memcpy(&word, bytes + at, std::min(sizeof(uint64_t), size - at));
            Mix(word);
        }
    }

    static constexpr uint64_t kPrime = 1099511628211ull;
    uint64_t hash_ = 14695981039346656037ull;
};

} // namespace

uint64_t SceneFingerprint(const FrameSource& source) {
    Fingerprint print;
    print.Add(source);
    return print.Value();
}
