// vokmCholeskyBackSubst: L * transpose(L) * x = b, forward to y and backward to x, with d(i) = 1 / L(i,i) on the diagonal: no
// division.
//
//   y(i) = (b(i) - L(i,0)*y(0) - ... - L(i,i-1)*y(i-1)) * d(i)
//   x(i) = (y(i) - L(n-1,i)*x(n-1) - ... - L(i+1,i)*x(i+1)) * d(i)           left to right, but see below
#include "cholesky.h"

#include <string_view>

#include "triangle.h"

namespace vokm {

/// The order of the products in the backward step: from the bottom up, or as the rows say.
enum class Backward { upwards, mixed };

// Deliberate: vokmCholeskyBackSubst_mv_32f with contiguous rows subtracts in this order, rows 0 to n-2 at sizes 4 to 6.
constexpr std::string_view mixedRows[3][5] = {
    {"213", "23", "3"}, {"2134", "234", "34", "4"}, {"52134", "5234", "534", "54", "5"}};

template <Backward order, int n, int row, int k> constexpr int productAt()
{
    return order == Backward::mixed && n > 3 ? mixedRows[n > 3 ? n - 4 : 0][row][k] - '0' : n - 1 - k;
}

/// In x, which may be b itself. l(i, j) below and on the diagonal; b(0, j), x(0, j).
template <Backward order, class V, class L, class B, class X, class N>
VOKM_INLINE void substitute(const L& l, const B& b, const X& x, N n)
{
    over(At<0>{}, n, [&](auto i) VOKM_INLINE_LAMBDA {
        V t = b(0, i);
        over(At<0>{}, i, [&](auto j) VOKM_INLINE_LAMBDA { t = t - l(i, j) * x(0, j); });
        x(0, i) = t * l(i, i);
    });
    overBackwards(At<0>{}, n, [&](auto i) VOKM_INLINE_LAMBDA {
        V t = x(0, i);
        if constexpr (order == Backward::mixed && std::is_empty_v<N>) {
            constexpr int row = decltype(i)::value;
            over(At<0>{}, At<N::value - 1 - row>{}, [&](auto k) VOKM_INLINE_LAMBDA {
                constexpr int j = productAt<order, N::value, row, decltype(k)::value>();
                t = t - l(j, i) * x(0, j);
            });
        } else {
            overBackwards(next(i), n, [&](auto j) VOKM_INLINE_LAMBDA { t = t - l(j, i) * x(0, j); });
        }
        x(0, i) = t * l(i, i);
    });
}

template <Backward order, int n, class M, class B, class D>
VOKM_INLINE void substituteFixed(const M& src, const B& src2, const D& dst, i32 count)
{
    using T = typename D::element;
    const auto factors = lowerPart<n>(src);
    const auto from = pinned<1, n>(src2);
    const auto to = pinned<1, n>(dst);
    const Shaped<B> b{src2, {1, n}};
    const Shaped<D> x{dst, {1, n}};
    const auto solve = [&]<class V>(const V(&l)[n][n], i32 i) VOKM_INLINE_LAMBDA {
        V t[1][n];
        load(t, from, i);
        const TileObject<V, 1, n> row{t};
        substitute<order, V>(TileObject<const V, n, n>{l}, row, row, At<n>{});
        store(t, to, i);
    };
    if constexpr (M::array) {
        const auto guard =
            lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA { return packGuard(count, x, b, shapedLower<n>(factors)); });
        walkGuarded<T>(count, guard, [&]<class V>(As<V>, i32 i) VOKM_INLINE_LAMBDA {
            V l[n][n];
            loadLower(l, factors, i);
            solve(l, i);
        });
    } else {
        // The matrix is read once, so that results may fall on it.
        const HeldLower<T, n> held(factors, count >= packLanes<T>);
        const auto guard = lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA { return packGuard(count, x, b); });
        walkGuarded<T>(count, guard, [&]<class V>(As<V>, i32 i) VOKM_INLINE_LAMBDA { solve(held.template as<V>(), i); });
    }
}

/// dst is the working vector, and the matrix is read anew for each object.
template <class M, class B, class D>
VOKM_INLINE void substituteGeneral(const M& src, const B& src2, const D& dst, i32 n, i32 count)
{
    using T = typename D::element;
    for (i32 i = 0; i < count; ++i) {
        substitute<Backward::upwards, T>(src.object(i, {n, n}), src2.object(i, {1, n}), dst.object(i, {1, n}), n);
    }
}

template <Variant variant, class M, class B, class D>
VOKM_INLINE vokStatus choleskyBackSubst(M src, B src2, D dst, i32 n, i32 count)
{
    constexpr bool mixed = variant == Variant::plain && !D::array && sizeof(typename D::element) == 4;
    constexpr Backward order = mixed ? Backward::mixed : Backward::upwards;
    onFixed(
        n, [&]<int k>(Fixed<k>) VOKM_INLINE_LAMBDA { substituteFixed<order, k>(src, src2, dst, count); },
        [&]() VOKM_INLINE_LAMBDA { substituteGeneral(src, src2, dst, n, count); });
    return vokStatusOk;
}

}  // namespace vokm

extern "C" {
CHOLESKY_BACK_SUBST_SINGLE(VOKM_SINGLE_KERNELS)
CHOLESKY_BACK_SUBST_ARRAY(VOKM_ARRAY_KERNELS)
CHOLESKY_BACK_SUBST_SINGLE(VOKM_SINGLE_EXPORTS)
CHOLESKY_BACK_SUBST_ARRAY(VOKM_ARRAY_EXPORTS)
}
