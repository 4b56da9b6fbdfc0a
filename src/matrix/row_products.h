// Products of square matrices with contiguous rows, by rows in registers: each row of the result is a sum of the second
// matrix's rows, scaled by the elements of a row of the first. Lanes are columns, so that every element is summed left to right.
// A row is stored before the next one of the first matrix is read.
#pragma once

#include "../frame/row_registers.h"
#include "multiply.h"

namespace vokm {

/// The first operand's row r, each element in all lanes: spread once if it is a single operand, else as the product goes.
template <class T, int n, class View> struct SpreadFirst {
    Pack<T> at[n][n];
    VOKM_INLINE explicit SpreadFirst(const View& view)
    {
        const auto object = view.object(0, Shape{n, n});
        for (int r = 0; r < n; ++r) {
            for (int k = 0; k < n; ++k) at[r][k] = splat<Pack<T>>(object(r, k));
        }
    }
    template <class These> VOKM_INLINE auto object(const These&, i32) const
    {
        return [this](int r) VOKM_INLINE_LAMBDA {
            return [this, r](auto k) VOKM_INLINE_LAMBDA { return at[r][decltype(k)::value]; };
        };
    }
};
template <class T, int n> struct FirstAlong {
    template <class View> VOKM_INLINE explicit FirstAlong(const View&) {}
    template <class View> VOKM_INLINE auto object(const View& view, i32 i) const
    {
        const auto x = view.object(i, Shape{n, n});
        using X = std::decay_t<decltype(x)>;
        return [x](int r) VOKM_INLINE_LAMBDA {
            if constexpr (X::unit == Unit::column && sizeof(T) == 4) {
                RowRegisters<T, n> row;
                row.load(&x(r, 0));
                return [row](auto k) VOKM_INLINE_LAMBDA {
                    constexpr int at = decltype(k)::value, N = packLanes<T>;
                    return spreadLane<at % N>(row.at[at / N]);
                };
            } else {
                return [x, r](auto k) VOKM_INLINE_LAMBDA { return splat<Pack<T>>(x(r, decltype(k)::value)); };
            }
        };
    }
};

template <Order order, class T, int n, class X, class Z>
VOKM_INLINE void rowProduct(const X& x, const RowRegisters<T, n> (&rows)[n], const Z& z)
{
    constexpr int size = rowRegisters<T, n>;
    for (int r = 0, end = n > 4 ? rolled(n) : n; r < end; ++r) {
        const auto row = x(r);
        RowRegisters<T, n> s;
        unrolled<n>([&](auto k) VOKM_INLINE_LAMBDA {
            constexpr int at = decltype(k)::value;
            const Pack<T> spread = row(k);
            for (int j = 0; j < size; ++j) {
                const Pack<T> p = spread * rows[at].at[j];
                s.at[j] = at > 0 ? s.at[j] + p : order == Order::rising ? Pack<T>{} + p : p;
            }
        });
        s.store(&z(r, 0));
    }
}

template <Order order, int n, class A, class B, class C, class D>
VOKM_INLINE void productsOfRows(const Operands<n, A, B, C, D>& of, i32 count)
{
    using T = typename D::element;
    using First = std::conditional_t<A::array || !D::array, FirstAlong<T, n>, SpreadFirst<T, n, A>>;
    const First first(of.a);
    RowRegisters<T, n> rows[n];
    if constexpr (!B::array) loadRows(rows, of.b.object(0, of.square));
    preferTight(of, [&](const auto& these) VOKM_INLINE_LAMBDA {
        for (i32 i = 0; i < count; ++i) {
            if constexpr (B::array) loadRows(rows, these.b.object(i, of.square));
            rowProduct<order>(first.object(these.a, i), rows, these.d.object(i, of.square));
        }
    });
}

}  // namespace vokm
