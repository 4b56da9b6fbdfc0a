// vokmInvert: rows, kernels' declarations, forms.
#pragma once

#include "../frame/row.h"
#include "../frame/stamp.h"

namespace vokm {

constexpr Orders invertOrders{"NCZS", "NCZSO", "NCZSO"}, invertSingleOrders{"NZS", "NZO", ""};

inline constexpr Row rowInvertM{invertSingleOrders, invertSingleOrders};
inline constexpr Row rowInvertMa{.of32f = invertOrders,
                                 .of64f = invertOrders,
                                 // Only dense 32f rows in the list layout have the larger limit.
                                 .limits = {always(20000), always(20000), {{{40000, 20000}, {20000, 20000}}}},
                                 .work = [](const Wrap* s, Wrap n) { return 2 * n * s[0]; },
                                 .scratch = [](const Wrap* s, Wrap E) { return (s[0] * s[0] + s[0]) * E; },
                                 .merges = true};

}  // namespace vokm

#define INVERT_PARAMS(L, T, code) \
    VOKM_PARAM(L, code, const T, src), T *buffer, VOKM_PARAM(L, code, T, dst), int32_t widthHeight
#define INVERT_ARGS(L, T, code) \
    VOKM_VIEW(L, code, const T, src), vokm::Scratch<T>{buffer}, VOKM_VIEW(L, code, T, dst), vokm::Sizes{widthHeight}
#define INVERT_TYPES(D, L, T, code) \
    D<VOKM_TYPE(L, code, const T)> src, vokm::Scratch<T> buffer, D<VOKM_TYPE(L, code, T)> dst, vokm::Sizes<1> sizes
#define INVERT_NAMES(code) src, buffer, dst, sizes
#define INVERT_KERNEL(row, T, variant, code) vokm::invert<T, variant>(src, buffer.base, dst, sizes[0], 1)

#define INVERTS_PARAMS(L, T, code) INVERT_PARAMS(L, T, code), int32_t count
#define INVERTS_ARGS(L, T, code) INVERT_ARGS(L, T, code), vokm::Count{count}
#define INVERTS_TYPES(D, L, T, code) INVERT_TYPES(D, L, T, code), vokm::Count count
#define INVERTS_NAMES(code) INVERT_NAMES(code), count
#define INVERTS_KERNEL(row, T, variant, code) vokm::invert<T, variant>(src, buffer.base, dst, sizes[0], count.n)

#define INVERT_FORMS_SINGLE(FORM) FORM(Invert, m, vokm::rowInvertM, INVERT, m)
#define INVERT_FORMS_ARRAY(FORM) FORM(Invert, ma, vokm::rowInvertMa, INVERTS, ma)

extern "C" {
INVERT_FORMS_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
INVERT_FORMS_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)
INVERT_FORMS_ARRAY(VOKM_DECLARE_ARRAY_WRAPPERS)
}
