// vokmAdd, vokmSub and vokmMul on vectors and constants: rows, kernels' declarations, forms.
#pragma once

#include "../frame/row.h"
#include "../frame/stamp.h"
#include "elementwise.h"

namespace vokm {

constexpr Orders vectorOrders{"NCZS", "NCZSO", "NCZSO"};

// The list layout has twice the limit for 32f.
constexpr Limits addLimits{always(20000), always(20000), byType(40000, 20000)};
constexpr Limits scaleLimits{byRows(36864, 18432), always(9216), always(18432)};
constexpr Limits scaleConstantsLimits{always(36864), always(9216), always(18432)};

inline constexpr Work workVav = [](const Wrap* s, Wrap n) { return (2 * n + 1) * s[0]; };
inline constexpr Work workVava = [](const Wrap* s, Wrap n) { return 3 * s[0] * n; };
inline constexpr Work workVca = [](const Wrap* s, Wrap n) { return s[0] * n + s[0] + n; };
inline constexpr Work workVaca = [](const Wrap* s, Wrap n) { return (2 * s[0] + 1) * n; };
inline constexpr Work workCva = [](const Wrap*, Wrap n) { return 2 * n + 1; };  // without the length, unlike vac; deliberate
inline constexpr Work workScale = [](const Wrap* s, Wrap n) { return 2 * s[0] * n; };

inline constexpr Row rowVector{{"NZS", "NZO", ""}, {"NZS", "NZO", ""}};
// Deliberate: this form tests count behind the strides, in the list layout behind the shifts too.
inline constexpr Row rowAddVav{{"NZSC", "NZSCO", "NZSOC"}, {"NZSC", "NZSCO", "NZSOC"}, addLimits, workVav};
inline constexpr Row rowAddVac{vectorOrders, vectorOrders, addLimits, workVav};
inline constexpr Row rowAddVava{vectorOrders, vectorOrders, addLimits, workVava};
inline constexpr Row rowSubVca{vectorOrders, vectorOrders, addLimits, workVca};
inline constexpr Row rowSubVaca{vectorOrders, vectorOrders, addLimits, workVaca};
inline constexpr Row rowCva{vectorOrders, vectorOrders, addLimits, workCva};
// Deliberate gaps: in layout P two functions do not test the shifts, and one does not test the stride of its vectors.
inline constexpr Row rowAddVca{vectorOrders, {"NCZS", "NCZS", "NCZSO"}, addLimits, workVca};
inline constexpr Row rowSubCav{{"NCZS", "NCZS", "NCZSO"}, vectorOrders, addLimits, workVca};
inline constexpr Row rowAddVaca{{"NCZS", "NCZrO", "NCZSO"}, vectorOrders, addLimits, workVaca};
inline constexpr Row rowMulVac{vectorOrders, vectorOrders, scaleLimits, workScale};
inline constexpr Row rowMulVca{vectorOrders, vectorOrders, scaleConstantsLimits, workVca};
inline constexpr Row rowMulVaca{vectorOrders, vectorOrders, scaleConstantsLimits, workVaca};

//                                   plain         S2             P              L             LS2
inline constexpr Paths pathsVv{{allFixed}, {allFixed}, {generalOnly}, {generalOnly}, {generalOnly}};
inline constexpr Paths pathsVc{{allFixed}, {generalOnly}, {generalOnly}, {generalOnly}, {generalOnly}};
inline constexpr Paths pathsMulVc{{allFixed}, {generalOnly}, {allFixed}, {generalOnly}, {generalOnly}};
// Strided lists of these two forms go through the kernel of one object, which reads everything anew; those of vva do not.
inline constexpr Paths pathsVav{{allFixed}, {allFixed}, {generalOnly}, {allFixed}, {allFixed, allFixed}};
inline constexpr Paths pathsVva{{allFixed}, {allFixed}, {generalOnly}, {allFixed}, {generalOnly}};
inline constexpr Paths pathsVac{{allFixed}, {generalOnly}, {generalOnly}, {allFixed}, {generalOnly}};
inline constexpr Paths pathsMulVac{{allFixed}, {generalOnly}, {allFixed}, {allFixed}, {generalOnly}};
inline constexpr Paths pathsVca{{allFixed}, {allFixed}, {generalOnly}, {allFixed}, {allFixed}};

}  // namespace vokm

//                       form  row                shape  first      second     result, sizes with a path, operation
#define VECTOR_ADD_SINGLE(FORM)                                                                           \
    FORM(Add, vv, vokm::rowVector, PAIR, v, src1, v, src2, v, vokm::pathsVv, vokm::Plus{})                \
    FORM(Add, vc, vokm::rowVector, PAIR, v, src, c, val, v, vokm::pathsVc, vokm::Plus{})
#define VECTOR_ADD_VAV(FORM)                                                                              \
    FORM(Add, vav, vokm::rowAddVav, PAIRS, va, src1, v, src2, va, vokm::pathsVav, vokm::Plus{})
#define VECTOR_ADD_VAVA(FORM)                                                                             \
    FORM(Add, vava, vokm::rowAddVava, PAIRS, va, src1, va, src2, va, vokm::pathsVav, vokm::Plus{})
#define VECTOR_ADD_VAC(FORM)                                                                              \
    FORM(Add, vac, vokm::rowAddVac, PAIRS, va, src, c, val, va, vokm::pathsVac, vokm::Plus{})             \
    FORM(Add, vca, vokm::rowAddVca, PAIRS, v, src, ca, val, va, vokm::pathsVca, vokm::Plus{})             \
    FORM(Add, vaca, vokm::rowAddVaca, PAIRS, va, src, ca, val, va, vokm::pathsVca, vokm::Plus{})

#define VECTOR_SUB_SINGLE(FORM)                                                                           \
    FORM(Sub, vv, vokm::rowVector, PAIR, v, src1, v, src2, v, vokm::pathsVv, vokm::Minus{})               \
    FORM(Sub, vc, vokm::rowVector, PAIR, v, src, c, val, v, vokm::pathsVc, vokm::Minus{})                 \
    FORM(Sub, cv, vokm::rowVector, PAIR, v, src, c, val, v, vokm::pathsVc, vokm::MinusFrom{})
#define VECTOR_SUB_VAV(FORM)                                                                              \
    FORM(Sub, vav, vokm::rowAddVav, PAIRS, va, src1, v, src2, va, vokm::pathsVav, vokm::Minus{})
#define VECTOR_SUB_VVA(FORM) /* 64f in layout P has no wrapper */                                         \
    FORM(Sub, vva, vokm::rowAddVac, PAIRS, v, src1, va, src2, va, vokm::pathsVva, vokm::Minus{})
#define VECTOR_SUB_VAVA(FORM)                                                                             \
    FORM(Sub, vava, vokm::rowAddVava, PAIRS, va, src1, va, src2, va, vokm::pathsVav, vokm::Minus{})
#define VECTOR_SUB_VAC(FORM)                                                                              \
    FORM(Sub, vac, vokm::rowAddVac, PAIRS, va, src, c, val, va, vokm::pathsVac, vokm::Minus{})            \
    FORM(Sub, vca, vokm::rowSubVca, PAIRS, v, src, ca, val, va, vokm::pathsVca, vokm::Minus{})            \
    FORM(Sub, vaca, vokm::rowSubVaca, PAIRS, va, src, ca, val, va, vokm::pathsVca, vokm::Minus{})
#define VECTOR_SUB_CVA(FORM)                                                                              \
    FORM(Sub, cva, vokm::rowCva, PAIRS, va, src, c, val, va, vokm::pathsVac, vokm::MinusFrom{})           \
    FORM(Sub, cav, vokm::rowSubCav, PAIRS, v, src, ca, val, va, vokm::pathsVca, vokm::MinusFrom{})        \
    FORM(Sub, cava, vokm::rowSubVaca, PAIRS, va, src, ca, val, va, vokm::pathsVca, vokm::MinusFrom{})

#define VECTOR_MUL_SINGLE(FORM)                                                                           \
    FORM(Mul, vc, vokm::rowVector, PAIR, v, src, c, val, v, vokm::pathsMulVc, vokm::Times{})
#define VECTOR_MUL_VAC(FORM)                                                                              \
    FORM(Mul, vac, vokm::rowMulVac, PAIRS, va, src, c, val, va, vokm::pathsMulVac, vokm::Times{})         \
    FORM(Mul, vca, vokm::rowMulVca, PAIRS, v, src, ca, val, va, vokm::pathsVca, vokm::Times{})            \
    FORM(Mul, vaca, vokm::rowMulVaca, PAIRS, va, src, ca, val, va, vokm::pathsVca, vokm::Times{})

#define VECTOR_ADD_ARRAY(FORM) VECTOR_ADD_VAV(FORM) VECTOR_ADD_VAVA(FORM) VECTOR_ADD_VAC(FORM)
#define VECTOR_SUB_ARRAY(FORM) VECTOR_SUB_VAV(FORM) VECTOR_SUB_VAVA(FORM) VECTOR_SUB_VAC(FORM) VECTOR_SUB_CVA(FORM)
#define VECTOR_MUL_ARRAY(FORM) VECTOR_MUL_VAC(FORM)

extern "C" {
VECTOR_ADD_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
VECTOR_SUB_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
VECTOR_MUL_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
VECTOR_ADD_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)
VECTOR_SUB_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)
VECTOR_SUB_VVA(VOKM_DECLARE_ARRAY_KERNELS)
VECTOR_MUL_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)
VECTOR_ADD_ARRAY(VOKM_DECLARE_ARRAY_WRAPPERS)
VECTOR_SUB_ARRAY(VOKM_DECLARE_ARRAY_WRAPPERS)
VECTOR_SUB_VVA(VOKM_DECLARE_ARRAY_WRAPPERS_BUT_64f_P)
VECTOR_MUL_ARRAY(VOKM_DECLARE_ARRAY_WRAPPERS)
}
