// Eigenvectors of a quasi-triangular matrix t, turned back by the orthogonal matrix in v, in which the vectors replace the
// columns: the right ones from the last column to the first, the left ones from the first to the last, so that the columns
// that are still to be used stand.
#pragma once

#include "block_system.h"

namespace vokm {

template <class T, class N> class BackSubstitution {
    using K = GeneralConstants<T>;
    Square<T, N> t, v;
    T* sums;  // of the magnitudes above the diagonal, by column
    T* x[2];  // the vector in the coordinates of t: real and imaginary parts
    T smallest, big;

public:
    /// `rows`: 3*n elements of working memory.
    VOKM_INLINE BackSubstitution(Square<T, N> triangular, Square<T, N> vectors, T* rows, T limit)
        : t(triangular), v(vectors), sums(rows), x{rows + t.n(), rows + 2 * t.n()}, smallest(limit), big(K::oneMinusEps / limit)
    {
        for (i32 j = 0; j < n(); ++j) {
            sums[j] = 0;
            for (i32 i = 0; i < j; ++i) sums[j] += magnitude(t(i, j));
        }
    }

    VOKM_INLINE Leave right()
    {
        for (i32 last = n() - 1; last >= 0; --last) {
            const bool pair = last > 0 && isSet(t(last, last - 1));
            if (const Leave leave = pair ? rightVector<2>(last - 1) : rightVector<1>(last); leave != Leave::no) return leave;
            if (pair) --last;
        }
        return Leave::no;
    }

    VOKM_INLINE Leave left()
    {
        for (i32 first = 0; first < n(); ++first) {
            const bool pair = first + 1 < n() && isSet(t(first + 1, first));
            if (const Leave leave = pair ? leftVector<2>(first) : leftVector<1>(first); leave != Leave::no) return leave;
            if (pair) ++first;
        }
        return Leave::no;
    }

private:
    VOKM_INLINE i32 n() const { return t.n(); }

    struct Eigenvalue {
        T wr, wi, smin;
    };
    template <int parts> VOKM_INLINE Eigenvalue eigenvalue(i32 first, i32 at) const
    {
        const T wr = t(at, at);
        T wi = 0;
        if (parts == 2) wi = root(magnitude(t(first + 1, first))) * root(magnitude(t(first, first + 1)));
        return {wr, wi, std::max(K::eps * (magnitude(wr) + magnitude(wi)), smallest)};
    }

    /// Solves the rows j1 to j2 (one or two) of the triangular system, or of its transpose.
    template <int parts, bool transposed>
    VOKM_INLINE Leave solve(BlockSystem<T, parts>& system, i32 j1, i32 j2, Eigenvalue w) const
    {
        system.wi = transposed ? -w.wi : w.wi;
        system.smallest = std::max(w.smin, K::safmin2);
        system.c[0] = t(j1, j1) - w.wr;
        for (int p = 0; p < parts; ++p) system.x[0][p] = x[p][j1];
        if (j1 == j2) {
            system.solveOne();
            return Leave::no;
        }
        system.c[transposed ? 2 : 1] = t(j2, j1);
        system.c[transposed ? 1 : 2] = t(j1, j2);
        system.c[3] = t(j2, j2) - w.wr;
        for (int p = 0; p < parts; ++p) system.x[1][p] = x[p][j2];
        return system.solveTwo();
    }

    template <int parts> VOKM_INLINE void scale(i32 from, i32 to, T factor)
    {
        for (int p = 0; p < parts; ++p) {
            for (i32 i = from; i <= to; ++i) x[p][i] *= factor;
        }
    }

    /// Stores a block's solution behind the scaling of all of the vector's entries from..to.
    template <int parts> VOKM_INLINE void accept(const BlockSystem<T, parts>& system, i32 j1, i32 j2, i32 from, i32 to)
    {
        if (isSet(system.scale - 1)) scale<parts>(from, to, system.scale);
        for (int p = 0; p < parts; ++p) {
            for (i32 j = j1; j <= j2; ++j) x[p][j] = system.x[j - j1][p];
        }
    }

    template <int parts> VOKM_INLINE void startRight(i32 first, T wi)
    {
        const i32 last = first + parts - 1;
        if constexpr (parts == 2) {
            const T upper = t(first, last), lower = t(last, first);
            const bool upperLarger = magnitude(upper) >= magnitude(lower);
            x[0][first] = upperLarger ? 1 : -wi / lower;
            x[1][last] = upperLarger ? wi / upper : 1;
            x[0][last] = x[1][first] = 0;
            for (i32 k = 0; k < first; ++k) {
                x[0][k] = -x[0][first] * t(k, first);
                x[1][k] = -x[1][last] * t(k, last);
            }
        } else {
            x[0][first] = 1;
            for (i32 k = 0; k < first; ++k) x[0][k] = -t(k, first);
        }
    }

    template <int parts> VOKM_INLINE Leave rightVector(i32 first)
    {
        const i32 last = first + parts - 1;
        const Eigenvalue w = eigenvalue<parts>(first, last);
        startRight<parts>(first, w.wi);
        for (i32 j2 = first - 1; j2 >= 0; --j2) {
            const i32 j1 = j2 > 0 && isSet(t(j2, j2 - 1)) ? j2 - 1 : j2;
            BlockSystem<T, parts> system;
            if (const Leave leave = solve<parts, false>(system, j1, j2, w); leave != Leave::no) return leave;
            if (system.norm > 1 && std::max(sums[j1], sums[j2]) > big / system.norm) {
                for (i32 row = 0; row <= j2 - j1; ++row) {
                    for (T& component : system.x[row]) component /= system.norm;
                }
                system.scale /= system.norm;
            }
            accept(system, j1, j2, 0, last);
            for (i32 j = j1; j <= j2; ++j) {
                for (int p = 0; p < parts; ++p) {
                    for (i32 i = 0; i < j1; ++i) x[p][i] -= x[p][j] * t(i, j);
                }
            }
            j2 = j1;
        }
        turnBack<parts>(first, 0, first - 1);
        return Leave::no;
    }

    template <int parts> VOKM_INLINE void startLeft(i32 first, T wi)
    {
        const i32 last = first + parts - 1;
        if constexpr (parts == 2) {
            const T upper = t(first, last), lower = t(last, first);
            const bool upperLarger = magnitude(upper) >= magnitude(lower);
            x[0][first] = upperLarger ? wi / upper : 1;
            x[1][last] = upperLarger ? 1 : -wi / lower;
            x[0][last] = x[1][first] = 0;
            for (i32 k = last + 1; k < n(); ++k) {
                x[0][k] = -x[0][first] * t(first, k);
                x[1][k] = -x[1][last] * t(last, k);
            }
        } else {
            x[0][first] = 1;
            for (i32 k = last + 1; k < n(); ++k) x[0][k] = -t(first, k);
        }
    }

    template <int parts> VOKM_INLINE Leave leftVector(i32 first)
    {
        const i32 last = first + parts - 1;
        const Eigenvalue w = eigenvalue<parts>(first, first);
        startLeft<parts>(first, w.wi);
        T largest = 1, critical = big;
        for (i32 j1 = last + 1; j1 < n(); ++j1) {
            const i32 j2 = j1 + 1 < n() && isSet(t(j1 + 1, j1)) ? j1 + 1 : j1;
            if (std::max(sums[j1], sums[j2]) > critical) {
                scale<parts>(first, n() - 1, 1 / largest);
                largest = 1, critical = big;
            }
            for (i32 j = j1; j <= j2; ++j) {
                for (int p = 0; p < parts; ++p) {
                    T dot = 0;
                    for (i32 i = last + 1; i < j1; ++i) dot += t(i, j) * x[p][i];
                    x[p][j] -= dot;
                }
            }
            BlockSystem<T, parts> system;
            if (const Leave leave = solve<parts, true>(system, j1, j2, w); leave != Leave::no) return leave;
            accept(system, j1, j2, first, n() - 1);
            for (i32 j = j1; j <= j2; ++j) {
                for (int p = 0; p < parts; ++p) largest = std::max(largest, magnitude(x[p][j]));
            }
            critical = big / largest;
            j1 = j2;
        }
        turnBack<parts>(first, last + 1, n() - 1);
        return Leave::no;
    }

    /// Columns first.. of v: their own multiple, plus the columns from..to in ascending order; then the largest component is 1.
    template <int parts> VOKM_INLINE void turnBack(i32 first, i32 from, i32 to)
    {
        for (int p = 0; p < parts; ++p) {
            T* const y = v.column(first + p);
            for (i32 r = 0; r < n(); ++r) y[r] *= x[p][first + p];
            for (i32 j = from; j <= to; ++j) {
                for (i32 r = 0; r < n(); ++r) y[r] += x[p][j] * v(r, j);
            }
        }
        T largest = 0;
        for (i32 r = 0; r < n(); ++r) {
            T component = magnitude(v(r, first));
            if (parts == 2) component += magnitude(v(r, first + 1));
            largest = std::max(largest, component);
        }
        const T factor = 1 / largest;
        for (int p = 0; p < parts; ++p) {
            for (i32 r = 0; r < n(); ++r) v(r, first + p) *= factor;
        }
    }
};

template <class T, class N> VOKM_INLINE T sumOfSquares(Square<T, N> v, i32 j)
{
    T sum = 0;
    for (i32 r = 0; r < v.n(); ++r) sum += v(r, j) * v(r, j);
    return sum;
}

/// Turns the pair in columns j and j+1 so that its largest component becomes real. Its imaginary part keeps the residue.
template <class T, class N> VOKM_INLINE void turnLargestReal(Square<T, N> v, i32 j)
{
    const T* const re = v.column(j);
    const T* const im = v.column(j + 1);
    i32 k = 0;
    T largest = re[0] * re[0] + im[0] * im[0];
    for (i32 r = 1; r < v.n(); ++r) {
        const T modulus = re[r] * re[r] + im[r] * im[r];
        if (modulus > largest) largest = modulus, k = r;
    }
    const T f = re[k], g = im[k], length = root(f * f + g * g);
    T cs = f / length, sn = g / length;
    if (magnitude(f) > magnitude(g) && cs < 0) cs = -cs, sn = -sn;
    for (i32 r = 0; r < v.n(); ++r) {
        const T p = v(r, j), q = v(r, j + 1);
        v(r, j) = cs * p + sn * q;
        v(r, j + 1) = cs * q - sn * p;
    }
}

/// Vectors of length 1, pairs with their largest component real.
template <class T, class N> VOKM_INLINE void normalise(Square<T, N> v, const T* im)
{
    const auto scale = [&](i32 j, T factor) VOKM_INLINE_LAMBDA {
        for (i32 r = 0; r < v.n(); ++r) v(r, j) *= factor;
    };
    for (i32 j = 0; j < v.n(); ++j) {
        if (isZero(im[j])) {
            const T squares = sumOfSquares(v, j);
            if (isSet(squares)) scale(j, 1 / root(squares));
        } else {
            const T factor = 1 / root(sumOfSquares(v, j) + sumOfSquares(v, j + 1));
            scale(j, factor);
            scale(j + 1, factor);
            turnLargestReal(v, j);
            ++j;
        }
    }
}

}  // namespace vokm
