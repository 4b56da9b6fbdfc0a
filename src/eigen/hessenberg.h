// Hessenberg form of a square matrix by reflections, and what the general eigenproblems share: their constants, the square
// work area, the reflection.
#pragma once

#include <algorithm>
#include <limits>

#include "../frame/fixed.h"

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

/// A column-major square matrix in working memory, indices from 0.
template <class T, class N> struct Square {
    T* base;
    [[no_unique_address]] N size;

    VOKM_INLINE i32 n() const { return size.value; }
    VOKM_INLINE T* column(i32 j) const { return base + i64(j) * size.value; }
    VOKM_INLINE T& operator()(i32 i, i32 j) const { return column(j)[i]; }
};

// Two questions, so that NaN is neither zero nor set.
template <class T> VOKM_INLINE bool isZero(T x) { return magnitude(x) <= GeneralConstants<T>::safmin; }
template <class T> VOKM_INLINE bool isSet(T x) { return magnitude(x) > GeneralConstants<T>::safmin; }

/// The product of two roots, formed in 64f and rounded once.
template <class T> VOKM_INLINE T productOfRoots(T x, T y)
{
    return static_cast<T>(std::sqrt(static_cast<double>(x)) * std::sqrt(static_cast<double>(y)));
}

/// The length of (u, v), both not negative: w * sqrt(1 + z*z / (w*w)), w the larger. The squares are divided, not squared
/// after division; the sum and its root are in 64f.
template <class T> VOKM_INLINE T hypotenuse(T u, T v)
{
    const T w = u > v ? u : v, z = u > v ? v : u;
    if (z < GeneralConstants<T>::safmin) return w;
    const T quotient = (z * z) / (w * w);
    return w * static_cast<T>(std::sqrt(1.0 + static_cast<double>(quotient)));
}

/// The reflection I - tau * v * v^T, v = (1, x), that takes (alpha, x) to (beta, 0): x becomes the rest of v, alpha becomes
/// beta, tau is returned; 0 stands for the identity, which leaves alpha and x. A root of 32f that passes through 64f is the
/// 32f root, since 53 bits are enough not to round twice.
template <class T> VOKM_INLINE T makeReflection(T& alpha, T* x, i32 rest)
{
    using K = GeneralConstants<T>;
    T squares = 0;
    for (i32 j = 0; j < rest; ++j) squares += x[j] * x[j];
    const T norm = root(squares);
    if (norm < K::safmin) return 0;
    T length = hypotenuse(magnitude(alpha), norm);
    if (length < K::safmin) length = K::safmin2;
    const T beta = alpha >= 0 ? -length : length;
    const T tau = (beta - alpha) / beta, inverse = 1 / (alpha - beta);
    for (i32 j = 0; j < rest; ++j) x[j] *= inverse;
    alpha = beta;
    return tau;
}

/// h = h * (I - tau*v*v^T) over the columns from `first` on. Sums ascend from 0; the term is (tau*w)*v.
template <class T, class N> VOKM_INLINE void reflectColumns(Square<T, N> h, i32 first, const T* v, T tau, T* w)
{
    const i32 n = h.n();
    for (i32 r = 0; r < n; ++r) w[r] = 0;
    for (i32 j = first; j < n; ++j) {
        for (i32 r = 0; r < n; ++r) w[r] += h(r, j) * v[j - first];
    }
    for (i32 r = 0; r < n; ++r) w[r] *= tau;
    for (i32 j = first; j < n; ++j) {
        for (i32 r = 0; r < n; ++r) h(r, j) -= w[r] * v[j - first];
    }
}

/// h = (I - tau*v*v^T) * h over the rows and columns from `first` on. Sums ascend from 0; the term is (tau*v)*w.
template <class T, class N> VOKM_INLINE void reflectRows(Square<T, N> h, i32 first, const T* v, T tau)
{
    for (i32 c = first; c < h.n(); ++c) {
        T* const column = h.column(c) + first;
        T w = 0;
        for (i32 k = 0; k < h.n() - first; ++k) w += column[k] * v[k];
        for (i32 k = 0; k < h.n() - first; ++k) column[k] -= tau * v[k] * w;
    }
}

/// Reduces h. The reflections stay: the scale factor of column i in tau[i], its vector behind a leading 1 below the
/// subdiagonal. `w`: n elements.
template <class T, class N> VOKM_INLINE void toHessenberg(Square<T, N> h, T* tau, T* w)
{
    for (i32 i = 0; i + 1 < h.n(); ++i) {
        T* const v = h.column(i) + i + 1;
        T beta = v[0];
        tau[i] = makeReflection(beta, v + 1, h.n() - i - 2);
        if (isSet(tau[i])) {
            v[0] = 1;
            reflectColumns(h, i + 1, v, tau[i], w);
            reflectRows(h, i + 1, v, tau[i]);
        }
        v[0] = beta;
    }
}

/// z = the product of the reflections that toHessenberg left in h, from the last one back.
template <class T, class N> VOKM_INLINE void formOrthogonal(Square<T, N> h, const T* tau, Square<T, N> z)
{
    for (i32 j = 0; j < z.n(); ++j) {
        for (i32 i = 0; i < z.n(); ++i) z(i, j) = i == j ? 1 : 0;
    }
    for (i32 i = h.n() - 2; i >= 0; --i) {
        if (!isSet(tau[i])) continue;
        T* const v = h.column(i) + i + 1;
        const T beta = v[0];
        v[0] = 1;
        reflectRows(z, i + 1, v, tau[i]);
        v[0] = beta;
    }
}

/// Clears what the reflections left below the subdiagonal.
template <class T, class N> VOKM_INLINE void clearReflections(Square<T, N> h)
{
    for (i32 j = 0; j + 2 < h.n(); ++j) {
        for (i32 i = j + 2; i < h.n(); ++i) h(i, j) = 0;
    }
}

}  // namespace vokm
