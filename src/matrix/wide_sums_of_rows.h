// Products of arrays of matrices and vectors without gaps in the widest registers. All rows of all matrices are one run: a
// register holds the sums of as many rows as it has lanes, each in the kernel's order, and they are stored side by side.
#pragma once

#include "multiply.h"
#include "wide_registers.h"

namespace vokm {

/// Sums of five by pairs take the terms of two rows but the last ones side by side, and then the last ones of all rows: the pairs
/// are neighbours in even lanes. All others take the products as they follow one another.
template <Order order, int N, int n> constexpr bool inHeads = N == 8 && n == 5 && order == Order::pairwise;

/// Which element of the vectors goes with lane l of register j of row block q, counted over the vectors of a block of N objects.
/// A single vector stands for all of them.
template <Order order, int N, int n, int q, int j, bool array> struct OfVectors {
    static constexpr int of(int l)
    {
        int row = (j * N + l) / n, column = (j * N + l) % n;
        if (inHeads<order, N, n>) {
            row = j < 4 ? j * 2 + l / 4 : l;
            column = j < 4 ? l % 4 : 4;
        }
        return (array ? (q * N + row) / n * n : 0) + column;
    }
};

/// Term k of the sum in lane l, which is that of row q*N + l of the block. Of five in the order of even and odd terms, the last
/// row has terms 1 and 2 exchanged, so that the order of the other rows serves it too.
template <Order order, int N, int n, int q, int k> struct OfTerms {
    static constexpr int of(int l)
    {
        const bool exchanged = n == 5 && order == Order::evenOdd && (q * N + l) % n == 4 && (k == 1 || k == 2);
        return l * n + (exchanged ? 3 - k : k);
    }
};
/// Sums of neighbours, formed from two registers at a time: those of the first in the even lanes, of the second in the odd ones.
template <int N, int half, int k> struct OfNeighbours {
    static constexpr int of(int l)
    {
        const int pair = l * half + k, from = pair / (N / 2);
        return from / 2 * N + pair % (N / 2) * 2 + from % 2;
    }
};

/// Sum k, 0 or 1, of the neighbours in a row's head of four, where the registers of two heads are added likewise.
template <int N, int k> struct OfHeads {
    static constexpr int of(int l) { return l / 4 * N + l % 2 * 4 + l % 4 / 2 + 2 * k; }
};

template <class V, int... l> VOKM_INLINE void addNeighbours(V& to, const V& a, const V& b, std::integer_sequence<int, l...>)
{
    constexpr int N = lanesIn<V>;
    to = __builtin_shufflevector(a, b, (l % 2 == 0 ? l : N + l - 1)...) +
         __builtin_shufflevector(a, b, (l % 2 == 0 ? l + 1 : N + l)...);
}

/// The sums of the N rows of block q, whose products follow one another in n registers.
template <Order order, int q, int n, class V> VOKM_INLINE void sumsOfRun(V& sums, const V (&products)[n])
{
    constexpr int N = lanesIn<V>;
    if constexpr (inHeads<order, N, n>) {
        V pairs[2], terms[2];
        for (int j = 0; j < 2; ++j)
            addNeighbours(pairs[j], products[2 * j], products[2 * j + 1], std::make_integer_sequence<int, N>{});
        unrolled<2>([&](auto k) VOKM_INLINE_LAMBDA { pick<OfHeads<N, decltype(k)::value>>(terms[decltype(k)::value], pairs); });
        sums = (terms[0] + terms[1]) + products[4];
    } else if constexpr (order == Order::pairwise && n % 2 == 0) {
        constexpr int half = n / 2;
        V pairs[half], terms[half];
        for (int j = 0; j < half; ++j)
            addNeighbours(pairs[j], products[2 * j], products[2 * j + 1], std::make_integer_sequence<int, N>{});
        unrolled<half>([&](auto k) VOKM_INLINE_LAMBDA {
            pick<OfNeighbours<N, half, decltype(k)::value>>(terms[decltype(k)::value], pairs);
        });
        sums = sum<Order::chain>(terms);
    } else {
        V terms[n];
        unrolled<n>([&](auto k) VOKM_INLINE_LAMBDA {
            pick<OfTerms<order, N, n, q, decltype(k)::value>>(terms[decltype(k)::value], products);
        });
        sums = sumOfRow<order>(terms, 0);
    }
}

template <Order order, int n, class T, class V> VOKM_INLINE void loadRun(V (&run)[n], const T* from)
{
    constexpr int N = lanesIn<V>;
    std::memcpy(run, from, sizeof run);
    if constexpr (inHeads<order, N, n>) {
        V last;
        pick<OfTerms<Order::chain, N, n, 0, 4>>(last, run);
        for (int j = 0; j < 4; ++j) {
            const V low = loadLanes<V>(from + j * 10), high = loadLanes<V>(from + j * 10 + 1);
            run[j] = __builtin_shufflevector(low, high, 0, 1, 2, 3, 12, 13, 14, 15);
        }
        run[4] = last;
    }
}

template <Order order, int q, int n, bool array, class T, class V, int K>
VOKM_INLINE void rowBlock(const T* a, T* to, const V (&vectors)[K])
{
    constexpr int N = lanesIn<V>;
    V products[n], sums;
    loadRun<order>(products, a + q * (n * N));
    unrolled<n>([&](auto index) VOKM_INLINE_LAMBDA {
        constexpr int j = decltype(index)::value;
        V y;
        pick<OfVectors<order, N, n, q, j, array>>(y, vectors);
        products[j] = products[j] * y;
    });
    sumsOfRun<order, q>(sums, products);
    std::memcpy(to + q * N, &sums, sizeof sums);
}

/// N objects a block: n blocks of N rows.
template <Order order, int n, bool array, class T>
[[gnu::target(VOKM_WIDEST), VOKM_OUT_OF_LINE]] void wideSumsOfRows(const T* a, const T* b, T* to, i64 blocks)
{
    constexpr int N = wideLanes<T>, K = array ? n : 1;
    WidePack<T> vectors[K];
    if constexpr (!array) loadFirst<n>(vectors[0], b);
    for (i64 i = 0; i < blocks; ++i, a += N * n * n, to += N * n) {
        if constexpr (array) {
            std::memcpy(vectors, b, sizeof vectors);
            b += N * n;
        }
        unrolled<n>([&](auto q) VOKM_INLINE_LAMBDA { rowBlock<order, decltype(q)::value, n, array>(a, to, vectors); });
    }
}

/// As many leading objects as fill whole blocks, if the results lie apart from the sources; returns how many.
template <Order order, int n, class A, class B, class D>
VOKM_INLINE i32 leadingSumsOfRows(const Operands<n, A, B, NoAddend, D>& of, i32 count)
{
    using T = typename D::element;
    constexpr i32 N = wideLanes<T>;
    const Shaped<D> results{of.d, of.other};
    if (!widestRegisters() || count < N || !of.tight()) return 0;
    if (!wholesApart(count, results, Shaped<A>{of.a, of.square}) || !wholesApart(count, results, Shaped<B>{of.b, of.other}))
        return 0;
    T copy[n];
    const T* vectors;
    if constexpr (B::array) {
        vectors = of.b.base;
    } else {
        const auto y = of.b.object(0, of.other);
        for (int k = 0; k < n; ++k) copy[k] = y(0, k);
        vectors = copy;
    }
    wideSumsOfRows<order, n, B::array>(of.a.base, vectors, of.d.base, count / N);
    return count / N * N;
}

}  // namespace vokm
