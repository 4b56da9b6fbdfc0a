// vokmEigenValuesVectors, vokmEigenValuesVectorsRight, vokmEigenValuesVectorsLeft: Hessenberg form, orthogonal matrix,
// quasi-triangular form, back substitution, length 1. All of it speaks of the transpose of each matrix: rows of the operand are
// columns of the work area; the vectors are not transposed back.
#include "eigen_general.h"

#include "back_substitution.h"
#include "double_shift.h"

namespace vokm {

/// Stands for the result of the side that is not asked for.
struct NotWanted {};
template <class View> constexpr bool wanted = !std::is_same_v<View, NotWanted>;

/// The working memory of one object: the matrix; the orthogonal matrix, which turns into vectors; its copy for a second side;
/// rows for scale factors, sums, right-hand sides.
template <class T, class N> struct GeneralWork {
    Square<T, N> h, z, copy;
    T* rows;
    T smallest;

    VOKM_INLINE GeneralWork(T* areas, N size) : h{areas, size}
    {
        const i64 n = size.value;
        z = {areas + n * n, size}, copy = {areas + 2 * n * n, size};
        rows = areas + 3 * n * n;
        using K = GeneralConstants<T>;
        smallest = K::safmin * (static_cast<T>(size.value) * K::invEps);
    }
};

/// Where a kernel stands behind one object.
struct Outcome {
    bool leaves;
    vokStatus status;
};
constexpr Outcome outcome(Leave leave) { return {leave != Leave::no, leave == Leave::failing ? vokStatusFailure : vokStatusOk}; }

template <class T, class N> [[gnu::noinline]] vokStatus quasiTriangular(GeneralWork<T, N> work, T* re, T* im)
{
    toHessenberg(work.h, work.rows, work.rows + work.h.n());
    formOrthogonal(work.h, work.rows, work.z);
    clearReflections(work.h);
    return DoubleShift<T, N, true>(work.h, work.z, work.smallest).run(re, im);
}

template <class T, class N> [[gnu::noinline]] Leave rightVectors(GeneralWork<T, N> work, Square<T, N> v, const T* im)
{
    const Leave leave = BackSubstitution<T, N>(work.h, v, work.rows + 2 * v.n(), work.smallest).right();
    if (leave == Leave::no) normalise(v, im);
    return leave;
}

template <class T, class N> [[gnu::noinline]] Leave leftVectors(GeneralWork<T, N> work, Square<T, N> v, const T* im)
{
    const Leave leave = BackSubstitution<T, N>(work.h, v, work.rows + 2 * v.n(), work.smallest).left();
    if (leave == Leave::no) normalise(v, im);
    return leave;
}

/// With both sides the right vectors take the orthogonal matrix and the left ones its copy.
template <bool right, bool left, class T, class N> VOKM_INLINE Outcome vectorsOf(GeneralWork<T, N> work, T* re, T* im)
{
    if (const vokStatus status = quasiTriangular(work, re, im)) return {true, status};
    if constexpr (right && left) std::copy_n(work.z.base, i64(work.z.n()) * work.z.n(), work.copy.base);
    Leave leave = Leave::no;
    if constexpr (right) leave = rightVectors(work, work.z, im);
    if (left && leave == Leave::no) leave = leftVectors(work, right ? work.copy : work.z, im);
    return outcome(leave);
}

template <class D, class T, class N> VOKM_INLINE void copyOut(const D& dst, i32 k, Square<T, N> v)
{
    if constexpr (wanted<D>) {
        const auto object = dst.object(k, Shape{v.n(), v.n()});
        for (i32 i = 0; i < v.n(); ++i) {
            for (i32 j = 0; j < v.n(); ++j) object(i, j) = v(i, j);
        }
    }
}

template <class T, class N, class A, class R, class L>
VOKM_INLINE vokStatus vectorsOfEach(const A& src, const R& right, const L& left, T* re, T* im, i32 count, GeneralWork<T, N> work)
{
    const i32 n = work.h.n();
    for (i32 k = 0; k < count; ++k) {
        const auto a = src.object(k, Shape{n, n});
        for (i32 r = 0; r < n; ++r) {
            for (i32 c = 0; c < n; ++c) work.h(c, r) = a(r, c);
        }
        const Outcome end = vectorsOf<wanted<R>, wanted<L>>(work, re + i64(k) * n, im + i64(k) * n);
        if (end.leaves) return end.status;
        copyOut(right, k, work.z);
        copyOut(left, k, wanted<R> ? work.copy : work.z);
    }
    return vokStatusOk;
}

template <class T, class A, class R, class L> VOKM_INLINE vokStatus eigenvectors(
    const A& src, const R& right, const L& left, Packed<T> re, Packed<T> im, i32 n, i32 count, Scratch<T> buffer)
{
    const auto small = [&]<int size>(Fixed<size>) VOKM_INLINE_LAMBDA {
        T areas[vectorsElements(size)];
        return vectorsOfEach(src, right, left, re.base, im.base, count, GeneralWork<T, Fixed<size>>(areas, {}));
    };
    return onFixed(n, small, [&]() VOKM_INLINE_LAMBDA {
        return vectorsOfEach(src, right, left, re.base, im.base, count, GeneralWork<T, AnySize>(buffer.base, {n}));
    });
}

}  // namespace vokm

extern "C" {
VECTORS_FORMS_M(GENERAL_KERNELS_M)
VECTORS_FORMS_MA(GENERAL_KERNELS_MA)
VECTORS_FORMS_M(GENERAL_EXPORTS_M)
VECTORS_FORMS_MA(GENERAL_EXPORTS_MA)
}
