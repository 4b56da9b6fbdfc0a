// vokmAffineTransform3DH: row, kernels' declarations, form. 32f in the stride layout alone.
#pragma once

#include "../frame/row.h"
#include "../frame/stamp.h"

namespace vokm {

inline constexpr Row rowAffine{.of32f = {"NCS", "", ""},
                               .of64f = {"", "", ""},
                               .limits = {always(2000), always(0), always(0)},
                               .work = [](const Wrap*, Wrap n) { return 6 * n + 16; },
                               .merges = true};

}  // namespace vokm

#define AFFINE_PARAMS(L, T, ...) \
    VOKM_PARAM(L, m, const T, src1), VOKM_PARAM(L, va, const T, src2), VOKM_PARAM(L, va, T, dst), int32_t count
#define AFFINE_ARGS(L, T, ...) \
    VOKM_VIEW(L, m, const T, src1), VOKM_VIEW(L, va, const T, src2), VOKM_VIEW(L, va, T, dst), vokm::Count{count}
#define AFFINE_TYPES(D, L, T, ...)                                                                                        \
    D<VOKM_TYPE(L, m, const T)> src1, D<VOKM_TYPE(L, va, const T)> src2, D<VOKM_TYPE(L, va, T)> dst, vokm::Count count
#define AFFINE_NAMES(...) src1, src2, dst, count
#define AFFINE_KERNEL(row, T, variant, ...) vokm::transform<variant>(src1, src2, dst, count.n)
#define AFFINE_FORM(STAMP) STAMP(AffineTransform3DH, mva, vokm::rowAffine, S, 32f, float, , , _S2, AFFINE)

extern "C" {
AFFINE_FORM(VOKM_DECLARE_TWO)
AFFINE_FORM(VOKM_DECLARE_OMP)
}
