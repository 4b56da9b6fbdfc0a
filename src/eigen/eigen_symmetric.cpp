// vokmEigenValuesSym and vokmEigenValuesVectorsSym: the walk over the objects.
#include "eigen_symmetric.h"

#include "eigen_symmetric_small.h"
#include "eigen_symmetric_steps.h"
#include "values_view.h"

#include "../frame/fixed.h"

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

/// The pack of objects from i on; false if one of them fails, with nothing written.
template <SymmetricRules rules, int n, class S, class D, class T>
VOKM_INLINE bool solvePackAt(const S& src, const D& vectors, const ValuesView<T>& values, i32 i)
{
    PackSpace<T, n, rules.vectors> space;
    load(space.matrix, src, i);
    if constexpr (rules.vectors) space.makeIdentity();
    if (solvePack<aboveTwo(rules)>(space) != vokStatusOk) return false;
    if constexpr (rules.vectors) store(space.vectors, vectors, i);
    store(space.values, values, i);
    return true;
}

/// Whether packs change nothing that a caller sees: results apart from later sources and from one another. The vectors are worked
/// on in place, so their elements have to be distinct places.
template <class S, class D, class T>
VOKM_INLINE auto symmetricGuard(i32 n, i32 count, const S& src, const D& vectors, const Shaped<ValuesView<T>>& to)
{
    const Shaped<S> from{src, {n, n}};
    if constexpr (std::is_same_v<D, NoVectorOperand>) {
        return packGuard(count, to, from);
    } else {
        const Shaped<D> also{vectors, {n, n}};
        const bool distinct = planesApart(also, 1);
        const auto first = packGuard(count, to, from, also);
        const auto second = packGuard(count, also, from);
        return [=](i32 i) VOKM_INLINE_LAMBDA { return distinct && first(i) && second(i); };
    }
}

template <SymmetricRules rules, class S, class D, class T>
VOKM_INLINE vokStatus symmetricObjects(S src, D vectors, T* matrix, T* values, i32 n, i32 count)
{
    const auto run = [&](i32 first, i32 end) VOKM_INLINE_LAMBDA {
        vokStatus status = vokStatusOk;
        for (i32 i = first; i < end && status == vokStatusOk; ++i) {
            status = solveObject<rules>(src.object(i, {n, n}), vectors.object(i, {n, n}), matrix, values + i64(i) * n, n);
        }
        return status;
    };
    if constexpr (S::array) {
        constexpr i32 N = packLanes<T>;
        if (count >= N && n >= 3 && n <= 6) {
            const auto packed = valuesAt(values, n);
            const auto guard = symmetricGuard(n, count, src, vectors, packed);
            const auto pack = [&](i32 i) VOKM_INLINE_LAMBDA {
                return onFixed(
                    n,
                    [&](auto size)
                        VOKM_INLINE_LAMBDA { return solvePackAt<rules, decltype(size)::value>(src, vectors, packed.view, i); },
                    [] { return false; });
            };
            for (i32 i = 0; i < count; i += N) {
                if (i + N <= count && guard(i) && pack(i)) continue;
                if (const vokStatus status = run(i, std::min(count, i + N))) return status;
            }
            return vokStatusOk;
        }
    }
    return run(0, count);
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
