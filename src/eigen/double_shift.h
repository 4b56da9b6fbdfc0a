// The double-shift iteration on a Hessenberg matrix, with implicit sweeps and deflation from the bottom up.
//
// Without vectors only the active block is kept up to date, and a subdiagonal element counts as zero by an absolute test.
// With vectors the whole matrix becomes quasi-triangular, the square `z` takes every transformation too, and the test is
// relative to the neighbouring diagonal elements. All else is the same.
#pragma once

#include "real_block.h"

namespace vokm {

template <class T, class N, bool vectors> class DoubleShift {
    using K = GeneralConstants<T>;
    Square<T, N> h, z;
    T smallest;        // with vectors: up to here a subdiagonal element is zero at once
    i32 lo = 0, hi;    // the active block, the last index included
    T cs = 1, sn = 0;  // the rotation of the last 2x2 block

public:
    VOKM_INLINE DoubleShift(Square<T, N> hessenberg, Square<T, N> orthogonal, T limit)
        : h(hessenberg), z(orthogonal), smallest(limit), hi(hessenberg.n() - 1)
    {
    }

    /// Eigenvalues are written where they deflate. The budget of 30*n steps is the whole matrix's.
    VOKM_INLINE vokStatus run(T* re, T* im)
    {
        for (i32 budget = 30 * h.n(); hi >= 0; hi = lo - 1) {
            i32 its = 0;
            for (lo = 0; its < budget; ++its) {
                lo = startOfBlock();
                if (lo > 0) h(lo, lo - 1) = 0;
                if (lo >= hi - 1) break;
                const Shifts shifts = chooseShifts(its);
                T r[3];
                const i32 m = startOfSweep(shifts, r);
                sweep(m, r);
            }
            if (lo < hi - 1) return vokStatusNoConvergence;
            if (lo == hi) {
                re[hi] = h(hi, hi), im[hi] = 0;
            } else {
                finishBlock(re, im);
            }
            budget -= its;
        }
        return vokStatusOk;
    }

private:
    struct Shifts {
        T h33, h44, h43h34;
    };

    VOKM_INLINE i32 startOfBlock() const
    {
        for (i32 k = hi; k > lo; --k) {
            if (magnitude(h(k, k - 1)) <= tolerance(k)) return k;
        }
        return lo;
    }

    VOKM_INLINE T tolerance(i32 k) const
    {
        if constexpr (!vectors) return K::eps;
        T size = magnitude(h(k - 1, k - 1)) + magnitude(h(k, k));
        if (size <= K::safmin) size = blockNorm();
        return std::max(K::eps * size, smallest);
    }

    /// The largest column sum of the active block.
    T blockNorm() const
    {
        T norm = 0;
        for (i32 j = lo; j <= hi; ++j) {
            T sum = 0;
            for (i32 i = lo; i <= std::min(j + 1, hi); ++i) sum += magnitude(h(i, j));
            norm = std::max(norm, sum);
        }
        return norm;
    }

    /// The bottom 2x2 block's eigenvalues as sum and product: the two of a complex pair, or twice the real one nearer to the
    /// last element. Steps 10 and 20 break cycles.
    VOKM_INLINE Shifts chooseShifts(i32 its) const
    {
        if (its == 10 || its == 20) {
            const T s = magnitude(h(hi, hi - 1)) + magnitude(h(hi - 1, hi - 2));
            const T h44 = T(0.75) * s + h(hi, hi);
            return {h44, h44, T(-0.4375) * s * s};
        }
        const T h44 = h(hi, hi), h33 = h(hi - 1, hi - 1), h43h34 = h(hi, hi - 1) * h(hi - 1, hi);
        const T half = T(0.5) * (h33 - h44), disc = half * half + h43h34;
        if (!(disc > 0)) return {h33, h44, h43h34};
        const T ave = T(0.5) * (h33 + h44), distance = root(disc), outer = (ave >= 0 ? distance : -distance) + ave;
        const T shift = magnitude(h33) > magnitude(h44) ? (h33 * h44 - h43h34) / outer : outer;
        return {shift, shift, 0};
    }

    /// Where a sweep may start: below two small subdiagonal elements in a row. r: the first column of the shifted product.
    VOKM_INLINE i32 startOfSweep(const Shifts& shifts, T (&r)[3]) const
    {
        const auto wide = [](T x) VOKM_INLINE_LAMBDA { return static_cast<double>(magnitude(x)); };
        for (i32 m = hi - 2;; --m) {
            const T h11 = h(m, m), h22 = h(m + 1, m + 1), h21 = h(m + 1, m), h12 = h(m, m + 1);
            const T h44s = shifts.h44 - h11, h33s = shifts.h33 - h11;
            r[0] = (h33s * h44s - shifts.h43h34) / h21 + h12;
            r[1] = h22 - h11 - h33s - h44s;
            r[2] = h(m + 2, m + 1);
            // Sums of magnitudes are formed in 64f.
            const T s = static_cast<T>(wide(r[0]) + wide(r[1]) + wide(r[2]));
            for (T& x : r) x /= s;
            if (m <= lo) return m;
            const T around = static_cast<T>(wide(h(m - 1, m - 1)) + wide(h11) + wide(h22));
            const T limit = K::eps * magnitude(r[0]) * around;
            if (wide(h(m, m - 1)) * (wide(r[1]) + wide(r[2])) <= static_cast<double>(limit)) return m;
        }
    }

    /// Chases the bulge from m down to the end of the block.
    VOKM_INLINE void sweep(i32 m, T (&r)[3])
    {
        for (i32 k = m; k < hi; ++k) {
            const bool three = k + 2 <= hi;
            if (k > m) {
                r[0] = h(k, k - 1), r[1] = h(k + 1, k - 1);
                if (three) r[2] = h(k + 2, k - 1);
            }
            const T t1 = makeReflection(r[0], r + 1, three ? 2 : 1);
            if (k > m) {
                h(k, k - 1) = r[0], h(k + 1, k - 1) = 0;
                if (three) h(k + 2, k - 1) = 0;
            } else if (m > lo) {
                h(k, k - 1) = -h(k, k - 1);
            }
            if (three) {
                reflect<3>(k, r, t1);
            } else {
                reflect<2>(k, r, t1);
            }
        }
    }

    /// The reflection of `rows` rows and columns from k on.
    template <int rows> VOKM_INLINE void reflect(i32 k, const T (&r)[3], T t1)
    {
        const T v[3] = {1, r[1], r[2]}, t[3] = {t1, t1 * r[1], rows == 3 ? t1 * r[2] : 0};
        for (i32 j = k, end = vectors ? h.n() - 1 : hi; j <= end; ++j) {
            T* const column = h.column(j) + k;
            const T sum = rows == 3 ? column[0] + v[1] * column[1] + v[2] * column[2] : column[0] + v[1] * column[1];
            for (int i = 0; i < rows; ++i) column[i] -= sum * t[i];
        }
        reflectFromRight<rows>(h, k, vectors ? 0 : lo, std::min(k + 3, hi), v, t);
        if constexpr (vectors) reflectFromRight<rows>(z, k, 0, z.n() - 1, v, t);
    }

    template <int columns>
    VOKM_INLINE static void reflectFromRight(Square<T, N> a, i32 k, i32 first, i32 last, const T (&v)[3], const T (&t)[3])
    {
        T* const x = a.column(k);
        T* const y = a.column(k + 1);
        T* const w = columns == 3 ? a.column(k + 2) : nullptr;
        for (i32 j = first; j <= last; ++j) {
            const T sum = columns == 3 ? x[j] + v[1] * y[j] + v[2] * w[j] : x[j] + v[1] * y[j];
            x[j] -= sum * t[0];
            y[j] -= sum * t[1];
            if (columns == 3) w[j] -= sum * t[2];
        }
    }

    /// The last two rows of the block are on their own.
    VOKM_INLINE void finishBlock(T* re, T* im)
    {
        const i32 p = hi - 1, q = hi;
        RealBlock<T> block{h(p, p), h(p, q), h(q, p), h(q, q), cs, sn};
        block.standardise();
        h(p, p) = block.a, h(p, q) = block.b, h(q, p) = block.c, h(q, q) = block.d;
        re[p] = block.a, re[q] = block.d;
        const T imaginary = block.complex() ? block.imaginary() : 0;
        im[p] = imaginary, im[q] = block.complex() ? -imaginary : 0;
        if constexpr (vectors) {
            cs = block.cs, sn = block.sn;
            for (i32 j = hi + 1; j < h.n(); ++j) rotate(h(p, j), h(q, j));
            for (i32 i = 0; i < p; ++i) rotate(h(i, p), h(i, q));
            for (i32 i = 0; i < z.n(); ++i) rotate(z(i, p), z(i, q));
        }
    }

    VOKM_INLINE void rotate(T& p, T& q) const
    {
        const T turned = cs * p + sn * q;
        q = cs * q - sn * p;
        p = turned;
    }
};

}  // namespace vokm
