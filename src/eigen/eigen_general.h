// vokmEigenValues, vokmEigenValuesVectors, vokmEigenValuesVectorsRight, vokmEigenValuesVectorsLeft: rows, kernels'
// declarations, forms. One kernel of each layout serves any stride.
#pragma once

#include "../frame/row.h"
#include "../frame/stamp.h"

namespace vokm {

/// Elements of the buffer of the families with vectors: three square areas and five rows.
template <class I> constexpr I vectorsElements(I n) { return (I(3) * n + I(5)) * n; }
template <class I> constexpr I valuesElements(I n) { return (n + I(5)) * n; }

inline constexpr Work vectorsBytes = [](const Wrap* s, Wrap E) { return vectorsElements(s[0]) * E; };

inline constexpr Row rowEigenGeneralM{{"NZS", "NZO", ""}, {"NZS", "NZO", ""}};

// Deliberate: the threads get the larger block of the families with vectors.
inline constexpr Row rowEigenValuesMa{.of32f = {"NZCS", "NZCOS", "NZCOS"},
    .of64f = {"NZCS", "NZCOS", "NZCOS"},
    .limits = {always(10000), always(10000), always(10000)},
    .work = [](const Wrap* s, Wrap n) { return (s[0] * s[0] + s[0]) * n; },
    .scratch = vectorsBytes,
    .merges = true};

inline constexpr Row rowEigenVectorsMa{.of32f = {"NZCS", "NZCoxpy", "NZCoxpy"},
    .of64f = {"NZCS", "NZCoxpy", "NZCoxpy"},
    .limits = {always(7000), always(7000), always(7000)},
    .work = [](const Wrap* s, Wrap n) { return (3 * s[0] * s[0] + s[0]) * n; },
    .scratch = vectorsBytes,
    .merges = true};

}  // namespace vokm

// Eigenvalues alone: of one matrix, of an array.
#define GENERAL_RESULTS(T)                                                                                                       \
    vokm::Packed<T>{dstRe, widthHeight}, vokm::Packed<T>{dstIm, widthHeight}, vokm::Sizes { widthHeight }
#define GENERAL_TYPES(T) vokm::Packed<T> dstRe, vokm::Packed<T> dstIm, vokm::Sizes<1> sizes

#define VALUES_PARAMS(L, T, c) VOKM_PARAM(L, c, const T, src), T *dstRe, T *dstIm, int32_t widthHeight, T *buffer
#define VALUES_ARGS(L, T, c)                                                                                                     \
    VOKM_VIEW(L, c, const T, src), GENERAL_RESULTS(T), vokm::Scratch<T> { buffer }
#define VALUES_TYPES(D, L, T, c) D<VOKM_TYPE(L, c, const T)> src, GENERAL_TYPES(T), vokm::Scratch<T> buffer
#define VALUES_NAMES(c) src, dstRe, dstIm, sizes, buffer
#define VALUES_KERNEL(row, T, variant, c) vokm::eigenvalues(src, dstRe, dstIm, sizes[0], 1, buffer)

#define VALUES_ALL_PARAMS(L, T, c)                                                                                               \
    VOKM_PARAM(L, c, const T, src), T *dstRe, T *dstIm, int32_t widthHeight, int32_t count, T *buffer
#define VALUES_ALL_ARGS(L, T, c)                                                                                                 \
    VALUES_ARGS(L, T, c), vokm::Count { count }
#define VALUES_ALL_TYPES(D, L, T, c) VALUES_TYPES(D, L, T, c), vokm::Count count
#define VALUES_ALL_NAMES(c) VALUES_NAMES(c), count
#define VALUES_ALL_KERNEL(row, T, variant, c) vokm::eigenvalues(src, dstRe, dstIm, sizes[0], count.n, buffer)

// With the vectors of one side; `right` and `left` name what goes where.
#define SIDE_PARAMS(L, T, c, right, left)                                                                                        \
    VOKM_PARAM(L, c, const T, src), VOKM_PARAM(L, c, T, dst), T *dstRe, T *dstIm, int32_t widthHeight, T *buffer
#define SIDE_ARGS(L, T, c, right, left)                                                                                          \
    VOKM_VIEW(L, c, const T, src), VOKM_VIEW(L, c, T, dst), GENERAL_RESULTS(T), vokm::Scratch<T> { buffer }
#define SIDE_TYPES(D, L, T, c, right, left)                                                                                      \
    D<VOKM_TYPE(L, c, const T)> src, D<VOKM_TYPE(L, c, T)> dst, GENERAL_TYPES(T), vokm::Scratch<T> buffer
#define SIDE_NAMES(c, right, left) src, dst, dstRe, dstIm, sizes, buffer
#define SIDE_KERNEL(row, T, variant, c, right, left) vokm::eigenvectors(src, right, left, dstRe, dstIm, sizes[0], 1, buffer)

#define SIDE_ALL_PARAMS(L, T, c, right, left)                                                                                    \
    VOKM_PARAM(L, c, const T, src), VOKM_PARAM(L, c, T, dst), T *dstRe, T *dstIm, int32_t widthHeight, int32_t count, T *buffer
#define SIDE_ALL_ARGS(L, T, c, right, left)                                                                                      \
    SIDE_ARGS(L, T, c, right, left), vokm::Count { count }
#define SIDE_ALL_TYPES(D, L, T, c, right, left) SIDE_TYPES(D, L, T, c, right, left), vokm::Count count
#define SIDE_ALL_NAMES(c, right, left) SIDE_NAMES(c, right, left), count
#define SIDE_ALL_KERNEL(row, T, variant, c, right, left)                                                                         \
    vokm::eigenvectors(src, right, left, dstRe, dstIm, sizes[0], count.n, buffer)

// With both.
#define BOTH_PARAMS(L, T, c)                                                                                                     \
    VOKM_PARAM(L, c, const T, src), VOKM_PARAM(L, c, T, dstRight), VOKM_PARAM(L, c, T, dstLeft), T *dstRe, T *dstIm,             \
        int32_t widthHeight, T *buffer
#define BOTH_ARGS(L, T, c)                                                                                                       \
    VOKM_VIEW(L, c, const T, src), VOKM_VIEW(L, c, T, dstRight), VOKM_VIEW(L, c, T, dstLeft), GENERAL_RESULTS(T),                \
        vokm::Scratch<T>                                                                                                         \
    {                                                                                                                            \
        buffer                                                                                                                   \
    }
#define BOTH_TYPES(D, L, T, c)                                                                                                   \
    D<VOKM_TYPE(L, c, const T)> src, D<VOKM_TYPE(L, c, T)> dstRight, D<VOKM_TYPE(L, c, T)> dstLeft, GENERAL_TYPES(T),            \
        vokm::Scratch<T> buffer
#define BOTH_NAMES(c) src, dstRight, dstLeft, dstRe, dstIm, sizes, buffer
#define BOTH_KERNEL(row, T, variant, c) vokm::eigenvectors(src, dstRight, dstLeft, dstRe, dstIm, sizes[0], 1, buffer)

#define BOTH_ALL_PARAMS(L, T, c)                                                                                                 \
    VOKM_PARAM(L, c, const T, src), VOKM_PARAM(L, c, T, dstRight), VOKM_PARAM(L, c, T, dstLeft), T *dstRe, T *dstIm,             \
        int32_t widthHeight, int32_t count, T *buffer
#define BOTH_ALL_ARGS(L, T, c)                                                                                                   \
    BOTH_ARGS(L, T, c), vokm::Count { count }
#define BOTH_ALL_TYPES(D, L, T, c) BOTH_TYPES(D, L, T, c), vokm::Count count
#define BOTH_ALL_NAMES(c) BOTH_NAMES(c), count
#define BOTH_ALL_KERNEL(row, T, variant, c) vokm::eigenvectors(src, dstRight, dstLeft, dstRe, dstIm, sizes[0], count.n, buffer)

// Stamps over the layouts, with one kernel for any stride in each.
#define GENERAL_OVER(ONE, fam, form, row, ...)                                                                                   \
    ONE(fam, form, row, S, 32f, float, , , , __VA_ARGS__)                                                                        \
    ONE(fam, form, row, S, 64f, double, , , , __VA_ARGS__)                                                                       \
    ONE(fam, form, row, P, 32f, float, _P, _P, _P, __VA_ARGS__)                                                                  \
    ONE(fam, form, row, P, 64f, double, _P, _P, _P, __VA_ARGS__)
#define GENERAL_OVER_ARRAY(ONE, fam, form, row, ...)                                                                             \
    GENERAL_OVER(ONE, fam, form, row, __VA_ARGS__)                                                                               \
    ONE(fam, form, row, L, 32f, float, _L, _L, _L, __VA_ARGS__)                                                                  \
    ONE(fam, form, row, L, 64f, double, _L, _L, _L, __VA_ARGS__)
#define GENERAL_DECLARE_KERNELS_M(...) GENERAL_OVER(VOKM_DECLARE_ONE, __VA_ARGS__)
#define GENERAL_DECLARE_KERNELS_MA(...) GENERAL_OVER_ARRAY(VOKM_DECLARE_ONE, __VA_ARGS__)
#define GENERAL_DECLARE_WRAPPERS(...) GENERAL_OVER_ARRAY(VOKM_DECLARE_OMP, __VA_ARGS__)
#define GENERAL_KERNELS_M(...) GENERAL_OVER(VOKM_DEFINE_ONE, __VA_ARGS__)
#define GENERAL_KERNELS_MA(...) GENERAL_OVER_ARRAY(VOKM_DEFINE_ONE, __VA_ARGS__)
#define GENERAL_WRAPPERS(...) GENERAL_OVER_ARRAY(VOKM_OMP, __VA_ARGS__)
#define GENERAL_EXPORTS_M(...) GENERAL_OVER(VOKM_EXPORT_SINGLE, __VA_ARGS__)
#define GENERAL_EXPORTS_MA(...) GENERAL_OVER_ARRAY(VOKM_EXPORT_ARRAY, __VA_ARGS__)

#define VALUES_FORMS_M(FORM) FORM(EigenValues, m, vokm::rowEigenGeneralM, VALUES, m)
#define VALUES_FORMS_MA(FORM) FORM(EigenValues, ma, vokm::rowEigenValuesMa, VALUES_ALL, ma)
#define VECTORS_FORMS_M(FORM)                                                                                                    \
    FORM(EigenValuesVectors, m, vokm::rowEigenGeneralM, BOTH, m)                                                                 \
    FORM(EigenValuesVectorsRight, m, vokm::rowEigenGeneralM, SIDE, m, dst, vokm::NotWanted{})                                    \
    FORM(EigenValuesVectorsLeft, m, vokm::rowEigenGeneralM, SIDE, m, vokm::NotWanted{}, dst)
#define VECTORS_FORMS_MA(FORM)                                                                                                   \
    FORM(EigenValuesVectors, ma, vokm::rowEigenVectorsMa, BOTH_ALL, ma)                                                          \
    FORM(EigenValuesVectorsRight, ma, vokm::rowEigenVectorsMa, SIDE_ALL, ma, dst, vokm::NotWanted{})                             \
    FORM(EigenValuesVectorsLeft, ma, vokm::rowEigenVectorsMa, SIDE_ALL, ma, vokm::NotWanted{}, dst)

extern "C" {
VALUES_FORMS_M(GENERAL_DECLARE_KERNELS_M)
VALUES_FORMS_MA(GENERAL_DECLARE_KERNELS_MA)
VALUES_FORMS_MA(GENERAL_DECLARE_WRAPPERS)
VECTORS_FORMS_M(GENERAL_DECLARE_KERNELS_M)
VECTORS_FORMS_MA(GENERAL_DECLARE_KERNELS_MA)
VECTORS_FORMS_MA(GENERAL_DECLARE_WRAPPERS)
}
