// vokmEigenValuesVectors, vokmEigenValuesVectorsRight, vokmEigenValuesVectorsLeft: Hessenberg form, orthogonal matrix,
// quasi-triangular form, back substitution, length 1. All of it speaks of the transpose of each matrix: rows of the operand
// are columns of the work area; the vectors are not transposed back.
#include "eigen_general.h"

#include "back_substitution.h"
#include "double_shift.h"
#include "eigen_general_work.h"

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

/// `rows`: 2*n elements of working memory.
template <class V, class N, class T>
[[gnu::noinline]] vokStatus quasiTriangular(Square<V, N> h, Square<V, N> z, V* rows, T smallest, T* re, T* im)
{
    toHessenberg(h, rows, rows + h.n());
    formOrthogonal(h, rows, z);
    clearReflections(h);
    return DoubleShift<V, N, true>(h, z, smallest, re, im).run();
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
template <bool right, bool left, class T, class N> VOKM_INLINE Outcome vectorsOf(GeneralWork<T, N> work, const T* im)
{
    if constexpr (right && left) std::copy_n(work.z.base, i64(work.z.n()) * work.z.n(), work.copy.base);
    Leave leave = Leave::no;
    if constexpr (right) leave = rightVectors(work, work.z, im);
    if (left && leave == Leave::no) leave = leftVectors(work, right ? work.copy : work.z, im);
    return outcome(leave);
}

template <class T, class N, int lanes> VOKM_INLINE void copyLane(Square<T, N, lanes> from, Square<T, N> to)
{
    for (i32 j = 0; j < to.n(); ++j) {
        for (i32 i = 0; i < to.n(); ++i) to(i, j) = from(i, j);
    }
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

/// One call: the operand, the results of both sides.
template <class T, class A, class R, class L> struct EigenvectorCall {
    A src;
    R right;
    L left;
    T *re, *im;

    /// From the quasi-triangular form of object k on.
    template <class N> VOKM_INLINE Outcome finish(i32 k, GeneralWork<T, N> work) const
    {
        const Outcome end = vectorsOf<wanted<R>, wanted<L>>(work, im + i64(k) * work.h.n());
        if (end.leaves) return end;
        copyOut(right, k, work.z);
        copyOut(left, k, wanted<R> ? work.copy : work.z);
        return end;
    }

    /// Objects from..to, one by one.
    template <class N> VOKM_INLINE Outcome each(i32 from, i32 to, GeneralWork<T, N> work) const
    {
        const i64 n = work.h.n();
        for (i32 k = from; k < to; ++k) {
            copyIn(src, k, work.h);
            const vokStatus status = quasiTriangular(work.h, work.z, work.rows, work.smallest, re + k * n, im + k * n);
            if (status) return {true, status};
            if (const Outcome end = finish(k, work); end.leaves) return end;
        }
        return {false, vokStatusOk};
    }

    VOKM_INLINE auto guard(i32 n, i32 count) const
    {
        if constexpr (!wanted<R>) {
            return generalGuard(n, count, src, re, im, left);
        } else if constexpr (!wanted<L>) {
            return generalGuard(n, count, src, re, im, right);
        } else {
            return generalGuard(n, count, src, re, im, right, left);
        }
    }

    /// The quasi-triangular form for packs, as long as there are whole ones; the vectors lane by lane. A pack that cannot be read
    /// at once, or in which a lane does not come to its end, is done one by one.
    template <int n> VOKM_INLINE vokStatus packs(i32 count, GeneralWork<T, Fixed<n>> work) const
    {
        constexpr i32 lanes = packLanes<T>;
        const auto atOnce = lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA { return guard(n, count); });
        i32 k = 0;
        for (; k + lanes <= count; k += lanes) {
            Pack<T> tile[n][n], orthogonal[n][n], rows[2 * n];
            PackValues<T, n> values;
            const Square<Pack<T>, Fixed<n>> h{&tile[0][0], {}}, z{&orthogonal[0][0], {}};
            const bool safe = atOnce(k);
            if (safe) copyPackIn(src, k, tile);
            if (!safe || quasiTriangular(h, z, rows, work.smallest, values.re, values.im)) {
                if (const Outcome end = each(k, k + lanes, work); end.leaves) return end.status;
                continue;
            }
            for (int l = 0; l < lanes; ++l) {
                values.copyLane(l, re + i64(k + l) * n, im + i64(k + l) * n);
                copyLane(laneOf(h, l), work.h);
                copyLane(laneOf(z, l), work.z);
                if (const Outcome end = finish(k + l, work); end.leaves) return end.status;
            }
        }
        return each(k, count, work).status;
    }
};

template <class T, class A, class R, class L> VOKM_INLINE vokStatus eigenvectors(
    const A& src, const R& right, const L& left, Packed<T> re, Packed<T> im, i32 n, i32 count, Scratch<T> buffer)
{
    const EigenvectorCall<T, A, R, L> call{src, right, left, re.base, im.base};
    const auto small = [&]<int size>(Fixed<size>) VOKM_INLINE_LAMBDA {
        T areas[vectorsElements(size)];
        return call.template packs<size>(count, GeneralWork<T, Fixed<size>>(areas, {}));
    };
    return onFixed(
        n, small, [&]() VOKM_INLINE_LAMBDA { return call.each(0, count, GeneralWork<T, AnySize>(buffer.base, {n})).status; });
}

}  // namespace vokm

extern "C" {
VECTORS_FORMS_M(GENERAL_KERNELS_M)
VECTORS_FORMS_MA(GENERAL_KERNELS_MA)
VECTORS_FORMS_M(GENERAL_EXPORTS_M)
VECTORS_FORMS_MA(GENERAL_EXPORTS_MA)
}
