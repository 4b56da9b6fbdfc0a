// What all products have in common, matrix times matrix and matrix times vector: sizes and checks of a form, and the
// arithmetic on tiles. A vector is a matrix of one column, kept as a tile of one row; a transposed operand is a property of its
// view.
#pragma once

#include "../frame/fixed.h"
#include "../frame/overlap.h"
#include "../frame/row.h"
#include "../frame/stamp.h"
#include "../frame/sums.h"

namespace vokm {

constexpr Orders productOrders{"NCZMS", "NCZMSO", "NCZMSO"}, productSingleOrders{"NZMS", "NZMO", ""};
constexpr Limits productLimits{byRows(36864, 18432), always(9216), always(18432)};

/// The sizes of a form as the product sees them. The size arguments are src1Width, src1Height, then src2Width, src2Height or
/// src2Len; matrices count as they are stored.
template <Code c1, Code c2> struct ProductForm {
    template <class I> static constexpr I rows(const I* s) { return isTransposed(c1) ? s[0] : s[1]; }
    template <class I> static constexpr I inner(const I* s) { return isTransposed(c1) ? s[1] : s[0]; }
    template <class I> static constexpr I inner2(const I* s) { return isMatrix(c2) && !isTransposed(c2) ? s[3] : s[2]; }
    template <class I> static constexpr I cols(const I* s) { return !isMatrix(c2) ? I(1) : isTransposed(c2) ? s[3] : s[2]; }

    static bool mismatch(const i32* s) { return inner(s) != inner2(s); }
    /// The elements of all operands, those of arrays once for each object.
    static Wrap work(const Wrap* s, Wrap n)
    {
        const auto times = [n](Code code) { return isArray(code) ? n : Wrap(1); };
        const Wrap second = isMatrix(c2) ? s[2] * s[3] : s[2];
        return s[0] * s[1] * times(c1) + second * times(c2) + rows(s) * cols(s) * n;
    }
    static constexpr Row row()
    {
        if (!isArray(c1) && !isArray(c2)) return {productSingleOrders, productSingleOrders, {}, nullptr, mismatch};
        return {productOrders, productOrders, productLimits, work, mismatch};
    }
};

/// The sum of a row's products in a kernel's order. Three are summed left to right in all of them, and in the order of even and
/// odd terms the last of five rows differs from the others.
template <Order order, class V, int n> VOKM_INLINE V sumOfRow(const V (&p)[n], int r)
{
    if constexpr (n == 3 && order != Order::rising) return sum<Order::chain>(p);
    if constexpr (n == 5 && order == Order::evenOdd) return r == 4 ? sum<Order::evenOdd>(p) : sum<Order::mixed>(p);
    return sum<order>(p);
}

/// d = x * y. Whole tiles: nothing is stored before all is read.
template <Order order, class V, int n, int m> VOKM_INLINE void multiply(const V (&x)[n][n], const V (&y)[m][n], V (&d)[m][n])
{
    constexpr bool vector = m == 1;
    for (int r = 0; r < n; ++r) {
        for (int c = 0; c < m; ++c) {
            V p[n];
            for (int k = 0; k < n; ++k) p[k] = x[r][k] * (vector ? y[0][k] : y[k][c]);
            (vector ? d[0][r] : d[r][c]) = sumOfRow<order>(p, r);
        }
    }
}
/// The same, shared by the kernels that spend more on gathering elements than on a call.
template <Order order, class V, int n, int m> [[gnu::noinline]] void multiplyAside(const V (&x)[n][n], const V (&y)[m][n], V (&d)[m][n])
{
    multiply<order>(x, y, d);
}

/// No third operand.
struct NoAddend {
    static constexpr bool array = true;
    using element = void;
};
template <class A> constexpr bool isAddend = !std::is_same_v<A, NoAddend>;

template <int n, class C> VOKM_INLINE auto pinnedAddend(const C& c)
{
    if constexpr (isAddend<C>) {
        return pinned<1, n>(c);
    } else {
        return c;
    }
}

/// dst = a * b, or a * b + c, for square matrices of size n: in packs where the order of the objects cannot be seen.
template <Order order, int n, class T, class A, class B, class C, class D>
VOKM_INLINE void productsOfTiles(const A& a, const B& b, const C& c, const D& dst, i32 count)
{
    constexpr int m = isMatrix(B::code) ? n : 1;
    constexpr Shape whole{n, n}, other{m, n};
    const auto pa = pinned<n, n>(a);
    const auto pb = pinned<m, n>(b);
    const auto pc = pinnedAddend<n>(c);
    const auto pd = pinned<m, n>(dst);
    const bool packs = D::array && count >= packLanes<T>;
    const HeldIfSingle<T, n, n, A> heldA(a, packs);
    const HeldIfSingle<T, m, n, B> heldB(b, packs);
    const HeldIfSingle<T, 1, n, C> heldC(c, packs);
    const auto body = [&](auto as, i32 i) VOKM_INLINE_LAMBDA {
        using V = typename decltype(as)::type;
        V x[n][n], y[m][n], d[m][n];
        loadOrHeld(x, pa, heldA, i);
        loadOrHeld(y, pb, heldB, i);
        if constexpr (D::dense || n == 3) {
            multiply<order>(x, y, d);
        } else {
            multiplyAside<order>(x, y, d);
        }
        if constexpr (isAddend<C>) {
            V z[1][n];
            loadOrHeld(z, pc, heldC, i);
            for (int r = 0; r < n; ++r) d[0][r] = d[0][r] + z[0][r];
        }
        store(d, pd, i);
    };
    if constexpr (!D::array) {
        body(As<T>{}, 0);
    } else {
        const auto guard = lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA {
            const Shaped<D> results{dst, other};
            const Shaped<A> first{a, whole};
            const Shaped<B> second{b, other};
            if constexpr (isAddend<C>) {
                return packGuard(count, results, first, second, Shaped<C>{c, other});
            } else {
                return packGuard(count, results, first, second);
            }
        });
        walkGuarded<T>(count, guard, body);
    }
}

}  // namespace vokm
