// vokmQRDecomp: A = Q*R by Householder reflections I + beta*v*transpose(v), one for each column k but the last of a square
// matrix. dst holds R on and above the diagonal, v(k+1), ... below it; v(k) = 1, and beta is not kept.
//
//   s = a(k,k)^2 + ... + a(h-1,k)^2, from 0;   norm = sqrt(s) with the sign of a(k,k), minus if that is not above 0
//   v(i) = a(i,k) * (1 / (a(k,k) + norm));     beta = -2 / (1 + v(k+1)^2 + ... + v(h-1)^2)
//   t(j) = (a(k,j) + a(k+1,j)*v(k+1) + ... + a(h-1,j)*v(h-1)) * beta;   a(i,j) += v(i)*t(j)       all left to right
#include "qr.h"

#include <limits>

#include "../frame/fixed.h"
#include "../frame/overlap.h"
#include "unrolled.h"

namespace vokm {

/// Reflects in `a`, h rows of w columns, with v(0), ... v(h-1) for the vector. Returns the number of finished steps: `steps`, or
/// that of the column which vanishes in any lane.
template <class V, class A, class B, class W, class H, class K> VOKM_INLINE int reflect(const A& a, const B& v, W w, H h, K steps)
{
    using T = Element<V>;
    int done = 0;
    over(At<0>{}, steps, [&](auto k) VOKM_INLINE_LAMBDA {
        V s{};
        over(k, h, [&](auto i) VOKM_INLINE_LAMBDA { s = s + a(i, k) * a(i, k); });
        // Absolute and unscaled; a not-a-number passes.
        if (any(splat<V>(std::numeric_limits<T>::epsilon()) > magnitude(s))) return false;
        const V head = a(k, k), zero{}, one = splat<V>(1);
        V norm = root(s);  // the root of 64 bits, rounded, is that of 32
        norm = head > zero ? norm : zero - norm;
        const V r = one / (head + norm);
        V q = one;
        v(k) = one;
        over(next(k), h, [&](auto i) VOKM_INLINE_LAMBDA {
            v(i) = a(i, k) * r;
            q = q + v(i) * v(i);
        });
        const V beta = splat<V>(-2) / q;
        const auto product = [&](auto j) VOKM_INLINE_LAMBDA {
            V t = a(k, j);
            over(next(k), h, [&](auto i) VOKM_INLINE_LAMBDA { t = t + a(i, j) * v(i); });
            return t * beta;
        };
        a(k, k) = head + product(k);
        over(next(k), w, [&](auto j) VOKM_INLINE_LAMBDA {
            const V t = product(j);
            a(k, j) = a(k, j) + t;
            over(next(k), h, [&](auto i) VOKM_INLINE_LAMBDA { a(i, j) = a(i, j) + v(i) * t; });
        });
        over(next(k), h, [&](auto i) VOKM_INLINE_LAMBDA { a(i, k) = v(i); });
        ++done;
        return true;
    });
    return done;
}

/// The vector in a buffer of elements, or of packs.
template <class V> struct VectorAt {
    V* base;
    VOKM_INLINE V& operator()(int i) const { return base[i]; }
};

/// Square matrices of n rows, 3 to 6: in registers. The buffer is left as one object after the other leaves it.
template <int n, class S, class D, class T> VOKM_INLINE vokStatus reflectFixed(const S& src, T* buffer, const D& dst, i32 count)
{
    using V = Pack<T>;
    constexpr i32 N = packLanes<T>;
    constexpr At<n> size;
    constexpr At<n - 1> steps;
    const auto from = pinned<n, n>(src);
    const auto to = pinned<n, n>(dst);
    const auto guard = lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA {
        return packGuard(count, Shaped<D>{dst, {n, n}}, Shaped<S>{src, {n, n}});
    });
    for (i32 i = 0; i < count;) {
        if (i + N <= count && guard(i)) {
            V a[n][n], v[n];
            load(a, from, i);
            if (reflect<V>(TileObject<V, n, n>{a}, VectorAt<V>{v}, size, size, steps) == n - 1) {
                store(a, to, i);
                for (int k = 0; k < n; ++k) buffer[k] = v[k][N - 1];
                i += N;
                continue;
            }
        }
        // The last objects, objects that overlap others, and packs with one that fails.
        for (const i32 end = std::min(count, i + N); i < end; ++i) {
            T a[n][n];
            load(a, from, i);
            const int done = reflect<T>(TileObject<T, n, n>{a}, VectorAt<T>{buffer}, size, size, steps);
            store(a, to, i);
            if (done < n - 1) return vokStatusDivideByZero;
        }
    }
    return vokStatusOk;
}

template <class S, class D, class T>
VOKM_INLINE vokStatus reflectGeneral(const S& src, T* buffer, const D& dst, Shape shape, i32 count)
{
    const i32 w = shape.cols, h = shape.rows, steps = w == h ? w - 1 : w;
    for (i32 i = 0; i < count; ++i) {
        const auto from = src.object(i, shape);
        const auto to = dst.object(i, shape);
        for (i32 r = 0; r < h; ++r) {
            for (i32 c = 0; c < w; ++c) to(r, c) = from(r, c);
        }
        if (reflect<T>(to, VectorAt<T>{buffer}, w, h, steps) < steps) return vokStatusDivideByZero;
    }
    return vokStatusOk;
}

template <class S, class D, class T> VOKM_INLINE vokStatus qrDecomp(S src, T* buffer, D dst, Shape shape, i32 count)
{
    return onFixed(
        shape.rows == shape.cols ? shape.rows : 0,
        [&]<int n>(Fixed<n>) VOKM_INLINE_LAMBDA { return reflectFixed<n>(src, buffer, dst, count); },
        [&]() VOKM_INLINE_LAMBDA { return reflectGeneral(src, buffer, dst, shape, count); });
}

}  // namespace vokm

extern "C" {
QR_DECOMP_SINGLE(VOKM_SINGLE_KERNELS)
QR_DECOMP_ARRAY(VOKM_ARRAY_KERNELS)
QR_DECOMP_SINGLE(VOKM_SINGLE_EXPORTS)
QR_DECOMP_ARRAY(VOKM_ARRAY_EXPORTS)
}
