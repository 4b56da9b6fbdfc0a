// vokmFrobNorm: rows, kernels' declarations, forms.
#pragma once

#include "trace.h"

namespace vokm {

inline constexpr Row rowFrobM{{"NZS", "NZO", ""}, {"NZS", "NZO", ""}};
inline constexpr Row rowFrobMa{{"NCZS", "NCZSO", "NCZSO"}, {"NCZS", "NCZSO", "NCZSO"}, matrixReductionLimits,
                               [](const Wrap* s, Wrap n) { return s[0] * s[1] * n; }};

}  // namespace vokm

#define FROB_PARAMS(L, T, c) VOKM_PARAM(L, c, const T, src), int32_t width, int32_t height, T *dst
#define FROB_ARGS(L, T, c) VOKM_VIEW(L, c, const T, src), vokm::Sizes{width, height}, vokm::Packed<T>{dst, 1}
#define FROB_TYPES(D, L, T, c) D<VOKM_TYPE(L, c, const T)> src, vokm::Sizes<2> sizes, vokm::Packed<T> dst
#define FROB_NAMES(c) src, sizes, dst
#define FROB_KERNEL(row, T, variant, c) vokm::frobNorms<variant>(src, dst, vokm::Shape{sizes[1], sizes[0]}, 1)

#define FROBS_PARAMS(L, T, c) FROB_PARAMS(L, T, c), int32_t count
#define FROBS_ARGS(L, T, c) FROB_ARGS(L, T, c), vokm::Count{count}
#define FROBS_TYPES(D, L, T, c) FROB_TYPES(D, L, T, c), vokm::Count count
#define FROBS_NAMES(c) FROB_NAMES(c), count
#define FROBS_KERNEL(row, T, variant, c) vokm::frobNorms<variant>(src, dst, vokm::Shape{sizes[1], sizes[0]}, count.n)

// Deliberate: for one matrix, one kernel of the stride layout serves any stride2.
#define FROB_STAMP_SINGLE(STAMP)                                               \
    STAMP(FrobNorm, m, vokm::rowFrobM, S, 32f, float, , , , FROB, m)           \
    STAMP(FrobNorm, m, vokm::rowFrobM, S, 64f, double, , , , FROB, m)          \
    STAMP(FrobNorm, m, vokm::rowFrobM, P, 32f, float, _P, _P, _P, FROB, m)     \
    STAMP(FrobNorm, m, vokm::rowFrobM, P, 64f, double, _P, _P, _P, FROB, m)
#define FROB_FORMS_ARRAY(FORM) FORM(FrobNorm, ma, vokm::rowFrobMa, FROBS, ma)

extern "C" {
FROB_STAMP_SINGLE(VOKM_DECLARE_ONE)
FROB_FORMS_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)
FROB_FORMS_ARRAY(VOKM_DECLARE_ARRAY_WRAPPERS)
}
