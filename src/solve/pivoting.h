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

/// Exchanges x and y in the lanes where the mask is set.
template <class X, class M> VOKM_INLINE void exchange(M mask, X& x, X& y)
{
    const M d = (M(x) ^ M(y)) & mask;
    x = X(M(x) ^ d);
    y = X(M(y) ^ d);
}

/// The objects that a routine for one object meets: dense rows, any strides, a pointer table.
template <class T> using DenseObject = StridedObject<T, Unit::column>;
template <class T> using AnyObject = StridedObject<T, Unit::none>;
template <class T> using PointedObject = TableObject<T, false>;

/// A search for the largest magnitude, and the exchange that follows. Candidates come in order; one that is strictly greater
/// than all before it takes the lead, so among equals the first wins; or one that is not smaller, so that the last does. NaN
/// never wins, and a start that is NaN stays. Packs keep a mask for each candidate, one object the number of the winner.
enum class AmongEquals { first, last };
template <class V, int n, AmongEquals equals = AmongEquals::first> struct Search {
    V best;
    int start;
    std::conditional_t<isPack<V>, Mask<V>[n], int> won;

    VOKM_INLINE Search(int place, V magnitudeThere) : best(magnitudeThere), start(place)
    {
        if constexpr (!isPack<V>) won = place;
    }
    VOKM_INLINE void candidate(int i, V magnitudeOfIt)
    {
        const Mask<V> leads = equals == AmongEquals::first ? magnitudeOfIt > best : magnitudeOfIt >= best;
        if constexpr (isPack<V>) {
            won[i] = leads;
        } else {
            won = leads ? i : won;
        }
        best = larger(magnitudeOfIt, best);
    }
    /// Behind the last of the candidates start+1 .. n-1: of those who led, the last has won.
    VOKM_INLINE void decide()
    {
        if constexpr (isPack<V>) {
            Mask<V> taken{};
            VOKM_UNROLL for (int i = n - 1; i > start; --i)
            {
                const Mask<V> behind = taken;
                taken = taken | won[i];
                won[i] = won[i] & ~behind;
                // Not known as a comparison any more: else exchanges become selections, which take more operations.
                asm("" : "+x"(won[i]));
            }
        }
    }
    /// Exchanges at(start) with the winner's at(i), lane by lane.
    template <class At> VOKM_INLINE void exchange(At at) const
    {
        if constexpr (isPack<V>) {
            auto x = at(start);
            VOKM_UNROLL for (int i = start + 1; i < n; ++i) vokm::exchange(won[i], x, at(i));
            at(start) = x;
        } else {
            std::swap(at(start), at(won));
        }
    }
};

/// Walks objects of which any can fail. pack(i) finishes the pack of objects from i on and says whether it did; if not, it has
/// written nothing, and its objects go through one(i), which returns a status, as the objects do that belong to no pack. The
/// first failure ends the walk.
template <class T, class Guard, class WholePack, class One>
VOKM_INLINE vokStatus walkFailing(i32 first, i32 count, const Guard& guard, WholePack pack, One one)
{
    constexpr i32 N = packLanes<T>;
    for (i32 i = first; i < count;) {
        for (; i + N <= count && guard(i) && pack(i); i += N) {}
        for (const i32 end = std::min(count, i + N); i < end; ++i) {
            if (const vokStatus status = one(i)) return status;
        }
    }
    return vokStatusOk;
}

}  // namespace vokm
