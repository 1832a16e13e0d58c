// Visiting every data member of a plain struct (an aggregate without base classes, all members
// public) in declaration order, so that code that must cover a whole struct keeps no list of its
// members of its own: a member added to the struct is visited without further change.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

namespace memberwise {

// Stands for any member in a brace initialiser; only used where nothing is evaluated.
struct AnyMember {
    template <typename T> operator T&() const;
};

template <typename T, typename Indices, typename = void> struct BracesTake : std::false_type {};
template <typename T, std::size_t... I>
struct BracesTake<T, std::index_sequence<I...>,
                  std::void_t<decltype(T{(static_cast<void>(I), AnyMember{})...})>>
    : std::true_type {};

// The number of members of the aggregate T: the most initialisers its braces take.
template <typename T, std::size_t Counted = 0> constexpr std::size_t MemberCount() {
    if constexpr (BracesTake<T, std::make_index_sequence<Counted + 1>>::value)
        return MemberCount<T, Counted + 1>();
    else
        return Counted;
}

inline constexpr std::size_t kMostMembers = 32;

// Calls `visit` on each member of `value`.
template <typename T, typename Visit> void ForEachMember(T& value, Visit&& visit) {
    constexpr std::size_t count = MemberCount<std::remove_const_t<T>>();
    // A member that cannot be built from empty braces stops the count at nothing.
    static_assert(count > 0, "every member can be built from empty braces");
    static_assert(std::is_aggregate_v<std::remove_const_t<T>> && count <= kMostMembers,
                  "a plain struct of at most kMostMembers members; add a row below for more");
    const auto all = [&visit](auto&... members) { (visit(members), ...); };
    if constexpr (count == 1) {
        auto& [a] = value;
        all(a);
    } else if constexpr (count == 2) {
        auto& [a, b] = value;
        all(a, b);
    } else if constexpr (count == 3) {
        auto& [a, b, c] = value;
        all(a, b, c);
    } else if constexpr (count == 4) {
        auto& [a, b, c, d] = value;
        all(a, b, c, d);
    } else if constexpr (count == 5) {
        auto& [a, b, c, d, e] = value;
        all(a, b, c, d, e);
    } else if constexpr (count == 6) {
        auto& [a, b, c, d, e, f] = value;
        all(a, b, c, d, e, f);
    } else if constexpr (count == 7) {
        auto& [a, b, c, d, e, f, g] = value;
        all(a, b, c, d, e, f, g);
    } else if constexpr (count == 8) {
        auto& [a, b, c, d, e, f, g, h] = value;
        all(a, b, c, d, e, f, g, h);
    } else if constexpr (count == 9) {
        auto& [a, b, c, d, e, f, g, h, i] = value;
        all(a, b, c, d, e, f, g, h, i);
    } else if constexpr (count == 10) {
        auto& [a, b, c, d, e, f, g, h, i, j] = value;
        all(a, b, c, d, e, f, g, h, i, j);
    } else if constexpr (count == 11) {
        auto& [a, b, c, d, e, f, g, h, i, j, k] = value;
        all(a, b, c, d, e, f, g, h, i, j, k);
    } else if constexpr (count == 12) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l] = value;
        all(a, b, c, d, e, f, g, h, i, j, k, l);
    } else if constexpr (count == 13) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m] = value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m);
    } else if constexpr (count == 14) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n] = value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m, n);
    } else if constexpr (count == 15) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o] = value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o);
    } else if constexpr (count == 16) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p] = value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p);
    } else if constexpr (count == 17) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q] = value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q);
    } else if constexpr (count == 18) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r] = value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r);
    } else if constexpr (count == 19) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s] = value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s);
    } else if constexpr (count == 20) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t] = value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t);
    } else if constexpr (count == 21) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u] = value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u);
    } else if constexpr (count == 22) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v] = value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v);
    } else if constexpr (count == 23) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w] = value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w);
    } else if constexpr (count == 24) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x] = value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x);
    } else if constexpr (count == 25) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x, y] = value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x, y);
    } else if constexpr (count == 26) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x, y, z] =
            value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x, y, z);
    } else if constexpr (count == 27) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x, y, z, a2] =
            value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x, y, z, a2);
    } else if constexpr (count == 28) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x, y, z, a2,
               b2] = value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x, y, z, a2, b2);
    } else if constexpr (count == 29) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x, y, z, a2, b2,
               c2] = value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x, y, z, a2, b2,
            c2);
    } else if constexpr (count == 30) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x, y, z, a2, b2,
               c2, d2] = value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x, y, z, a2, b2,
            c2, d2);
    } else if constexpr (count == 31) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x, y, z, a2, b2,
               c2, d2, e2] = value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x, y, z, a2, b2,
            c2, d2, e2);
    } else if constexpr (count == 32) {
        auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x, y, z, a2, b2,
               c2, d2, e2, f2] = value;
        all(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x, y, z, a2, b2,
            c2, d2, e2, f2);
    }
}

} // namespace memberwise
