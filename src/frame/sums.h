// Orders of sums, by name. Which kernel sums in which order at which length is data of its family; the order decides the last
// bit of a result and is part of the promise. Terms are p[0] .. p[n-1], the sum is formed in their type.
#pragma once

namespace vokm {

enum class Order {
    chain,         // ((p0+p1)+p2)+...
    pairwise,      // (p0+p1)+(p2+p3), then +p4 or +(p4+p5)
    evenOdd,       // the even terms as a chain, plus the odd ones as a chain
    evenOddTail,   // (p0+p2)+(p1+p3), then the last term: the order of two or four lanes with a scalar tail
    evenOddInner,  // (p0+(p2+p4))+(p1+(p3+p5))
    mixed,         // 4 and 6 as pairwise; 5: ((p0+p1)+p4)+(p2+p3)
    lastFirst,     // the last term stands first: ((p0+p[n-1])+p1)+...
    lastTwoFirst,  // 6: ((((p5+p4)+p0)+p1)+p2)+p3; else as lastFirst
    rising,        // from 0.0, ascending
};

template <Order order, class V, int n> [[gnu::always_inline]] inline V sum(const V (&p)[n])
{
    if constexpr (order == Order::pairwise || order == Order::mixed) {
        if constexpr (n == 4) return (p[0] + p[1]) + (p[2] + p[3]);
        if constexpr (n == 5 && order == Order::pairwise) return ((p[0] + p[1]) + (p[2] + p[3])) + p[4];
        if constexpr (n == 5 && order == Order::mixed) return ((p[0] + p[1]) + p[4]) + (p[2] + p[3]);
        if constexpr (n == 6) return ((p[0] + p[1]) + (p[2] + p[3])) + (p[4] + p[5]);
    }
    if constexpr (order == Order::evenOdd) {
        if constexpr (n == 3) return (p[0] + p[2]) + p[1];
        if constexpr (n == 4) return (p[0] + p[2]) + (p[1] + p[3]);
        if constexpr (n == 5) return ((p[0] + p[2]) + p[4]) + (p[1] + p[3]);
        if constexpr (n == 6) return ((p[0] + p[2]) + p[4]) + ((p[1] + p[3]) + p[5]);
    }
    if constexpr (order == Order::evenOddTail) {
        if constexpr (n == 5) return ((p[0] + p[2]) + (p[1] + p[3])) + p[4];
    }
    if constexpr (order == Order::evenOddInner) {
        if constexpr (n == 6) return (p[0] + (p[2] + p[4])) + (p[1] + (p[3] + p[5]));
    }
    if constexpr (order == Order::lastTwoFirst && n == 6) return ((((p[5] + p[4]) + p[0]) + p[1]) + p[2]) + p[3];
    if constexpr ((order == Order::lastFirst || order == Order::lastTwoFirst) && n > 3) {
        V s = p[0] + p[n - 1];
        for (int j = 1; j < n - 1; ++j) s = s + p[j];
        return s;
    }
    V s = p[0];
    if constexpr (order == Order::rising) s = V{} + p[0];
    for (int j = 1; j < n; ++j) s = s + p[j];
    return s;
}

}  // namespace vokm
