// vokmAdd and vokmSub on matrices, vokmMul of a matrix with a constant: rows, kernels' declarations, forms.
#pragma once

#include "../frame/row.h"
#include "../frame/stamp.h"
#include "../vector/elementwise.h"

namespace vokm {

constexpr Orders matrixOrders{"NCZS", "NCZSO", "NCZSO"}, matrixSingleOrders{"NZS", "NZO", ""};
// Deliberate: in the stride layout these forms test the strides before the sizes.
constexpr Orders stridesFirst{"NCSZ", "NCZSO", "NCZSO"};

constexpr Limits matrixSumLimits{byRows(36864, 18432), always(9216), always(18432), Compare::atLeast};
// Only strided 32f rows in the list layout have the smaller limit.
constexpr Limits matrixScaleLimits{always(35000), always(17000), {{{35000, 15000}, {35000, 35000}}}};

inline constexpr Work workMam = [](const Wrap* s, Wrap n) { return s[0] * s[1] * (2 * n + 1); };
inline constexpr Work workMama = [](const Wrap* s, Wrap n) { return 3 * s[0] * s[1] * n; };
inline constexpr Work workMac = [](const Wrap* s, Wrap n) { return 2 * s[0] * s[1] * n; };

inline constexpr Row rowMatrix{matrixSingleOrders, matrixSingleOrders};
inline constexpr Row rowSumMam{stridesFirst, stridesFirst, matrixSumLimits, workMam};
inline constexpr Row rowSumMat{matrixOrders, matrixOrders, matrixSumLimits, workMam};
inline constexpr Row rowSumMama{matrixOrders, matrixOrders, matrixSumLimits, workMama};
inline constexpr Row rowScaleMac{matrixOrders, matrixOrders, matrixScaleLimits, workMac};

/// The sizes with a path by kernel and element type, and how each kernel reads a single operand.
struct TypedPaths {
    Paths of32f, of64f;
    template <class T> constexpr const Paths::Kernel& of(Variant variant) const
    {
        return (sizeof(T) == 4 ? of32f : of64f).template of<T>(variant);
    }
};

constexpr SizeSet s3456 = allFixed, s345 = only(3, 4, 5), s456 = only(4, 5, 6), s56 = only(5, 6), g = generalOnly;

/// A kernel of the list layout: paths of its own, which hold a single operand up to size 5, or a loop over the objects that
/// calls a kernel of the form for one object, which reads everything anew.
struct OfList {
    Paths::Kernel kernel;
    constexpr OfList(SizeSet sizes) : kernel{sizes, only(6)} {}
    constexpr OfList(const Paths::Kernel& single) : kernel{single.sizes, allFixed} {}
};
constexpr Paths of32f(SizeSet plain, SizeSet S2, SizeSet P, OfList L = g, OfList LS2 = g)
{
    // The 3x3 loops over dense rows load the next object before they store the current one.
    L.kernel.ahead = L.kernel.anew.has(3) ? generalOnly : only(3);
    return {{plain, only(6), only(3)}, {S2, only(6)}, {P}, L.kernel, LS2.kernel};
}
constexpr Paths of64f(SizeSet plain, SizeSet S2, SizeSet P, OfList L = g, OfList LS2 = g)
{
    return {{plain, allFixed}, {S2, only(6)}, {P}, L.kernel, LS2.kernel};
}

// The holes change the speed and the moment of reading, never a result. addMm and its like stand for a loop over the kernel
// of one object: the one for dense rows in L, the one for strided rows in LS2.
constexpr TypedPaths addMm{of32f(s345, s3456, s3456), of64f(s345, s3456, s3456)};
constexpr TypedPaths subMm{of32f(s3456, s3456, s3456), of64f(s3456, s3456, s3456)};
constexpr TypedPaths mulMc{of32f(s3456, g, s56), of64f(s3456, g, s56)};
constexpr TypedPaths mulTc{of32f(s3456, g, s56), of64f(s345, g, s3456)};
constexpr Paths::Kernel add32f = addMm.of32f.plain, add32fS2 = addMm.of32f.S2, add64f = addMm.of64f.plain,
                        add64fS2 = addMm.of64f.S2;
constexpr Paths::Kernel sub32f = subMm.of32f.plain, sub32fS2 = subMm.of32f.S2, sub64f = subMm.of64f.plain,
                        sub64fS2 = subMm.of64f.S2;

// clang-format off
//                             32f  plain  S2     P      L       LS2               64f  plain  S2     P      L       LS2
constexpr TypedPaths addMam {of32f(s3456, s3456, s3456, s3456,  add32fS2),       of64f(s3456, s3456, s3456, add64f, add64fS2)};
constexpr TypedPaths addMat {of32f(s456,  s3456, g,     s456,   g),              of64f(s3456, s3456, g,     g,      g)};
constexpr TypedPaths addTam {of32f(s3456, s3456, s3456, s3456,  add32fS2),       of64f(s3456, s3456, s3456, s3456,  add64fS2)};
constexpr TypedPaths addTat  = addTam;
constexpr TypedPaths addMama = addMam;
constexpr TypedPaths addTama = addTam;
constexpr TypedPaths addTata = addTam;
constexpr TypedPaths subMam {of32f(s3456, s3456, s3456, s3456,  sub32fS2),       of64f(s3456, s3456, s3456, sub64f, sub64fS2)};
constexpr TypedPaths subMat {of32f(s3456, s3456, g,     sub32f, sub32fS2),       of64f(s3456, s3456, g,     sub64f, sub64fS2)};
constexpr TypedPaths subTam {of32f(s3456, s3456, s3456, s3456,  sub32fS2),       of64f(s3456, s3456, s3456, s3456,  sub64fS2)};
constexpr TypedPaths subTat  = subTam;
constexpr TypedPaths subMma  = subMam;
constexpr TypedPaths subMta  = subTam;
constexpr TypedPaths subTma  = subMam;
constexpr TypedPaths subTta  = subTam;
constexpr TypedPaths subMama = subMam;
constexpr TypedPaths subMata{of32f(s3456, g,     g,     s3456,  g),              of64f(s3456, g,     g,     g,      g)};
constexpr TypedPaths subTama = subMam;
constexpr TypedPaths subTata{of32f(s3456, s3456, s3456, sub32f, sub32fS2),       of64f(s3456, s3456, s3456, s3456,  sub64fS2)};
constexpr TypedPaths mulMac {of32f(s3456, s3456, s3456, s3456,  mulMc.of32f.S2), of64f(s3456, s3456, s3456, s3456,  mulMc.of64f.S2)};
constexpr TypedPaths mulTac {of32f(s3456, s3456, s3456, s3456,  mulTc.of32f.S2), of64f(s345,  s3456, s3456, s345,   mulTc.of64f.S2)};
// clang-format on

}  // namespace vokm

// The signature shape of two operands and a destination of matrices; c1, n1 are code and name of the first in the list.
#define MATRIX_PARAMS(L, T, c1, n1, c2, n2, cd, ...) \
    VOKM_PARAM(L, c1, const T, n1), VOKM_PARAM(L, c2, const T, n2), VOKM_PARAM(L, cd, T, dst), int32_t width, int32_t height
#define MATRIX_ARGS(L, T, c1, n1, c2, n2, cd, ...) \
    VOKM_VIEW(L, c1, const T, n1), VOKM_VIEW(L, c2, const T, n2), VOKM_VIEW(L, cd, T, dst), vokm::Sizes{width, height}
#define MATRIX_TYPES(D, L, T, c1, n1, c2, n2, cd, ...)                                                              \
    D<VOKM_TYPE(L, c1, const T)> n1, D<VOKM_TYPE(L, c2, const T)> n2, D<VOKM_TYPE(L, cd, T)> dst, vokm::Sizes<2> sizes
#define MATRIX_NAMES(c1, n1, c2, n2, cd, ...) n1, n2, dst, sizes
#define MATRIX_KERNEL(row, T, variant, c1, n1, c2, n2, cd, paths, op) \
    vokm::elementwise<paths, variant, T>(op, n1, n2, dst, vokm::Shape{sizes[1], sizes[0]}, 1)

#define MATRICES_PARAMS(L, T, ...) MATRIX_PARAMS(L, T, __VA_ARGS__), int32_t count
#define MATRICES_ARGS(L, T, ...) MATRIX_ARGS(L, T, __VA_ARGS__), vokm::Count{count}
#define MATRICES_TYPES(D, L, T, ...) MATRIX_TYPES(D, L, T, __VA_ARGS__), vokm::Count count
#define MATRICES_NAMES(...) MATRIX_NAMES(__VA_ARGS__), count
#define MATRICES_KERNEL(row, T, variant, c1, n1, c2, n2, cd, paths, op) \
    vokm::elementwise<paths, variant, T>(op, n1, n2, dst, vokm::Shape{sizes[1], sizes[0]}, count.n)

//                        form                   row              shape     first     second     result, paths, operation
#define MATRIX_ADD_MM(FORM)                                                                                         \
    FORM(Add, mm, vokm::rowMatrix, MATRIX, m, src1, m, src2, m, vokm::addMm, vokm::Plus{})                          \
    FORM(Add, tm, vokm::rowMatrix, MATRIX, t, src1, m, src2, m, vokm::addMm, vokm::Plus{})                          \
    FORM(Add, tt, vokm::rowMatrix, MATRIX, t, src1, t, src2, m, vokm::addMm, vokm::Plus{})
#define MATRIX_ADD_MAM(FORM)                                                                                        \
    FORM(Add, mam, vokm::rowSumMam, MATRICES, ma, src1, m, src2, ma, vokm::addMam, vokm::Plus{})                    \
    FORM(Add, mat, vokm::rowSumMat, MATRICES, ma, src1, t, src2, ma, vokm::addMat, vokm::Plus{})                    \
    FORM(Add, tam, vokm::rowSumMat, MATRICES, ta, src1, m, src2, ma, vokm::addTam, vokm::Plus{})                    \
    FORM(Add, tat, vokm::rowSumMat, MATRICES, ta, src1, t, src2, ma, vokm::addTat, vokm::Plus{})
#define MATRIX_ADD_MAMA(FORM)                                                                                       \
    FORM(Add, mama, vokm::rowSumMama, MATRICES, ma, src1, ma, src2, ma, vokm::addMama, vokm::Plus{})                \
    FORM(Add, tama, vokm::rowSumMama, MATRICES, ta, src1, ma, src2, ma, vokm::addTama, vokm::Plus{})                \
    FORM(Add, tata, vokm::rowSumMama, MATRICES, ta, src1, ta, src2, ma, vokm::addTata, vokm::Plus{})

#define MATRIX_SUB_MM(FORM)                                                                                         \
    FORM(Sub, mm, vokm::rowMatrix, MATRIX, m, src1, m, src2, m, vokm::subMm, vokm::Minus{})                         \
    FORM(Sub, mt, vokm::rowMatrix, MATRIX, m, src1, t, src2, m, vokm::subMm, vokm::Minus{})                         \
    FORM(Sub, tm, vokm::rowMatrix, MATRIX, t, src1, m, src2, m, vokm::subMm, vokm::Minus{})                         \
    FORM(Sub, tt, vokm::rowMatrix, MATRIX, t, src1, t, src2, m, vokm::subMm, vokm::Minus{})
#define MATRIX_SUB_MAM(FORM)                                                                                        \
    FORM(Sub, mam, vokm::rowSumMam, MATRICES, ma, src1, m, src2, ma, vokm::subMam, vokm::Minus{})                   \
    FORM(Sub, mat, vokm::rowSumMat, MATRICES, ma, src1, t, src2, ma, vokm::subMat, vokm::Minus{})                   \
    FORM(Sub, tam, vokm::rowSumMat, MATRICES, ta, src1, m, src2, ma, vokm::subTam, vokm::Minus{})                   \
    FORM(Sub, tat, vokm::rowSumMat, MATRICES, ta, src1, t, src2, ma, vokm::subTat, vokm::Minus{})
#define MATRIX_SUB_MMA(FORM)                                                                                        \
    FORM(Sub, mma, vokm::rowSumMam, MATRICES, m, src1, ma, src2, ma, vokm::subMma, vokm::Minus{})                   \
    FORM(Sub, mta, vokm::rowSumMat, MATRICES, m, src1, ta, src2, ma, vokm::subMta, vokm::Minus{})                   \
    FORM(Sub, tma, vokm::rowSumMat, MATRICES, t, src1, ma, src2, ma, vokm::subTma, vokm::Minus{})                   \
    FORM(Sub, tta, vokm::rowSumMat, MATRICES, t, src1, ta, src2, ma, vokm::subTta, vokm::Minus{})
#define MATRIX_SUB_MAMA(FORM)                                                                                       \
    FORM(Sub, mama, vokm::rowSumMama, MATRICES, ma, src1, ma, src2, ma, vokm::subMama, vokm::Minus{})               \
    FORM(Sub, mata, vokm::rowSumMama, MATRICES, ma, src1, ta, src2, ma, vokm::subMata, vokm::Minus{})               \
    FORM(Sub, tama, vokm::rowSumMama, MATRICES, ta, src1, ma, src2, ma, vokm::subTama, vokm::Minus{})               \
    FORM(Sub, tata, vokm::rowSumMama, MATRICES, ta, src1, ta, src2, ma, vokm::subTata, vokm::Minus{})

#define MATRIX_MUL_MC(FORM)                                                                                         \
    FORM(Mul, mc, vokm::rowMatrix, MATRIX, m, src, c, val, m, vokm::mulMc, vokm::Times{})                           \
    FORM(Mul, tc, vokm::rowMatrix, MATRIX, t, src, c, val, m, vokm::mulTc, vokm::Times{})
#define MATRIX_MUL_MAC(FORM)                                                                                        \
    FORM(Mul, mac, vokm::rowScaleMac, MATRICES, ma, src, c, val, ma, vokm::mulMac, vokm::Times{})                   \
    FORM(Mul, tac, vokm::rowScaleMac, MATRICES, ta, src, c, val, ma, vokm::mulTac, vokm::Times{})

#define MATRIX_ELEMENTWISE_ARRAYS(FORM)                                                                             \
    MATRIX_ADD_MAM(FORM) MATRIX_ADD_MAMA(FORM) MATRIX_SUB_MAM(FORM) MATRIX_SUB_MMA(FORM) MATRIX_SUB_MAMA(FORM)      \
    MATRIX_MUL_MAC(FORM)

extern "C" {
MATRIX_ADD_MM(VOKM_DECLARE_SINGLE_KERNELS)
MATRIX_SUB_MM(VOKM_DECLARE_SINGLE_KERNELS)
MATRIX_MUL_MC(VOKM_DECLARE_SINGLE_KERNELS)
MATRIX_ELEMENTWISE_ARRAYS(VOKM_DECLARE_ARRAY_KERNELS)
MATRIX_ELEMENTWISE_ARRAYS(VOKM_DECLARE_ARRAY_WRAPPERS)
}
