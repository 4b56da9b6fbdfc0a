// vokmDotProduct: rows, kernels' declarations, forms.
#pragma once

#include "../frame/row.h"
#include "../frame/stamp.h"

namespace vokm {

// Here the pointer layout's limits go the other way round than in the two others: by type, 32f first.
constexpr Limits dotLimits{byRows(40000, 20000), byType(20000, 40000), byRows(40000, 20000)};

inline constexpr Row rowDotVv{{"NZS", "NZO", ""}, {"NZS", "NZO", ""}};
inline constexpr Row rowDotVav{{"NCZS", "NCZSO", "NCZSO"}, {"NCZS", "NCZSO", "NCZSO"}, dotLimits,
                               [](const Wrap* s, Wrap n) { return (n + 1) * s[0]; }};
inline constexpr Row rowDotVava{{"NCZS", "NCZSO", "NCZSO"}, {"NCZS", "NCZSO", "NCZSO"}, dotLimits,
                                [](const Wrap* s, Wrap n) { return Wrap(2) * s[0] * n; }};

}  // namespace vokm

#define DOT_PARAMS(L, T, c1, c2) \
    VOKM_PARAM(L, c1, const T, src1), VOKM_PARAM(L, c2, const T, src2), T *dst, int32_t length
#define DOT_ARGS(L, T, c1, c2) \
    VOKM_VIEW(L, c1, const T, src1), VOKM_VIEW(L, c2, const T, src2), vokm::Packed<T>{dst, 1}, vokm::Sizes{length}
#define DOT_TYPES(D, L, T, c1, c2)                                                                           \
    D<VOKM_TYPE(L, c1, const T)> src1, D<VOKM_TYPE(L, c2, const T)> src2, vokm::Packed<T> dst, vokm::Sizes<1> sizes
#define DOT_NAMES(c1, c2) src1, src2, dst, sizes
#define DOT_KERNEL(row, T, variant, c1, c2) vokm::dotProduct<variant>(src1, src2, dst, sizes, vokm::Count{1})

#define DOTS_PARAMS(L, T, c1, c2) DOT_PARAMS(L, T, c1, c2), int32_t count
#define DOTS_ARGS(L, T, c1, c2) DOT_ARGS(L, T, c1, c2), vokm::Count{count}
#define DOTS_TYPES(D, L, T, c1, c2) DOT_TYPES(D, L, T, c1, c2), vokm::Count count
#define DOTS_NAMES(c1, c2) src1, src2, dst, sizes, count
#define DOTS_KERNEL(row, T, variant, c1, c2) vokm::dotProducts<variant>(src1, src2, dst, sizes, count)

#define DOT_FORMS_SINGLE(FORM) FORM(DotProduct, vv, vokm::rowDotVv, DOT, v, v)
#define DOT_FORMS_ARRAY(FORM)                             \
    FORM(DotProduct, vav, vokm::rowDotVav, DOTS, va, v)   \
    FORM(DotProduct, vava, vokm::rowDotVava, DOTS, va, va)

extern "C" {
DOT_FORMS_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
DOT_FORMS_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)
DOT_FORMS_ARRAY(VOKM_DECLARE_ARRAY_WRAPPERS)
}
