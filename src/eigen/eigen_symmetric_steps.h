// Eigenvalues and eigenvectors of symmetric matrices from size 3 on: one text for one object and for a pack of objects.
//
//   reduce     for k = 0..n-3 a Householder reflection, as a product from the left and one from the right, on the full matrix
//   iterate    implicit QL on the diagonal d and the elements e below it. An iteration from the other end, QR, is the same text
//              on d and e in reverse: it is taken when the last diagonal element is not the larger one in magnitude.
//   judge      the product of the eigenvalues; near zero the matrix is singular
//   sort       by selection, descending
//
// The text runs over a Space: n, a(i, j), d(i), e(i), u(i) for the reflection's vector and the values, v(r, c) for the vectors.
// SingleSpace is one object of any size, in the caller's memory, so that a failure leaves there what had been reached.
// PackSpace is a pack of objects of a fixed size in the kernel's own memory, each lane with its own course through the text.
// Sums run in ascending order from 0. In comparisons not-a-number takes the side that each is written for.
#pragma once

#include "../frame/pack.h"
#include "eigen_symmetric.h"

namespace vokm {

template <class V> using Condition = decltype(V{} < V{});
template <class V> constexpr Condition<V> everyLane() { return V{} == V{}; }

VOKM_INLINE bool isNot(bool condition) { return !condition; }
VOKM_INLINE bool both(bool one, bool other) { return one && other; }
VOKM_INLINE bool either(bool one, bool other) { return one || other; }
template <class M>
concept Mask = sizeof(M) == 16;
template <Mask M> VOKM_INLINE M isNot(M mask) { return ~mask; }
template <Mask M> VOKM_INLINE M both(M one, M other) { return one & other; }
template <Mask M> VOKM_INLINE M either(M one, M other) { return one | other; }

/// x where the condition holds, else +0.
template <class V> VOKM_INLINE V onlyWhere(Condition<V> condition, V x)
{
    if constexpr (isPack<V>) {
        return V(condition & (Condition<V>)x);
    } else {
        return condition ? x : V(0);
    }
}

template <class V> VOKM_INLINE V select(Condition<V> condition, V x, V y)
{
    if constexpr (isPack<V>) {
        return V((condition & (Condition<V>)x) | (~condition & (Condition<V>)y));
    } else {
        return condition ? x : y;
    }
}

template <class V> VOKM_INLINE void setWhere(Condition<V> condition, V& x, V value) { x = select(condition, value, x); }

template <class V> VOKM_INLINE void exchangeWhere(Condition<V> condition, V& x, V& y)
{
    const V old = x;
    setWhere(condition, x, y);
    setWhere(condition, y, old);
}

/// The rotations of a pass, those of e[l] to e[m-1]; a lane whose m is l has none.
template <class V, int n> struct Block {
    Condition<V> in[n] = {};
    VOKM_INLINE void add(i32 i, Condition<V> lanes) { in[i] = lanes; }
    VOKM_INLINE Condition<V> has(i32 i) const { return in[i]; }
    VOKM_INLINE i32 last() const { return n - 2; }
};
template <class V>
requires(!isPack<V>) struct Block<V, 0> {
    i32 m;
    VOKM_INLINE void add(i32 i, bool lane) { m = lane ? i + 1 : m; }
    VOKM_INLINE bool has(i32 i) const { return i < m; }
    VOKM_INLINE i32 last() const { return m - 1; }
};

struct NoVectors {};

template <class T, class Vectors> struct SingleSpace {
    using Value = T;
    static constexpr int fixed = 0;
    const i32 n;
    T* const matrix;  // dense
    T* const values;
    const Vectors vectors;
    bool ql = true;

    VOKM_INLINE T& a(i32 i, i32 j) const { return matrix[i64(i) * n + j]; }
    VOKM_INLINE T& u(i32 i) const { return values[i]; }
    VOKM_INLINE i32 at(i32 i) const { return ql ? i : n - 1 - i; }
    VOKM_INLINE T& d(i32 i) const { return a(at(i), at(i)); }
    VOKM_INLINE T& e(i32 i) const
    {
        const i32 k = ql ? i : n - 2 - i;
        return a(k + 1, k);
    }
    VOKM_INLINE T& v(i32 r, i32 c) const { return vectors(r, c); }
    VOKM_INLINE void direct(bool downwards) { ql = downwards; }
    VOKM_INLINE void record(bool where, const Block<T, 0>& block) const
    {
        if (where) values[at(block.m)] = d(block.m);
    }
    VOKM_INLINE void finish() const
    {
        for (i32 i = 0; i < n; ++i) values[at(i)] = d(i);
    }
};

template <class T, int size, bool withVectors> struct PackSpace {
    using Value = Pack<T>;
    using Lanes = Condition<Value>;
    static constexpr int fixed = size, n = size, nv = withVectors ? size : 1;
    Value matrix[n][n], values[1][n], vectors[nv][nv];
    Value diagonal[n], below[n];
    Lanes ql;

    VOKM_INLINE Value& a(i32 i, i32 j) { return matrix[i][j]; }
    VOKM_INLINE Value& u(i32 i) { return values[0][i]; }
    VOKM_INLINE i32 at(i32 i) const { return i; }
    VOKM_INLINE Value& d(i32 i) { return diagonal[i]; }
    VOKM_INLINE Value& e(i32 i) { return below[i]; }
    VOKM_INLINE Value& v(i32 r, i32 c) { return vectors[r][c]; }
    VOKM_INLINE void direct(Lanes downwards)
    {
        ql = downwards;
        for (int i = 0; i < n; ++i) diagonal[i] = select(ql, matrix[i][i], matrix[n - 1 - i][n - 1 - i]);
        for (int i = 0; i < n - 1; ++i) below[i] = select(ql, matrix[i + 1][i], matrix[n - 1 - i][n - 2 - i]);
        turnVectors();
    }
    VOKM_INLINE void makeIdentity()
    {
        for (int r = 0; r < nv; ++r) {
            for (int c = 0; c < nv; ++c) vectors[r][c] = splat<Value>(r == c ? 1 : 0);
        }
    }
    VOKM_INLINE void turnVectors()
    {
        for (int r = 0; withVectors && r < n; ++r) {
            for (int c = 0; c < n / 2; ++c) exchangeWhere(isNot(ql), vectors[r][c], vectors[r][n - 1 - c]);
        }
    }
    VOKM_INLINE void record(Lanes, const Block<Value, size>&) const {}
    VOKM_INLINE void finish()
    {
        for (int i = 0; i < n; ++i) values[0][i] = select(ql, diagonal[i], diagonal[n - 1 - i]);
        turnVectors();
    }
};

/// The reflection of step k applied to the vectors; at k = 0 they are still the identity and are written outright.
template <class Space, class V> VOKM_INLINE void reflectVectors(Space& s, i32 k, V beta, Condition<V> where)
{
    if (k == 0) {
        const V one = splat<V>(1), minusBeta = -beta;
        for (i32 i = 1; i < s.n; ++i) {
            s.v(i, i) = one - onlyWhere(where, (beta * s.u(i)) * s.u(i));
            for (i32 j = i + 1; j < s.n; ++j) s.v(i, j) = s.v(j, i) = onlyWhere(where, (minusBeta * s.u(i)) * s.u(j));
        }
        return;
    }
    for (i32 r = 1; r < s.n; ++r) {
        V sum = splat<V>(0);
        for (i32 j = k + 1; j < s.n; ++j) sum = sum + s.v(r, j) * s.u(j);
        sum = sum * beta;
        for (i32 j = k + 1; j < s.n; ++j) s.v(r, j) = s.v(r, j) - onlyWhere(where, s.u(j) * sum);
    }
}

/// A = (1 - beta*u*u')*A*(1 - beta*u*u') on rows and columns from k on. Of row k nothing is read again, of column k only the
/// element below the diagonal: those alone are formed.
template <class Space, class V> VOKM_INLINE void reflect(Space& s, i32 k, V beta, Condition<V> where)
{
    for (i32 j = k; j < s.n; ++j) {
        V sum = splat<V>(0);
        for (i32 i = k + 1; i < s.n; ++i) sum = sum + s.a(i, j) * s.u(i);
        sum = sum * beta;
        const i32 end = j == k ? k + 2 : s.n;
        for (i32 i = k + 1; i < end; ++i) s.a(i, j) = s.a(i, j) - onlyWhere(where, s.u(i) * sum);
    }
    for (i32 i = k + 1; i < s.n; ++i) {
        V sum = splat<V>(0);
        for (i32 j = k + 1; j < s.n; ++j) sum = sum + s.a(i, j) * s.u(j);
        sum = sum * beta;
        for (i32 j = k + 1; j < s.n; ++j) s.a(i, j) = s.a(i, j) - onlyWhere(where, s.u(j) * sum);
    }
}

template <SymmetricRules rules, class Space> VOKM_INLINE void reduce(Space& s)
{
    using V = typename Space::Value;
    const V eps = splat<V>(powerOfTwo<Element<V>>(rules.reduction)), two = splat<V>(2);
    for (i32 k = 0; k < s.n - 2; ++k) {
        V sigma = splat<V>(0);
        for (i32 i = k + 1; i < s.n; ++i) sigma = sigma + s.a(i, k) * s.a(i, k);
        const V alpha = root(sigma), x = s.a(k + 1, k);
        Condition<V> where = everyLane<V>();
        if constexpr (rules.vectors) {
            where = isNot(atMost(magnitude(alpha - x), eps));
            if (!any(where)) continue;
        }
        for (i32 i = k + 2; i < s.n; ++i) s.u(i) = s.a(i, k);
        const auto positive = above(x, eps), none = atMost(magnitude(x), eps);
        s.u(k + 1) = select(positive, x + alpha, select(none, alpha, x - alpha));
        const V h = select(positive, two * (sigma + alpha * x), select(none, sigma + sigma, two * (sigma - alpha * x)));
        where = both(where, isNot(atMost(h, eps)));
        if (!any(where)) continue;
        const V beta = two / h;
        reflect(s, k, beta, where);
        if constexpr (rules.vectors) reflectVectors(s, k, beta, where);
    }
}

/// Columns i and i+1 of the vectors turned by (c, s).
template <class Space, class V> VOKM_INLINE void rotate(Space& space, i32 i, V c, V s, Condition<V> where)
{
    const i32 first = space.at(i), second = space.at(i + 1);
    for (i32 r = 0; r < space.n; ++r) {
        V &one = space.v(r, first), &other = space.v(r, second);
        const V p1 = one, p2 = other;
        setWhere(where, one, c * p1 - s * p2);
        setWhere(where, other, s * p1 + c * p2);
    }
}

/// One pass from the block's end up to l, from the shifted difference g. The lanes of `open` take part.
template <SymmetricRules rules, class Space, class B, class V>
VOKM_INLINE void pass(Space& space, i32 l, const B& block, Condition<V> open, V g)
{
    const V eps = splat<V>(powerOfTwo<Element<V>>(rules.eps));
    V s = splat<V>(1), c = s, p = splat<V>(0), r = p;
    Condition<V> going = open;
    for (i32 i = block.last(); i >= l; --i) {
        const Condition<V> here = both(going, block.has(i));
        if (isPack<V> && !any(here)) continue;
        const V f = s * space.e(i), b = c * space.e(i), oldD = space.d(i + 1);
        r = root(f * f + g * g);
        if (i < block.last()) setWhere(both(here, block.has(i + 1)), space.e(i + 1), r);
        const Condition<V> small = both(here, atMost(magnitude(r), eps));
        if (any(small)) {  // the lane leaves at once; the element at the block's end is cut off
            setWhere(small, space.d(i + 1), oldD - p);
            for (i32 j = block.last(); j >= i; --j) {
                setWhere(both(small, both(block.has(j), isNot(block.has(j + 1)))), space.e(j), splat<V>(0));
            }
            going = both(going, isNot(small));
            if (!any(going)) return;
        }
        const Condition<V> turns = both(here, isNot(small));
        setWhere(turns, s, f / r);
        setWhere(turns, c, g / r);
        if constexpr (rules.vectors) rotate(space, i, c, s, turns);
        const V oldG = oldD - p;
        const V q = (space.d(i) - oldG) * s + (c + c) * b;
        setWhere(turns, p, s * q);
        setWhere(turns, space.d(i + 1), oldG + p);
        setWhere(turns, g, c * q - b);
        r = q;
    }
    // Deliberate: this step can be left out for a small last r; going downwards it is forced for the first element alone.
    const auto large = above(magnitude(r), eps), notSmall = isNot(atMost(magnitude(r), eps));
    const Condition<V> closes = both(going, either(large, both(space.ql, l == 0 ? everyLane<V>() : notSmall)));
    setWhere(closes, space.d(l), space.d(l) - p);
    setWhere(closes, space.e(l), g);
}

/// The block of l: it ends behind the first negligible element. At not-a-number QL stops, QR goes on. Returns d[m] in `atEnd`.
template <SymmetricRules rules, class Space, class B, class V>
VOKM_INLINE void search(Space& s, i32 l, B& block, Condition<V> open, V& atEnd)
{
    const V eps = splat<V>(powerOfTwo<Element<V>>(rules.eps)), half = splat<V>(Element<V>(0.5));
    atEnd = s.d(l);
    Condition<V> inside = open;
    for (i32 i = l; i < s.n - 1; ++i) {
        const V size = magnitude(half * s.e(i));
        inside = both(inside, either(above(size, eps), both(isNot(s.ql), isNot(atMost(size, eps)))));
        if (!any(inside)) break;
        block.add(i, inside);
        setWhere(inside, atEnd, s.d(i + 1));
    }
}

/// The shifted difference a pass begins with.
template <SymmetricRules rules, class Space, class V> VOKM_INLINE V shifted(Space& s, i32 l, V atEnd)
{
    const V eps = splat<V>(powerOfTwo<Element<V>>(rules.eps)), one = splat<V>(1), e = s.e(l);
    const V g = (s.d(l + 1) - s.d(l)) / (splat<V>(2) * e);
    V r = root(g * g + one);
    if constexpr (rules.shiftInDouble && !isPack<V>) {
        if (s.ql) r = static_cast<V>(root(static_cast<double>(g * g) + 1.0));
    }
    return atEnd - s.d(l) + e / select(above(g, eps), g + r, g - r);
}

/// Whether every lane converged. Without vectors the QR iteration multiplies `product` by each d[m] at which a search stops,
/// often more than once for an eigenvalue: the test for singularity sees that. It also records them as eigenvalues.
template <SymmetricRules rules, class Space, class V> VOKM_INLINE bool iterate(Space& s, V& product)
{
    for (i32 l = 0; l < s.n - 1; ++l) {
        Condition<V> open = everyLane<V>();
        for (int passes = 0;; ++passes) {
            Block<V, Space::fixed> block{};
            if constexpr (Space::fixed == 0) block.m = l;
            V atEnd;
            search<rules>(s, l, block, open, atEnd);
            if constexpr (!rules.vectors) {
                const Condition<V> within = isNot(block.has(s.n - 2)), upwards = isNot(s.ql);
                const Condition<V> stopped = both(open, both(within, upwards));
                setWhere(stopped, product, product * atEnd);
                s.record(stopped, block);
            }
            open = both(open, block.has(l));
            if (!any(open)) break;
            if (passes == 30) return false;
            pass<rules>(s, l, block, open, shifted<rules>(s, l, atEnd));
        }
    }
    return true;
}

/// Whether the product of the values, in order, is near zero in any lane.
template <SymmetricRules rules, class Space, class V> VOKM_INLINE bool singular(Space& s, V recorded)
{
    using T = Element<V>;
    if constexpr (!rules.vectors) {
        V product = splat<V>(1);
        for (i32 i = 0; i < s.n; ++i) product = product * s.u(i);
        setWhere(isNot(s.ql), product, recorded * s.u(0));
        return any(atMost(magnitude(product), splat<V>(powerOfTwo<T>(rules.product))));
    } else {
        using P = std::conditional_t<rules.productInDouble, double, T>;
        const auto near0 = [&](auto value) VOKM_INLINE_LAMBDA {
            P product = 1;
            for (i32 i = 0; i < s.n; ++i) product = product * static_cast<P>(value(i));
            return magnitude(product) <= powerOfTwo<P>(rules.product);
        };
        if constexpr (isPack<V>) {
            bool found = false;
            for (int lane = 0; lane < lanesIn<V>; ++lane) found |= near0([&](i32 i) { return s.u(i)[lane]; });
            return found;
        } else {
            return near0([&](i32 i) { return s.u(i); });
        }
    }
}

/// Descending: the largest of those behind i, the first among equals, changes places with i if it is larger.
template <bool vectors, class Space> VOKM_INLINE void sort(Space& s)
{
    using V = typename Space::Value;
    for (i32 i = 0; i < s.n - 1; ++i) {
        V best = s.u(i + 1);
        for (i32 j = i + 2; j < s.n; ++j) best = select(above(s.u(j), best), s.u(j), best);
        Condition<V> wanted = above(best, s.u(i));
        for (i32 j = i + 1; j < s.n && any(wanted); ++j) {
            const Condition<V> here = both(wanted, s.u(j) == best);
            if (!any(here)) continue;
            exchangeWhere(here, s.u(i), s.u(j));
            if constexpr (vectors) {
                for (i32 r = 0; r < s.n; ++r) exchangeWhere(here, s.v(r, i), s.v(r, j));
            }
            wanted = both(wanted, isNot(here));
        }
    }
}

/// All steps. The status is that of the object, or, for a pack, a failure if any lane fails.
template <SymmetricRules rules, class Space> VOKM_INLINE vokStatus solve(Space& s)
{
    using V = typename Space::Value;
    reduce<rules>(s);
    s.direct(above(magnitude(s.a(s.n - 1, s.n - 1)), magnitude(s.a(0, 0))));
    V product = splat<V>(1);
    if (!iterate<rules>(s, product)) return vokStatusNoConvergence;
    s.finish();
    const bool refused = singular<rules>(s, product);
    if (refused && rules.test == Stands::beforeSort) return vokStatusSingular;
    sort<rules.vectors>(s);
    return refused ? vokStatusSingular : vokStatusOk;
}

}  // namespace vokm
