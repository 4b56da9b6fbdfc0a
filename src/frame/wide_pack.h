// Packs as wide as the widest registers, for arrays whose objects follow one another without a gap: K registers are K elements
// of as many objects as a register has lanes, turned into an element a register by permutes of two sources. The texts over the
// value type V are the same as for narrow packs, and so are the bits of every lane.
#pragma once

#include <utility>

#include "along.h"
#include "pack.h"

namespace vokm {

template <class T> constexpr int wideLanes = 64 / static_cast<int>(sizeof(T));
template <class T> using WidePack = typename LanesOf<T, wideLanes<T>>::type;

/// Joins another source: lane l takes what pick(l) says, counted over `joined` and then `next`.
template <class Pick, class V, int... l> VOKM_INLINE void joinLanes(V& joined, const V& next, std::integer_sequence<int, l...>)
{
    joined = __builtin_shufflevector(joined, next, Pick::of(l)...);
}

/// Element l*K + k of a run of K registers, for every lane l.
template <int K, int k, int source, int N> struct PickElement {
    static constexpr int of(int l)
    {
        const int from = (l * K + k) / N, lane = (l * K + k) % N;
        return from == source ? N + lane : source == 1 && from == 0 ? lane : l;
    }
};
/// Element r*N + l of the run, out of K registers of one element each.
template <int K, int r, int source, int N> struct PickLane {
    static constexpr int of(int l)
    {
        const int object = (r * N + l) / K, from = (r * N + l) % K;
        return from == source ? N + object : source == 1 && from == 0 ? object : l;
    }
};

template <template <int, int, int, int> class Pick, int K, int k, int source, class V>
VOKM_INLINE void joinSources(V& joined, const V (&from)[K])
{
    if constexpr (source < K) {
        constexpr int N = lanesIn<V>;
        joinLanes<Pick<K, k, source, N>>(joined, from[source], std::make_integer_sequence<int, N>{});
        joinSources<Pick, K, k, source + 1>(joined, from);
    }
}
template <template <int, int, int, int> class Pick, int k, int K, class V> VOKM_INLINE void turnWide(const V (&from)[K], V (&to)[K])
{
    if constexpr (k < K) {
        to[k] = from[0];
        joinSources<Pick, K, k, 1>(to[k], from);
        turnWide<Pick, k + 1>(from, to);
    }
}

template <int K, class T> VOKM_INLINE void loadWide(WidePack<T> (&lanes)[K], const T* run)
{
    WidePack<T> registers[K];
    std::memcpy(registers, run, sizeof registers);
    turnWide<PickElement, 0>(registers, lanes);
}
template <int K, class T> VOKM_INLINE void storeWide(const WidePack<T> (&lanes)[K], T* run)
{
    WidePack<T> registers[K];
    turnWide<PickLane, 0>(lanes, registers);
    std::memcpy(run, registers, sizeof registers);
}
/// The K elements of the objects of pack p: of an array without gaps, or of a single operand.
template <int K, class View> struct WideRuns {
    using T = std::remove_const_t<typename View::element>;
    const T* base;
    VOKM_INLINE explicit WideRuns(const View& view) : base(view.base) {}
    VOKM_INLINE void operator()(WidePack<T> (&lanes)[K], i64 p) const { loadWide<K>(lanes, base + p * (K * wideLanes<T>)); }
};
template <int K, class View>
    requires(!View::array)
struct WideRuns<K, View> {
    using T = std::remove_const_t<typename View::element>;
    T values[K]{};
    VOKM_INLINE explicit WideRuns(const View& view)
    {
        const auto object = view.object(0, Shape{1, K});
        for (int k = 0; k < K; ++k) values[k] = object(0, k);
    }
    // A difference from zero: that spreads a value without changing a bit of it.
    VOKM_INLINE void operator()(WidePack<T> (&lanes)[K], i64) const
    {
        for (int k = 0; k < K; ++k) lanes[k] = values[k] - WidePack<T>{};
    }
};

template <class Pack> [[gnu::target(VOKM_WIDEST), VOKM_OUT_OF_LINE]] void packsWide(i64 packs, Pack pack)
{
    for (i64 p = 0; p < packs; ++p) pack(p);
}

}  // namespace vokm
