// Inverses by cofactors: the adjugate of a 3x3 matrix, and Laplace expansion for 4x4 to 6x6.
//
// invert(a) replaces a tile by its inverse; it returns false, with the tile in any state, if threshold > |determinant|, in any
// lane for packs. NaN passes. Where it is put together from determinant(a), singular(det) and divide(a, det), these go without
// a branch: divide(a, det) leaves what is of no use if singular(det).
#pragma once

#include "minors.h"

namespace vokm {

/// 1/d by the processor's estimate of about 12 bits and one refinement: (r0 + r0) - d*(r0*r0).
template <class V> VOKM_INLINE V refinedReciprocal(V d)
{
    const V r0 = reciprocalEstimate(d);
    return (r0 + r0) - d * (r0 * r0);
}

/// The signed cofactor of row i and column j of a 3x3 matrix, one product minus one product.
template <int i, int j, class V> VOKM_INLINE V signedCofactor(const V (&a)[3][3])
{
    constexpr int p = (i + 1) % 3, q = (i + 2) % 3, r = (j + 1) % 3, s = (j + 2) % 3;
    return a[p][r] * a[q][s] - a[p][s] * a[q][r];
}
/// The minor without row i and column j, with rows and columns ascending.
template <int i, int j, class V> VOKM_INLINE V minor3(const V (&a)[3][3])
{
    constexpr int p = i == 0 ? 1 : 0, q = i == 2 ? 1 : 2, r = j == 0 ? 1 : 0, s = j == 2 ? 1 : 2;
    return a[p][r] * a[q][s] - a[p][s] * a[q][r];
}

/// The 3x3 kernels differ in the order of the determinant, an expansion down column 0 with cofactors C(i) or minors c(i), in
/// where the signs go, and in how they divide:
///   estimate   (a10*C1 + a20*C2) + a00*C0    signed cofactors     refined reciprocal
///   dense64    (a00*C0 + a20*C2) + a10*C1    signed cofactors     1/det    twice the threshold of the others
///   array32    (a00*c0 + a20*c2) - a10*c1    (0 - minor)/det      1/det
///   any        (a20*c2 - a10*c1) + a00*c0    (0 - minor)/det      1/det
enum class Adjugate { estimate, dense64, array32, any };

template <Adjugate kind> struct ByAdjugate {
    static constexpr bool isSigned = kind == Adjugate::estimate || kind == Adjugate::dense64;
    static constexpr int thresholds = kind == Adjugate::dense64 ? 2 : 1;

    template <int i, int j, class V> VOKM_INLINE static V cofactor(const V (&a)[3][3])
    {
        if constexpr (isSigned) {
            return signedCofactor<i, j>(a);
        } else {
            return minor3<i, j>(a);
        }
    }
    template <int i, int j, class V> VOKM_INLINE static V entry(const V (&a)[3][3], V r)
    {
        const V c = cofactor<i, j>(a);
        if constexpr (isSigned || (i + j) % 2 == 0) {
            return c * r;
        } else {
            return (splat<V>(0) - c) * r;
        }
    }
    template <class V> VOKM_INLINE static V determinant(const V (&a)[3][3])
    {
        const V x0 = a[0][0] * cofactor<0, 0>(a), x1 = a[1][0] * cofactor<1, 0>(a), x2 = a[2][0] * cofactor<2, 0>(a);
        if constexpr (kind == Adjugate::estimate) return (x1 + x2) + x0;
        if constexpr (kind == Adjugate::dense64) return (x0 + x2) + x1;
        if constexpr (kind == Adjugate::array32) return (x0 + x2) - x1;
        if constexpr (kind == Adjugate::any) return (x2 - x1) + x0;
    }
    template <class V> VOKM_INLINE static auto singular(V det)
    {
        return splat<V>(thresholds * sizeThreshold<Element<V>>(3)) > magnitude(det);
    }
    template <class V> VOKM_INLINE static void divide(V (&a)[3][3], V det)
    {
        V r;
        if constexpr (kind == Adjugate::estimate) {
            r = refinedReciprocal(det);
        } else {
            r = splat<V>(1) / det;
        }
        V b[3][3];
        [&]<int... k>(std::integer_sequence<int, k...>) VOKM_INLINE_LAMBDA {
            ((b[k / 3][k % 3] = entry<k % 3, k / 3>(a, r)), ...);
        }(std::make_integer_sequence<int, 9>());
        VOKM_UNROLL for (int k = 0; k < 9; ++k) a[k / 3][k % 3] = b[k / 3][k % 3];
    }
    template <class V> VOKM_INLINE static bool invert(V (&a)[3][3])
    {
        const V det = determinant(a);
        if (any(singular(det))) return false;
        divide(a, det);
        return true;
    }
};

/// Size 4 by the 2x2 minors of the upper and of the lower two rows, m(c,d) = a(0,c)*a(1,d) - a(0,d)*a(1,c): a cofactor of the upper
/// rows is a sum of three of their elements, columns ascending, times minors of the lower rows, and the other way round. The
/// determinant is the expansion down column 0, (a00*C0 + a10*C1) + (a20*C2 + a30*C3), and entries are C/det.
template <int thresholds = 1> struct ByHalves {
    template <class V> VOKM_INLINE static bool invert(V (&a)[4][4])
    {
        V minor[2][4][4];
        VOKM_UNROLL for (int half = 0; half < 2; ++half)
        {
            VOKM_UNROLL for (int c = 0; c < 4; ++c)
            {
                VOKM_UNROLL for (int d = c + 1; d < 4; ++d)
                {
                    minor[half][c][d] = a[2 * half][c] * a[2 * half + 1][d] - a[2 * half][d] * a[2 * half + 1][c];
                }
            }
        }
        // The cofactor of row i and column j: the other row of i's half times minors of the other half, in the columns but j.
        const auto cofactor = [&](int i, int j) VOKM_INLINE_LAMBDA {
            const V(&x)[4] = a[i ^ 1];
            const V(&m)[4][4] = minor[1 - i / 2];
            const int c = j == 0 ? 1 : 0, d = j <= 1 ? 2 : 1, e = j == 3 ? 2 : 3;
            const V p = x[c] * m[d][e], q = x[d] * m[c][e], r = x[e] * m[c][d];
            return (i + j) % 2 == 0 ? (p - q) + r : (q - p) - r;
        };
        V inverse[4][4];
        VOKM_UNROLL for (int i = 0; i < 4; ++i) inverse[0][i] = cofactor(i, 0);
        const V det = (a[0][0] * inverse[0][0] + a[1][0] * inverse[0][1]) + (a[2][0] * inverse[0][2] + a[3][0] * inverse[0][3]);
        if (any(splat<V>(thresholds * sizeThreshold<Element<V>>(4)) > magnitude(det))) return false;
        const V r = splat<V>(1) / det;
        VOKM_UNROLL for (int i = 0; i < 4; ++i) inverse[0][i] = inverse[0][i] * r;
        VOKM_UNROLL for (int j = 1; j < 4; ++j)
        {
            VOKM_UNROLL for (int i = 0; i < 4; ++i) inverse[j][i] = cofactor(i, j) * r;
        }
        VOKM_UNROLL for (int j = 0; j < 4; ++j)
        {
            VOKM_UNROLL for (int i = 0; i < 4; ++i) a[j][i] = inverse[j][i];
        }
        return true;
    }
};

/// Sizes 5 and 6 by Laplace expansion: minors of the last columns, each from those without its leftmost column, from the bottom
/// row of its rows up; the cofactors of another column q skip it on the way. The determinant is expanded down column 0 from
/// the bottom row up, and entries are (minor)*r or (0 - minor)*r with r = 1/det.
struct ByLaplace {
    /// Minors with one more column on the left, by sets of k rows.
    template <int k, class V, int n> VOKM_INLINE static void addColumn(const V (&a)[n][n], int c, const V (&from)[1 << n], V (&to)[1 << n])
    {
        const auto column = [&](int r) VOKM_INLINE_LAMBDA { return a[r][c]; };
        overSets<n, k>([&]<unsigned rows>(std::integral_constant<unsigned, rows>) VOKM_INLINE_LAMBDA {
            to[rows] = expansion<rows, Members::descending>(column, from);
        });
    }
    /// The minors without column q, from the columns behind it (n-1-q of them) and on through those before it.
    template <int q, class V, int n> VOKM_INLINE static void skipping(const V (&a)[n][n], Minors<V, n>& m)
    {
        [&]<int... step>(std::integer_sequence<int, step...>) VOKM_INLINE_LAMBDA {
            (addColumn<n - q + step, V, n>(a, q - 1 - step, m, m), ...);
        }(std::make_integer_sequence<int, q>());
    }
    template <int q, class V, int n> VOKM_INLINE static void row(const V (&a)[n][n], const Minors<V, n>& behind, V r, V (&b)[n][n])
    {
        constexpr unsigned whole = (1u << n) - 1;
        Minors<V, n> m;
        overSets<n, n - 1 - q>([&]<unsigned s>(std::integral_constant<unsigned, s>) VOKM_INLINE_LAMBDA { m[s] = behind[s]; });
        skipping<q>(a, m);
        VOKM_UNROLL for (int i = 0; i < n; ++i)
        {
            const V minor = m[whole & ~(1u << i)];
            b[q][i] = ((i + q) % 2 == 0 ? minor : splat<V>(0) - minor) * r;
        }
    }
    template <class V, int n> [[gnu::noinline]] static bool invert(V (&a)[n][n])
    {
        Minors<V, n> behind;  // of the last k columns, by sets of k rows
        [&]<int... k>(std::integer_sequence<int, k...>) VOKM_INLINE_LAMBDA {
            (addColumn<k + 1, V, n>(a, n - 1 - k, behind, behind), ...);
        }(std::make_integer_sequence<int, n>());
        const V det = behind[(1u << n) - 1];
        if (any(splat<V>(sizeThreshold<Element<V>>(n)) > magnitude(det))) return false;
        const V r = splat<V>(1) / det;
        V b[n][n];
        [&]<int... q>(std::integer_sequence<int, q...>) VOKM_INLINE_LAMBDA {
            (row<q>(a, behind, r, b), ...);
        }(std::make_integer_sequence<int, n>());
        VOKM_UNROLL for (int k = 0; k < n; ++k)
        {
            VOKM_UNROLL for (int c = 0; c < n; ++c) a[k][c] = b[k][c];
        }
        return true;
    }
};

}  // namespace vokm
