// vokmEigenValuesSym and vokmEigenValuesVectorsSym: rows, what differs between their kernels, declarations, forms.
#pragma once

#include "../frame/row.h"
#include "../frame/stamp.h"

namespace vokm {

constexpr Limits symmetricValueLimits{always(20000), always(20000), {{{40000, 20000}, {20000, 20000}}}};
constexpr Limits symmetricVectorLimits{always(1700), always(1700), always(1700)};
constexpr Work symmetricScratch = [](const Wrap* s, Wrap size) { return s[0] * s[0] * size; };

inline constexpr Row rowSymmetricValuesM{{"NZS", "NZO", ""}, {"NZS", "NZO", ""}};
inline constexpr Row rowSymmetricValuesMa{.of32f = {"NZCS", "NZCOS", "NZCOS"},
    .of64f = {"NZCS", "NZCOS", "NZCOS"},
    .limits = symmetricValueLimits,
    .work = [](const Wrap* s, Wrap n) { return (s[0] * s[0] + s[0]) * n; },
    .scratch = symmetricScratch,
    .merges = true};
inline constexpr Row rowSymmetricVectorsM{{"NZS", "NZO", ""}, {"NZS", "NZO", ""}};
inline constexpr Row rowSymmetricVectorsMa{.of32f = {"NZCS", "NZCOS", "NZCOS"},
    .of64f = {"NZCS", "NZCOS", "NZCOS"},
    .limits = symmetricVectorLimits,
    .work = [](const Wrap* s, Wrap n) { return (Wrap(2) * s[0] * s[0] + s[0]) * n; },
    .scratch = symmetricScratch,
    .merges = true};

enum class Stands { beforeSort, afterSort };

/// What one kernel does otherwise than another. Tolerances are powers of two, absolute, and stand as their exponents.
struct SymmetricRules {
    bool vectors;
    int eps;               // of the iteration and of the closed form of size 2
    int determinant;       // size 2: at or below it the matrix is singular
    int reduction;         // for the tests of the reduction
    int product;           // sizes from 3: a product of the eigenvalues at or below it is singular
    bool productInDouble;  // the product is kept in 64 bits
    Stands test;           // where that test stands
    bool shiftInDouble;    // the sum g*g + 1 of a QL iteration is formed in 64 bits
};

template <class T> constexpr T powerOfTwo(int exponent)
{
    T power = 1;
    for (; exponent < 0; ++exponent) power /= 2;
    return power;
}

// Deliberate, all of them: single and array kernels, strided and dense ones, 32f and 64f differ without a rule.
//                                         eps  det  red  product, its width, test, shift
constexpr SymmetricRules values32{false, -23, -23, -23, -23, false, Stands::beforeSort, false};
constexpr SymmetricRules values32One{false, -23, -23, -23, -23, false, Stands::beforeSort, true};
constexpr SymmetricRules values32Array{false, -23, -52, -23, -23, false, Stands::beforeSort, false};
constexpr SymmetricRules values64{false, -52, -52, -52, -52, false, Stands::beforeSort, false};
constexpr SymmetricRules vectors32One{true, -23, -23, -23, -23, false, Stands::afterSort, false};
constexpr SymmetricRules vectors32Strided{true, -23, -23, -23, -23, false, Stands::beforeSort, false};
constexpr SymmetricRules vectors32Array{true, -23, -23, -23, -23, true, Stands::beforeSort, false};
constexpr SymmetricRules vectors32List{true, -23, -23, -52, -23, true, Stands::beforeSort, false};
constexpr SymmetricRules vectors64One{true, -52, -52, -52, -52, false, Stands::afterSort, false};
constexpr SymmetricRules vectors64Array{true, -52, -52, -52, -23, false, Stands::beforeSort, false};

/// The rules without what concerns size 2 alone: kernels that differ in that share their code for larger ones.
constexpr SymmetricRules aboveTwo(SymmetricRules rules)
{
    rules.determinant = rules.eps;
    return rules;
}

/// The rules of a family's kernels, by form, element type and Variant: plain, S2, P, L, LS2.
using RuleTable = SymmetricRules[2][2][5];
constexpr RuleTable valueRules{{{values32One, values32, values32}, {values64, values64, values64}},
    {{values32Array, values32, values32, values32, values32}, {values64, values64, values64, values64, values64}}};
constexpr RuleTable vectorRules{{{vectors32One, vectors32Strided, vectors32One}, {vectors64One, vectors64One, vectors64One}},
    {{vectors32Array, vectors32Array, vectors32Array, vectors32List, vectors32Array},
        {vectors64Array, vectors64Array, vectors64Array, vectors64Array, vectors64Array}}};

template <class T> constexpr const SymmetricRules& rulesFor(const RuleTable& table, bool array, Variant variant)
{
    return table[array ? 1 : 0][sizeof(T) == 4 ? 0 : 1][static_cast<int>(variant)];
}

}  // namespace vokm

#define SYMVAL_PARAMS(L, T, c) VOKM_PARAM(L, c, const T, src), T *buffer, T *dst, int32_t widthHeight
#define SYMVAL_ARGS(L, T, c)                                                                                                     \
    VOKM_VIEW(L, c, const T, src), vokm::Scratch<T>{buffer}, vokm::Packed<T>{dst, widthHeight}, vokm::Sizes { widthHeight }
#define SYMVAL_TYPES(D, L, T, c)                                                                                                 \
    D<VOKM_TYPE(L, c, const T)> src, vokm::Scratch<T> buffer, vokm::Packed<T> dst, vokm::Sizes<1> sizes
#define SYMVAL_NAMES(c) src, buffer, dst, sizes
#define SYMVAL_KERNEL(row, T, variant, c) vokm::symmetricValues<variant>(src, buffer, dst, sizes, vokm::Count{1})

#define SYMVALS_PARAMS(L, T, c) SYMVAL_PARAMS(L, T, c), int32_t count
#define SYMVALS_ARGS(L, T, c)                                                                                                    \
    SYMVAL_ARGS(L, T, c), vokm::Count { count }
#define SYMVALS_TYPES(D, L, T, c) SYMVAL_TYPES(D, L, T, c), vokm::Count count
#define SYMVALS_NAMES(c) SYMVAL_NAMES(c), count
#define SYMVALS_KERNEL(row, T, variant, c) vokm::symmetricValues<variant>(src, buffer, dst, sizes, count)

// `dst` is the operand of the vectors, whose pointer the public header names dstVectors.
#define SYMVEC_PARAMS(L, T, c)                                                                                                   \
    VOKM_PARAM(L, c, const T, src), T *buffer, VOKM_PARAM(L, c, T, dst), T *dstValues, int32_t widthHeight
#define SYMVEC_ARGS(L, T, c)                                                                                                     \
    VOKM_VIEW(L, c, const T, src), vokm::Scratch<T>{buffer}, VOKM_VIEW(L, c, T, dst), vokm::Packed<T>{dstValues, widthHeight},   \
        vokm::Sizes                                                                                                              \
    {                                                                                                                            \
        widthHeight                                                                                                              \
    }
#define SYMVEC_TYPES(D, L, T, c)                                                                                                 \
    D<VOKM_TYPE(L, c, const T)> src, vokm::Scratch<T> buffer, D<VOKM_TYPE(L, c, T)> dst, vokm::Packed<T> dstValues,              \
        vokm::Sizes<1> sizes
#define SYMVEC_NAMES(c) src, buffer, dst, dstValues, sizes
#define SYMVEC_KERNEL(row, T, variant, c) vokm::symmetricVectors<variant>(src, buffer, dst, dstValues, sizes, vokm::Count{1})

#define SYMVECS_PARAMS(L, T, c) SYMVEC_PARAMS(L, T, c), int32_t count
#define SYMVECS_ARGS(L, T, c)                                                                                                    \
    SYMVEC_ARGS(L, T, c), vokm::Count { count }
#define SYMVECS_TYPES(D, L, T, c) SYMVEC_TYPES(D, L, T, c), vokm::Count count
#define SYMVECS_NAMES(c) SYMVEC_NAMES(c), count
#define SYMVECS_KERNEL(row, T, variant, c) vokm::symmetricVectors<variant>(src, buffer, dst, dstValues, sizes, count)

#define SYMVAL_FORMS_SINGLE(FORM) FORM(EigenValuesSym, m, vokm::rowSymmetricValuesM, SYMVAL, m)
#define SYMVAL_FORMS_ARRAY(FORM) FORM(EigenValuesSym, ma, vokm::rowSymmetricValuesMa, SYMVALS, ma)
#define SYMVEC_FORMS_SINGLE(FORM) FORM(EigenValuesVectorsSym, m, vokm::rowSymmetricVectorsM, SYMVEC, m)
#define SYMVEC_FORMS_ARRAY(FORM) FORM(EigenValuesVectorsSym, ma, vokm::rowSymmetricVectorsMa, SYMVECS, ma)

extern "C" {
SYMVAL_FORMS_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
SYMVAL_FORMS_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)
SYMVAL_FORMS_ARRAY(VOKM_DECLARE_ARRAY_WRAPPERS)
SYMVEC_FORMS_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
SYMVEC_FORMS_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)
SYMVEC_FORMS_ARRAY(VOKM_DECLARE_ARRAY_WRAPPERS)
}
