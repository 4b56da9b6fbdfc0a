// Hessenberg form of a square matrix by reflections, and what the general eigenproblems share: their constants, the square
// work area, the reflection. V is the element type, for one object, or a pack, for one object a lane.
#pragma once

#include <algorithm>
#include <limits>

#include "../frame/fixed.h"
#include "lanes.h"

namespace vokm {

/// Sizes of a work area: Fixed<n> (fixed.h) where the compiler knows the size, else this.
struct AnySize {
    i32 value;
};

template <class T> struct GeneralConstants {
    static constexpr T eps = std::numeric_limits<T>::epsilon();
    static constexpr T invEps = 1 / eps, oneMinusEps = 1 - eps;
    static constexpr T realTol = 4 * eps;                           // real or complex, in a 2x2 block
    static constexpr T safmin = 2 * std::numeric_limits<T>::min();  // up to here a magnitude counts as zero
    static constexpr T safmin2 = 2 * safmin;                        // stands in for a norm below safmin
    static constexpr T solveBig = 1 / safmin2;
};
template <class V> using ConstantsOf = GeneralConstants<Element<V>>;

/// A column-major square matrix in working memory, indices from 0. `lanes`: the distance of two elements of one object.
template <class V, class N, int lanes = 1> struct Square {
    V* base;
    [[no_unique_address]] N size;

    VOKM_INLINE i32 n() const { return size.value; }
    VOKM_INLINE V* column(i32 j) const { return base + i64(j) * size.value * lanes; }
    VOKM_INLINE V& operator()(i32 i, i32 j) const { return column(j)[i * lanes]; }
};

/// One lane of a matrix of packs.
template <class V, class N> VOKM_INLINE Square<Element<V>, N, lanesIn<V>> laneOf(Square<V, N> a, int lane)
{
    return {reinterpret_cast<Element<V>*>(a.base) + lane, a.size};
}

// Two questions, so that NaN is neither zero nor set.
template <class T> VOKM_INLINE bool isZero(T x) { return magnitude(x) <= GeneralConstants<T>::safmin; }
template <class V> VOKM_INLINE Cond<V> isSet(V x) { return cond(above(magnitude(x), splat<V>(ConstantsOf<V>::safmin))); }

/// The product of two roots, formed in 64f and rounded once.
template <class T> VOKM_INLINE T productOfRoots(T x, T y)
{
    return static_cast<T>(std::sqrt(static_cast<double>(x)) * std::sqrt(static_cast<double>(y)));
}

/// The length of (u, v), both not negative: w * sqrt(1 + z*z / (w*w)), w the larger. The squares are divided, not squared
/// after division; the sum and its root are in 64f.
template <class V> VOKM_INLINE V hypotenuse(V u, V v)
{
    const V w = larger(u, v), z = smaller(u, v);
    const V quotient = (z * z) / (w * w);
    return choose(cond(above(splat<V>(ConstantsOf<V>::safmin), z)), w, w * narrow<V>(rootOfOnePlus(wide(quotient))));
}

/// The reflection I - tau * v * v^T, v = (1, x), that takes (alpha, x) to (beta, 0): x becomes the rest of v, alpha becomes
/// beta, tau is returned; 0 stands for the identity, which leaves alpha and x. A root of 32f that passes through 64f is the
/// 32f root, since 53 bits are enough not to round twice.
template <class V> VOKM_INLINE V makeReflection(V& alpha, V* x, i32 rest)
{
    using K = ConstantsOf<V>;
    const V zero{}, one = splat<V>(1), safmin = splat<V>(K::safmin);
    if (rest < 1) return zero;
    V squares = x[0] * x[0];
    for (i32 j = 1; j < rest; ++j) squares = squares + x[j] * x[j];
    const V norm = root(squares);
    const auto reflects = negation(cond(above(safmin, norm)));
    if (!any(reflects)) return zero;
    V length = hypotenuse(magnitude(alpha), norm);
    length = choose(cond(above(safmin, length)), splat<V>(K::safmin2), length);
    const V beta = choose(cond(atMost(zero, alpha)), -length, length);
    const V tau = (beta - alpha) / beta, inverse = one / (alpha - beta);
    for (i32 j = 0; j < rest; ++j) x[j] = choose(reflects, x[j] * inverse, x[j]);
    alpha = choose(reflects, beta, alpha);
    return keep(reflects, tau);
}

/// h = h * (I - tau*v*v^T) over the columns from `first` on, in the lanes `where`. Sums ascend from 0; the term is (tau*w)*v.
template <class V, class N> VOKM_INLINE void reflectColumns(Square<V, N> h, i32 first, const V* v, V tau, Cond<V> where, V* w)
{
    const i32 n = h.n();
    for (i32 r = 0; r < n; ++r) w[r] = V{};
    for (i32 j = first; j < n; ++j) {
        for (i32 r = 0; r < n; ++r) w[r] = w[r] + h(r, j) * v[j - first];
    }
    for (i32 r = 0; r < n; ++r) w[r] = tau * w[r];
    for (i32 j = first; j < n; ++j) {
        for (i32 r = 0; r < n; ++r) h(r, j) = h(r, j) - keep(where, w[r] * v[j - first]);
    }
}

/// h = (I - tau*v*v^T) * h over the rows and columns from `first` on. Sums ascend from 0; the term is (tau*v)*w.
template <class V, class N> VOKM_INLINE void reflectRows(Square<V, N> h, i32 first, const V* v, V tau, Cond<V> where)
{
    for (i32 c = first; c < h.n(); ++c) {
        V* const column = h.column(c) + first;
        V w{};
        for (i32 k = 0; k < h.n() - first; ++k) w = w + column[k] * v[k];
        for (i32 k = 0; k < h.n() - first; ++k) column[k] = column[k] - keep(where, tau * v[k] * w);
    }
}

/// Reduces h. The reflections stay: the scale factor of column i in tau[i], its vector behind a leading 1 below the
/// subdiagonal. `w`: n elements.
template <class V, class N> VOKM_INLINE void toHessenberg(Square<V, N> h, V* tau, V* w)
{
    for (i32 i = 0; i + 1 < h.n(); ++i) {
        V* const v = h.column(i) + i + 1;
        V beta = v[0];
        tau[i] = makeReflection(beta, v + 1, h.n() - i - 2);
        if (const auto reflects = isSet(tau[i]); any(reflects)) {
            v[0] = splat<V>(1);
            reflectColumns(h, i + 1, v, tau[i], reflects, w);
            reflectRows(h, i + 1, v, tau[i], reflects);
        }
        v[0] = beta;
    }
}

/// z = the product of the reflections that toHessenberg left in h, from the last one back.
template <class V, class N> VOKM_INLINE void formOrthogonal(Square<V, N> h, const V* tau, Square<V, N> z)
{
    for (i32 j = 0; j < z.n(); ++j) {
        for (i32 i = 0; i < z.n(); ++i) z(i, j) = splat<V>(i == j ? 1 : 0);
    }
    for (i32 i = h.n() - 2; i >= 0; --i) {
        const auto reflects = isSet(tau[i]);
        if (!any(reflects)) continue;
        V* const v = h.column(i) + i + 1;
        const V beta = v[0];
        v[0] = splat<V>(1);
        reflectRows(z, i + 1, v, tau[i], reflects);
        v[0] = beta;
    }
}

/// Clears what the reflections left below the subdiagonal.
template <class V, class N> VOKM_INLINE void clearReflections(Square<V, N> h)
{
    for (i32 j = 0; j + 2 < h.n(); ++j) {
        for (i32 i = j + 2; i < h.n(); ++i) h(i, j) = V{};
    }
}

}  // namespace vokm
