// Products of square matrices without gaps in the widest registers: as many rows of the result side by side as a register
// holds whole. Each is a sum of the second matrix's rows, scaled by the elements of its own row of the first. Lanes are elements
// of the result, so that each is summed left to right, as by rows in narrow registers.
#pragma once

#include "multiply.h"
#include "wide_registers.h"

namespace vokm {

/// How the rows of matrices of size n lie in registers: `together` of them in each, but for the last one, which has the rest.
template <class T, int n> struct RowsInWide {
    static constexpr int N = wideLanes<T>, together = std::min(n, N / n), registers = (n + together - 1) / together;
    static constexpr int rows(int h) { return std::min(together, n - h * together); }
    /// The place of a lane among the rows of its register; lanes behind the rows go with the first one.
    static constexpr int row(int lane) { return lane < together * n ? lane / n : 0; }
    static constexpr int column(int lane) { return lane < together * n ? lane % n : 0; }
};

/// Element k of each lane's own row.
template <class T, int n, int k> struct OfOwnRow {
    static constexpr int of(int l) { return RowsInWide<T, n>::row(l) * n + k; }
};
/// Of a column that is stored as a row: the element of each lane's own row, in register h.
template <class T, int n, int h> struct OfStoredColumn {
    static constexpr int of(int l) { return std::min(h * RowsInWide<T, n>::together + RowsInWide<T, n>::row(l), n - 1); }
};
/// Row k again and again: of the whole matrix, which may be stored transposed, or (k = 0) of its row alone.
template <class T, int n, int k, bool transposed> struct OfEachRow {
    static constexpr int of(int l)
    {
        const int column = RowsInWide<T, n>::column(l);
        return transposed ? column * n + k : k * n + column;
    }
};

/// The first operand: of each lane's row of register h, element k. Single operands are given as they are read, untransposed.
template <class T, int n, bool array, bool transposed> struct WideFirst {
    using In = RowsInWide<T, n>;
    const T* base;
    WidePack<T> at[transposed ? n : In::registers]{};

    VOKM_WIDE_INLINE void load(i64 i)
    {
        const T* const object = base + (array ? i * (n * n) : 0);
        [&]<int... h>(std::integer_sequence<int, h...>) VOKM_WIDE_LAMBDA
        {
            (loadFirst < transposed ? n : In::rows(h) * n > (at[h], object + h * (transposed ? n : In::together * n)), ...);
        }
        (std::make_integer_sequence < int, transposed ? n : In::registers > {});
    }
    template <int h, int k> VOKM_WIDE_INLINE void spread(WidePack<T>& to) const
    {
        using Map = std::conditional_t<transposed, OfStoredColumn<T, n, h>, OfOwnRow<T, n, k>>;
        pick<Map>(to, reinterpret_cast<const WidePack<T>(&)[1]>(at[transposed ? k : h]));
    }
};
/// With one row a register, each element goes from memory to all lanes.
template <class T, int n, bool array, bool transposed>
requires(RowsInWide<T, n>::together == 1) struct WideFirst<T, n, array, transposed> {
    const T *base, *object = base;
    VOKM_WIDE_INLINE void load(i64 i) { object = base + (array ? i * (n * n) : 0); }
    template <int h, int k> VOKM_WIDE_INLINE void spread(WidePack<T>& to) const
    {
        to = object[transposed ? k * n + h : h * n + k] - WidePack<T>{};
    }
};

/// The second operand: each row once for every row of a register.
template <class T, int n, bool array, bool transposed> struct WideSecond {
    using In = RowsInWide<T, n>;
    const T* base;
    WidePack<T> rows[n]{};

    VOKM_WIDE_INLINE void load(i64 i)
    {
        const T* const object = base + (array ? i * (n * n) : 0);
        constexpr bool whole = transposed || n * n <= In::N;
        constexpr int size = whole ? (n * n + In::N - 1) / In::N : n, step = whole ? In::N : n;
        WidePack<T> stored[size];
        [&]<int... s>(std::integer_sequence<int, s...>) VOKM_WIDE_LAMBDA
        {
            (loadFirst<std::min(step, n * n - s * step)>(stored[s], object + s * step), ...);
        }
        (std::make_integer_sequence<int, size>{});
        [&]<int... k>(std::integer_sequence<int, k...>) VOKM_WIDE_LAMBDA
        {
            if constexpr (whole) {
                (pick<OfEachRow<T, n, k, transposed>>(rows[k], stored), ...);
            } else if constexpr (In::together == 1) {
                ((rows[k] = stored[k]), ...);
            } else {
                (pick<OfEachRow<T, n, 0, false>>(rows[k], reinterpret_cast<const WidePack<T>(&)[1]>(stored[k])), ...);
            }
        }
        (std::make_integer_sequence<int, n>{});
    }
};

template <Order order, int k, class V> VOKM_INLINE void addProduct(V& s, const V& x, const V& y)
{
    const V p = x * y;
    s = k > 0 ? s + p : order == Order::rising ? V{} + p : p;
}

template <Order order, class T, int n, int h, class X, class Y, int... k>
VOKM_WIDE_INLINE void wideRow(const X& x, const Y& y, T* to, std::integer_sequence<int, k...>)
{
    using In = RowsInWide<T, n>;
    WidePack<T> s, spread[n];
    (x.template spread<h, k>(spread[k]), ...);
    (addProduct<order, k>(s, spread[k], y.rows[k]), ...);
    storeFirst<In::rows(h) * n>(to + h * (In::together * n), s);
    if constexpr (h + 1 < In::registers) wideRow<order, T, n, h + 1>(x, y, to, std::make_integer_sequence<int, n>{});
}

template <Order order, int n, bool first, bool second, class T, bool transposed1, bool transposed2>
[[gnu::target(VOKM_WIDEST), VOKM_OUT_OF_LINE]] void wideProducts(const T* a, const T* b, T* to, i64 count)
{
    WideFirst<T, n, first, transposed1> x{a};
    WideSecond<T, n, second, transposed2> y{b};
    if (!first) x.load(0);
    if (!second) y.load(0);
    for (i64 i = 0; i < count; ++i, to += n * n) {
        if (first) x.load(i);
        if (second) y.load(i);
        wideRow<order, T, n, 0>(x, y, to, std::make_integer_sequence<int, n>{});
    }
}

/// An array without gaps as it is, a single operand as a copy.
template <int n, class View> struct WideMatrix {
    using T = std::remove_const_t<typename View::element>;
    T copy[n][n];
    VOKM_INLINE explicit WideMatrix(const View& view)
    {
        if constexpr (!View::array) load(copy, view, 0);
    }
    VOKM_INLINE const T* of(const View& view) const
    {
        if constexpr (View::array) return view.base;
        return copy[0];
    }
};

/// All objects, if the registers are there and the results lie apart from the sources; else false and nothing is done.
template <Order order, int n, class A, class B, class D>
VOKM_INLINE bool allWide(const Operands<n, A, B, NoAddend, D>& of, i32 count)
{
    using T = typename D::element;
    const Shaped<D> results{of.d, of.square};
    if (!widestRegisters() || count < 2 || !of.tight()) return false;
    if (!wholesApart(count, results, Shaped<A>{of.a, of.square}) || !wholesApart(count, results, Shaped<B>{of.b, of.square}))
        return false;
    const WideMatrix<n, A> a(of.a);
    const WideMatrix<n, B> b(of.b);
    wideProducts<order, n, A::array, B::array, T, A::array && isTransposed(A::code), B::array && isTransposed(B::code)>(
        a.of(of.a), b.of(of.b), of.d.base, count);
    return true;
}

}  // namespace vokm
