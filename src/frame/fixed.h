// Sizes with a path of their own: 3 to 6, and the general path for all others.
#pragma once

#include "pack.h"

namespace vokm {

template <int n> struct Fixed {
    static constexpr int value = n;
};

/// Calls body(Fixed<0>) ... body(Fixed<n - 1>): a loop whose index the compiler knows.
template <int n, class Body> VOKM_INLINE void unrolled(Body body)
{
    [&]<int... k>(std::integer_sequence<int, k...>) VOKM_INLINE_LAMBDA {
        (body(Fixed<k>{}), ...);
    }(std::make_integer_sequence<int, n>{});
}

/// A bound that the compiler cannot see, for a loop that is better left a loop: unrolled, it would need too many registers.
VOKM_INLINE int rolled(int n)
{
    asm("" : "+r"(n));
    return n;
}

/// Calls fixed(Fixed<n>) if n is 3 to 6, else general().
template <class OnFixed, class General> VOKM_INLINE auto onFixed(i32 n, OnFixed fixed, General general)
{
    switch (n) {
    case 3: return fixed(Fixed<3>{});
    case 4: return fixed(Fixed<4>{});
    case 5: return fixed(Fixed<5>{});
    case 6: return fixed(Fixed<6>{});
    default: return general();
    }
}

/// The sizes with a path, as a set: sizes(3, 4, 5).
struct SizeSet {
    unsigned bits;
    constexpr bool has(i32 n) const { return n >= 0 && n < 8 && (bits >> n & 1u) != 0; }
};
template <class... I> constexpr SizeSet only(I... n) { return {((1u << n) | ... | 0u)}; }
constexpr SizeSet allFixed = only(3, 4, 5, 6), generalOnly = only();

/// A single operand held in registers over the walk, once as scalars and once spread over the lanes. Array operands: nothing.
template <class T, int R, int C, class View> struct Held {
    T one[R][C];
    Pack<T> spread[R][C];
    VOKM_INLINE Held(const View& view, bool packs)
    {
        load(one, view, 0);
        if (packs) load(spread, view, 0);
    }
    template <class V> VOKM_INLINE V at(int r, int c) const
    {
        if constexpr (isPack<V>) {
            return spread[r][c];
        } else {
            return one[r][c];
        }
    }
};

/// Object i of an array operand, or the held single one.
template <class V, int R, int C, class View, class H> VOKM_INLINE void loadOrHeld(V (&tile)[R][C], const View& view, const H& held, i32 i)
{
    if constexpr (View::array) {
        load(tile, view, i);
    } else {
        for (int r = 0; r < R; ++r) {
            for (int c = 0; c < C; ++c) tile[r][c] = held.template at<V>(r, c);
        }
    }
}

struct NothingHeld {
    template <class View> VOKM_INLINE NothingHeld(const View&, bool) {}
};
template <class T, int R, int C, class View> using HeldIfSingle = std::conditional_t<View::array, NothingHeld, Held<T, R, C, View>>;

}  // namespace vokm
