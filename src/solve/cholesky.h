// vokmCholeskyDecomp and vokmCholeskyBackSubst: rows, kernels' declarations, forms.
#pragma once

#include "../frame/row.h"
#include "../frame/stamp.h"

namespace vokm {

constexpr Orders choleskySingleOrders{"NZS", "NZO", ""}, choleskyOrders{"NCZS", "NCZSO", "NCZSO"};
// Deliberate: in the list layout this form tests its sizes last.
constexpr Orders choleskySizesLast{"NCZS", "NCZSO", "NSOZC"};

constexpr Limits choleskyDecompLimits{byType(7500, 2000), always(2000), {{{2000, 2000}, {720, 2000}}}};
constexpr Limits choleskyMvaLimits{byType(1200, 720), always(720), always(720)};
constexpr Limits choleskyMavaLimits{{{{2050, 1700}, {1700, 1700}}}, byType(1700, 2050), always(1700)};

inline constexpr Row rowCholeskySingle{choleskySingleOrders, choleskySingleOrders};
inline constexpr Row rowCholeskyDecompMa{.of32f = choleskyOrders,
                                         .of64f = choleskyOrders,
                                         .limits = choleskyDecompLimits,
                                         .work = [](const Wrap* s, Wrap n) { return s[0] * s[0] * n; },
                                         .merges = true};
inline constexpr Row rowCholeskyBackSubstMva{choleskySizesLast, choleskySizesLast, choleskyMvaLimits,
                                             [](const Wrap* s, Wrap n) { return s[0] * s[0] + 2 * s[0] * n; }};
inline constexpr Row rowCholeskyBackSubstMava{choleskyOrders, choleskyOrders, choleskyMavaLimits,
                                              [](const Wrap* s, Wrap n) { return (s[0] * s[0] + 2 * s[0]) * n; }};

}  // namespace vokm

#define FACTOR_PARAMS(L, T, c) VOKM_PARAM(L, c, const T, src), VOKM_PARAM(L, c, T, dst), int32_t widthHeight
#define FACTOR_ARGS(L, T, c) VOKM_VIEW(L, c, const T, src), VOKM_VIEW(L, c, T, dst), vokm::Sizes{widthHeight}
#define FACTOR_TYPES(D, L, T, c) D<VOKM_TYPE(L, c, const T)> src, D<VOKM_TYPE(L, c, T)> dst, vokm::Sizes<1> sizes
#define FACTOR_NAMES(c) src, dst, sizes
#define FACTOR_KERNEL(row, T, variant, c) vokm::choleskyDecomp<variant>(src, dst, sizes[0], 1)

#define FACTORS_PARAMS(L, T, c) FACTOR_PARAMS(L, T, c), int32_t count
#define FACTORS_ARGS(L, T, c) FACTOR_ARGS(L, T, c), vokm::Count{count}
#define FACTORS_TYPES(D, L, T, c) FACTOR_TYPES(D, L, T, c), vokm::Count count
#define FACTORS_NAMES(c) FACTOR_NAMES(c), count
#define FACTORS_KERNEL(row, T, variant, c) vokm::choleskyDecomp<variant>(src, dst, sizes[0], count.n)

#define SOLVE_PARAMS(L, T, c1, c2) \
    VOKM_PARAM(L, c1, const T, src), VOKM_PARAM(L, c2, const T, src2), VOKM_PARAM(L, c2, T, dst), int32_t widthHeight
#define SOLVE_ARGS(L, T, c1, c2) \
    VOKM_VIEW(L, c1, const T, src), VOKM_VIEW(L, c2, const T, src2), VOKM_VIEW(L, c2, T, dst), vokm::Sizes{widthHeight}
#define SOLVE_TYPES(D, L, T, c1, c2)                                                                                    \
    D<VOKM_TYPE(L, c1, const T)> src, D<VOKM_TYPE(L, c2, const T)> src2, D<VOKM_TYPE(L, c2, T)> dst, vokm::Sizes<1> sizes
#define SOLVE_NAMES(c1, c2) src, src2, dst, sizes
#define SOLVE_KERNEL(row, T, variant, c1, c2) vokm::choleskyBackSubst<variant>(src, src2, dst, sizes[0], 1)

#define SOLVES_PARAMS(L, T, c1, c2) SOLVE_PARAMS(L, T, c1, c2), int32_t count
#define SOLVES_ARGS(L, T, c1, c2) SOLVE_ARGS(L, T, c1, c2), vokm::Count{count}
#define SOLVES_TYPES(D, L, T, c1, c2) SOLVE_TYPES(D, L, T, c1, c2), vokm::Count count
#define SOLVES_NAMES(c1, c2) SOLVE_NAMES(c1, c2), count
#define SOLVES_KERNEL(row, T, variant, c1, c2) vokm::choleskyBackSubst<variant>(src, src2, dst, sizes[0], count.n)

#define CHOLESKY_DECOMP_SINGLE(FORM) FORM(CholeskyDecomp, m, vokm::rowCholeskySingle, FACTOR, m)
#define CHOLESKY_DECOMP_ARRAY(FORM) FORM(CholeskyDecomp, ma, vokm::rowCholeskyDecompMa, FACTORS, ma)
#define CHOLESKY_BACK_SUBST_SINGLE(FORM) FORM(CholeskyBackSubst, mv, vokm::rowCholeskySingle, SOLVE, m, v)
#define CHOLESKY_BACK_SUBST_ARRAY(FORM)                                               \
    FORM(CholeskyBackSubst, mva, vokm::rowCholeskyBackSubstMva, SOLVES, m, va)        \
    FORM(CholeskyBackSubst, mava, vokm::rowCholeskyBackSubstMava, SOLVES, ma, va)

extern "C" {
CHOLESKY_DECOMP_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
CHOLESKY_DECOMP_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)
CHOLESKY_DECOMP_ARRAY(VOKM_DECLARE_ARRAY_WRAPPERS)
CHOLESKY_BACK_SUBST_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
CHOLESKY_BACK_SUBST_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)
CHOLESKY_BACK_SUBST_ARRAY(VOKM_DECLARE_ARRAY_WRAPPERS)
}
