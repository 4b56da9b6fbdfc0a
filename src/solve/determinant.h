// vokmDet: rows, kernels' declarations, forms.
#pragma once

#include "../frame/row.h"
#include "../frame/stamp.h"

namespace vokm {

constexpr Orders detOrders{"NCZS", "NCZSO", "NCZSO"}, detSingleOrders{"NZS", "NZO", ""};

inline constexpr Row rowDetM{detSingleOrders, detSingleOrders};
inline constexpr Row rowDetMa{.of32f = detOrders,
                              .of64f = detOrders,
                              // Only dense 32f rows in the list layout have the larger limit.
                              .limits = {always(20000), always(20000), {{{40000, 20000}, {20000, 20000}}}},
                              .work = [](const Wrap* s, Wrap n) { return s[0] * n; },
                              .scratch = [](const Wrap* s, Wrap E) { return (s[0] * s[0] + s[0]) * E; }};

}  // namespace vokm

#define DET_PARAMS(L, T, code) VOKM_PARAM(L, code, const T, src), int32_t widthHeight, T *buffer, T *dst
#define DET_ARGS(L, T, code)                                                                                    \
    VOKM_VIEW(L, code, const T, src), vokm::Sizes{widthHeight}, vokm::Scratch<T>{buffer}, vokm::Packed<T>{dst, 1}
#define DET_TYPES(D, L, T, code)                                                                                \
    D<VOKM_TYPE(L, code, const T)> src, vokm::Sizes<1> sizes, vokm::Scratch<T> buffer, vokm::Packed<T> dst
#define DET_NAMES(code) src, sizes, buffer, dst
#define DET_KERNEL(row, T, variant, code) vokm::determinants<T>(src, sizes[0], buffer.base, dst.base, 1)

#define DETS_PARAMS(L, T, code) DET_PARAMS(L, T, code), int32_t count
#define DETS_ARGS(L, T, code) DET_ARGS(L, T, code), vokm::Count{count}
#define DETS_TYPES(D, L, T, code) DET_TYPES(D, L, T, code), vokm::Count count
#define DETS_NAMES(code) DET_NAMES(code), count
#define DETS_KERNEL(row, T, variant, code) vokm::determinants<T>(src, sizes[0], buffer.base, dst.base, count.n)

#define DET_FORMS_SINGLE(FORM) FORM(Det, m, vokm::rowDetM, DET, m)
#define DET_FORMS_ARRAY(FORM) FORM(Det, ma, vokm::rowDetMa, DETS, ma)

extern "C" {
DET_FORMS_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
DET_FORMS_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)
DET_FORMS_ARRAY(VOKM_DECLARE_ARRAY_WRAPPERS)
}
