// What all products have in common, matrix times matrix and matrix times vector: sizes and checks of a form, and the
// arithmetic on tiles. A vector is a matrix of one column, kept as a tile of one row; a transposed operand is a property of its
// view.
#pragma once

#include "../frame/fixed.h"
#include "../frame/overlap.h"
#include "../frame/row.h"
#include "../frame/row_registers.h"
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
/// No third operand.
struct NoAddend {
    static constexpr bool array = true, dense = true;
    using element = void;
};
template <class A> constexpr bool isAddend = !std::is_same_v<A, NoAddend>;

/// Whether an operand is a tight array, or a single operand, which is read once and doesn't count.
template <int R, int C, class View> VOKM_INLINE bool isTightOrSingle(const View& view)
{
    if constexpr (View::array) return isTight<R, C>(view);
    return true;
}
template <int R, int C, class View> VOKM_INLINE auto tightIfArray(const View& view)
{
    if constexpr (mayBeTight<View>) {
        return asTight<R, C>(view);
    } else {
        return view;
    }
}

template <class View> VOKM_INLINE bool isPlanarOrSingle(const View& view)
{
    if constexpr (View::array) return planar(view);
    return true;
}
template <class View> VOKM_INLINE auto planarIfArray(const View& view)
{
    if constexpr (View::array && requires { view.stride0; }) {
        return PlanarView<View>{view};
    } else {
        return view;
    }
}

/// The operands of a product of square matrices of size n: d = a * b, or a * b + c.
template <int n, class A, class B, class C, class D> struct Operands {
    using T = typename D::element;
    static constexpr int m = isMatrix(B::code) ? n : 1;
    static constexpr Shape square{n, n}, other{m, n};
    A a;
    B b;
    C c;
    D d;

    /// The guard of a walk in packs, made if there are enough objects for one.
    VOKM_INLINE auto guard(i32 count) const
    {
        return lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA {
            const Shaped<D> results{d, other};
            if constexpr (isAddend<C>) {
                return packGuard(count, results, Shaped<A>{a, square}, Shaped<B>{b, other}, Shaped<C>{c, other});
            } else {
                return packGuard(count, results, Shaped<A>{a, square}, Shaped<B>{b, other});
            }
        });
    }
    VOKM_INLINE bool tight() const
    {
        return isTightOrSingle<n, n>(a) && isTightOrSingle<m, n>(b) && isTight<m, n>(d) && tightAddend();
    }
    VOKM_INLINE auto asTight() const
    {
        return with(tightIfArray<n, n>(a), tightIfArray<m, n>(b), tightIfArray<1, n>(c), tightIfArray<m, n>(d));
    }
    VOKM_INLINE bool planes() const
    {
        if constexpr (isAddend<C>) {
            if (!isPlanarOrSingle(c)) return false;
        }
        return isPlanarOrSingle(a) && isPlanarOrSingle(b) && planar(d);
    }
    VOKM_INLINE auto asPlanes() const { return with(planarIfArray(a), planarIfArray(b), planarIfArray(c), planarIfArray(d)); }
    VOKM_INLINE auto asPinned() const { return with(pinned<n, n>(a), pinned<m, n>(b), pinnedAddend(), pinned<m, n>(d)); }

    template <class A2, class B2, class C2, class D2> VOKM_INLINE static auto with(const A2& a2, const B2& b2, const C2& c2, const D2& d2)
    {
        return Operands<n, A2, B2, C2, D2>{a2, b2, c2, d2};
    }
    VOKM_INLINE bool tightAddend() const
    {
        if constexpr (isAddend<C>) return isTightOrSingle<1, n>(c);
        return true;
    }
    VOKM_INLINE auto pinnedAddend() const
    {
        if constexpr (isAddend<C>) {
            return pinned<1, n>(c);
        } else {
            return c;
        }
    }
};

/// The single operands, read before the walk.
template <int n, class A, class B, class C, class D> struct HeldOperands {
    using Of = Operands<n, A, B, C, D>;
    using T = typename D::element;
    HeldIfSingle<T, n, n, A> a;
    HeldIfSingle<T, Of::m, n, B> b;
    HeldIfSingle<T, 1, n, C> c;
    VOKM_INLINE HeldOperands(const Of& of, bool packs) : a(of.a, packs), b(of.b, packs), c(of.c, packs) {}
};

/// Object i, or the pack of objects from i on, in whole tiles.
template <Order order, class V, int n, class A, class B, class C, class D, class Held>
VOKM_INLINE void productOfTiles(const Operands<n, A, B, C, D>& of, const Held& held, i32 i)
{
    constexpr int m = isMatrix(B::code) ? n : 1;
    V x[n][n], y[m][n], d[m][n];
    loadOrHeld(x, of.a, held.a, i);
    loadOrHeld(y, of.b, held.b, i);
    multiply<order>(x, y, d);
    if constexpr (isAddend<C>) {
        V z[1][n];
        loadOrHeld(z, of.c, held.c, i);
        for (int r = 0; r < n; ++r) d[0][r] = d[0][r] + z[0][r];
    }
    store(d, of.d, i);
}

/// One element of object i, or of the pack from i on, or of the held single operand.
template <class V, class View, class H>
VOKM_INLINE V elementOrHeld(const View& view, const H& held, i32 i, Shape shape, int r, int c)
{
    if constexpr (!View::array) {
        return held.template at<V>(r, c);
    } else if constexpr (isPlanarView<View>) {
        return loadLanes<V>(&view.object(i, shape)(r, c));
    } else if constexpr (isPack<V>) {
        return gather<V>(view, i, shape, r, c);
    } else {
        return view.object(i, shape)(r, c);
    }
}

/// The same for elements that are loaded one by one: a row of `a` at a time. `streamed`: over planes, a row of the result is
/// stored before the next one of `a` is read, which must not lie where it is stored.
template <Order order, class V, bool streamed, int n, class A, class B, class C, class D, class Held>
VOKM_INLINE void productRowByRow(const Operands<n, A, B, C, D>& of, const Held& held, i32 i)
{
    constexpr int m = isMatrix(B::code) ? n : 1;
    V y[m][n], d[m][n];
    for (int r = 0; r < m; ++r) {
        for (int k = 0; k < n; ++k) y[r][k] = elementOrHeld<V>(of.b, held.b, i, of.other, r, k);
    }
    for (int r = 0, end = n > 3 ? rolled(n) : n; r < end; ++r) {
        V row[n];
        for (int k = 0; k < n; ++k) row[k] = elementOrHeld<V>(of.a, held.a, i, of.square, r, k);
        for (int c = 0; c < m; ++c) {
            V p[n];
            for (int k = 0; k < n; ++k) p[k] = row[k] * (m == 1 ? y[0][k] : y[k][c]);
            V s = settled(sumOfRow<order>(p, r));
            if constexpr (isAddend<C>) s = s + elementOrHeld<V>(of.c, held.c, i, of.other, 0, r);
            if constexpr (streamed) {
                storeLanes(&of.d.object(i, of.square)(r, c), s);
            } else {
                (m == 1 ? d[0][r] : d[r][c]) = s;
            }
        }
    }
    if constexpr (!streamed) store(d, of.d, i);
}

/// Calls body(operands) with the operands as they are or, if all arrays are without gaps, as tight ones.
template <class Of, class Body> VOKM_INLINE void preferTight(const Of& of, Body body)
{
    if constexpr (mayBeTight<std::decay_t<decltype(of.d)>>) {
        if (of.tight()) return body(of.asTight());
    }
    body(of);
}

/// By tiles, for dense operands: in packs where the order of the objects cannot be seen, else one by one.
template <Order order, int n, class A, class B, class C, class D>
VOKM_INLINE void productsOfTiles(const Operands<n, A, B, C, D>& of, i32 count)
{
    using T = typename D::element;
    const HeldOperands<n, A, B, C, D> held(of, D::array && count >= packLanes<T>);
    if constexpr (!D::array) {
        productOfTiles<order, T>(of, held, 0);
    } else {
        const auto guard = of.guard(count);
        preferTight(of, [&](const auto& these) VOKM_INLINE_LAMBDA {
            walkGuarded<T>(count, guard, [&](auto as, i32 i) VOKM_INLINE_LAMBDA {
                productOfTiles<order, typename decltype(as)::type>(these, held, i);
            });
        });
    }
}

/// Row by row, for operands of any stride and behind tables.
template <Order order, int n, class A, class B, class C, class D>
VOKM_INLINE void productsRowByRow(const Operands<n, A, B, C, D>& of, i32 count)
{
    using T = typename D::element;
    using V = Pack<T>;
    const HeldOperands<n, A, B, C, D> held(of, D::array && count >= packLanes<T>);
    if constexpr (!D::array) {
        productRowByRow<order, T, false>(of, held, 0);
    } else {
        const auto guard = of.guard(count);
        const auto pins = of.asPinned();
        const auto walk = [&](auto pack) VOKM_INLINE_LAMBDA {
            walkGuarded<T>(count, guard, [&](auto as, i32 i) VOKM_INLINE_LAMBDA {
                if constexpr (isPack<typename decltype(as)::type>) {
                    pack(i);
                } else {
                    productRowByRow<order, T, false>(pins, held, i);
                }
            });
        };
        if constexpr (!isList<D>) {
            if (count >= packLanes<T> && pins.planes()) {
                const auto planes = pins.asPlanes();
                if (isMatrix(B::code) && separate(count, Shaped<D>{of.d, of.other}, Shaped<A>{of.a, of.square})) {
                    walk([&](i32 i) VOKM_INLINE_LAMBDA { productRowByRow<order, V, isMatrix(B::code)>(planes, held, i); });
                } else {
                    walk([&](i32 i) VOKM_INLINE_LAMBDA { productRowByRow<order, V, false>(planes, held, i); });
                }
                return;
            }
        }
        walk([&](i32 i) VOKM_INLINE_LAMBDA { productRowByRow<order, V, false>(pins, held, i); });
    }
}

}  // namespace vokm
