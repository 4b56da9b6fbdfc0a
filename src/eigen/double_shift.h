// The double-shift iteration on a Hessenberg matrix, with implicit sweeps and deflation from the bottom up.
//
// Without vectors only the active block has to be right, and a subdiagonal element counts as zero by an absolute test. With
// vectors the whole matrix becomes quasi-triangular, the square `z` takes every transformation too, and the test is relative
// to the neighbouring diagonal elements. All else is the same.
//
// In a pack each lane has its own active block and its own start of a sweep. A step k of the sweep serves the lanes that are
// on their way at k; the others subtract +0. Rows and columns that no longer belong to a lane's block are stale without
// vectors, and zero below it with vectors, so that they may be run over.
#pragma once

#include "real_block.h"

namespace vokm {

template <class V, class N, bool vectors> class DoubleShift {
    using T = Element<V>;
    using K = GeneralConstants<T>;
    using I = Index<V>;
    using C = Cond<V>;
    static constexpr int L = lanesIn<V>;
    static constexpr i32 packSteps = 10;

    Square<V, N> h, z;
    V smallest;      // with vectors: up to here a subdiagonal element is zero at once
    T *re, *im;      // eigenvalue i of a lane at i*L + lane
    I lo, hi;        // the active block, the last index included; hi is -1 when all is done
    i32 highest;     // hi of the lane that is farthest back
    T cs[L], sn[L];  // the rotation of the last 2x2 block

public:
    VOKM_INLINE DoubleShift(Square<V, N> hessenberg, Square<V, N> orthogonal, T limit, T* real, T* imaginary)
        : h(hessenberg), z(orthogonal), smallest(splat<V>(limit)), re(real), im(imaginary), lo(indices<V>(0)),
          hi(indices<V>(h.n() - 1)), highest(h.n() - 1)
    {
        for (int l = 0; l < L; ++l) cs[l] = 1, sn[l] = 0;
    }

    /// Eigenvalues are written where they deflate. The budget of 30*n steps is the whole matrix's. A pack is given up before
    /// a lane takes the first of its unusual steps.
    VOKM_INLINE vokStatus run()
    {
        I its = indices<V>(0);
        i32 budget = isPack<V> ? packSteps : 30 * h.n();
        while (highest >= 0) {
            const C open = its < indices<V>(budget);
            if (isPack<V> && !all(open)) return vokStatusNoConvergence;
            if (any(open)) deflate();
            const C started = hi >= indices<V>(0), ready = started & C(lo >= hi - indices<V>(1));
            if (any(ready)) {
                finish(ready);
                if constexpr (!isPack<V>) budget -= its;
                its = choose(ready, indices<V>(0), its);
                continue;
            }
            if (!any(open)) return vokStatusNoConvergence;
            const Shifts shifts = chooseShifts(its);
            V r[3];
            const I m = startOfSweep(shifts, r);
            sweep(m, r);
            its = choose(started, its + indices<V>(1), its);
        }
        return vokStatusOk;
    }

private:
    struct Shifts {
        V h33, h44, h43h34;
    };

    /// Moves lo to the last small subdiagonal element of the block, if there is one.
    VOKM_INLINE void deflate()
    {
        I found = lo;
        for (i32 k = isPack<V> ? 1 : indexIn<V>(lo, 0) + 1; k <= highest; ++k) {
            const I at = indices<V>(k);
            const C within = C(at > lo) & C(at <= hi);
            const C small = within & cond(atMost(magnitude(h(k, k - 1)), tolerance(k)));
            found = choose(small, at, found);
        }
        if (!any(C(found > lo))) return;
        lo = found;
        for (int l = 0; l < L; ++l) {
            if (const i32 k = indexIn<V>(lo, l); k > 0) laneOf(h, l)(k, k - 1) = 0;
        }
    }

    VOKM_INLINE V tolerance(i32 k) const
    {
        if constexpr (!vectors) return splat<V>(K::eps);
        V size = magnitude(h(k - 1, k - 1)) + magnitude(h(k, k));
        const C tiny = cond(atMost(size, splat<V>(K::safmin)));
        if (any(tiny)) size = choose(tiny, blockNorms(), size);
        return larger(smallest, splat<V>(K::eps) * size);
    }

    /// The largest column sum of the active block.
    V blockNorms() const
    {
        T norms[L];
        for (int l = 0; l < L; ++l) {
            const auto a = laneOf(h, l);
            const i32 first = indexIn<V>(lo, l), last = indexIn<V>(hi, l);
            norms[l] = 0;
            for (i32 j = first; j <= last; ++j) {
                T sum = 0;
                for (i32 i = first; i <= std::min(j + 1, last); ++i) sum += magnitude(a(i, j));
                norms[l] = std::max(norms[l], sum);
            }
        }
        return loadLanes<V>(norms);
    }

    VOKM_INLINE void finish(C ready)
    {
        for (int l = 0; l < L; ++l) {
            if (indexIn<V>(ready, l)) finishLane(l);
        }
        hi = choose(ready, lo - indices<V>(1), hi);
        lo = choose(ready, indices<V>(0), lo);
        highest = indexIn<V>(hi, 0);
        for (int l = 1; l < L; ++l) highest = std::max(highest, indexIn<V>(hi, l));
    }

    VOKM_INLINE void finishLane(int l)
    {
        const i32 q = indexIn<V>(hi, l);
        if (indexIn<V>(lo, l) == q) {
            re[q * L + l] = laneOf(h, l)(q, q), im[q * L + l] = 0;
        } else {
            finishBlock(l, q - 1, q);
        }
    }

    /// The last two rows of a lane's block are on their own.
    VOKM_INLINE void finishBlock(int l, i32 p, i32 q)
    {
        const auto a = laneOf(h, l);
        RealBlock<T> block{a(p, p), a(p, q), a(q, p), a(q, q), cs[l], sn[l]};
        block.standardise();
        a(p, p) = block.a, a(p, q) = block.b, a(q, p) = block.c, a(q, q) = block.d;
        re[p * L + l] = block.a, re[q * L + l] = block.d;
        const T imaginary = block.complex() ? block.imaginary() : 0;
        im[p * L + l] = imaginary, im[q * L + l] = block.complex() ? -imaginary : 0;
        if constexpr (vectors) {
            cs[l] = block.cs, sn[l] = block.sn;
            const auto b = laneOf(z, l);
            for (i32 j = q + 1; j < a.n(); ++j) block.rotate(a(p, j), a(q, j));
            for (i32 i = 0; i < p; ++i) block.rotate(a(i, p), a(i, q));
            for (i32 i = 0; i < b.n(); ++i) block.rotate(b(i, p), b(i, q));
        }
    }

    /// at(hi) by lane, for blocks of three rows or more.
    template <class At> VOKM_INLINE V atEnd(At at) const
    {
        if constexpr (isPack<V>) {
            V x = at(2);
            for (i32 k = 3; k <= highest; ++k) x = choose(C(hi == indices<V>(k)), at(k), x);
            return x;
        } else {
            return at(hi);
        }
    }

    /// The bottom 2x2 block's eigenvalues as sum and product: the two of a complex pair, or twice the real one nearer to the
    /// last element. Steps 10 and 20 break cycles.
    VOKM_INLINE Shifts chooseShifts([[maybe_unused]] I its) const
    {
        const V half = splat<V>(T(0.5)), zero{};
        const V last = atEnd([&](i32 k) VOKM_INLINE_LAMBDA { return h(k, k); });
        if constexpr (!isPack<V>) {
            if (its == packSteps || its == 2 * packSteps) {
                const T s = magnitude(h(hi, hi - 1)) + magnitude(h(hi - 1, hi - 2)), h44 = T(0.75) * s + last;
                return {h44, h44, T(-0.4375) * s * s};
            }
        }
        const V h33 = atEnd([&](i32 k) VOKM_INLINE_LAMBDA { return h(k - 1, k - 1); });
        const V product = atEnd([&](i32 k) VOKM_INLINE_LAMBDA { return h(k, k - 1); }) *
                          atEnd([&](i32 k) VOKM_INLINE_LAMBDA { return h(k - 1, k); });
        const V apart = half * (h33 - last), disc = apart * apart + product;
        const V ave = half * (h33 + last), distance = root(disc);
        const V outer = choose(cond(atMost(zero, ave)), distance, -distance) + ave;
        const C upper = cond(above(magnitude(h33), magnitude(last)));
        const V shift = choose(upper, (h33 * last - product) / outer, outer);
        const C real = cond(above(disc, zero));
        return {choose(real, shift, h33), choose(real, shift, last), choose(real, zero, product)};
    }

    /// Where a sweep may start: below two small subdiagonal elements in a row. r: the first column of the shifted product.
    VOKM_INLINE I startOfSweep(const Shifts& shifts, V (&r)[3]) const
    {
        I m = indices<V>(0);
        C searching = hi >= indices<V>(2);
        for (V& x : r) x = V{};
        for (i32 k = highest - 2;; --k) {
            const I at = indices<V>(k);
            const C here = isPack<V> ? C(searching & C(at <= hi - indices<V>(2))) : C(searching);
            V q[3];
            firstColumn(k, shifts, q);
            for (int i = 0; i < 3; ++i) r[i] = choose(here, q[i], r[i]);
            m = choose(here, at, m);
            C stops = lo >= at;
            if (any(C(here & negation(stops)))) stops = stops | startsAt(k, q);
            searching = searching & negation(C(here & stops));
            if (k == 0 || !any(searching)) return m;
        }
    }

    VOKM_INLINE void firstColumn(i32 m, const Shifts& shifts, V (&q)[3]) const
    {
        const V h11 = h(m, m), h22 = h(m + 1, m + 1), h21 = h(m + 1, m), h12 = h(m, m + 1);
        const V h44s = shifts.h44 - h11, h33s = shifts.h33 - h11;
        q[0] = (h33s * h44s - shifts.h43h34) / h21 + h12;
        q[1] = h22 - h11 - h33s - h44s;
        q[2] = h(m + 2, m + 1);
        // Sums of magnitudes are formed in 64f.
        const V s = narrow<V>(wide(magnitude(q[0])) + wide(magnitude(q[1])) + wide(magnitude(q[2])));
        for (V& x : q) x = x / s;
    }

    VOKM_INLINE C startsAt(i32 m, const V (&q)[3]) const
    {
        const auto size = [&](i32 k) VOKM_INLINE_LAMBDA { return wide(magnitude(h(k, k))); };
        const V around = narrow<V>(size(m - 1) + size(m) + size(m + 1));
        const V limit = splat<V>(K::eps) * magnitude(q[0]) * around;
        return cond(atMost(wide(magnitude(h(m, m - 1))) * (wide(magnitude(q[1])) + wide(magnitude(q[2]))), wide(limit)));
    }

    /// Chases the bulge from m down to the end of the block.
    VOKM_INLINE void sweep(I m, const V (&r)[3])
    {
        for (i32 k = isPack<V> ? 0 : indexIn<V>(m, 0); k < highest; ++k) {
            const I at = indices<V>(k);
            const C active = isPack<V> ? C(C(m <= at) & C(at < hi)) : everywhere<V>();
            if (!any(active)) continue;
            const C later = active & C(m < at), three = active & C(indices<V>(k + 2) <= hi);
            const bool third = any(three);
            V v[3] = {r[0], r[1], third ? r[2] : V{}};
            if (any(later)) {
                for (int i = 0; i < (third ? 3 : 2); ++i) v[i] = choose(later, h(k + i, k - 1), v[i]);
            }
            if (third && isPack<V>) v[2] = keep(three, v[2]);  // adds +0 to the square of the others
            const V tau = makeReflection(v[0], v + 1, third ? 2 : 1);
            if (k > 0) {
                const V below = h(k, k - 1);
                h(k, k - 1) = choose(later, v[0], choose(C(active & C(m == at) & C(m > lo)), -below, below));
                h(k + 1, k - 1) = keep(negation(later), h(k + 1, k - 1));
                if (third) h(k + 2, k - 1) = keep(negation(C(later & three)), h(k + 2, k - 1));
            }
            const V t[3] = {tau, tau * v[1], tau * v[2]};
            if (!third) {
                reflect<2>(k, v, t, active, three);
            } else if (!isPack<V> || all(C(negation(active) | three))) {
                reflect<3>(k, v, t, active, active);
            } else {
                reflect<3, true>(k, v, t, active, three);
            }
        }
    }

    /// a + v1*b, or a + v1*b + v2*c: `mixed`, where some lanes take two terms and those of `three` all.
    template <int terms, bool mixed> VOKM_INLINE static V sumOf(V a, V b, V c, const V (&v)[3], C three)
    {
        const V two = a + v[1] * b;
        if constexpr (terms == 2) return two;
        const V all = two + v[2] * c;
        return mixed ? choose(three, all, two) : all;
    }

    /// The reflection of `size` rows and columns from k on.
    template <int size, bool mixed = false> VOKM_INLINE void reflect(i32 k, const V (&v)[3], const V (&t)[3], C active, C three)
    {
        for (i32 j = k, end = vectors ? h.n() - 1 : highest; j <= end; ++j) {
            V* const x = h.column(j) + k;
            const V c = size == 3 ? x[2] : V{}, sum = sumOf<size, mixed>(x[0], x[1], c, v, three);
            x[0] = x[0] - keep(active, sum * t[0]);
            x[1] = x[1] - keep(active, sum * t[1]);
            if constexpr (size == 3) x[2] = c - keep(three, sum * t[2]);
        }
        const i32 first = vectors || isPack<V> ? 0 : indexIn<V>(lo, 0);
        reflectFromRight<size, mixed>(h, k, first, std::min(k + 3, highest), v, t, active, three);
        if constexpr (vectors) reflectFromRight<size, mixed>(z, k, 0, z.n() - 1, v, t, active, three);
    }

    template <int size, bool mixed> VOKM_INLINE static void reflectFromRight(
        Square<V, N> a, i32 k, i32 first, i32 last, const V (&v)[3], const V (&t)[3], C active, C three)
    {
        V* const x = a.column(k);
        V* const y = a.column(k + 1);
        V* const w = size == 3 ? a.column(k + 2) : nullptr;
        for (i32 j = first; j <= last; ++j) {
            const V c = size == 3 ? w[j] : V{}, sum = sumOf<size, mixed>(x[j], y[j], c, v, three);
            x[j] = x[j] - keep(active, sum * t[0]);
            y[j] = y[j] - keep(active, sum * t[1]);
            if constexpr (size == 3) w[j] = c - keep(three, sum * t[2]);
        }
    }
};

}  // namespace vokm
