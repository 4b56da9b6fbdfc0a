// Products of square matrices with contiguous rows and vectors, with rows of the matrix in the lanes of a register: each lane is
// the sum of one row, in the kernel's order.
#pragma once

#include "../frame/row_registers.h"
#include "multiply.h"

namespace vokm {

/// How a product of a matrix of size n and a vector goes. Objects of a list have addresses of their own each, so that a guard
/// costs more than packs save: they go one by one.
enum class VectorWay {
    tiles,     // contiguous rows: objects in lanes, packs where they may
    columns,   // contiguous rows: rows in lanes, the columns of the single matrix in registers
    dots,      // contiguous rows: rows in lanes, turned from their products with the vector
    elements,  // anything else: row by row, packs where they may
};
template <class T, int n, class A, class D> constexpr VectorWay vectorWayOf()
{
    if (!D::dense) return VectorWay::elements;
    if (!D::array) return VectorWay::tiles;
    if (!A::array) return isList<D> || (sizeof(T) == 4 ? n == 4 : n > 3) ? VectorWay::columns : VectorWay::tiles;
    return isTransposed(A::code) || (n == 3 && sizeof(T) == 4 && !isList<D>) ? VectorWay::tiles : VectorWay::dots;
}

template <Order order, int n, class A, class B, class C, class D>
VOKM_INLINE void productsOfColumns(const Operands<n, A, B, C, D>& of, i32 count)
{
    using T = typename D::element;
    using Vector = RowRegisters<T, n>;
    constexpr int N = packLanes<T>;
    Vector columns[n], addend;
    loadColumns(columns, of.a.object(0, of.square));
    if constexpr (!C::array) addend.load(&of.c.object(0, of.other)(0, 0));
    preferTight(of, [&](const auto& these) VOKM_INLINE_LAMBDA {
        for (i32 i = 0; i < count; ++i) {
            const auto y = these.b.object(i, of.other);
            Vector whole, s;
            Pack<T> spread[n];
            if constexpr (sizeof(T) == 4) whole.load(&y(0, 0));
            unrolled<n>([&](auto index) VOKM_INLINE_LAMBDA {
                constexpr int k = decltype(index)::value;
                if constexpr (sizeof(T) == 4) {
                    spread[k] = spreadLane<k % N>(whole.at[k / N]);
                } else {
                    spread[k] = splat<Pack<T>>(y(0, k));
                }
            });
            if constexpr (isAddend<C> && C::array) addend.load(&these.c.object(i, of.other)(0, 0));
            for (int j = 0; j < Vector::size; ++j) {
                Pack<T> p[n];
                for (int k = 0; k < n; ++k) p[k] = spread[k] * columns[k].at[j];
                s.at[j] = sumOfRow<order>(p, j * N);
                if constexpr (isAddend<C>) s.at[j] = s.at[j] + addend.at[j];
            }
            s.store(&these.d.object(i, of.other)(0, 0));
        }
    });
}

/// The sums of four rows of n terms. Orders that keep neighbours, or even and odd terms, apart are formed across the registers
/// of two rows at a time, with fewer shuffles than turning all terms takes.
template <Order order, int n, class Source> VOKM_INLINE auto sumsOfRows(const Source& from, int first)
{
    using V = decltype(from.four(0, 0));
    if constexpr (lanesIn<V> == 4 && order == Order::evenOdd && n > 3) {
        const bool neighbours = n == 5 && first < 4;  // of five, only the last row is summed by even and odd terms
        const auto half = [&](int a, int b) VOKM_INLINE_LAMBDA {
            const V p = from.four(a, 0), q = from.four(b, 0);
            if (neighbours) return __builtin_shufflevector(p, q, 0, 2, 4, 6) + __builtin_shufflevector(p, q, 1, 3, 5, 7);
            const V s = __builtin_shufflevector(p, q, 0, 1, 4, 5) + __builtin_shufflevector(p, q, 2, 3, 6, 7);
            if constexpr (n == 6) return s + from.pairs(a, b, 4);
            return s;
        };
        const V low = half(0, 1), high = half(2, 3);
        V s = __builtin_shufflevector(low, high, 0, 2, 4, 6);
        if constexpr (n == 5) s = s + fromLanes<V>([&](int lane) VOKM_INLINE_LAMBDA { return from.one(lane, 4); });
        return s + __builtin_shufflevector(low, high, 1, 3, 5, 7);
    } else {
        V p[n];
        turnRuns<n>(p, from, false);
        return sumOfRow<order>(p, first);
    }
}

/// The vector of object i; a single one is held.
template <class Of, class Held> VOKM_INLINE auto vectorOf(const Of& of, const Held& held, i32 i)
{
    if constexpr (decltype(of.b)::array) {
        return &of.b.object(i, of.other)(0, 0);
    } else {
        return &held.one[0][0];
    }
}

/// One object; lanes without a row take the last one again.
template <Order order, int n, class A, class B, class C, class D, class Held>
VOKM_INLINE void objectOfDots(const Operands<n, A, B, C, D>& of, const Held& held, i32 i)
{
    using T = typename D::element;
    constexpr int N = packLanes<T>;
    const auto x = of.a.object(i, of.square);
    RowRegisters<T, n> s;
    for (int j = 0; j < s.size; ++j) {
        FetchProducts<T> from;
        for (int lane = 0; lane < N; ++lane) {
            from.a.at[lane] = &x(j * N + lane < n ? j * N + lane : n - 1, 0);
            from.b.at[lane] = vectorOf(of, held, i);
        }
        s.at[j] = settled(sumsOfRows<order, n>(from, j * N));
    }
    s.store(&of.d.object(i, of.other)(0, 0));
}

/// A pack of objects. Their rows fill registers one after another: whole registers of each object first, then the rows that
/// are left over of all of them.
template <Order order, int n, class A, class B, class C, class D, class Held>
VOKM_INLINE void packOfDots(const Operands<n, A, B, C, D>& of, const Held& held, i32 i)
{
    using T = typename D::element;
    constexpr int N = packLanes<T>, full = n / N, rest = n % N, share = rest > 0 ? rest : 1;
    // The sums of N rows; object(lane), row(lane) say which.
    const auto dots = [&](int first, auto object, auto row) VOKM_INLINE_LAMBDA {
        FetchProducts<T> from;
        for (int lane = 0; lane < N; ++lane) {
            from.a.at[lane] = &of.a.object(i + object(lane), of.square)(row(lane), 0);
            from.b.at[lane] = vectorOf(of, held, i + object(lane));
        }
        return settled(sumsOfRows<order, n>(from, first));
    };
    Pack<T> whole[N][full + 1], across[rest + 1];
    for (int q = 0; q < N; ++q) {
        for (int j = 0; j < full; ++j) {
            whole[q][j] = dots(j * N, [=](int) { return q; }, [=](int lane) { return j * N + lane; });
        }
    }
    for (int j = 0; j < rest; ++j) {
        across[j] = dots(
            full * N, [=](int lane) { return (j * N + lane) / share; },
            [=](int lane) { return full * N + (j * N + lane) % share; });
    }
    const auto result = [&](int object, int r) VOKM_INLINE_LAMBDA { return &of.d.object(i + object, of.other)(0, r); };
    for (int q = 0; q < N; ++q) {
        for (int j = 0; j < full; ++j) storeLanes(result(q, j * N), whole[q][j]);
    }
    for (int j = 0; j < rest; ++j) {
        if (full == 0 && packedObjects<n>(of.d)) {
            storeLanes(result(0, 0) + j * N, across[j]);
        } else if constexpr (rest == 2) {
            storeHalves(result(2 * j, full * N), result(2 * j + 1, full * N), across[j]);
        } else {
            for (int lane = 0; lane < N; ++lane) {
                const int at = j * N + lane;
                *result(at / share, full * N + at % share) = across[j][lane];
            }
        }
    }
}

template <Order order, int n, class A, class B, class C, class D>
VOKM_INLINE void productsOfDots(const Operands<n, A, B, C, D>& of, i32 count)
{
    using T = typename D::element;
    const HeldOperands<n, A, B, C, D> held(of, false);
    if constexpr (isList<D>) {
        for (i32 i = 0; i < count; ++i) objectOfDots<order>(of, held.b, i);
    } else {
        const auto guard = of.guard(count);
        preferTight(of, [&](const auto& these) VOKM_INLINE_LAMBDA {
            walkGuarded<T>(count, guard, [&](auto as, i32 i) VOKM_INLINE_LAMBDA {
                if constexpr (isPack<typename decltype(as)::type>) {
                    packOfDots<order>(these, held.b, i);
                } else {
                    objectOfDots<order>(these, held.b, i);
                }
            });
        });
    }
}

}  // namespace vokm
