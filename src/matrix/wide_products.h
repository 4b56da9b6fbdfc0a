// Products of one matrix of contiguous rows with an array of vectors without gaps, in the widest packs: an object in each lane,
// the sum of each row in the kernel's order.
#pragma once

#include "../frame/wide_pack.h"
#include "multiply.h"

namespace vokm {

/// A third vector, or nothing.
template <int n, class C> struct WideAddend : WideRuns<n, C> {
    using WideRuns<n, C>::WideRuns;
};
template <int n> struct WideAddend<n, NoAddend> {
    explicit WideAddend(const NoAddend&) {}
};

/// As many leading objects as fill whole packs, if the results lie apart from the sources; returns how many.
template <Order order, int n, class A, class B, class C, class D>
VOKM_INLINE i32 leadingProducts(const Operands<n, A, B, C, D>& of, i32 count)
{
    using T = typename D::element;
    using V = WidePack<T>;
    constexpr i32 N = wideLanes<T>;
    const Shaped<D> results{of.d, of.other};
    if (!widestRegisters() || count < N || !isTight<1, n>(of.b) || !isTight<1, n>(of.d)) return 0;
    if (!wholesApart(count, results, Shaped<B>{of.b, of.other})) return 0;
    if constexpr (isAddend<C>) {
        if (!isTightOrSingle<1, n>(of.c) || !wholesApart(count, results, Shaped<C>{of.c, of.other})) return 0;
    }
    struct {
        T at[n][n];
    } square;
    load(square.at, of.a, 0);
    packsWide(count / N, [square, y = WideRuns<n, B>(of.b), z = WideAddend<n, C>(of.c), to = of.d.base](i64 p) VOKM_INLINE_LAMBDA {
        V vector[n]{}, addend[n]{}, d[n];
        y(vector, p);
        if constexpr (isAddend<C>) z(addend, p);
        for (int r = 0; r < n; ++r) {
            V products[n];
            for (int k = 0; k < n; ++k) products[k] = square.at[r][k] * vector[k];
            d[r] = sumOfRow<order>(products, r);
            if constexpr (isAddend<C>) d[r] = d[r] + addend[r];
        }
        storeWide<n>(d, to + p * (n * N));
    });
    return count / N * N;
}

}  // namespace vokm
