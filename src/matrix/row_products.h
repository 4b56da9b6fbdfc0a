// Products of square matrices with contiguous rows, by rows in registers: each row of the result is a sum of the second
// matrix's rows, scaled by the elements of a row of the first. Lanes are columns, so that every element is summed left to right.
// A row is stored before the next one of the first matrix is read.
#pragma once

#include "../frame/row_registers.h"
#include "multiply.h"

namespace vokm {

/// The first operand, element by element in all lanes: spread once if it is a single one, else as the product goes.
template <class T, int n, class View> struct SpreadFirst {
    Pack<T> at[n][n];
    VOKM_INLINE explicit SpreadFirst(const View& view)
    {
        const auto object = view.object(0, Shape{n, n});
        for (int r = 0; r < n; ++r) {
            for (int k = 0; k < n; ++k) at[r][k] = splat<Pack<T>>(object(r, k));
        }
    }
    VOKM_INLINE auto object(i32) const
    {
        return [this](int r, int k) VOKM_INLINE_LAMBDA { return at[r][k]; };
    }
};
template <class T, int n, class View> struct FirstAlong {
    const View& view;
    VOKM_INLINE auto object(i32 i) const
    {
        return [x = view.object(i, Shape{n, n})](int r, int k) VOKM_INLINE_LAMBDA { return splat<Pack<T>>(x(r, k)); };
    }
};

template <Order order, class T, int n, class X, class Z>
VOKM_INLINE void rowProduct(const X& x, const RowRegisters<T, n> (&rows)[n], const Z& z)
{
    constexpr int size = rowRegisters<T, n>;
    for (int r = 0; r < n; ++r) {
        RowRegisters<T, n> s;
        for (int k = 0; k < n; ++k) {
            const Pack<T> spread = x(r, k);
            for (int j = 0; j < size; ++j) {
                const Pack<T> p = spread * rows[k].at[j];
                s.at[j] = k > 0 ? s.at[j] + p : order == Order::rising ? Pack<T>{} + p : p;
            }
        }
        s.store(&z(r, 0));
    }
}

template <Order order, int n, class T, class A, class B, class D>
VOKM_INLINE void productsOfRows(const A& a, const B& b, const D& dst, i32 count)
{
    constexpr Shape shape{n, n};
    const std::conditional_t<A::array || !D::array, FirstAlong<T, n, A>, SpreadFirst<T, n, A>> first{a};
    RowRegisters<T, n> rows[n];
    if constexpr (!B::array) loadRows(rows, b.object(0, shape));
    for (i32 i = 0; i < count; ++i) {
        if constexpr (B::array) loadRows(rows, b.object(i, shape));
        rowProduct<order>(first.object(i), rows, dst.object(i, shape));
    }
}

}  // namespace vokm
