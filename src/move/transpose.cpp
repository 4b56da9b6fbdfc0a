// vokmTranspose: dst(c, r) = src(r, c). Objects in ascending order; at the sizes with straight code the rows of the result
// one after the other, so that an overlap gives what this order gives.
#include "../frame/fixed.h"
#include "../frame/overlap.h"
#include "transpose.h"
#include "wide_transpose.h"

namespace vokm {

/// Whether the array outgrows three quarters of the cache. Formed in 32 bits; a small job does not ask.
inline bool outgrowsCache(i32 width, i32 height, i32 count)
{
    const i32 bytes = (Wrap(width) * height * count * 8).value();
    if (bytes <= 131072) return false;
    i32 cache = 0;
    vokGetMaxCacheSizeB(&cache);
    return cache != 0 && bytes > cache - cache / 4;
}

template <class T, class S, class D>
inline void transposeDense(const S& src, const D& dst, i32 width, i32 height, i32 count)
{
    const i32 past = sizeof(T) == 4 && S::array && outgrowsCache(width, height, count);
    for (i32 i = 0; i < count; ++i) {
        const T* from = &src.object(i, Shape{height, width})(0, 0);
        T* to = &dst.object(i, Shape{width, height})(0, 0);
        if constexpr (sizeof(T) == 4) {
            ownm_Transpose_32s(from, src.stride1, to, dst.stride1, width, height, past);
        } else {
            ownm_iTranspose_16u_C4R_M7(from, src.stride1, to, dst.stride1, width, height);
        }
    }
}

/// One n x n object whose rows are contiguous on both sides, in registers; the two sides share no memory.
template <int n> VOKM_INLINE void turn(const float* from, i64 fromStep, float* to, i64 toStep)
{
    if constexpr (n == 3) {
        // Rows that follow one another: (s0 s3 s6 s1) (s4 s7 s2 s5) s8.
        const auto a = loadLanes<Pack<float>>(from), b = loadLanes<Pack<float>>(from + 4);
        storeLanes(to, __builtin_shufflevector(a, __builtin_shufflevector(b, a, 2, 2, 5, 5), 0, 3, 4, 6));
        storeLanes(to + 4, __builtin_shufflevector(b, __builtin_shufflevector(a, b, 2, 2, 5, 5), 0, 3, 4, 6));
        to[8] = from[8];
    } else {
        const auto row = [&](int r) VOKM_INLINE_LAMBDA { return byBytes(from, r * fromStep); };
        const auto result = [&](int c) VOKM_INLINE_LAMBDA { return byBytes(to, c * toStep); };
        Pack<float> turned[n];
        turnRuns<n>(turned, Fetch<float>{.at = {row(0), row(1), row(2), row(3)}}, false);
        for (int c = 0; c < n; ++c) storeLanes(result(c), turned[c]);
        if constexpr (n == 5) {
            for (int c = 0; c < n; ++c) result(c)[4] = row(4)[c];
        }
        if constexpr (n == 6) {
            const auto a = loadLanes<Pack<float>>(row(4)), b = loadLanes<Pack<float>>(row(5));
            storeHalves(result(0) + 4, result(1) + 4, __builtin_shufflevector(a, b, 0, 4, 1, 5));
            storeHalves(result(2) + 4, result(3) + 4, __builtin_shufflevector(a, b, 2, 6, 3, 7));
            const auto rest = Fetch<float>{.at = {row(4), row(5), nullptr, nullptr}}.pairs(0, 1, 4);
            storeHalves(result(4) + 4, result(5) + 4, __builtin_shufflevector(rest, rest, 0, 2, 1, 3));
        }
    }
}
template <int n> VOKM_INLINE void turn(const double* from, i64 fromStep, double* to, i64 toStep)
{
    using V = Pack<double>;
    if constexpr (n == 3) {
        // Rows that follow one another: (s0 s3) (s6 s1) (s4 s7) (s2 s5) s8.
        const V a = loadLanes<V>(from), b = loadLanes<V>(from + 2), c = loadLanes<V>(from + 4), d = loadLanes<V>(from + 6);
        storeLanes(to, __builtin_shufflevector(a, b, 0, 3));
        storeLanes(to + 2, __builtin_shufflevector(d, a, 0, 3));
        storeLanes(to + 4, __builtin_shufflevector(c, d, 0, 3));
        storeLanes(to + 6, __builtin_shufflevector(b, c, 0, 3));
        to[8] = from[8];
    } else {
        const auto row = [&](int r) VOKM_INLINE_LAMBDA { return byBytes(from, r * fromStep); };
        const auto result = [&](int c) VOKM_INLINE_LAMBDA { return byBytes(to, c * toStep); };
        for (int r = 0; r + 2 <= n; r += 2) {
            for (int c = 0; c + 2 <= n; c += 2) {
                const V a = loadLanes<V>(row(r) + c), b = loadLanes<V>(row(r + 1) + c);
                storeLanes(result(c) + r, __builtin_shufflevector(a, b, 0, 2));
                storeLanes(result(c + 1) + r, __builtin_shufflevector(a, b, 1, 3));
            }
        }
        if constexpr (n % 2 == 1) {
            constexpr int last = n - 1;
            for (int k = 0; k < last; ++k) {
                result(last)[k] = row(k)[last];
                result(k)[last] = row(last)[k];
            }
            result(last)[last] = row(last)[last];
        }
    }
}

/// Whether the objects of an array are blocks of 16-byte rows, each at a multiple of 16.
template <class View> inline bool alignedRows(const View& view)
{
    return reinterpret_cast<Address>(view.base) % 16 == 0 && view.stride0 % 16 == 0 && view.stride1 == 16;
}

template <Variant variant, class T, class S, class D>
vokStatus transpose(const S& src, const D& dst, i32 width, i32 height, i32 count)
{
    const auto general = [&] {
        if constexpr (S::dense) {
            transposeDense<T>(src, dst, width, height, count);
        } else {
            for (i32 i = 0; i < count; ++i) {
                const auto from = src.object(i, Shape{height, width});
                const auto to = dst.object(i, Shape{width, height});
                for (i32 r = 0; r < height; ++r) {
                    for (i32 c = 0; c < width; ++c) to(c, r) = from(r, c);
                }
            }
        }
    };
    const auto straight = [&](auto size) {
        constexpr i32 n = decltype(size)::value;
        constexpr Shape shape{n, n};
        if constexpr (S::dense && requires { dst.base; src.base; }) {
            constexpr i32 row = n * static_cast<i32>(sizeof(T));
            const bool dense = n > 3 || (src.stride1 == row && dst.stride1 == row);
            // Rows of the result that overlap one another are stored in order, too. Aligned 4 x 4 objects of an array are read
            // whole before they are written, so those can be turned in place.
            const bool whole = n == 4 && sizeof(T) == 4 && S::array && alignedRows(src) && alignedRows(dst);
            const bool apart = wholesApart(count, Shaped<D>{dst, shape}, Shaped<S>{src, shape});
            if (dense && dst.stride1 >= row && (whole || apart)) {
                const T* from = src.base;
                T* to = dst.base;
                if constexpr (S::array && n != 5) {  // of five, every register would take from too many
                    if (apart && packedObjects<n * n>(src) && packedObjects<n * n>(dst) && src.stride1 == row &&
                        dst.stride1 == row && count >= transposedAtOnce<T, n> && widestRegisters()) {
                        WideTransposes<T, n> work{from, to};
                        return objectsWide<false, transposedAtOnce<T, n>>(count, 0, &work);
                    }
                }
                const i64 fromStep = src.stride0, toStep = dst.stride0, fromRow = src.stride1, toRow = dst.stride1;
                for (i32 i = 0; i < count; ++i) {
                    turn<n>(from, fromRow, to, toRow);
                    from = byBytes(from, fromStep);
                    to = byBytes(to, toStep);
                }
                return;
            }
        }
        for (i32 i = 0; i < count; ++i) {
            const auto from = src.object(i, shape);
            const auto to = dst.object(i, shape);
            for (i32 r = 0; r < n; ++r) {
                for (i32 c = 0; c < n; ++c) to(r, c) = from(c, r);
            }
        }
    };
    onFixed(width == height ? width : 0, straight, general);
    return vokStatusOk;
}

}  // namespace vokm

extern "C" {
TRANSPOSE_SINGLE(VOKM_SINGLE_KERNELS)
TRANSPOSE_SINGLE(VOKM_SINGLE_EXPORTS)
TRANSPOSE_ARRAY(VOKM_ARRAY_KERNELS)
#define TRANSPOSE_EXPORTS(...) VOKM_OVER_ARRAY(VOKM_EXPORT_SINGLE, VOKM_EXPORT_SINGLE, VOKM_EXPORT_SINGLE, __VA_ARGS__)
TRANSPOSE_ARRAY(TRANSPOSE_EXPORTS)
}
