// vokmCholeskyDecomp: A = L * transpose(L), row by row. Below the diagonal dst holds L, on it d(i) = 1 / L(i,i):
//
//   L(i,j) = (a(i,j) - L(i,0)*L(j,0) - ... - L(i,j-1)*L(j,j-1)) * d(j)      left to right, each step rounded
//   d(i)   = 1 / sqrt(a(i,i) - L(i,0)^2 - ... - L(i,i-1)^2)                  root and quotient in 64 bits, rounded once
#include "cholesky.h"

#include "triangle.h"

namespace vokm {

/// What a square must be above. Deliberate: one size of one layout has another bound, for both element types.
template <Variant variant, int n, class T> constexpr T leastSquare = variant == Variant::P&& n == 3 ? T(0x1p-23) : T(0);

/// Factors `a` into `l`; returns the row of the first square that is not above `least` in every lane (not-a-numbers pass), or
/// n. Of that row, what stands left of the diagonal is done.
template <class V, class A, class L, class N, class Inverse>
VOKM_INLINE int factor(const A& a, const L& l, N n, Element<V> least, Inverse inverse)
{
    int row = 0;
    over(At<0>{}, n, [&](auto i) VOKM_INLINE_LAMBDA {
        over(At<0>{}, i, [&](auto j) VOKM_INLINE_LAMBDA {
            V t = a(i, j);
            over(At<0>{}, j, [&](auto k) VOKM_INLINE_LAMBDA { t = t - l(i, k) * l(j, k); });
            l(i, j) = t * l(j, j);
        });
        V t = a(i, i);
        over(At<0>{}, i, [&](auto k) VOKM_INLINE_LAMBDA { t = t - l(i, k) * l(i, k); });
        if (any(splat<V>(least) >= t)) return false;
        l(i, i) = inverse(t);
        ++row;
        return true;
    });
    return row;
}

/// One object of a size with a path: in registers, then stored as far as it went.
template <Variant variant, int n, class S, class D> VOKM_INLINE bool factorOne(const S& src, const D& dst, i32 i)
{
    using T = typename D::element;
    T a[n][n];
    loadLower(a, src, i);
    const TileObject<T, n, n> tile{a};
    const int rows = factor<T>(tile, tile, At<n>{}, leastSquare<variant, n, T>, [](T t) { return inverseRootInDouble(t); });
    if (rows == n) {
        storeLower(a, dst, i);
        return true;
    }
    // Deliberate: with a pointer table the failing row is untouched.
    const int left = variant == Variant::P ? rows : rows + 1;
    const auto object = dst.object(i, Shape{n, n});
    for (int r = 0; r < left; ++r) {
        for (int c = 0; c <= r && (r < rows || c < r); ++c) object(r, c) = a[r][c];
    }
    return false;
}

template <Variant variant, int n, class S, class D> VOKM_INLINE vokStatus factorFixed(const S& src, const D& dst, i32 count)
{
    using T = typename D::element;
    using V = Pack<T>;
    constexpr i32 N = packLanes<T>;
    const auto from = lowerPart<n>(src);
    const auto to = lowerPart<n>(dst);
    const auto guard =
        lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA { return packGuard(count, shapedLower<n>(to), shapedLower<n>(from)); });
    for (i32 i = 0; i < count;) {
        if (i + N <= count && guard(i)) {
            V a[n][n];
            loadLower(a, from, i);
            const TileObject<V, n, n> tile{a};
            const auto inverse = [](V t) VOKM_INLINE_LAMBDA { return inverseRootInDouble(t); };
            if (factor<V>(tile, tile, At<n>{}, leastSquare<variant, n, T>, inverse) == n) {
                storeLower(a, to, i);
                i += N;
                continue;
            }
        }
        // The last objects, objects that overlap others, and packs with one that fails.
        for (const i32 end = std::min(count, i + N); i < end; ++i) {
            if (!factorOne<variant, n>(from, to, i)) return vokStatusNotPositiveDefinite;
        }
    }
    return vokStatusOk;
}

template <Variant variant, class S, class D> VOKM_INLINE vokStatus factorGeneral(const S& src, const D& dst, i32 n, i32 count)
{
    using T = typename D::element;
    const Shape shape{n, n};
    const auto inverse = [](T t) VOKM_INLINE_LAMBDA {
        // Deliberate: with a pointer table the 32-bit root is rounded before the division, which is one of 32 bits.
        return variant == Variant::P && sizeof(T) == 4 ? 1 / rootInDouble(t) : inverseRootInDouble(t);
    };
    for (i32 i = 0; i < count; ++i) {
        if (factor<T>(src.object(i, shape), dst.object(i, shape), n, 0, inverse) < n) return vokStatusNotPositiveDefinite;
    }
    return vokStatusOk;
}

template <Variant variant, class S, class D> VOKM_INLINE vokStatus choleskyDecomp(S src, D dst, i32 n, i32 count)
{
    return onFixed(
        n, [&]<int k>(Fixed<k>) VOKM_INLINE_LAMBDA { return factorFixed<variant, k>(src, dst, count); },
        [&]() VOKM_INLINE_LAMBDA { return factorGeneral<variant>(src, dst, n, count); });
}

}  // namespace vokm

extern "C" {
CHOLESKY_DECOMP_SINGLE(VOKM_SINGLE_KERNELS)
CHOLESKY_DECOMP_ARRAY(VOKM_ARRAY_KERNELS)
CHOLESKY_DECOMP_SINGLE(VOKM_SINGLE_EXPORTS)
CHOLESKY_DECOMP_ARRAY(VOKM_ARRAY_EXPORTS)
}
