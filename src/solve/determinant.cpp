// vokmDet. With m(rs) = a(0,r)*a(1,s) - a(0,s)*a(1,r), the minors of rows 0 and 1:
//
//   size 3         (m01*a22 - m02*a21) + m12*a20
//   size 4         ((c3*a33 - c2*a32) + c1*a31) + (0 - a30)*c0, with c(j) the minor of rows 0 to 2 without column j:
//                  c3 = a22*m01 - a21*m02 + a20*m12, the others with ascending columns but for the last
//   sizes 5, 6     minors of rows 0 to 2, then 0 to 3, and so on, each a sum over ascending columns with alternating signs;
//                  the bottom row is summed from the last column to the first
//   other sizes    elimination with partial pivoting in the buffer, a division for each row
#include "determinant.h"

#include "minors.h"
#include "scratch_elimination.h"

namespace vokm {

template <class V> VOKM_INLINE V determinant(const V (&a)[3][3])
{
    return ((a[0][0] * a[1][1] - a[0][1] * a[1][0]) * a[2][2] - (a[0][0] * a[1][2] - a[1][0] * a[0][2]) * a[2][1]) +
           (a[0][1] * a[1][2] - a[0][2] * a[1][1]) * a[2][0];
}

template <class V> VOKM_INLINE V determinant(const V (&a)[4][4])
{
    const auto m = [&](int r, int s) VOKM_INLINE_LAMBDA { return a[0][r] * a[1][s] - a[0][s] * a[1][r]; };
    const V m01 = m(0, 1), m02 = m(0, 2), m03 = m(0, 3), m12 = m(1, 2), m13 = m(1, 3), m23 = m(2, 3);
    const V c3 = a[2][2] * m01 - a[2][1] * m02 + a[2][0] * m12;
    const V c2 = a[2][0] * m13 - a[2][1] * m03 + a[2][3] * m01;
    const V c1 = a[2][0] * m23 - a[2][2] * m03 + a[2][3] * m02;
    const V c0 = a[2][1] * m23 - a[2][2] * m13 + a[2][3] * m12;
    return ((c3 * a[3][3] - c2 * a[3][2]) + c1 * a[3][1]) + (splat<V>(0) - a[3][0]) * c0;
}

template <class V, int n> VOKM_INLINE V determinant(const V (&a)[n][n])
{
    Minors<V, n> minors;  // of the first rows
    const auto addRow = [&]<int k>(std::integral_constant<int, k>) VOKM_INLINE_LAMBDA {
        const auto row = [&](int c) VOKM_INLINE_LAMBDA { return a[k - 1][c]; };
        overSets<n, k>([&]<unsigned columns>(std::integral_constant<unsigned, columns>) VOKM_INLINE_LAMBDA {
            minors[columns] = expansion<columns, Members::ascending>(row, minors);
        });
    };
    [&]<int... k>(std::integer_sequence<int, k...>) VOKM_INLINE_LAMBDA {
        (addRow(std::integral_constant<int, k + 1>{}), ...);
    }(std::make_integer_sequence<int, n - 1>());
    constexpr unsigned whole = (1u << n) - 1;
    V d = a[n - 1][n - 1] * minors[whole & ~(1u << (n - 1))];
    VOKM_UNROLL for (int c = n - 2; c >= 0; --c)
    {
        const V term = a[n - 1][c] * minors[whole & ~(1u << c)];
        d = (n - c) % 2 == 0 ? d - term : d + term;
    }
    return d;
}

template <int n, class T, class S> [[gnu::noinline]] T determinantOf(S src)
{
    T a[n][n];
    for (int r = 0; r < n; ++r) {
        for (int c = 0; c < n; ++c) a[r][c] = src(r, c);
    }
    return determinant(a);
}

template <int n, class T, class S> [[gnu::noinline]] vokStatus determinantsFixed(S src, T* dst, i32 count)
{
    constexpr Shape shape{n, n};
    const StrideView<T, Code::va> results(dst, sizeof(T), 0, sizeof(T));
    const auto guard = lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA {
        return packGuard(count, Shaped<StrideView<T, Code::va>>{results, {1, 1}}, Shaped<S>{src, shape});
    });
    const auto run = [&](auto from) VOKM_INLINE_LAMBDA {
        walkGuarded<T>(count, guard, [&](auto as, i32 i) VOKM_INLINE_LAMBDA {
            if constexpr (isPack<typename decltype(as)::type>) {
                Pack<T> a[n][n];
                load(a, from, i);
                storeLanes(dst + i, determinant(a));
            } else {
                dst[i] = determinantOf<n, T>(from.object(i, shape));
            }
        });
        return vokStatusOk;
    };
    if constexpr (mayBeTight<S>) {
        if (isTight<n, n>(src)) return run(asTight<n, n>(src));
    }
    return run(pinned<n, n>(src));
}

/// One object of any size. A matrix without a large enough pivot has determinant 0; among the objects of an array that 0 is the
/// sign of the closing product, which gives -0 or NaN where the product before it is negative or infinite.
template <bool array, class T, class S> [[gnu::noinline]] T determinantGeneral(S src, i32 n, T* buffer)
{
    const Workspace<T> a(buffer, n);
    const T threshold = sizeThreshold<T>(n);
    for (i32 r = 0; r < n; ++r) {
        for (i32 c = 0; c < n; ++c) a.w[i64(r) * n + c] = src(r, c);
    }
    for (i32 i = 0; i < n; ++i) a.p[i] = i;
    Eliminated<T> done = eliminateInScratch(a, n, threshold, [](T pivot) { return [pivot](T x) { return x / pivot; }; });
    if (!done.complete) {
        if (!array) return 0;
        done.sign = 0;
    }
    const T last = a.at(n - 1, n - 1);
    return magnitude(last) > threshold ? done.product * (last * done.sign) : T(0);
}

template <class T, class S>
VOKM_INLINE vokStatus determinants(const S& src, i32 n, T* buffer, T* dst, i32 count)
{
    return onFixed(
        n,
        [&](auto size) VOKM_INLINE_LAMBDA -> vokStatus {
            constexpr int k = decltype(size)::value;
            if constexpr (S::array) return determinantsFixed<k, T>(src, dst, count);
            *dst = determinantOf<k, T>(src.object(0, Shape{k, k}));
            return vokStatusOk;
        },
        [&]() VOKM_INLINE_LAMBDA -> vokStatus {
            for (i32 i = 0; i < count; ++i) dst[i] = determinantGeneral<S::array>(src.object(i, Shape{n, n}), n, buffer);
            return vokStatusOk;
        });
}

}  // namespace vokm

extern "C" {
DET_FORMS_SINGLE(VOKM_SINGLE_KERNELS)
DET_FORMS_ARRAY(VOKM_ARRAY_KERNELS)
DET_FORMS_SINGLE(VOKM_SINGLE_EXPORTS)
DET_FORMS_ARRAY(VOKM_ARRAY_EXPORTS)
}
