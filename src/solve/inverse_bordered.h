// Inverses of dense 32f matrices of size 4 to 6: Cramer's rule for 4x4 in vectors of four, and one or two elimination steps
// that leave a 4x4 rest. A vector of four is one register for one object, and four packs for a pack of objects.
#pragma once

#include "inverse_cofactors.h"

namespace vokm {

/// Four values: of one object a register, of a pack of objects a register each.
template <class V> struct Quad {
    V lane[4];
};
inline float laneOf(Pack<float> x, int k) { return x[k]; }
template <class V> VOKM_INLINE V laneOf(const Quad<V>& x, int k) { return x.lane[k]; }
template <class X> using LaneOf = decltype(laneOf(std::declval<X>(), 0));

template <class V, class Op> VOKM_INLINE Quad<V> laneByLane(const Quad<V>& x, const Quad<V>& y, Op op)
{
    return {{op(x.lane[0], y.lane[0]), op(x.lane[1], y.lane[1]), op(x.lane[2], y.lane[2]), op(x.lane[3], y.lane[3])}};
}
template <class V> VOKM_INLINE Quad<V> operator+(const Quad<V>& x, const Quad<V>& y)
{
    return laneByLane(x, y, [](V a, V b) VOKM_INLINE_LAMBDA { return a + b; });
}
template <class V> VOKM_INLINE Quad<V> operator-(const Quad<V>& x, const Quad<V>& y)
{
    return laneByLane(x, y, [](V a, V b) VOKM_INLINE_LAMBDA { return a - b; });
}
template <class V> VOKM_INLINE Quad<V> operator*(const Quad<V>& x, const Quad<V>& y)
{
    return laneByLane(x, y, [](V a, V b) VOKM_INLINE_LAMBDA { return a * b; });
}

template <class V> VOKM_INLINE Quad<V> operator-(const Quad<V>& x) { return {{-x.lane[0], -x.lane[1], -x.lane[2], -x.lane[3]}}; }

/// One value in all four places.
VOKM_INLINE Pack<float> inAllOf(Pack<float>, float v) { return splat<Pack<float>>(v); }
template <class V> VOKM_INLINE Quad<V> inAllOf(const Quad<V>&, V v) { return {{v, v, v, v}}; }

/// Neighbours exchanged, 1 0 3 2, and halves exchanged, 2 3 0 1.
VOKM_INLINE Pack<float> neighbours(Pack<float> x) { return __builtin_shufflevector(x, x, 1, 0, 3, 2); }
VOKM_INLINE Pack<float> halves(Pack<float> x) { return __builtin_shufflevector(x, x, 2, 3, 0, 1); }
template <class V> VOKM_INLINE Quad<V> neighbours(const Quad<V>& x) { return {{x.lane[1], x.lane[0], x.lane[3], x.lane[2]}}; }
template <class V> VOKM_INLINE Quad<V> halves(const Quad<V>& x) { return {{x.lane[2], x.lane[3], x.lane[0], x.lane[1]}}; }

/// (x0 + x2) + (x1 + x3)
template <class X> VOKM_INLINE auto total(const X& x) { return (laneOf(x, 0) + laneOf(x, 2)) + (laneOf(x, 1) + laneOf(x, 3)); }

/// The rows of the inverse of a 4x4 matrix that is given by its columns. False, in any lane, if threshold > |determinant|.
template <class X> VOKM_INLINE bool cramer(const X (&column)[4], LaneOf<X> threshold, X (&row)[4])
{
    const X r0 = column[0], r1 = halves(column[1]), r2 = column[2], r3 = halves(column[3]), r2h = halves(r2);
    const X t1 = neighbours(r2 * r3), t2 = neighbours(r1 * r2), t3 = neighbours(halves(r1) * r3);
    const X u1 = halves(t1), u2 = halves(t2), u3 = halves(t3);
    const X m0 = (r2h * t3 + ((r3 * t2 + (r1 * u1 - r1 * t1)) - r3 * u2)) - r2h * u3;
    const auto det = total(r0 * m0);
    if (any(threshold > magnitude(det))) return false;
    const X r = inAllOf(r0, refinedReciprocal(det));
    const X t4 = neighbours(r0 * r1), t5 = neighbours(r0 * r3), t6 = neighbours(r2h * r0);
    const X u4 = halves(t4), u5 = halves(t5), u6 = halves(t6);
    const X m1 = (r3 * t6 + (r2h * u5 + (halves(u1 * r0 - r0 * t1) - r2h * t5))) - r3 * u6;
    const X m2 = (r1 * t5 + (r3 * u4 - (r3 * t4 + halves(u3 * r0 - r0 * t3)))) - u5 * r1;
    const X m3 = r1 * u6 + (((r2h * t4 - halves(u2 * r0 - r0 * t2)) - u4 * r2h) - r1 * t6);
    row[0] = m0 * r;
    row[1] = m1 * r;
    row[2] = m2 * r;
    row[3] = m3 * r;
    return true;
}

/// A row, or a column, of 4 + h elements: the first h, and four.
template <class X, int h> struct Line {
    LaneOf<X> head[h];
    X tail;
};

/// A matrix of size n = 4 + h: its first h rows, and the columns of the four rows below. invert() eliminates with the first rows
/// in turn, inverts what remains, and borders it again:
///
///     step     with pivot q brought to the front by an exchange of columns, r = 1/q (refined estimate), u the row behind it
///              and c the column below it: l = r*c, and the rest A becomes A - l u
///     border   with B the inverse of the rest:   | r - (u.f)*r   (-(u B))*r |
///                                                | f = -(B l)         B     |   and rows exchanged as columns were
///
/// Sums: B l is total() of the last four products, plus the first; u B and u.f are over ascending rows.
template <class X, int h> struct Bordered {
    using V = LaneOf<X>;
    static constexpr int n = 4 + h;
    V top[h][n];
    X column[n];
    Line<X, h> inverse[n];  // rows
    V r[h];
    Line<X, h> l[h];

    /// Which columns are searched for the pivot of a step. Deliberate: at size 5 the last column takes no part.
    static constexpr int searched = h == 1 ? 4 : n;
    using PivotSearch = Search<V, searched, AmongEquals::last>;

    /// `memory` hears of the steps: exchanged(search, *this, step) has to exchange the elements of the first rows.
    template <class Memory> VOKM_INLINE bool invert(const Memory& memory)
    {
        if constexpr (h == 1) {
            PivotSearch first(0, magnitude(top[0][0]));
            return eliminate<0>(memory, first) && innermost() && border<0>(first);
        } else {
            PivotSearch first(0, magnitude(top[0][0]));
            if (!eliminate<0>(memory, first)) return false;
            PivotSearch second(1, magnitude(top[1][1]));
            return eliminate<1>(memory, second) && innermost() && border<1>(second) && border<0>(first);
        }
    }

    template <int s, class Memory> VOKM_INLINE bool eliminate(const Memory& memory, PivotSearch& search)
    {
        VOKM_UNROLL for (int c = s + 1; c < searched; ++c) search.candidate(c, magnitude(top[s][c]));
        search.decide();
        if (any(limit() > search.best)) return false;
        memory.exchanged(search, top, s);
        exchangeLines<s>(search, column);
        r[s] = refinedReciprocal(top[s][s]);
        VOKM_UNROLL for (int t = s + 1; t < h; ++t)
        {
            l[s].head[t] = r[s] * top[t][s];
            VOKM_UNROLL for (int c = s + 1; c < n; ++c) top[t][c] = top[t][c] - top[s][c] * l[s].head[t];
        }
        l[s].tail = inAllOf(column[s], r[s]) * column[s];
        VOKM_UNROLL for (int c = s + 1; c < n; ++c) column[c] = column[c] - inAllOf(column[c], top[s][c]) * l[s].tail;
        return true;
    }
    VOKM_INLINE bool innermost()
    {
        X rest[4], rows[4];
        VOKM_UNROLL for (int c = 0; c < 4; ++c) rest[c] = column[h + c];
        if (!cramer(rest, limit(), rows)) return false;
        VOKM_UNROLL for (int c = 0; c < 4; ++c) inverse[h + c].tail = rows[c];
        return true;
    }
    template <int s> VOKM_INLINE bool border(const PivotSearch& search)
    {
        Line<X, h>& first = inverse[s];
        VOKM_UNROLL for (int i = s + 1; i < n; ++i)
        {
            V sum = total(inverse[i].tail * l[s].tail);
            VOKM_UNROLL for (int t = s + 1; t < h; ++t) sum = inverse[i].head[t] * l[s].head[t] + sum;
            inverse[i].head[s] = -sum;
        }
        V uf = top[s][s + 1] * inverse[s + 1].head[s];
        X tail = inAllOf(first.tail, top[s][s + 1]) * inverse[s + 1].tail;
        VOKM_UNROLL for (int i = s + 2; i < n; ++i)
        {
            uf = uf + top[s][i] * inverse[i].head[s];
            tail = tail + inAllOf(tail, top[s][i]) * inverse[i].tail;
        }
        VOKM_UNROLL for (int t = s + 1; t < h; ++t)
        {
            V sum = top[s][s + 1] * inverse[s + 1].head[t];
            VOKM_UNROLL for (int i = s + 2; i < n; ++i) sum = sum + top[s][i] * inverse[i].head[t];
            first.head[t] = (-sum) * r[s];
        }
        first.head[s] = r[s] - uf * r[s];
        first.tail = (-tail) * inAllOf(tail, r[s]);
        VOKM_UNROLL for (int t = s; t < h; ++t) search.exchange([&](int i) VOKM_INLINE_LAMBDA -> V& { return inverse[i].head[t]; });
        exchangeTails(search);
        return true;
    }
    VOKM_INLINE static V limit() { return splat<V>(sizeThreshold<float>(n)); }

    template <int s> VOKM_INLINE static void exchangeLines(const PivotSearch& search, X (&x)[n])
    {
        if constexpr (isPack<V>) {
            VOKM_UNROLL for (int k = 0; k < 4; ++k) search.exchange([&](int i) VOKM_INLINE_LAMBDA -> V& { return x[i].lane[k]; });
        } else {
            search.exchange([&](int i) VOKM_INLINE_LAMBDA -> X& { return x[i]; });
        }
    }
    VOKM_INLINE void exchangeTails(const PivotSearch& search)
    {
        if constexpr (isPack<V>) {
            VOKM_UNROLL for (int k = 0; k < 4; ++k) search.exchange([&](int i) VOKM_INLINE_LAMBDA -> V& { return inverse[i].tail.lane[k]; });
        } else {
            search.exchange([&](int i) VOKM_INLINE_LAMBDA -> X& { return inverse[i].tail; });
        }
    }
};

}  // namespace vokm
