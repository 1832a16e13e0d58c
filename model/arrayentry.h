// Reading an entry of a record's array where the counts may say more than the array holds.
#pragma once

#include <cstddef>
#include <vector>

// Entry k of `entries`, or a zero entry where the array holds fewer entries than its count says:
// what is written or shown then still agrees with the count.
template <typename T> T EntryOr(const std::vector<T>& entries, int k) {
    return k >= 0 && static_cast<size_t>(k) < entries.size() ? entries[static_cast<size_t>(k)]
                                                             : T{};
}
