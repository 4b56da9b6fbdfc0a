// vokmCrossProduct: rows, kernels' declarations, forms. All vectors have three elements, so there is no size.
#pragma once

#include "../frame/row.h"
#include "../frame/stamp.h"

namespace vokm {

constexpr Limits crossLimits{always(20000), always(20000), byType(40000, 20000)};
inline constexpr Work workCross = [](const Wrap*, Wrap n) { return 2 * n + 1; };
inline constexpr Row rowCrossVv{{"NS", "NO", ""}, {"NS", "NO", ""}};
// Deliberate: vav tests count behind the strides, the two others right behind the pointers.
inline constexpr Row rowCrossVav{{"NSC", "NSCO", "NSOC"}, {"NSC", "NSCO", "NSOC"}, crossLimits, workCross};
inline constexpr Row rowCrossVva{{"NCS", "NCSO", "NCSO"}, {"NCS", "NCSO", "NCSO"}, crossLimits, workCross};
inline constexpr Row rowCrossVava{{"NCS", "NCSO", "NCSO"}, {"NCS", "NCSO", "NCSO"}, crossLimits,
                                  [](const Wrap*, Wrap n) { return 3 * n; }};

}  // namespace vokm

#define CROSS_PARAMS(L, T, c1, c2, cd) VOKM_PARAM(L, c1, const T, src1), VOKM_PARAM(L, c2, const T, src2), VOKM_PARAM(L, cd, T, dst)
#define CROSS_ARGS(L, T, c1, c2, cd) VOKM_VIEW(L, c1, const T, src1), VOKM_VIEW(L, c2, const T, src2), VOKM_VIEW(L, cd, T, dst)
#define CROSS_TYPES(D, L, T, c1, c2, cd) \
    D<VOKM_TYPE(L, c1, const T)> src1, D<VOKM_TYPE(L, c2, const T)> src2, D<VOKM_TYPE(L, cd, T)> dst
#define CROSS_NAMES(c1, c2, cd) src1, src2, dst
#define CROSS_KERNEL(row, T, variant, c1, c2, cd) vokm::crossProducts<T>(src1, src2, dst, 1)

#define CROSSES_PARAMS(L, T, ...) CROSS_PARAMS(L, T, __VA_ARGS__), int32_t count
#define CROSSES_ARGS(L, T, ...) CROSS_ARGS(L, T, __VA_ARGS__), vokm::Count{count}
#define CROSSES_TYPES(D, L, T, ...) CROSS_TYPES(D, L, T, __VA_ARGS__), vokm::Count count
#define CROSSES_NAMES(...) CROSS_NAMES(__VA_ARGS__), count
#define CROSSES_KERNEL(row, T, variant, c1, c2, cd) vokm::crossProducts<T>(src1, src2, dst, count.n)

#define CROSS_FORMS_SINGLE(FORM) FORM(CrossProduct, vv, vokm::rowCrossVv, CROSS, v, v, v)
#define CROSS_FORMS_ARRAY(FORM)                                  \
    FORM(CrossProduct, vav, vokm::rowCrossVav, CROSSES, va, v, va)    \
    FORM(CrossProduct, vava, vokm::rowCrossVava, CROSSES, va, va, va)
#define CROSS_FORM_VVA(FORM) FORM(CrossProduct, vva, vokm::rowCrossVva, CROSSES, v, va, va)  // 64f_P has no wrapper

extern "C" {
CROSS_FORMS_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
CROSS_FORMS_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)
CROSS_FORM_VVA(VOKM_DECLARE_ARRAY_KERNELS)
CROSS_FORMS_ARRAY(VOKM_DECLARE_ARRAY_WRAPPERS)
CROSS_FORM_VVA(VOKM_DECLARE_ARRAY_WRAPPERS_BUT_64f_P)
}
