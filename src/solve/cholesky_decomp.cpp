// vokmCholeskyDecomp: A = L * transpose(L), row by row. Below the diagonal dst holds L, on it d(i) = 1 / L(i,i):
//
//   L(i,j) = (a(i,j) - L(i,0)*L(j,0) - ... - L(i,j-1)*L(j,j-1)) * d(j)      left to right, each step rounded
//   d(i)   = 1 / sqrt(a(i,i) - L(i,0)^2 - ... - L(i,i-1)^2)                  root and quotient in 64 bits, rounded once
#include "cholesky.h"

#include "../frame/plane_blocks.h"
#include "triangle.h"

namespace vokm {

/// What a square must be above. Deliberate: one size of one layout has another bound, for both element types.
template <Variant variant, int n, class T> constexpr T leastSquare = variant == Variant::P&& n == 3 ? T(0x1p-23) : T(0);

/// Factors `a` into `l`; returns the row of the first square at which stops(square), or n. Of that row, what stands left of the
/// diagonal is done.
template <class V, class A, class L, class N, class Stops, class Inverse>
VOKM_INLINE int factor(const A& a, const L& l, N n, Stops stops, Inverse inverse)
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
        if (stops(t)) return false;
        l(i, i) = inverse(t);
        ++row;
        return true;
    });
    return row;
}

/// A square is not above `least`, in any lane; not-a-numbers pass.
template <class V> VOKM_INLINE auto notAbove(Element<V> least)
{
    return [least](V square) VOKM_INLINE_LAMBDA { return any(splat<V>(least) >= square); };
}

/// One object of a size with a path: in registers, then stored as far as it went.
template <Variant variant, int n, class S, class D> VOKM_INLINE bool factorOne(const S& src, const D& dst, i32 i)
{
    using T = typename D::element;
    T a[n][n];
    loadLower(a, src, i);
    const TileObject<T, n, n> tile{a};
    const auto inverse = [](T t) VOKM_INLINE_LAMBDA { return inverseRootInDouble(t); };
    const int rows = factor<T>(tile, tile, At<n>{}, notAbove<T>(leastSquare<variant, n, T>), inverse);
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

/// The leading objects of arrays with a plane for each element of the triangle; returns how many are done.
template <Variant variant, int n, class S, class D> [[gnu::noinline]] i32 factorPlanes(S src, D dst, i32 count)
{
    using T = typename D::element;
    constexpr int K = n * (n + 1) / 2;
    const auto elements = [](const auto& view) VOKM_INLINE_LAMBDA {
        return [object = view.object(0, Shape{n, n})](int k) VOKM_INLINE_LAMBDA -> auto& {
            int r = 0;
            while (k > r) k -= ++r;
            return object(r, k);
        };
    };
    const PlaneBases<const T, K> from(elements(src));
    const PlaneBases<T, K> to(elements(dst));
    if (!planesFree(count, shapedLower<n>(dst), shapedLower<n>(src), from, to)) return 0;
    const auto each = [](auto element) VOKM_INLINE_LAMBDA {
        over(At<0>{}, At<n>{}, [&](auto r) VOKM_INLINE_LAMBDA {
            over(At<0>{}, next(r), [&](auto c) VOKM_INLINE_LAMBDA { element(r, c, r * (r + 1) / 2 + c); });
        });
    };
    const auto fails = [=](auto get, auto keep) VOKM_INLINE_LAMBDA {
        T a[n][n];
        each([&](int r, int c, int k) VOKM_INLINE_LAMBDA { a[r][c] = get(k); });
        bool failed = false;
        const auto goesOn = [&](T square) VOKM_INLINE_LAMBDA {
            failed |= leastSquare<variant, n, T> >= square;
            return false;
        };
        const TileObject<T, n, n> tile{a};
        factor<T>(tile, tile, At<n>{}, goesOn, [](T t) VOKM_INLINE_LAMBDA { return inverseRootInDouble(t); });
        each([&](int r, int c, int k) VOKM_INLINE_LAMBDA { keep(k, a[r][c]); });
        return failed;
    };
    const auto copy = [=](auto, auto kept, auto put) VOKM_INLINE_LAMBDA {
        each([&](int, int, int k) VOKM_INLINE_LAMBDA { put(k, kept(k)); });
    };
    return overPlanes<K>(from, to, count, fails, copy);
}

template <Variant variant, int n, class S, class D> VOKM_INLINE vokStatus factorFixed(const S& src, const D& dst, i32 count)
{
    using T = typename D::element;
    using V = Pack<T>;
    constexpr i32 N = packLanes<T>;
    const auto from = lowerPart<n>(src);
    const auto to = lowerPart<n>(dst);
    i32 done = 0;
    if constexpr (mayBePlanar<S> && mayBePlanar<D>) {
        if (planar(from) && planar(to)) done = factorPlanes<variant, n>(from, to, count);
        if (done == count) return vokStatusOk;
    }
    const auto guard =
        lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA { return packGuard(count, shapedLower<n>(to), shapedLower<n>(from)); });
    for (i32 i = done; i < count;) {
        if (i + N <= count && guard(i)) {
            V a[n][n];
            loadLower(a, from, i);
            const TileObject<V, n, n> tile{a};
            const auto inverse = [](V t) VOKM_INLINE_LAMBDA { return inverseRootInDouble(t); };
            if (factor<V>(tile, tile, At<n>{}, notAbove<V>(leastSquare<variant, n, T>), inverse) == n) {
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
        if (factor<T>(src.object(i, shape), dst.object(i, shape), n, notAbove<T>(0), inverse) < n) return vokStatusNotPositiveDefinite;
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
