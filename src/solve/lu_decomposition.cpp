// vokmLUDecomp: Gaussian elimination with partial pivoting. Rows stay where they are; p says which row comes when.
//
//   step k     p[k] changes places with the first largest |a(p[i],k)| of i = k .. n-1
//              l(i) = a(p[i],k) * (1/a(p[k],k)), a(p[i],j) = a(p[i],j) - l(i)*a(p[k],j), i and j above k
//
// Everything is in the element type; widening a magnitude for a comparison would change no comparison.
//
//   sizes 3 to 6   in registers; singular: twice the smallest normal number > |pivot|; rows are stored as they are finished
//   other sizes    in dst; singular: epsilon >= |pivot|; a failing step exchanges nothing
#include "lu.h"

#include "pivoting.h"

namespace vokm {

/// Factors a tile whose rows are kept in logical order: row i is physical row p[i]. Returns the number of finished rows: n, or
/// less if the pivot of that step is too small (in any lane).
template <class V, int n> VOKM_INLINE int eliminate(V (&a)[n][n], Index<V> (&p)[n])
{
    using T = Element<V>;
    const V limit = splat<V>(twiceSmallest<T>);
    VOKM_UNROLL for (int i = 0; i < n; ++i) p[i] = index<V>(i);
    VOKM_UNROLL for (int k = 0; k < n - 1; ++k)
    {
        Search<V, n> search(k, magnitude(a[k][k]));
        VOKM_UNROLL for (int i = k + 1; i < n; ++i) search.candidate(i, magnitude(a[i][k]));
        search.decide();
        search.exchange([&](int i) VOKM_INLINE_LAMBDA -> auto& { return p[i]; });
        if (any(limit > search.best)) return k;
        // Column by column, so that a column is read and written once for the exchange and the elimination.
        VOKM_UNROLL for (int j = 0; j <= k; ++j) search.exchange([&](int i) VOKM_INLINE_LAMBDA -> V& { return a[i][j]; });
        const V r = splat<V>(1) / a[k][k];
        VOKM_UNROLL for (int i = k + 1; i < n; ++i) a[i][k] = a[i][k] * r;
        VOKM_UNROLL for (int j = k + 1; j < n; ++j)
        {
            search.exchange([&](int i) VOKM_INLINE_LAMBDA -> V& { return a[i][j]; });
            VOKM_UNROLL for (int i = k + 1; i < n; ++i) a[i][j] = a[i][j] - a[i][k] * a[k][j];
        }
    }
    return any(limit > magnitude(a[n - 1][n - 1])) ? n - 1 : n;
}

/// One object of size n: on failure the rows of the steps before stand in dst, and the failing exchange in pivot.
template <int n, class S, class D> [[gnu::noinline]] vokStatus decomposeOne(S src, i32* pivot, D dst)
{
    using T = std::decay_t<decltype(dst(0, 0))>;
    T a[n][n];
    i32 p[n];
    for (int r = 0; r < n; ++r) {
        for (int c = 0; c < n; ++c) a[r][c] = src(r, c);
    }
    const int finished = eliminate(a, p);
    for (int r = 0; r < finished; ++r) {
        for (int c = 0; c < n; ++c) dst(p[r], c) = a[r][c];
    }
    for (int r = 0; r < n; ++r) pivot[r] = p[r];
    return finished == n ? vokStatusOk : vokStatusSingular;
}

/// Stores the pivots of a pack, and its rows at the places that they say.
template <class V, int n, class D> VOKM_INLINE void storeRows(const V (&a)[n][n], const Index<V> (&p)[n], const Packed<i32>& pivot, const D& dst, i32 i)
{
    using T = Element<V>;
    constexpr int N = lanesIn<V>;
    std::make_signed_t<std::conditional_t<sizeof(T) == 4, i32, i64>> place[n][N];
    static_assert(sizeof place[0] == sizeof(V));
    for (int r = 0; r < n; ++r) std::memcpy(place[r], &p[r], sizeof(V));
    if constexpr (D::dense) {
        T *first[N], *at[N];
        firstElements<n, n>(first, dst, i);
        for (int r = 0; r < n; ++r) {
            for (int lane = 0; lane < N; ++lane) at[lane] = byBytes(first[lane], i64(place[r][lane]) * dst.stride1);
            turnBack<n>(at, a[r], false);
        }
    } else {
        for (int r = 0; r < n; ++r) {
            for (int lane = 0; lane < N; ++lane) {
                const auto object = dst.object(i + lane, Shape{n, n});
                for (int c = 0; c < n; ++c) object(static_cast<i32>(place[r][lane]), c) = a[r][c][lane];
            }
        }
    }
    for (int lane = 0; lane < N; ++lane) {
        for (int r = 0; r < n; ++r) pivot.base[(i64(i) + lane) * n + r] = static_cast<i32>(place[r][lane]);
    }
}

template <int n, class T, class S, class D> [[gnu::noinline]] vokStatus decomposeFixed(S src, Packed<i32> pivot, D dst, i32 count)
{
    constexpr Shape shape{n, n};
    const auto guard = lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA { return packGuard(count, Shaped<D>{dst, shape}, Shaped<S>{src, shape}); });
    const bool packs = count >= packLanes<T> && elementsApart(Shaped<D>{dst, shape});
    const auto run = [&](auto from, auto to) VOKM_INLINE_LAMBDA {
        return walkFailing<T>(
            0, count, [&](i32 i) VOKM_INLINE_LAMBDA { return packs && guard(i); },
            [&](i32 i) VOKM_INLINE_LAMBDA {
                Pack<T> a[n][n];
                Index<Pack<T>> p[n];
                load(a, from, i);
                if (eliminate(a, p) < n) return false;
                storeRows(a, p, pivot, to, i);
                return true;
            },
            [&](i32 i) VOKM_INLINE_LAMBDA { return decomposeOne<n>(from.object(i, shape), pivot.from(i).base, to.object(i, shape)); });
    };
    if constexpr (mayBeTight<S> && mayBeTight<D>) {
        if (isTight<n, n>(src) && isTight<n, n>(dst)) return run(asTight<n, n>(src), asTight<n, n>(dst));
    }
    return run(pinned<n, n>(src), pinned<n, n>(dst));
}

/// One object of any size, in dst.
template <class T, class S, class D> vokStatus decomposeGeneral(S src, i32* pivot, D dst, i32 n)
{
    const auto magnitudeAt = [&](i32 i, i32 k) { return magnitude(dst(pivot[i], k)); };
    const auto singular = [](T best) { return std::numeric_limits<T>::epsilon() >= best; };
    for (i32 r = 0; r < n; ++r) {
        for (i32 c = 0; c < n; ++c) dst(r, c) = src(r, c);
    }
    for (i32 i = 0; i < n; ++i) pivot[i] = i;
    for (i32 k = 0; k < n - 1; ++k) {
        i32 bestIndex = k;
        T best = magnitudeAt(k, k);
        for (i32 i = k + 1; i < n; ++i) {
            if (!(magnitudeAt(i, k) > best)) continue;
            best = magnitudeAt(i, k);
            bestIndex = i;
        }
        if (singular(best)) return vokStatusSingular;
        std::swap(pivot[k], pivot[bestIndex]);
        const T r = T(1) / dst(pivot[k], k);
        for (i32 i = k + 1; i < n; ++i) dst(pivot[i], k) = dst(pivot[i], k) * r;
        for (i32 i = k + 1; i < n; ++i) {
            const i32 row = pivot[i], upper = pivot[k];
            const T multiplier = dst(row, k);
            for (i32 j = k + 1; j < n; ++j) dst(row, j) = dst(row, j) - multiplier * dst(upper, j);
        }
    }
    return singular(magnitudeAt(n - 1, n - 1)) ? vokStatusSingular : vokStatusOk;
}

}  // namespace vokm

// The general routines under their documented names: one for dense rows, one for any stride2, one for pointer tables.
#define LU_GENERAL(ty, T, suffix, Source, Result)                                                                          \
    extern "C" VOKM_NAMED ownvokmLUDecomp_m_##ty##suffix(vokm::Source src, int32_t* pivot, vokm::Result dst, int32_t n)    \
    {                                                                                                                      \
        return vokm::decomposeGeneral<T>(src, pivot, dst, n);                                                              \
    }                                                                                                                      \
    namespace vokm {                                                                                                       \
    static vokStatus decomposeAnySize(Source src, i32* pivot, Result dst, i32 n) { return ownvokmLUDecomp_m_##ty##suffix(src, pivot, dst, n); } \
    }
#define LU_GENERALS(ty, T)                                                                                                 \
    LU_GENERAL(ty, T, _S_com, DenseObject<const T>, DenseObject<T>)                                                        \
    LU_GENERAL(ty, T, _S2_com, AnyObject<const T>, AnyObject<T>)                                                           \
    LU_GENERAL(ty, T, _P_com, PointedObject<const T>, PointedObject<T>)
LU_GENERALS(32f, float)
LU_GENERALS(64f, double)

namespace vokm {

template <class T, class S, class D> VOKM_INLINE vokStatus decompose(const S& src, const Packed<i32>& pivot, const D& dst, i32 n, i32 count)
{
    return onFixed(
        n, [&](auto size) VOKM_INLINE_LAMBDA { return decomposeFixed<decltype(size)::value, T>(src, pivot, dst, count); },
        [&]() VOKM_INLINE_LAMBDA -> vokStatus {
            for (i32 i = 0; i < count; ++i) {
                const auto status = decomposeAnySize(src.object(i, Shape{n, n}), pivot.base + i64(i) * n, dst.object(i, Shape{n, n}), n);
                if (status) return status;
            }
            return vokStatusOk;
        });
}

}  // namespace vokm

extern "C" {
LU_FORMS_SINGLE(VOKM_SINGLE_KERNELS)
LU_FORMS_ARRAY(VOKM_ARRAY_KERNELS)
LU_FORMS_SINGLE(VOKM_SINGLE_EXPORTS)
LU_FORMS_ARRAY(VOKM_ARRAY_EXPORTS)
}
