// What an iteration needs so that one text serves a single object and a pack of objects whose lanes take different turns:
// conditions, choices and indices by lane, and the 64f detours of 32f arithmetic.
#pragma once

#include "../frame/pack.h"

namespace vokm {

// A condition or an index by lane: bool and i32 for one object; for packs four 32-bit numbers, two alike for a 64f lane.
using Fours = Pack<float>;
typedef i32 Indices __attribute__((vector_size(16)));
template <class V> using Cond = std::conditional_t<isPack<V>, Indices, bool>;
template <class V> using Index = std::conditional_t<isPack<V>, Indices, i32>;

VOKM_INLINE bool cond(bool m) { return m; }
template <class M>
requires(sizeof(M) == 16) VOKM_INLINE Indices cond(M m) { return (Indices)m; }

template <class V> VOKM_INLINE Index<V> indices(i32 x)
{
    if constexpr (isPack<V>) {
        return Indices{x, x, x, x};
    } else {
        return x;
    }
}
template <class V> VOKM_INLINE i32 indexIn(const Index<V>& x, int lane)
{
    if constexpr (isPack<V>) {
        return x[lane * (4 / lanesIn<V>)];
    } else {
        return x;
    }
}

template <class V> VOKM_INLINE Cond<V> everywhere()
{
    if constexpr (isPack<V>) {
        return Indices{-1, -1, -1, -1};
    } else {
        return true;
    }
}
VOKM_INLINE bool negation(bool m) { return !m; }
VOKM_INLINE Indices negation(Indices m) { return ~m; }

/// m ? x : y by lane.
template <class X> VOKM_INLINE X choose(bool m, X x, X y) { return m ? x : y; }
template <class X> VOKM_INLINE X choose(Indices m, X x, X y) { return (X)(((Indices)x & m) | ((Indices)y & ~m)); }

/// x in the lanes of m, +0 in the others: what may be subtracted everywhere without a trace.
template <class V> VOKM_INLINE V keep(bool m, V x) { return m ? x : V(0); }
template <class V> VOKM_INLINE V keep(Indices m, V x) { return (V)((Indices)x & m); }

/// The one of the two that larger(u, v) leaves.
VOKM_INLINE float smaller(float u, float v) { return v < u ? v : u; }
VOKM_INLINE double smaller(double u, double v) { return v < u ? v : u; }
VOKM_INLINE Pack<float> smaller(Pack<float> u, Pack<float> v) { return Pack<float>(_mm_min_ps(__m128(v), __m128(u))); }
VOKM_INLINE Pack<double> smaller(Pack<double> u, Pack<double> v) { return Pack<double>(_mm_min_pd(__m128d(v), __m128d(u))); }

/// A 32f pack in 64f.
struct Halves {
    Pack<double> low, high;
    VOKM_INLINE friend Halves operator+(Halves a, Halves b) { return {a.low + b.low, a.high + b.high}; }
    VOKM_INLINE friend Halves operator*(Halves a, Halves b) { return {a.low * b.low, a.high * b.high}; }
    VOKM_INLINE friend Indices atMost(Halves a, Halves b)
    {
        const auto first = Fours(_mm_castpd_ps(_mm_cmple_pd(__m128d(a.low), __m128d(b.low))));
        const auto second = Fours(_mm_castpd_ps(_mm_cmple_pd(__m128d(a.high), __m128d(b.high))));
        return (Indices)__builtin_shufflevector(first, second, 0, 2, 4, 6);
    }
};

VOKM_INLINE double wide(float x) { return x; }
VOKM_INLINE double wide(double x) { return x; }
VOKM_INLINE Pack<double> wide(Pack<double> x) { return x; }
VOKM_INLINE Halves wide(Pack<float> x)
{
    const __m128 v = __m128(x);
    return {Pack<double>(_mm_cvtps_pd(v)), Pack<double>(_mm_cvtps_pd(_mm_movehl_ps(v, v)))};
}
template <class V, class W> VOKM_INLINE V narrow(W x)
{
    if constexpr (std::is_same_v<W, Halves>) {
        return V(_mm_movelh_ps(_mm_cvtpd_ps(__m128d(x.low)), _mm_cvtpd_ps(__m128d(x.high))));
    } else {
        return static_cast<V>(x);
    }
}

template <class W> VOKM_INLINE W rootOfOnePlus(W x)
{
    if constexpr (std::is_same_v<W, Halves>) {
        return {rootOfOnePlus(x.low), rootOfOnePlus(x.high)};
    } else {
        return root(splat<W>(1) + x);
    }
}

}  // namespace vokm
