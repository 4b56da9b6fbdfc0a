// Loops whose bounds are either types, At<k>, and then unrolled with every index a constant, or plain integers. One text over
// them serves the sizes with a path of their own, on registers, and the general path, on memory.
#pragma once

#include <type_traits>
#include <utility>

#include "../frame/pack.h"

namespace vokm {

template <int k> using At = std::integral_constant<int, k>;

template <int k> constexpr At<k + 1> next(At<k>) { return {}; }
constexpr int next(int k) { return k + 1; }
template <int k> constexpr At<k - 1> before(At<k>) { return {}; }
constexpr int before(int k) { return k - 1; }

/// Calls the body; one that returns false ends its loop.
template <class Body, class I> VOKM_INLINE bool goesOn(const Body& body, I i)
{
    if constexpr (std::is_void_v<decltype(body(i))>) {
        body(i);
        return true;
    } else {
        return body(i);
    }
}

/// body(from), ... body(to - 1). Returns whether the loop came to its end.
template <class From, class To, class Body> VOKM_INLINE bool over(From from, To to, const Body& body)
{
    if constexpr (std::is_empty_v<From> && std::is_empty_v<To>) {
        constexpr int n = To::value > From::value ? To::value - From::value : 0;
        return [&]<int... k>(std::integer_sequence<int, k...>) VOKM_INLINE_LAMBDA
        {
            return (goesOn(body, At<From::value + k>{}) && ...);
        }
        (std::make_integer_sequence<int, n>());
    } else {
        for (int i = from; i < to; ++i) {
            if (!goesOn(body, i)) return false;
        }
        return true;
    }
}

/// body(to - 1), ... body(from).
template <class From, class To, class Body> VOKM_INLINE bool overBackwards(From from, To to, const Body& body)
{
    if constexpr (std::is_empty_v<From> && std::is_empty_v<To>) {
        constexpr int n = To::value > From::value ? To::value - From::value : 0;
        return [&]<int... k>(std::integer_sequence<int, k...>) VOKM_INLINE_LAMBDA
        {
            return (goesOn(body, At<To::value - 1 - k>{}) && ...);
        }
        (std::make_integer_sequence<int, n>());
    } else {
        for (int i = to; i-- > from;) {
            if (!goesOn(body, i)) return false;
        }
        return true;
    }
}

/// The elements of a tile or of a row in registers, as objects of a view hand out theirs.
template <class V, int R, int C> struct TileObject {
    V (&tile)[R][C];
    VOKM_INLINE V& operator()(int r, int c) const { return tile[r][c]; }
};

}  // namespace vokm
