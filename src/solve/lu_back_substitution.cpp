// vokmLUBackSubst: A x = b from the factors of vokmLUDecomp, with l(i,j) and u(i,j) in row p[i].
//
//   sizes 3 to 6   y(i) = ((b(p[i]) - l(i,1)*y(1)) - ... - l(i,i-1)*y(i-1)) - l(i,0)*y(0): column 0 comes last
//                  x(i) = ((y(i) - u(i,n-1)*x(n-1)) - ... - u(i,i+1)*x(i+1)) * (1/u(i,i)): from the last column on
//   other sizes    y(i) = b(p[i]) - s, x(i) = (y(i) - s) / u(i,i), where s is summed first: from 0, columns ascending
#include "lu.h"

#include "pivoting.h"

namespace vokm {

/// The factors of one object in logical order, with the reciprocals of the diagonal.
template <class V, int n> struct Factors {
    V a[n][n], r[n];

    VOKM_INLINE void invertDiagonal()
    {
        VOKM_UNROLL for (int i = 0; i < n; ++i) r[i] = splat<V>(1) / a[i][i];
    }
    /// x holds b in logical order, then the solution.
    VOKM_INLINE void solve(V (&x)[n]) const
    {
        VOKM_UNROLL for (int i = 1; i < n; ++i)
        {
            VOKM_UNROLL for (int j = 1; j < i; ++j) x[i] = x[i] - a[i][j] * x[j];
            x[i] = x[i] - a[i][0] * x[0];
        }
        VOKM_UNROLL for (int i = n - 1; i >= 0; --i)
        {
            VOKM_UNROLL for (int j = n - 1; j > i; --j) x[i] = x[i] - a[i][j] * x[j];
            x[i] = x[i] * r[i];
        }
    }
};

/// One object: rows and right-hand side are read where p says, whatever it says.
template <int n, class T, class S> VOKM_INLINE void loadFactors(Factors<T, n>& factors, const S& src, const i32* p)
{
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) factors.a[i][j] = src(p[i], j);
    }
    factors.invertDiagonal();
}

template <int n, class T, class B, class D> VOKM_INLINE void solveOne(const Factors<T, n>& factors, const B& b, const i32* p, const D& dst)
{
    T x[n];
    for (int i = 0; i < n; ++i) x[i] = b(0, p[i]);
    factors.solve(x);
    for (int i = 0; i < n; ++i) dst(0, i) = x[i];
}

template <int n, class T, class S, class B, class D> [[gnu::noinline]] void solveSingle(S src, B b, const i32* p, D dst)
{
    Factors<T, n> factors;
    loadFactors(factors, src, p);
    solveOne(factors, b, p, dst);
}

/// One matrix, many vectors: the matrix is read and its diagonal inverted once.
template <int n, class T, class S, class B, class D>
[[gnu::noinline]] vokStatus solveVectors(S src, const i32* pivot, B src2, D dst, i32 count)
{
    constexpr Shape shape{1, n};
    using V = Pack<T>;
    const auto from = pinned<1, n>(src2);
    const auto to = pinned<1, n>(dst);
    i32 p[n];
    Factors<T, n> one;
    Factors<V, n> spread;
    bool packs = count >= packLanes<T>;
    for (int i = 0; i < n; ++i) {
        p[i] = pivot[i];
        packs = packs && p[i] >= 0 && p[i] < n;
    }
    loadFactors(one, src.object(0, Shape{n, n}), p);
    if (packs) {
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < n; ++j) spread.a[i][j] = splat<V>(one.a[i][j]);
            spread.r[i] = splat<V>(one.r[i]);
        }
    }
    const auto guard = lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA { return packGuard(count, Shaped<D>{dst, shape}, Shaped<B>{src2, shape}); });
    walkGuarded<T>(count, [&](i32 i) VOKM_INLINE_LAMBDA { return packs && guard(i); }, [&](auto as, i32 i) VOKM_INLINE_LAMBDA {
        if constexpr (isPack<typename decltype(as)::type>) {
            V b[1][n], x[1][n];
            load(b, from, i);
            for (int k = 0; k < n; ++k) x[0][k] = b[0][p[k]];
            spread.solve(x[0]);
            store(x, to, i);
        } else {
            solveOne(one, src2.object(i, shape), p, to.object(i, shape));
        }
    });
    return vokStatusOk;
}

/// The factors of a pack of objects: each lane has its own order of rows, at p + lane*n.
template <class V, int n, class S> VOKM_INLINE void loadFactors(Factors<V, n>& factors, const S& src, const i32* p, i32 i)
{
    using T = Element<V>;
    constexpr int N = lanesIn<V>;
    if constexpr (S::dense) {
        const T* first[N];
        firstElements<n, n>(first, src, i);
        VOKM_UNROLL for (int r = 0; r < n; ++r)
        {
            Fetch<T> from;
            for (int lane = 0; lane < N; ++lane) from.at[lane] = byBytes(first[lane], i64(p[lane * n + r]) * src.stride1);
            turnRuns<n>(factors.a[r], from, false);
        }
    } else {
        for (int r = 0; r < n; ++r) {
            for (int c = 0; c < n; ++c) {
                const auto element = [&](int lane) VOKM_INLINE_LAMBDA { return src.object(i + lane, Shape{n, n})(p[lane * n + r], c); };
                factors.a[r][c] = fromLanes<V>(element);
            }
        }
    }
    factors.invertDiagonal();
}

/// The right-hand sides of a pack, each in its own order.
template <class V, int n, class B> VOKM_INLINE void loadOrdered(V (&b)[n], const B& src, const i32* p, i32 i)
{
    if constexpr (B::dense) {
        const Element<V>* first[lanesIn<V>];
        firstElements<1, n>(first, src, i);
        for (int k = 0; k < n; ++k) b[k] = fromLanes<V>([&](int lane) VOKM_INLINE_LAMBDA { return first[lane][p[lane * n + k]]; });
    } else {
        for (int k = 0; k < n; ++k) {
            b[k] = fromLanes<V>([&](int lane) VOKM_INLINE_LAMBDA { return src.object(i + lane, Shape{1, n})(0, p[lane * n + k]); });
        }
    }
}

/// Nothing tests that pivots lie below n: one beyond is a further row of the caller's. A pinned view of a pointer table holds
/// n rows, so such arrays go one by one, by the table itself.
template <class S, int n> VOKM_INLINE bool withinPinned(const i32* pivot, i32 count)
{
    bool within = true;
    if constexpr (!std::is_same_v<S, Pinned<n, n, S>>) {
        for (i64 i = 0; i < i64(count) * n; ++i) within = within && pivot[i] >= 0 && pivot[i] < n;
    }
    return within;
}

/// As many matrices as vectors.
template <int n, class T, class S, class B, class D>
[[gnu::noinline]] vokStatus solvePairs(S src, const i32* pivot, B src2, D dst, i32 count)
{
    constexpr Shape square{n, n}, vector{1, n};
    using V = Pack<T>;
    const auto guard = lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA {
        return packGuard(count, Shaped<D>{dst, vector}, Shaped<S>{src, square}, Shaped<B>{src2, vector});
    });
    const bool packs = withinPinned<S, n>(pivot, count);
    const auto run = [&](auto matrices, auto from, auto to) VOKM_INLINE_LAMBDA {
        walkGuarded<T>(count, [&](i32 i) VOKM_INLINE_LAMBDA { return packs && guard(i); }, [&](auto as, i32 i) VOKM_INLINE_LAMBDA {
            const i32* p = pivot + i64(i) * n;
            if constexpr (isPack<typename decltype(as)::type>) {
                Factors<V, n> factors;
                V x[1][n];
                loadFactors(factors, matrices, p, i);
                loadOrdered(x[0], from, p, i);
                factors.solve(x[0]);
                store(x, to, i);
            } else {
                solveSingle<n, T>(src.object(i, square), src2.object(i, vector), p, to.object(i, vector));
            }
        });
        return vokStatusOk;
    };
    if constexpr (mayBeTight<S> && mayBeTight<D>) {
        if (isTight<n, n>(src) && isTight<1, n>(src2) && isTight<1, n>(dst)) {
            return run(asTight<n, n>(src), asTight<1, n>(src2), asTight<1, n>(dst));
        }
    }
    return run(pinned<n, n>(src), pinned<1, n>(src2), pinned<1, n>(dst));
}

/// One object of any size, in dst.
template <class T, class S, class B, class D> [[gnu::noinline]] void solveGeneral(S src, B b, const i32* p, D dst, i32 n)
{
    const auto sum = [&](i32 i, i32 begin, i32 end) {
        T s = 0;
        for (i32 j = begin; j < end; ++j) s = s + src(p[i], j) * dst(0, j);
        return s;
    };
    dst(0, 0) = b(0, p[0]);
    for (i32 i = 1; i < n; ++i) {
        const T s = sum(i, 0, i);
        dst(0, i) = b(0, p[i]) - s;
    }
    dst(0, n - 1) = dst(0, n - 1) / src(p[n - 1], n - 1);
    for (i32 i = n - 2; i >= 0; --i) dst(0, i) = (dst(0, i) - sum(i, i + 1, n)) / src(p[i], i);
}

template <class T, class S, class B, class D>
VOKM_INLINE vokStatus solve(const S& src, const Packed<const i32>& pivot, const B& src2, const D& dst, i32 n, i32 count)
{
    const auto fixed = [&](auto size) VOKM_INLINE_LAMBDA -> vokStatus {
        constexpr int k = decltype(size)::value;
        if constexpr (S::array) {
            return solvePairs<k, T>(src, pivot.base, src2, dst, count);
        } else if constexpr (D::array) {
            return solveVectors<k, T>(src, pivot.base, src2, dst, count);
        } else {
            const Shape vector{1, k};
            solveSingle<k, T>(src.object(0, Shape{k, k}), src2.object(0, vector), pivot.base, dst.object(0, vector));
            return vokStatusOk;
        }
    };
    return onFixed(n, fixed, [&]() VOKM_INLINE_LAMBDA -> vokStatus {
        const Shape square{n, n}, vector{1, n};
        for (i32 i = 0; i < count; ++i) {
            solveGeneral<T>(src.object(i, square), src2.object(i, vector), pivot.from(i).base, dst.object(i, vector), n);
        }
        return vokStatusOk;
    });
}

}  // namespace vokm

extern "C" {
LU_SOLVE_FORMS_SINGLE(VOKM_SINGLE_KERNELS)
LU_SOLVE_FORMS_MVA(VOKM_ARRAY_KERNELS)
LU_SOLVE_FORMS_MAVA(VOKM_ARRAY_KERNELS)
LU_SOLVE_FORMS_SINGLE(VOKM_SINGLE_EXPORTS)
LU_SOLVE_FORMS_MVA(VOKM_ARRAY_EXPORTS)
LU_SOLVE_FORMS_MAVA(VOKM_ARRAY_EXPORTS)
}
