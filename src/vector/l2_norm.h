// vokmL2Norm: rows, kernels' declarations, forms.
#pragma once

#include "../frame/row.h"
#include "../frame/stamp.h"

namespace vokm {

inline constexpr Row rowNormV{{"NZS", "NZO", ""}, {"NZS", "NZO", ""}};
inline constexpr Row rowNormVa{{"NCZS", "NCZSO", "NCZSO"},
                               {"NCZS", "NCZSO", "NCZSO"},
                               {always(20000), always(20000), always(20000)},
                               [](const Wrap* s, Wrap n) { return s[0] * n; }};

}  // namespace vokm

#define NORM_PARAMS(L, T, c) VOKM_PARAM(L, c, const T, src), T *dst, int32_t length
#define NORM_ARGS(L, T, c) VOKM_VIEW(L, c, const T, src), vokm::Packed<T>{dst, 1}, vokm::Sizes{length}
#define NORM_TYPES(D, L, T, c) D<VOKM_TYPE(L, c, const T)> src, vokm::Packed<T> dst, vokm::Sizes<1> sizes
#define NORM_NAMES(c) src, dst, sizes
#define NORM_KERNEL(row, T, variant, c) vokm::norm<variant>(src, dst, sizes)

#define NORMS_PARAMS(L, T, c) NORM_PARAMS(L, T, c), int32_t count
#define NORMS_ARGS(L, T, c) NORM_ARGS(L, T, c), vokm::Count{count}
#define NORMS_TYPES(D, L, T, c) NORM_TYPES(D, L, T, c), vokm::Count count
#define NORMS_NAMES(c) src, dst, sizes, count
#define NORMS_KERNEL(row, T, variant, c) vokm::norms<variant>(src, dst, sizes, count)

#define NORM_FORMS_SINGLE(FORM) FORM(L2Norm, v, vokm::rowNormV, NORM, v)
#define NORM_FORMS_ARRAY(FORM) FORM(L2Norm, va, vokm::rowNormVa, NORMS, va)

extern "C" {
NORM_FORMS_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
NORM_FORMS_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)
NORM_FORMS_ARRAY(VOKM_DECLARE_ARRAY_WRAPPERS)
}
