// Rows in registers: the elements of one row of a matrix side by side, n of them in as many registers as it takes. The last
// register can be partly filled; its other lanes are never written to memory, nor read from it.
#pragma once

#include "pack.h"

namespace vokm {

template <class T, int n> constexpr int rowRegisters = (n + packLanes<T> - 1) / packLanes<T>;

/// The last k elements of a row, fewer than a register holds.
template <int k> VOKM_INLINE Pack<float> loadPart(const float* from)
{
    if constexpr (k == 1) return Pack<float>(_mm_load_ss(from));
    const __m128 two = loadTwo(from);
    if constexpr (k == 2) return Pack<float>(two);
    return Pack<float>(_mm_movelh_ps(two, _mm_load_ss(from + 2)));
}
template <int k> VOKM_INLINE Pack<double> loadPart(const double* from) { return Pack<double>(_mm_load_sd(from)); }

template <int k> VOKM_INLINE void storePart(float* to, Pack<float> row)
{
    const __m128 v = __m128(row);
    if constexpr (k == 1) return _mm_store_ss(to, v);
    _mm_storel_pi(reinterpret_cast<__m64*>(to), v);
    if constexpr (k == 3) _mm_store_ss(to + 2, _mm_movehl_ps(v, v));
}
template <int k> VOKM_INLINE void storePart(double* to, Pack<double> row) { _mm_store_sd(to, __m128d(row)); }

template <class T, int n> struct RowRegisters {
    static constexpr int N = packLanes<T>, size = rowRegisters<T, n>;
    Pack<T> at[size];

    VOKM_INLINE void load(const T* from)
    {
        for (int j = 0; j < n / N; ++j) at[j] = loadLanes<Pack<T>>(from + j * N);
        if constexpr (n % N != 0) at[size - 1] = loadPart<n % N>(from + n / N * N);
    }
    VOKM_INLINE void store(T* to) const
    {
        for (int j = 0; j < n / N; ++j) storeLanes(to + j * N, at[j]);
        if constexpr (n % N != 0) storePart<n % N>(to + n / N * N, at[size - 1]);
    }
};

/// Registers of each object of a pack, as a source that is turned into lanes.
template <class T, int size> struct TurnedRegisters {
    static constexpr int N = packLanes<T>;
    Pack<T> at[N][size];
    VOKM_INLINE Pack<T> four(int lane, int k) const { return at[lane][k / N]; }
    VOKM_INLINE Pack<float> pairs(int a, int b, int k) const
    {
        return k % 4 == 0 ? __builtin_shufflevector(at[a][k / 4], at[b][k / 4], 0, 1, 4, 5)
                          : __builtin_shufflevector(at[a][k / 4], at[b][k / 4], 2, 3, 6, 7);
    }
    VOKM_INLINE T one(int lane, int k) const { return at[lane][k / N][k % N]; }
};

/// One lane in all lanes.
template <int lane> VOKM_INLINE Pack<float> spreadLane(Pack<float> v) { return __builtin_shufflevector(v, v, lane, lane, lane, lane); }
template <int lane> VOKM_INLINE Pack<double> spreadLane(Pack<double> v) { return __builtin_shufflevector(v, v, lane, lane); }

/// A value that is complete here: g++ would rather put sums off until they are stored, and spill what goes into them.
template <class V> VOKM_INLINE V settled(V v)
{
    asm("" : "+x"(v));
    return v;
}

/// The rows of a square matrix of size n. A transposed object is turned in registers.
template <class T, int n, class Object> VOKM_INLINE void loadRows(RowRegisters<T, n> (&rows)[n], const Object& object)
{
    if constexpr (Object::unit == Unit::row) {
        constexpr int N = packLanes<T>;
        for (int j = 0; j < rowRegisters<T, n>; ++j) {
            Fetch<T> stored;  // lanes without a column take the last one twice
            for (int lane = 0; lane < N; ++lane) stored.at[lane] = &object(0, j * N + lane < n ? j * N + lane : n - 1);
            Pack<T> turned[n];
            turnRuns<n>(turned, stored, false);
            for (int k = 0; k < n; ++k) rows[k].at[j] = turned[k];
        }
    } else {
        for (int k = 0; k < n; ++k) rows[k].load(&object(k, 0));
    }
}
/// The columns, which are the rows of the transposed.
template <class T, int n, class U, Unit unit> VOKM_INLINE void loadColumns(RowRegisters<T, n> (&columns)[n], const StridedObject<U, unit>& object)
{
    constexpr Unit other = unit == Unit::row ? Unit::column : Unit::row;
    loadRows(columns, StridedObject<U, other>{object.base, object.colStep, object.rowStep});
}

}  // namespace vokm
