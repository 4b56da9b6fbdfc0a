// 64f sums of products whose order keeps even and odd terms apart, four objects at a time in registers of 32 bytes: half the
// loads of the narrow loop, which can do no more than two loads a cycle. Each object's sum is formed as everywhere.
#pragma once

#include <immintrin.h>

#include "../frame/along.h"
#include "../frame/overlap.h"
#include "../frame/sums.h"
#include "../frame/wide_pack.h"

namespace vokm {

/// Whether `bytes` of results lie apart from all objects of a dense array of vectors of length n.
template <class View> VOKM_INLINE bool apartFrom(const View& view, i32 n, i32 count, const double* dst)
{
    const auto from = reinterpret_cast<Address>(view.base), to = reinterpret_cast<Address>(dst);
    const i64 length = i64(count - 1) * view.stride0 + i64(n) * 8;
    return to + Address(count) * 8 <= from || from + Address(length) <= to;
}

/// Four objects a turn, as long as there are four; returns how many objects are done.
template <Order order, int n, class A, class B>
[[gnu::target("avx2"), gnu::noinline]] i32 wideSums(A a, B b, double* dst, i32 count)
{
    using Quad = typename LanesOf<double, 4>::type;
    const double *x = a.base, *y = b.base;
    i32 i = 0;
    for (; i + 4 <= count; i += 4) {
        Quad partial[2], last{};
        for (int pair = 0; pair < 2; ++pair) {
            const double *x2 = byBytes(x, a.stride0), *y2 = byBytes(y, b.stride0);
            Quad p, q, r;
            std::memcpy(&p, x, sizeof p);
            std::memcpy(&r, y, sizeof r);
            p = p * r;
            std::memcpy(&q, x2, sizeof q);
            std::memcpy(&r, y2, sizeof r);
            q = q * r;
            const Quad low = __builtin_shufflevector(p, q, 0, 1, 4, 5);
            Quad high = __builtin_shufflevector(p, q, 2, 3, 6, 7);
            if constexpr (n == 6) {
                const Pack<double> s = loadLanes<Pack<double>>(x + 4) * loadLanes<Pack<double>>(y + 4);
                const Pack<double> t = loadLanes<Pack<double>>(x2 + 4) * loadLanes<Pack<double>>(y2 + 4);
                high = high + __builtin_shufflevector(s, t, 0, 1, 2, 3);
            }
            if constexpr (n == 5) {
                last[pair] = x[4] * y[4];
                last[pair + 2] = x2[4] * y2[4];
            }
            partial[pair] = low + high;
            x = byBytes(x2, a.stride0);
            y = byBytes(y2, b.stride0);
        }
        // The lanes hold objects 0, 2, 1, 3.
        Quad s = __builtin_shufflevector(partial[0], partial[1], 0, 4, 2, 6) +
                 __builtin_shufflevector(partial[0], partial[1], 1, 5, 3, 7);
        if constexpr (n == 5) s = s + last;
        s = __builtin_shufflevector(s, s, 0, 2, 1, 3);
        std::memcpy(dst + i, &s, sizeof s);
    }
    return i;
}

template <class V> VOKM_WIDEST_TEXT VOKM_INLINE V wideRoot(V x)
{
#ifdef __clang__
    for (int k = 0; k < wideLanes<double>; ++k) x[k] = std::sqrt(x[k]);
    return x;
#else
    return V(_mm512_sqrt_pd(__m512d(x)));
#endif
}

/// Dot products or norms of vectors of three that follow one another, in the widest packs: the products of whole registers are
/// formed before they are turned into lanes.
template <Order order, bool norms> struct WideThrees {
    const double *x, *y;
    double* dst;
    template <bool past> VOKM_WIDEST_TEXT VOKM_INLINE void objects(i64 i) const
    {
        using V = WidePack<double>;
        V products[3], p[3];
        for (int k = 0; k < 3; ++k) {
            const i64 at = i * 3 + k * wideLanes<double>;
            if (past) fetchSource(x + at);
            if (past && !norms) fetchSource(y + at);
            products[k] = loadLanes<V>(x + at);
            products[k] = products[k] * (norms ? products[k] : loadLanes<V>(y + at));
        }
        turnWide<PickElement, 0>(products, p);
        V s = sum<order>(p);
        if constexpr (norms) s = wideRoot(s);
        storeRegister<V, past>(dst + i, s);
    }
};
/// All objects, if they lie so and apart from the results; returns whether.
template <Order order, bool norms, class A, class B> VOKM_INLINE bool threesWide(const A& a, const B& b, double* dst, i32 count)
{
    if (count < wideLanes<double> || !widestRegisters() || !packedObjects<3>(a) || !packedObjects<3>(b) ||
        !apartFrom(a, 3, count, dst) || !apartFrom(b, 3, count, dst)) {
        return false;
    }
    WideThrees<order, norms> work{a.base, b.base, dst};
    overObjectsWide<1>(count, dst, i64(count) * (norms ? 32 : 56), work);
    return true;
}

template <Order order, int n> constexpr bool sumsWide = (n == 4 && order == Order::evenOdd) ||
                                                        (n == 5 && order == Order::evenOddTail) ||
                                                        (n == 6 && order == Order::evenOddInner);

}  // namespace vokm
