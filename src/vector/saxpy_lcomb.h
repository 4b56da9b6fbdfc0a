// vokmSaxpy and vokmLComb: rows, kernels' declarations, forms. The scalars stand behind the sizes and count.
#pragma once

#include "vector_elementwise.h"

namespace vokm {

constexpr Limits saxpyLimits{always(40000), always(40000), always(40000)};
// In the list layout only contiguous 32f rows have the larger limit.
constexpr Limits combineLimits{always(20000), always(20000), {{{40000, 20000}, {20000, 20000}}}};

inline constexpr Row rowSaxpyVav{vectorOrders, vectorOrders, saxpyLimits, workVav};
inline constexpr Row rowSaxpyVava{vectorOrders, vectorOrders, saxpyLimits, workVava};
inline constexpr Row rowLCombVav{vectorOrders, vectorOrders, combineLimits, workVav};
inline constexpr Row rowLCombVava{vectorOrders, vectorOrders, combineLimits, workVava};

inline constexpr Paths pathsCombine{{allFixed}, {allFixed}, {allFixed}, {allFixed}, {allFixed}};

}  // namespace vokm

#define SAXPY_PARAMS(L, T, ...) PAIR_PARAMS(L, T, __VA_ARGS__), T val
#define SAXPY_ARGS(L, T, ...) PAIR_ARGS(L, T, __VA_ARGS__), val
#define SAXPY_TYPES(D, L, T, ...) PAIR_TYPES(D, L, T, __VA_ARGS__), T val
#define SAXPY_NAMES(...) PAIR_NAMES(__VA_ARGS__), val
#define SAXPY_KERNEL(row, T, variant, ...) \
    PAIR_KERNEL(row, T, variant, __VA_ARGS__, vokm::pathsCombine, vokm::ScaleAdd<T>{val})
#define SAXPYS_PARAMS(L, T, ...) PAIRS_PARAMS(L, T, __VA_ARGS__), T val
#define SAXPYS_ARGS(L, T, ...) PAIRS_ARGS(L, T, __VA_ARGS__), val
#define SAXPYS_TYPES(D, L, T, ...) PAIRS_TYPES(D, L, T, __VA_ARGS__), T val
#define SAXPYS_NAMES(...) PAIRS_NAMES(__VA_ARGS__), val
#define SAXPYS_KERNEL(row, T, variant, ...) \
    PAIRS_KERNEL(row, T, variant, __VA_ARGS__, vokm::pathsCombine, vokm::ScaleAdd<T>{val})

#define LCOMB_PARAMS(L, T, ...) PAIR_PARAMS(L, T, __VA_ARGS__), T val1, T val2
#define LCOMB_ARGS(L, T, ...) PAIR_ARGS(L, T, __VA_ARGS__), val1, val2
#define LCOMB_TYPES(D, L, T, ...) PAIR_TYPES(D, L, T, __VA_ARGS__), T val1, T val2
#define LCOMB_NAMES(...) PAIR_NAMES(__VA_ARGS__), val1, val2
#define LCOMB_KERNEL(row, T, variant, ...) \
    PAIR_KERNEL(row, T, variant, __VA_ARGS__, vokm::pathsCombine, (vokm::Combine<T>{val1, val2}))
#define LCOMBS_PARAMS(L, T, ...) PAIRS_PARAMS(L, T, __VA_ARGS__), T val1, T val2
#define LCOMBS_ARGS(L, T, ...) PAIRS_ARGS(L, T, __VA_ARGS__), val1, val2
#define LCOMBS_TYPES(D, L, T, ...) PAIRS_TYPES(D, L, T, __VA_ARGS__), T val1, T val2
#define LCOMBS_NAMES(...) PAIRS_NAMES(__VA_ARGS__), val1, val2
#define LCOMBS_KERNEL(row, T, variant, ...) \
    PAIRS_KERNEL(row, T, variant, __VA_ARGS__, vokm::pathsCombine, (vokm::Combine<T>{val1, val2}))

#define SAXPY_FORMS_SINGLE(FORM) FORM(Saxpy, vv, vokm::rowVector, SAXPY, v, src1, v, src2, v)
#define SAXPY_FORMS_ARRAY(FORM)                                           \
    FORM(Saxpy, vav, vokm::rowSaxpyVav, SAXPYS, va, src1, v, src2, va)    \
    FORM(Saxpy, vva, vokm::rowSaxpyVav, SAXPYS, v, src1, va, src2, va)    \
    FORM(Saxpy, vava, vokm::rowSaxpyVava, SAXPYS, va, src1, va, src2, va)
#define LCOMB_FORMS_SINGLE(FORM) FORM(LComb, vv, vokm::rowVector, LCOMB, v, src1, v, src2, v)
#define LCOMB_FORMS_ARRAY(FORM)                                           \
    FORM(LComb, vav, vokm::rowLCombVav, LCOMBS, va, src1, v, src2, va)    \
    FORM(LComb, vava, vokm::rowLCombVava, LCOMBS, va, src1, va, src2, va)

extern "C" {
SAXPY_FORMS_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
SAXPY_FORMS_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)
SAXPY_FORMS_ARRAY(VOKM_DECLARE_ARRAY_WRAPPERS)
LCOMB_FORMS_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
LCOMB_FORMS_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)
LCOMB_FORMS_ARRAY(VOKM_DECLARE_ARRAY_WRAPPERS)
}
