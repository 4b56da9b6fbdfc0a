// Families without kernels: the exported function runs its checks and then its own loop, on the calling thread.
#pragma once

#include "../frame/row.h"
#include "../frame/stamp.h"

namespace vokm {

template <const Row& row, Layout layout, class T, class Work, class... A> inline vokStatus enterDirect(Work work, const A&... a)
{
    if (const vokStatus status = check<row, layout, T>(a...)) return status;
    work(a...);
    return vokStatusOk;
}

constexpr Shape shapeOf(const Sizes<1>& length) { return {1, length[0]}; }
constexpr Shape shapeOf(const Sizes<2>& widthHeight) { return {widthHeight[1], widthHeight[0]}; }

}  // namespace vokm

// The size arguments of an operand code.
#define SIZES_PARAMS_v int32_t length
#define SIZES_PARAMS_m int32_t width, int32_t height
#define SIZES_ARGS_v vokm::Sizes{length}
#define SIZES_ARGS_m vokm::Sizes{width, height}

// An exported function of such a family: SHAPE_WORK does the work over the views of SHAPE_ARGS.
#define VOKM_EXPORT_DIRECT(fam, form, row, L, ty, T, exp, k1, k2, SHAPE, ...)                                          \
    vokStatus VOKM_EXPORT(fam, form, ty, exp)(SHAPE##_PARAMS(L, T, __VA_ARGS__))                                       \
    {                                                                                                                  \
        return vokm::enterDirect<row, vokm::Layout::L, T>(vokm::SHAPE##_WORK, SHAPE##_ARGS(L, T, __VA_ARGS__));        \
    }
#define VOKM_EXPORTS_DIRECT_SINGLE(...) VOKM_OVER_SINGLE(VOKM_EXPORT_DIRECT, VOKM_EXPORT_DIRECT, __VA_ARGS__)
#define VOKM_EXPORTS_DIRECT_ARRAY(...) VOKM_OVER_ARRAY(VOKM_EXPORT_DIRECT, VOKM_EXPORT_DIRECT, VOKM_EXPORT_DIRECT, __VA_ARGS__)
