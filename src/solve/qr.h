// vokmQRDecomp and vokmQRBackSubst: rows, kernels' declarations, forms.
#pragma once

#include "../frame/row.h"
#include "../frame/stamp.h"

namespace vokm {

// The comparison of width and height comes behind everything else.
constexpr Orders qrSingleOrders{"NZSM", "NZOM", ""}, qrOrders{"NCZSM", "NCZSOM", "NCZSOM"};
constexpr Limits qrLimits{always(2800), always(1800), always(1800)};

inline constexpr Mismatch widerThanHigh = [](const i32* s) { return s[0] > s[1]; };
inline constexpr Work qrScratch = [](const Wrap* s, Wrap elementSize) { return s[1] * elementSize; };

inline constexpr Row rowQrSingle{.of32f = qrSingleOrders, .of64f = qrSingleOrders, .mismatch = widerThanHigh};
inline constexpr Row rowQrDecompMa{.of32f = qrOrders,
                                   .of64f = qrOrders,
                                   .limits = qrLimits,
                                   .work = [](const Wrap* s, Wrap n) { return s[0] * s[1] * (n * 2); },
                                   .mismatch = widerThanHigh,
                                   .scratch = qrScratch,
                                   .merges = true};
inline constexpr Row rowQrBackSubstMva{.of32f = qrOrders,
                                       .of64f = qrOrders,
                                       .limits = qrLimits,
                                       .work = [](const Wrap* s, Wrap n) { return s[0] * s[1] + (s[0] + s[1]) * n; },
                                       .mismatch = widerThanHigh,
                                       .scratch = qrScratch};
inline constexpr Row rowQrBackSubstMava{.of32f = qrOrders,
                                        .of64f = qrOrders,
                                        .limits = qrLimits,
                                        .work = [](const Wrap* s, Wrap n) { return (s[0] * s[1] + s[0] + s[1]) * n; },
                                        .mismatch = widerThanHigh,
                                        .scratch = qrScratch};

}  // namespace vokm

#define REFLECT_PARAMS(L, T, c) \
    VOKM_PARAM(L, c, const T, src), T *buffer, VOKM_PARAM(L, c, T, dst), int32_t width, int32_t height
#define REFLECT_ARGS(L, T, c) \
    VOKM_VIEW(L, c, const T, src), vokm::Scratch<T>{buffer}, VOKM_VIEW(L, c, T, dst), vokm::Sizes{width, height}
#define REFLECT_TYPES(D, L, T, c) \
    D<VOKM_TYPE(L, c, const T)> src, vokm::Scratch<T> buffer, D<VOKM_TYPE(L, c, T)> dst, vokm::Sizes<2> sizes
#define REFLECT_NAMES(c) src, buffer, dst, sizes
#define REFLECT_KERNEL(row, T, variant, c) vokm::qrDecomp(src, buffer.base, dst, vokm::Shape{sizes[1], sizes[0]}, 1)

#define REFLECTS_PARAMS(L, T, c) REFLECT_PARAMS(L, T, c), int32_t count
#define REFLECTS_ARGS(L, T, c) REFLECT_ARGS(L, T, c), vokm::Count{count}
#define REFLECTS_TYPES(D, L, T, c) REFLECT_TYPES(D, L, T, c), vokm::Count count
#define REFLECTS_NAMES(c) REFLECT_NAMES(c), count
#define REFLECTS_KERNEL(row, T, variant, c) \
    vokm::qrDecomp(src, buffer.base, dst, vokm::Shape{sizes[1], sizes[0]}, count.n)

#define QR_SOLVE_PARAMS(L, T, c1, c2)                                                                        \
    VOKM_PARAM(L, c1, const T, src), T *buffer, VOKM_PARAM(L, c2, const T, src2), VOKM_PARAM(L, c2, T, dst), \
        int32_t width, int32_t height
#define QR_SOLVE_ARGS(L, T, c1, c2)                                                            \
    VOKM_VIEW(L, c1, const T, src), vokm::Scratch<T>{buffer}, VOKM_VIEW(L, c2, const T, src2), \
        VOKM_VIEW(L, c2, T, dst), vokm::Sizes{width, height}
#define QR_SOLVE_TYPES(D, L, T, c1, c2)                                                           \
    D<VOKM_TYPE(L, c1, const T)> src, vokm::Scratch<T> buffer, D<VOKM_TYPE(L, c2, const T)> src2, \
        D<VOKM_TYPE(L, c2, T)> dst, vokm::Sizes<2> sizes
#define QR_SOLVE_NAMES(c1, c2) src, buffer, src2, dst, sizes
#define QR_SOLVE_KERNEL(row, T, variant, c1, c2) \
    vokm::qrBackSubst<variant>(src, buffer.base, src2, dst, vokm::Shape{sizes[1], sizes[0]}, 1)

#define QR_SOLVES_PARAMS(L, T, c1, c2) QR_SOLVE_PARAMS(L, T, c1, c2), int32_t count
#define QR_SOLVES_ARGS(L, T, c1, c2) QR_SOLVE_ARGS(L, T, c1, c2), vokm::Count{count}
#define QR_SOLVES_TYPES(D, L, T, c1, c2) QR_SOLVE_TYPES(D, L, T, c1, c2), vokm::Count count
#define QR_SOLVES_NAMES(c1, c2) QR_SOLVE_NAMES(c1, c2), count
#define QR_SOLVES_KERNEL(row, T, variant, c1, c2) \
    vokm::qrBackSubst<variant>(src, buffer.base, src2, dst, vokm::Shape{sizes[1], sizes[0]}, count.n)

#define QR_DECOMP_SINGLE(FORM) FORM(QRDecomp, m, vokm::rowQrSingle, REFLECT, m)
#define QR_DECOMP_ARRAY(FORM) FORM(QRDecomp, ma, vokm::rowQrDecompMa, REFLECTS, ma)
#define QR_BACK_SUBST_SINGLE(FORM) FORM(QRBackSubst, mv, vokm::rowQrSingle, QR_SOLVE, m, v)
#define QR_BACK_SUBST_ARRAY(FORM)                                                                                                \
    FORM(QRBackSubst, mva, vokm::rowQrBackSubstMva, QR_SOLVES, m, va)                                                            \
    FORM(QRBackSubst, mava, vokm::rowQrBackSubstMava, QR_SOLVES, ma, va)

extern "C" {
QR_DECOMP_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
QR_DECOMP_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)
QR_DECOMP_ARRAY(VOKM_DECLARE_ARRAY_WRAPPERS)
QR_BACK_SUBST_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
QR_BACK_SUBST_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)
QR_BACK_SUBST_ARRAY(VOKM_DECLARE_ARRAY_WRAPPERS)
}
