// What the factorisations share: exchange of rows lane by lane, and walks whose objects can fail.
#pragma once

#include <limits>

#include "../frame/fixed.h"
#include "../frame/overlap.h"

// Loops over the rows and columns of a tile: every index a constant, so that the tile stays in registers.
#define VOKM_UNROLL _Pragma("GCC unroll 16")

namespace vokm {

/// What a comparison of two values gives, lane by lane for packs: a bool, or integers of 0 and -1 as wide as the elements.
template <class V> using Mask = decltype(std::declval<V>() > std::declval<V>());
/// A small integer to each lane.
template <class V> struct IndexOf {
    using type = Mask<V>;
};
template <> struct IndexOf<float> {
    using type = i32;
};
template <> struct IndexOf<double> {
    using type = i32;
};
template <class V> using Index = typename IndexOf<V>::type;
template <class V> VOKM_INLINE Index<V> index(i32 k) { return Index<V>{} + k; }

/// Twice the smallest normal number.
template <class T> constexpr T twiceSmallest = 2 * std::numeric_limits<T>::min();

/// 2*n*n*n, wrapping in 32 bits, times the smallest normal number, in the element type.
template <class T> constexpr T sizeThreshold(i32 n)
{
    return static_cast<T>((Wrap(2) * n * n * n).value()) * std::numeric_limits<T>::min();
}

inline bool without(bool a, bool b) { return a && !b; }
template <class M> VOKM_INLINE M without(M a, M b) { return a & ~b; }

/// Exchanges x and y where the mask is set.
template <class X> VOKM_INLINE void exchange(bool mask, X& x, X& y)
{
    if (mask) std::swap(x, y);
}
template <class X, class M>
    requires(!std::is_same_v<M, bool>)
VOKM_INLINE void exchange(M mask, X& x, X& y)
{
    const M d = (M(x) ^ M(y)) & mask;
    x = X(M(x) ^ d);
    y = X(M(y) ^ d);
}

/// The objects that a routine for one object meets: dense rows, any strides, a pointer table.
template <class T> using DenseObject = StridedObject<T, Unit::column>;
template <class T> using AnyObject = StridedObject<T, Unit::none>;
template <class T> using PointedObject = TableObject<T, false>;

/// A search for the largest magnitude. Candidates come in order; one that is strictly greater than all before it takes the
/// lead, so among equals the first wins, and NaN never does. The start is a candidate that stays unless it is beaten.
template <class V, int n> struct Search {
    V best;
    Mask<V> led[n];
    VOKM_INLINE explicit Search(V start) : best(start) {}
    VOKM_INLINE void candidate(int i, V magnitudeOfIt)
    {
        led[i] = magnitudeOfIt > best;
        best = larger(magnitudeOfIt, best);
    }
    /// Turns led[i] of the candidates first .. n-1 into "i has won": the last to take the lead.
    VOKM_INLINE void decide(int first)
    {
        Mask<V> taken{};
        VOKM_UNROLL for (int i = n - 1; i >= first; --i)
        {
            const Mask<V> behind = taken;
            taken = taken | led[i];
            led[i] = without(led[i], behind);
        }
    }
};

/// Walks objects of which any can fail. pack(i) finishes the pack of objects from i on and says whether it did; if not, it has
/// written nothing, and its objects go through one(i), which returns a status, as the objects do that belong to no pack. The
/// first failure ends the walk.
template <class T, class Guard, class WholePack, class One>
VOKM_INLINE vokStatus walkFailing(i32 count, const Guard& guard, WholePack pack, One one)
{
    constexpr i32 N = packLanes<T>;
    for (i32 i = 0; i < count;) {
        for (; i + N <= count && guard(i) && pack(i); i += N) {}
        for (const i32 end = std::min(count, i + N); i < end; ++i) {
            if (const vokStatus status = one(i)) return status;
        }
    }
    return vokStatusOk;
}

}  // namespace vokm
