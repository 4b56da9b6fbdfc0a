// vokmTranspose: dst(c, r) = src(r, c). Objects in ascending order; at the sizes with straight code the rows of the result
// one after the other, so that an overlap gives what this order gives.
#include "../frame/fixed.h"
#include "../frame/overlap.h"
#include "transpose.h"

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
