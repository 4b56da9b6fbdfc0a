// vokmLUDecomp and vokmLUBackSubst: rows, kernels' declarations, forms.
#pragma once

#include "../frame/row.h"
#include "../frame/stamp.h"

namespace vokm {

constexpr Orders luOrders{"NCZS", "NCZSO", "NCZSO"}, luSingleOrders{"NZS", "NZO", ""};
// Only dense 32f rows in the list layout have the larger limit.
constexpr Limits luDecompLimits{always(20000), always(20000), {{{40000, 20000}, {20000, 20000}}}};
constexpr Limits luSolveLimits{always(1700), always(1700), always(1700)};

inline constexpr Row rowLuM{luSingleOrders, luSingleOrders};
inline constexpr Row rowLuMa{.of32f = luOrders,
                             .of64f = luOrders,
                             .limits = luDecompLimits,
                             .work = [](const Wrap* s, Wrap n) { return s[0] * s[0] * n; },
                             .merges = true};
inline constexpr Row rowLuMva{luOrders, luOrders, luSolveLimits, [](const Wrap* s, Wrap n) { return s[0] * (s[0] + 2 * n); }};
inline constexpr Row rowLuMava{luOrders, luOrders, luSolveLimits, [](const Wrap* s, Wrap n) { return s[0] * (s[0] + 2) * n; }};

}  // namespace vokm

#define LU_PARAMS(L, T, code) \
    VOKM_PARAM(L, code, const T, src), int32_t *pivot, VOKM_PARAM(L, code, T, dst), int32_t widthHeight
#define LU_ARGS(L, T, code)                                                                                     \
    VOKM_VIEW(L, code, const T, src), vokm::Packed<int32_t>{pivot, widthHeight}, VOKM_VIEW(L, code, T, dst),    \
        vokm::Sizes{widthHeight}
#define LU_TYPES(D, L, T, code)                                                                                 \
    D<VOKM_TYPE(L, code, const T)> src, vokm::Packed<int32_t> pivot, D<VOKM_TYPE(L, code, T)> dst, vokm::Sizes<1> sizes
#define LU_NAMES(code) src, pivot, dst, sizes
#define LU_KERNEL(row, T, variant, code) vokm::decompose<T>(src, pivot, dst, sizes[0], 1)

#define LUS_PARAMS(L, T, code) LU_PARAMS(L, T, code), int32_t count
#define LUS_ARGS(L, T, code) LU_ARGS(L, T, code), vokm::Count{count}
#define LUS_TYPES(D, L, T, code) LU_TYPES(D, L, T, code), vokm::Count count
#define LUS_NAMES(code) LU_NAMES(code), count
#define LUS_KERNEL(row, T, variant, code) vokm::decompose<T>(src, pivot, dst, sizes[0], count.n)

// cm is the code of the matrix, cv that of the vectors.
#define LU_SOLVE_PARAMS(L, T, cm, cv)                                                                           \
    VOKM_PARAM(L, cm, const T, src), const int32_t *pivot, VOKM_PARAM(L, cv, const T, src2), VOKM_PARAM(L, cv, T, dst), \
        int32_t widthHeight
#define LU_SOLVE_ARGS(L, T, cm, cv)                                                                             \
    VOKM_VIEW(L, cm, const T, src), vokm::Packed<const int32_t>{pivot, vokm::isArray(vokm::Code::cm) ? widthHeight : 0}, \
        VOKM_VIEW(L, cv, const T, src2), VOKM_VIEW(L, cv, T, dst), vokm::Sizes{widthHeight}
#define LU_SOLVE_TYPES(D, L, T, cm, cv)                                                                         \
    D<VOKM_TYPE(L, cm, const T)> src, vokm::Packed<const int32_t> pivot, D<VOKM_TYPE(L, cv, const T)> src2,     \
        D<VOKM_TYPE(L, cv, T)> dst, vokm::Sizes<1> sizes
#define LU_SOLVE_NAMES(cm, cv) src, pivot, src2, dst, sizes
#define LU_SOLVE_KERNEL(row, T, variant, cm, cv) vokm::solve<T>(src, pivot, src2, dst, sizes[0], 1)

#define LU_SOLVES_PARAMS(L, T, cm, cv) LU_SOLVE_PARAMS(L, T, cm, cv), int32_t count
#define LU_SOLVES_ARGS(L, T, cm, cv) LU_SOLVE_ARGS(L, T, cm, cv), vokm::Count{count}
#define LU_SOLVES_TYPES(D, L, T, cm, cv) LU_SOLVE_TYPES(D, L, T, cm, cv), vokm::Count count
#define LU_SOLVES_NAMES(cm, cv) LU_SOLVE_NAMES(cm, cv), count
#define LU_SOLVES_KERNEL(row, T, variant, cm, cv) vokm::solve<T>(src, pivot, src2, dst, sizes[0], count.n)

#define LU_FORMS_SINGLE(FORM) FORM(LUDecomp, m, vokm::rowLuM, LU, m)
#define LU_FORMS_ARRAY(FORM) FORM(LUDecomp, ma, vokm::rowLuMa, LUS, ma)
#define LU_SOLVE_FORMS_SINGLE(FORM) FORM(LUBackSubst, mv, vokm::rowLuM, LU_SOLVE, m, v)
#define LU_SOLVE_FORMS_MVA(FORM) FORM(LUBackSubst, mva, vokm::rowLuMva, LU_SOLVES, m, va)
#define LU_SOLVE_FORMS_MAVA(FORM) FORM(LUBackSubst, mava, vokm::rowLuMava, LU_SOLVES, ma, va)

extern "C" {
LU_FORMS_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
LU_FORMS_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)
LU_FORMS_ARRAY(VOKM_DECLARE_ARRAY_WRAPPERS)
LU_SOLVE_FORMS_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
LU_SOLVE_FORMS_MVA(VOKM_DECLARE_ARRAY_KERNELS)
LU_SOLVE_FORMS_MVA(VOKM_DECLARE_ARRAY_WRAPPERS)
LU_SOLVE_FORMS_MAVA(VOKM_DECLARE_ARRAY_KERNELS)
LU_SOLVE_FORMS_MAVA(VOKM_DECLARE_ARRAY_WRAPPERS)
}
