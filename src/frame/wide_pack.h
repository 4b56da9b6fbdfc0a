// Packs as wide as the widest registers, for arrays whose objects follow one another without a gap: K registers are K elements
// of as many objects as a register has lanes, turned into an element a register by permutes of two sources. The texts over the
// value type V are the same as for narrow packs, and so are the bits of every lane.
#pragma once

#include <utility>

#include "along.h"
#include "stream.h"

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

// Register by register: an array that is copied as a whole would have to live in memory.
template <int K, class T> VOKM_INLINE void loadWide(WidePack<T> (&lanes)[K], const T* run)
{
    WidePack<T> registers[K];
    for (int k = 0; k < K; ++k) registers[k] = loadLanes<WidePack<T>>(run + k * wideLanes<T>);
    turnWide<PickElement, 0>(registers, lanes);
}
template <int K, bool past = false, class T> VOKM_INLINE void storeWide(const WidePack<T> (&lanes)[K], T* run)
{
    WidePack<T> registers[K];
    turnWide<PickLane, 0>(lanes, registers);
    for (int k = 0; k < K; ++k) storeRegister<WidePack<T>, past>(run + k * wideLanes<T>, registers[k]);
}
/// The K elements of the objects of pack p: of an array without gaps, or of a single operand.
template <int K, class View> struct WideRuns {
    using T = std::remove_const_t<typename View::element>;
    const T* base;
    VOKM_INLINE explicit WideRuns(const View& view) : base(view.base) {}
    VOKM_INLINE void operator()(WidePack<T> (&lanes)[K], i64 p) const { loadWide<K>(lanes, base + p * (K * wideLanes<T>)); }
    /// From object i on; a loop that stores past the cache asks for what follows.
    template <bool past> VOKM_INLINE void load(WidePack<T> (&lanes)[K], i64 i) const
    {
        if constexpr (past) {
            for (int k = 0; k < K; ++k) fetchSource(base + i * K + k * wideLanes<T>);
        }
        loadWide<K>(lanes, base + i * K);
    }
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
    template <bool> VOKM_INLINE void load(WidePack<T> (&lanes)[K], i64 i) const { (*this)(lanes, i); }
};

template <class Pack> [[gnu::target(VOKM_WIDEST), VOKM_OUT_OF_LINE]] void packsWide(i64 packs, Pack pack)
{
    for (i64 p = 0; p < packs; ++p) pack(p);
}

/// The first object of K elements that begins a line of 64 bytes, or 0 if none of the first pack does.
template <int K, class T> VOKM_INLINE i32 objectAtLine(const T* at)
{
    for (i32 i = 0; i < wideLanes<T>; ++i) {
        if (reinterpret_cast<std::uintptr_t>(at + i * K) % 64 == 0) return i;
    }
    return 0;
}
/// work.template objects<past>(i) for packs of objects from i on, until all `count` are done, `aligned` being the first of those
/// that the loop takes; the first and the last pack do some objects a second time, which no result may notice. At least a pack.
template <bool past, int N, class Work> [[gnu::target(VOKM_WIDEST), VOKM_OUT_OF_LINE]] void objectsWide(i32 count, i32 aligned, Work* work)
{
    Work own(*work);  // in registers
    if (aligned > 0) own.template objects<false>(0);
    i32 i = aligned;
    for (; i + N <= count; i += N) own.template objects<past>(i);
    if (i < count) own.template objects<false>(count - N);
    if constexpr (past) finishStoresPastCache();
    *work = own;
}
/// For results of K elements that follow one another from `dst` on, and `bytes` of operands and results in all.
template <int K, class T, class Work> VOKM_INLINE void overObjectsWide(i32 count, const T* dst, i64 bytes, Work& work)
{
    const i32 aligned = objectAtLine<K>(dst);
    if (reinterpret_cast<std::uintptr_t>(dst + aligned * K) % 64 == 0 && worthPastCache(bytes)) {
        objectsWide<true, wideLanes<T>>(count, aligned, &work);
    } else {
        objectsWide<false, wideLanes<T>>(count, count >= 4 * wideLanes<T> ? aligned : 0, &work);
    }
}

}  // namespace vokm
