// vokmTrace: rows, kernels' declarations, forms.
#pragma once

#include "../frame/row.h"
#include "../frame/stamp.h"

namespace vokm {

// Deliberate: only dense rows of 32f in the list layout have the larger limit, here and in vokmFrobNorm.
constexpr Limits matrixReductionLimits{always(20000), always(20000), {{{40000, 20000}, {20000, 20000}}}};

inline constexpr Row rowTraceM{{"NZS", "NZO", ""}, {"NZS", "NZO", ""}};
inline constexpr Row rowTraceMa{{"NCZS", "NCZSO", "NCZSO"}, {"NCZS", "NCZSO", "NCZSO"}, matrixReductionLimits,
                                [](const Wrap* s, Wrap n) { return s[0] * n; }};

}  // namespace vokm

#define TRACE_PARAMS(L, T, c) VOKM_PARAM(L, c, const T, src), int32_t widthHeight, T *dst
#define TRACE_ARGS(L, T, c) VOKM_VIEW(L, c, const T, src), vokm::Sizes{widthHeight}, vokm::Packed<T>{dst, 1}
#define TRACE_TYPES(D, L, T, c) D<VOKM_TYPE(L, c, const T)> src, vokm::Sizes<1> sizes, vokm::Packed<T> dst
#define TRACE_NAMES(c) src, sizes, dst
#define TRACE_KERNEL(row, T, variant, c) vokm::traces<variant>(src, dst, sizes[0], 1)

#define TRACES_PARAMS(L, T, c) TRACE_PARAMS(L, T, c), int32_t count
#define TRACES_ARGS(L, T, c) TRACE_ARGS(L, T, c), vokm::Count{count}
#define TRACES_TYPES(D, L, T, c) TRACE_TYPES(D, L, T, c), vokm::Count count
#define TRACES_NAMES(c) TRACE_NAMES(c), count
#define TRACES_KERNEL(row, T, variant, c) vokm::traces<variant>(src, dst, sizes[0], count.n)

#define TRACE_FORMS_SINGLE(FORM) FORM(Trace, m, vokm::rowTraceM, TRACE, m)
#define TRACE_FORMS_ARRAY(FORM) FORM(Trace, ma, vokm::rowTraceMa, TRACES, ma)

extern "C" {
TRACE_FORMS_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
TRACE_FORMS_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)
TRACE_FORMS_ARRAY(VOKM_DECLARE_ARRAY_WRAPPERS)
}
