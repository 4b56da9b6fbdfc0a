// What wide products do with registers: partly filled ones, and lanes picked from several.
#pragma once

#include <immintrin.h>

#include "../frame/wide_pack.h"

#define VOKM_WIDE_INLINE [[gnu::target(VOKM_WIDEST), gnu::always_inline]] inline
#define VOKM_WIDE_LAMBDA __attribute__((target(VOKM_WIDEST), always_inline))

namespace vokm {

/// The first lanes of a register; the others are 0, and nothing is read for them.
template <int lanes> VOKM_WIDE_INLINE void loadFirst(WidePack<float>& to, const float* from)
{
    to = WidePack<float>(_mm512_maskz_loadu_ps((1u << lanes) - 1, from));
}
template <int lanes> VOKM_WIDE_INLINE void loadFirst(WidePack<double>& to, const double* from)
{
    to = WidePack<double>(_mm512_maskz_loadu_pd((1u << lanes) - 1, from));
}
template <int lanes> VOKM_WIDE_INLINE void storeFirst(float* to, const WidePack<float>& v)
{
    _mm512_mask_storeu_ps(to, (1u << lanes) - 1, __m512(v));
}
template <int lanes> VOKM_WIDE_INLINE void storeFirst(double* to, const WidePack<double>& v)
{
    _mm512_mask_storeu_pd(to, (1u << lanes) - 1, __m512d(v));
}

/// Whether a map picks any lane from the source.
template <class Map, int N> constexpr bool picksFrom(int source)
{
    for (int l = 0; l < N; ++l) {
        if (Map::of(l) / N == source) return true;
    }
    return false;
}
/// How many of the sources a map picks from.
template <class Map, int N> constexpr int sourcesOf(int K)
{
    int used = 0;
    for (int s = 0; s < K; ++s) used += picksFrom<Map, N>(s);
    return used;
}
/// Lane l takes what of(l) says, counted over the lanes of all sources: a permute of one source, or of two for each one more, the
/// first two at once.
template <class Map, int source, int seen, class V, int K, int... l>
VOKM_INLINE void pickLanes(V& to, const V (&from)[K], std::integer_sequence<int, l...> lanes)
{
    constexpr int N = lanesIn<V>;
    constexpr bool used = picksFrom<Map, N>(source);
    if constexpr (used) {
        if constexpr (sourcesOf<Map, N>(K) == 1) {
            to = __builtin_shufflevector(from[source], from[source], Map::of(l) % N...);
        } else if constexpr (seen == 0) {
            to = from[source];
        } else {
            to = __builtin_shufflevector(to, from[source],
                (Map::of(l) / N == source                  ? N + Map::of(l) % N
                    : seen == 1 && Map::of(l) / N < source ? Map::of(l) % N
                                                           : l)...);
        }
    }
    if constexpr (source + 1 < K) pickLanes<Map, source + 1, seen + used>(to, from, lanes);
}
template <class Map, class V, int K> VOKM_INLINE void pick(V& to, const V (&from)[K])
{
    pickLanes<Map, 0, 0>(to, from, std::make_integer_sequence<int, lanesIn<V>>{});
}

}  // namespace vokm
