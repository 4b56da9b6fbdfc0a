// vokmEigenValuesSym and vokmEigenValuesVectorsSym: the walk over the objects.
#include "eigen_symmetric.h"

#include "eigen_symmetric_small.h"
#include "eigen_symmetric_steps.h"

#include "../frame/fixed.h"
#include "../frame/overlap.h"

namespace vokm {

/// Stands for the vectors' operand where only values are asked for.
struct NoVectorOperand {
    VOKM_INLINE NoVectors object(i32, Shape) const { return {}; }
};

// Functions of their own: nothing in them depends on how the operand lies in memory.
template <SymmetricRules rules, class T, class Vectors>
[[gnu::noinline]] vokStatus solveSingle(T* matrix, T* values, Vectors vectors, i32 n)
{
    SingleSpace<T, Vectors> space{n, matrix, values, vectors};
    return solve<rules>(space);
}

template <SymmetricRules rules, class T, int n> [[gnu::noinline]] vokStatus solvePack(PackSpace<T, n, rules.vectors>& space)
{
    return solve<rules>(space);
}

/// One object, with `matrix` as working memory. A failure leaves what had been reached.
template <SymmetricRules rules, class S, class Vectors, class T>
VOKM_INLINE vokStatus solveObject(const S& src, const Vectors& vectors, T* matrix, T* values, i32 n)
{
    if (n == 1) {
        values[0] = src(0, 0);
        if constexpr (rules.vectors) vectors(0, 0) = 1;
        return vokStatusOk;
    }
    if (n == 2) {
        const T a = src(0, 0), b = src(0, 1), d = src(1, 1);
        SymmetricPair<T> pair;
        if (!valuesOfTwo<rules>(a, b, d, pair)) return vokStatusSingular;
        values[0] = pair.first;
        values[1] = pair.second;
        if constexpr (rules.vectors) vectorsOfTwo<rules>(a, b, d, pair, vectors);
        return vokStatusOk;
    }
    for (i32 r = 0; r < n; ++r) {
        for (i32 c = 0; c < n; ++c) {
            matrix[i64(r) * n + c] = src(r, c);
            if constexpr (rules.vectors) vectors(r, c) = r == c ? T(1) : T(0);
        }
    }
    return solveSingle<rules>(matrix, values, vectors, n);
}

template <SymmetricRules rules, class S, class D, class T>
VOKM_INLINE vokStatus symmetricObjects(S src, D vectors, T* matrix, T* values, i32 n, i32 count)
{
    for (i32 i = 0; i < count; ++i) {
        const vokStatus status =
            solveObject<rules>(src.object(i, {n, n}), vectors.object(i, {n, n}), matrix, values + i64(i) * n, n);
        if (status != vokStatusOk) return status;
    }
    return vokStatusOk;
}

template <Variant variant, class S, class T>
VOKM_INLINE vokStatus symmetricValues(S src, const Scratch<T>& buffer, const Packed<T>& dst, const Sizes<1>& sizes, Count count)
{
    constexpr SymmetricRules rules = rulesFor<T>(valueRules, S::array, variant);
    return symmetricObjects<rules>(src, NoVectorOperand{}, buffer.base, dst.base, sizes[0], count.n);
}

template <Variant variant, class S, class D, class T> VOKM_INLINE vokStatus symmetricVectors(
    S src, const Scratch<T>& buffer, D vectors, const Packed<T>& values, const Sizes<1>& sizes, Count count)
{
    constexpr SymmetricRules rules = rulesFor<T>(vectorRules, S::array, variant);
    return symmetricObjects<rules>(src, vectors, buffer.base, values.base, sizes[0], count.n);
}

}  // namespace vokm

extern "C" {
SYMVAL_FORMS_SINGLE(VOKM_SINGLE_KERNELS)
SYMVAL_FORMS_ARRAY(VOKM_ARRAY_KERNELS)
SYMVAL_FORMS_SINGLE(VOKM_SINGLE_EXPORTS)
SYMVAL_FORMS_ARRAY(VOKM_ARRAY_EXPORTS)
SYMVEC_FORMS_SINGLE(VOKM_SINGLE_KERNELS)
SYMVEC_FORMS_ARRAY(VOKM_ARRAY_KERNELS)
SYMVEC_FORMS_SINGLE(VOKM_SINGLE_EXPORTS)
SYMVEC_FORMS_ARRAY(VOKM_ARRAY_EXPORTS)
}
