// 64f sums of products whose order keeps even and odd terms apart, four objects at a time in registers of 32 bytes: half the
// loads of the narrow loop, which can do no more than two loads a cycle. Each object's sum is formed as everywhere.
#pragma once

#include "../frame/along.h"
#include "../frame/overlap.h"
#include "../frame/sums.h"

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

template <Order order, int n> constexpr bool sumsWide = (n == 4 && order == Order::evenOdd) ||
                                                        (n == 5 && order == Order::evenOddTail) ||
                                                        (n == 6 && order == Order::evenOddInner);

}  // namespace vokm
