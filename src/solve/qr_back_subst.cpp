// vokmQRBackSubst: the reflections of a QR decomposition applied to b, then R*x = y from the bottom up.
//
//   step k: b(i) += v(i)*t, t = (b(k) + v(k+1)*b(k+1) + ...) * beta(k), beta(k) = -2 / (1 + v(k+1)^2 + ...), v(k) = 1
//
//   3 to 6 rows and columns   the first product stands before the head b(k); which one that is, and the order of the others, is
//                             a matter of the kernel. x(i) = (y(i) - r(i,n-1)*x(n-1) - ... - r(i,i+1)*x(i+1)) / r(i,i), but
//                             x(0) = (y(0) - (r(0,n-1)*x(n-1) + ... + r(0,1)*x(1))) / r(0,0)
//   else                      left to right as above, and x(i) = (y(i) - (r(i,i+1)*x(i+1) + ... + r(i,w-1)*x(w-1))) / r(i,i),
//                             the sum from 0
//
// No reciprocal stands for a division, and no diagonal is tested.
#include "qr.h"

#include "../frame/fixed.h"
#include "../frame/overlap.h"
#include "unrolled.h"

namespace vokm {

/// The order of the products of a step; the head stands second.
enum class Rows {
    ascending,    // k+1, k+2, ... n-1
    bottomFirst,  // n-1, k+1, ... n-2
    r4312,        // these, in step 0 of size 5
    r3412,
};
struct StepOrder {
    Rows first, others;  // of step 0, and of all others
};
/// Of sizes 3 to 6.
struct SolveOrders {
    StepOrder of[4];
};
constexpr StepOrder climbing{Rows::ascending, Rows::ascending}, bottomUp{Rows::bottomFirst, Rows::bottomFirst};
constexpr SolveOrders ordersDense{{climbing, bottomUp, bottomUp, bottomUp}};
constexpr SolveOrders ordersStrided{{climbing, bottomUp, {Rows::r4312, Rows::bottomFirst}, bottomUp}};
constexpr SolveOrders ordersOneMatrix{{climbing, climbing, climbing, climbing}};
constexpr SolveOrders ordersOneMatrixStrided{
    {climbing, climbing, {Rows::r3412, Rows::ascending}, {Rows::bottomFirst, Rows::ascending}}};

/// The orders of a kernel: vokmQRBackSubst_mva has its own.
template <Variant variant, bool oneMatrix> constexpr SolveOrders solveOrders()
{
    const bool strided = variant == Variant::S2 || variant == Variant::LS2;
    if (oneMatrix) return strided ? ordersOneMatrixStrided : ordersOneMatrix;
    return strided ? ordersStrided : ordersDense;
}

/// The row of product `which` in step k of size n.
constexpr int productRow(Rows rows, int n, int k, int which)
{
    constexpr int r4312[] = {4, 3, 1, 2}, r3412[] = {3, 4, 1, 2};
    switch (rows) {
    case Rows::ascending: return k + 1 + which;
    case Rows::bottomFirst: return which == 0 ? n - 1 : k + which;
    case Rows::r4312: return r4312[which];
    default: return r3412[which];
    }
}

/// ((p0 + head) + p1) + ... over the products p of the rows below k, in the order of `rows`.
template <Rows rows, class V, int n, int k, class Product> VOKM_INLINE V stepSum(V head, Product product)
{
    V sum = product(At<productRow(rows, n, k, 0)>{}) + head;
    over(At<1>{}, At<n - 1 - k>{},
        [&](auto which) VOKM_INLINE_LAMBDA { sum = sum + product(At<productRow(rows, n, k, decltype(which)::value)>{}); });
    return sum;
}

/// -2 / (1 + ...): bottom first in every kernel, but ascending in step 0 of size 3.
template <class V, int n, int k> VOKM_INLINE V stepScale(const V (&a)[n][n])
{
    constexpr Rows rows = n == 3 && k == 0 ? Rows::ascending : Rows::bottomFirst;
    return splat<V>(-2) / stepSum<rows, V, n, k>(splat<V>(1), [&](auto i) VOKM_INLINE_LAMBDA { return a[i][k] * a[i][k]; });
}

template <class V, int n> VOKM_INLINE void stepScales(V (&scales)[n - 1], const V (&a)[n][n])
{
    over(At<0>{}, At<n - 1>{}, [&](auto k) VOKM_INLINE_LAMBDA { scales[k] = stepScale<V, n, decltype(k)::value>(a); });
}

/// Solves in b.
template <SolveOrders orders, class V, int n> VOKM_INLINE void solveFixed(const V (&a)[n][n], const V (&scales)[n - 1], V (&b)[n])
{
    over(At<0>{}, At<n - 1>{}, [&](auto step) VOKM_INLINE_LAMBDA {
        constexpr int k = decltype(step)::value;
        constexpr StepOrder order = orders.of[n - 3];
        constexpr Rows rows = k == 0 ? order.first : order.others;
        const V t = scales[k] * stepSum<rows, V, n, k>(b[k], [&](auto i) VOKM_INLINE_LAMBDA { return b[i] * a[i][k]; });
        b[k] = b[k] + t;
        over(At<k + 1>{}, At<n>{}, [&](auto i) VOKM_INLINE_LAMBDA { b[i] = b[i] + a[i][k] * t; });
    });
    overBackwards(At<1>{}, At<n>{}, [&](auto i) VOKM_INLINE_LAMBDA {
        overBackwards(next(i), At<n>{}, [&](auto j) VOKM_INLINE_LAMBDA { b[i] = b[i] - a[i][j] * b[j]; });
        b[i] = b[i] / a[i][i];
    });
    V sum = a[0][n - 1] * b[n - 1];
    overBackwards(At<1>{}, At<n - 1>{}, [&](auto j) VOKM_INLINE_LAMBDA { sum = sum + a[0][j] * b[j]; });
    b[0] = (b[0] - sum) / a[0][0];
}

/// A single matrix with its scales, held over the walk.
template <class T, int n> struct HeldReflections {
    T one[n][n], scales[n - 1];
    Pack<T> spread[n][n], spreadScales[n - 1];
    template <class View> VOKM_INLINE HeldReflections(const View& view, bool packs)
    {
        load(one, view, 0);
        stepScales(scales, one);
        if (!packs) return;
        load(spread, view, 0);
        for (int k = 0; k < n - 1; ++k) spreadScales[k] = splat<Pack<T>>(scales[k]);
    }
};

template <SolveOrders orders, int n, class M, class B, class D>
VOKM_INLINE void solveAll(const M& src, const B& src2, const D& dst, i32 count)
{
    using T = typename D::element;
    const auto matrices = pinned<n, n>(src);
    const auto from = pinned<1, n>(src2);
    const auto to = pinned<1, n>(dst);
    const Shaped<B> shapedB{src2, {1, n}};
    const Shaped<D> x{dst, {1, n}};
    const auto solve = [&]<class V>(const V(&a)[n][n], const V(&scales)[n - 1], i32 i) VOKM_INLINE_LAMBDA {
        V b[1][n];
        load(b, from, i);
        solveFixed<orders>(a, scales, b[0]);
        store(b, to, i);
    };
    if constexpr (M::array) {
        const auto guard = lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA {
            return packGuard(count, x, shapedB, Shaped<M>{src, {n, n}});
        });
        walkGuarded<T>(count, guard, [&]<class V>(As<V>, i32 i) VOKM_INLINE_LAMBDA {
            V a[n][n], scales[n - 1];
            load(a, matrices, i);
            stepScales(scales, a);
            solve(a, scales, i);
        });
    } else {
        // The matrix is read once, so that results may fall on it.
        const HeldReflections<T, n> held(matrices, count >= packLanes<T>);
        const auto guard = lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA { return packGuard(count, x, shapedB); });
        walkGuarded<T>(count, guard, [&]<class V>(As<V>, i32 i) VOKM_INLINE_LAMBDA {
            if constexpr (isPack<V>) {
                solve(held.spread, held.spreadScales, i);
            } else {
                solve(held.one, held.scales, i);
            }
        });
    }
}

/// Through the buffer, with everything read anew for each object.
template <class A, class B, class D, class T>
VOKM_INLINE void solveGeneral(const A& a, T* buffer, const B& b, const D& x, Shape shape)
{
    const i32 w = shape.cols, h = shape.rows, steps = w == h ? w - 1 : w;
    for (i32 i = 0; i < h; ++i) buffer[i] = b(0, i);
    for (i32 k = 0; k < steps; ++k) {
        T q = 1, t = buffer[k];
        for (i32 i = k + 1; i < h; ++i) {
            const T v = a(i, k);
            t = t + buffer[i] * v;
            q = q + v * v;
        }
        t = t * (-2 / q);
        buffer[k] = buffer[k] + t;
        for (i32 i = k + 1; i < h; ++i) buffer[i] = buffer[i] + a(i, k) * t;
    }
    x(0, w - 1) = buffer[w - 1] / a(w - 1, w - 1);
    for (i32 i = w - 2; i >= 0; --i) {
        T s = 0;
        for (i32 j = i + 1; j < w; ++j) s = s + a(i, j) * x(0, j);
        x(0, i) = (buffer[i] - s) / a(i, i);
    }
}

template <Variant variant, class M, class B, class D, class T>
VOKM_INLINE vokStatus qrBackSubst(M src, T* buffer, B src2, D dst, Shape shape, i32 count)
{
    constexpr SolveOrders orders = solveOrders < variant, D::array && !M::array > ();
    onFixed(
        shape.rows == shape.cols ? shape.rows : 0,
        [&]<int n>(Fixed<n>) VOKM_INLINE_LAMBDA { solveAll<orders, n>(src, src2, dst, count); },
        [&]() VOKM_INLINE_LAMBDA {
            for (i32 i = 0; i < count; ++i) {
                solveGeneral(
                    src.object(i, shape), buffer, src2.object(i, {1, shape.rows}), dst.object(i, {1, shape.cols}), shape);
            }
        });
    return vokStatusOk;
}

}  // namespace vokm

extern "C" {
QR_BACK_SUBST_SINGLE(VOKM_SINGLE_KERNELS)
QR_BACK_SUBST_ARRAY(VOKM_ARRAY_KERNELS)
QR_BACK_SUBST_SINGLE(VOKM_SINGLE_EXPORTS)
QR_BACK_SUBST_ARRAY(VOKM_ARRAY_EXPORTS)
}
