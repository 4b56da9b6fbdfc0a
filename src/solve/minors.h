// Laplace expansion, for determinant and inverse.
#pragma once

#include <bit>

#include "pivoting.h"

namespace vokm {

/// The terms in their order with alternating signs, the last of them positive: ((x1 - x0) - x2) + x3, or (x0 - x1) + x2.
template <class V, int k> VOKM_INLINE V alternatingToPlus(const V (&x)[k])
{
    V s = k % 2 == 0 ? x[1] - x[0] : x[0] - x[1];
    VOKM_UNROLL for (int q = 2; q < k; ++q) s = (k - q) % 2 == 0 ? s - x[q] : s + x[q];
    return s;
}

/// Minors of a fixed set of k columns (or rows), by the set of the k rows (or columns) that they take: a bit each.
template <class V, int n> using Minors = V[1 << n];

/// Calls one(std::integral_constant<unsigned, set>) for all sets of k out of n.
template <int n, int k, class One> VOKM_INLINE void overSets(One one)
{
    [&]<std::size_t... set>(std::index_sequence<set...>) VOKM_INLINE_LAMBDA {
        const auto ofThisSize = [&]<unsigned s>(std::integral_constant<unsigned, s> which) VOKM_INLINE_LAMBDA {
            if constexpr (std::popcount(s) == k) one(which);
        };
        (ofThisSize(std::integral_constant<unsigned, set>{}), ...);
    }(std::make_index_sequence<1 << n>());
}

enum class Members { ascending, descending };

/// A minor by its expansion along the line that is new: the sum over the set's members of line(member) times the minor without it.
template <unsigned set, Members order, class V, int n, class Line>
VOKM_INLINE V expansion(const Line& line, const V (&smaller)[n])
{
    constexpr int k = std::popcount(set), bits = std::bit_width(set);
    if constexpr (k == 1) {
        return line(bits - 1);
    } else {
        V x[k];
        int q = 0;
        VOKM_UNROLL for (int step = 0; step < bits; ++step)
        {
            const int member = order == Members::ascending ? step : bits - 1 - step;
            if (set >> member & 1u) x[q++] = line(member) * smaller[set & ~(1u << member)];
        }
        return alternatingToPlus(x);
    }
}

}  // namespace vokm
