// Elimination with partial pivoting in working memory, as determinant and inverse use it at sizes without a path of their own:
// multipliers are not kept, and a small pivot ends it.
#pragma once

#include "pivoting.h"

namespace vokm {

/// The caller's buffer: n*n elements, rows of length n, and n integers behind them that say which row comes when.
template <class T> struct Workspace {
    T* w;
    i32* p;
    i32 n;
    Workspace(T* buffer, i32 size) : w(buffer), p(reinterpret_cast<i32*>(buffer + i64(size) * size)), n(size) {}
    T& at(i32 i, i32 j) const { return w[i64(p[i]) * n + j]; }
};

template <class T> struct Eliminated {
    T product = 1;  // of the pivots, but the last
    T sign = 1;     // of the permutation
    bool complete = true;
};

/// Brings the leading m rows and columns to triangular form. In step k the first of the largest magnitudes goes to place k, which
/// turns the sign if it wasn't there; threshold > |pivot| then ends the elimination. Each later row loses the pivot's row times
/// multiplier(element), with multiplier = multipliers(pivot).
template <class T, class Multipliers>
Eliminated<T> eliminateInScratch(const Workspace<T>& a, i32 m, T threshold, Multipliers multipliers)
{
    Eliminated<T> result;
    for (i32 k = 0; k < m - 1; ++k) {
        i32 winner = k;
        T best = magnitude(a.at(k, k));
        for (i32 i = k + 1; i < m; ++i) {
            if (!(magnitude(a.at(i, k)) > best)) continue;
            best = magnitude(a.at(i, k));
            winner = i;
        }
        if (winner != k) {
            std::swap(a.p[k], a.p[winner]);
            result.sign = -result.sign;
        }
        if (threshold > best) {
            result.complete = false;
            return result;
        }
        const T pivot = a.at(k, k);
        const T* const upper = &a.at(k, 0);
        const auto multiplier = multipliers(pivot);
        for (i32 i = k + 1; i < m; ++i) {
            T* const row = &a.at(i, 0);
            const T factor = multiplier(row[k]);
            for (i32 j = k + 1; j < m; ++j) row[j] = row[j] - upper[j] * factor;
        }
        result.product = result.product * pivot;
    }
    return result;
}

}  // namespace vokm
