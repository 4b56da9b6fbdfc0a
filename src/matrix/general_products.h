// Products of any size: each element ascending from +0.0, one object after another.
#pragma once

#include "multiply.h"

namespace vokm {

/// A block of the result, `rows` times `cols` sums in registers: each element that is read serves several of them. V is the
/// element type, or a pack of neighbouring columns.
template <class V, int rows, int cols, class X, class Y, class Z>
VOKM_INLINE void block(const X& x, const Y& y, const Z& z, i32 r, i32 c, i32 inner)
{
    constexpr int N = lanesIn<V>;
    V s[rows][cols] = {};
    for (i32 k = 0; k < inner; ++k) {
        V b[cols];
        for (int j = 0; j < cols; ++j) b[j] = loadLanes<V>(&y(k, c + j * N));
        for (int i = 0; i < rows; ++i) {
            const V a = splat<V>(x(r + i, k));
            for (int j = 0; j < cols; ++j) s[i][j] = s[i][j] + a * b[j];
        }
    }
    for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < cols; ++j) storeLanes(&z(r + i, c + j * N), s[i][j]);
    }
}

/// Calls body(Fixed<rows>) for a rest of 1 to 3 rows.
template <class Body> VOKM_INLINE void restRows(i32 rest, Body body)
{
    if (rest == 1) body(Fixed<1>{});
    if (rest == 2) body(Fixed<2>{});
    if (rest == 3) body(Fixed<3>{});
}

/// Columns in lanes, for a second matrix with contiguous rows and results whose rows don't overlap.
template <class T, int rows, class X, class Y, class Z>
VOKM_INLINE void wideBand(const X& x, const Y& y, const Z& z, i32 r, i32 inner, i32 columns)
{
    using V = Pack<T>;
    constexpr int N = packLanes<T>;
    i32 c = 0;
    for (; c + 2 * N <= columns; c += 2 * N) block<V, rows, 2>(x, y, z, r, c, inner);
    for (; c + N <= columns; c += N) block<V, rows, 1>(x, y, z, r, c, inner);
    for (; c < columns; ++c) block<T, rows, 1>(x, y, z, r, c, inner);
}

/// One object with contiguous rows. Where rows of the result overlap, the order of the blocks can be seen: blocks of four rows
/// by pairs of columns, then the last odd column, then the rest rows, column by column.
template <class T, class X, class Y, class Z> [[gnu::noinline]] void denseProduct(X x, Y y, Z z, Shape result, i32 inner)
{
    const i32 R = result.rows, C = result.cols, whole = R & ~3;
    if constexpr (Y::unit == Unit::column) {
        if (z.rowStep >= C * i64(sizeof(T))) {
            for (i32 r = 0; r < whole; r += 4) wideBand<T, 4>(x, y, z, r, inner, C);
            restRows(R & 3, [&](auto rest) VOKM_INLINE_LAMBDA { wideBand<T, decltype(rest)::value>(x, y, z, whole, inner, C); });
            return;
        }
    }
    for (i32 r = 0; r < whole; r += 4) {
        for (i32 c = 0; c < (C & ~1); c += 2) block<T, 4, 2>(x, y, z, r, c, inner);
    }
    for (i32 r = 0; (C & 1) != 0 && r < whole; r += 4) block<T, 4, 1>(x, y, z, r, C - 1, inner);
    restRows(R & 3, [&](auto rest) VOKM_INLINE_LAMBDA {
        for (i32 c = 0; c < C; ++c) block<T, decltype(rest)::value, 1>(x, y, z, whole, c, inner);
    });
}

/// One object of any stride, or behind tables: element by element, row by row.
template <class T, class X, class Y, class Z> [[gnu::noinline]] void looseProduct(X x, Y y, Z z, Shape result, i32 inner)
{
    for (i32 r = 0; r < result.rows; ++r) {
        for (i32 c = 0; c < result.cols; ++c) block<T, 1, 1>(x, y, z, r, c, inner);
    }
}

template <class T, class A, class B, class D>
VOKM_INLINE void generalProducts(const A& a, const B& b, const D& dst, Shape result, i32 inner, i32 count)
{
    for (i32 i = 0; i < count; ++i) {
        const auto x = a.object(i, Shape{result.rows, inner});
        const auto y = b.object(i, Shape{inner, result.cols});
        const auto z = dst.object(i, result);
        if constexpr (D::dense) {
            denseProduct<T>(x, y, z, result, inner);
        } else {
            looseProduct<T>(x, y, z, result, inner);
        }
    }
}

/// Rows of a matrix times a vector, plus a third vector if there is one; `rows` sums at a time.
template <class V, int rows, class X, class Y, class C, class Z>
VOKM_INLINE void rowsTimesVector(const X& x, const Y& y, const C& c, const Z& z, i32 r, i32 inner)
{
    constexpr int N = lanesIn<V>;
    V s[rows] = {};
    for (i32 k = 0; k < inner; ++k) {
        const V b = splat<V>(y(0, k));
        for (int i = 0; i < rows; ++i) s[i] = s[i] + loadLanes<V>(&x(r + i * N, k)) * b;
    }
    for (int i = 0; i < rows; ++i) {
        if constexpr (isAddend<C>) s[i] = s[i] + loadLanes<V>(&c(0, r + i * N));
        storeLanes(&z(0, r + i * N), s[i]);
    }
}

template <class T, class X, class Y, class C, class Z>
[[gnu::noinline]] void matrixTimesVector(X x, Y y, C c, Z z, i32 height, i32 inner)
{
    i32 r = 0;
    if constexpr (X::unit == Unit::row && Z::unit == Unit::column) {  // neighbouring rows are neighbours in memory
        for (; r + 2 * packLanes<T> <= height; r += 2 * packLanes<T>) rowsTimesVector<Pack<T>, 2>(x, y, c, z, r, inner);
    }
    for (; r + 4 <= height; r += 4) rowsTimesVector<T, 4>(x, y, c, z, r, inner);
    for (; r < height; ++r) rowsTimesVector<T, 1>(x, y, c, z, r, inner);
}

template <class T, class A, class B, class C, class D>
VOKM_INLINE void generalVectors(const A& a, const B& b, const C& c, const D& dst, i32 height, i32 inner, i32 count)
{
    for (i32 i = 0; i < count; ++i) {
        const auto x = a.object(i, Shape{height, inner});
        const auto y = b.object(i, Shape{1, inner});
        const auto z = dst.object(i, Shape{1, height});
        if constexpr (isAddend<C>) {
            matrixTimesVector<T>(x, y, c.object(i, Shape{1, height}), z, height, inner);
        } else {
            matrixTimesVector<T>(x, y, c, z, height, inner);
        }
    }
}

}  // namespace vokm
