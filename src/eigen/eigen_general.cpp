// vokmEigenValues: Hessenberg form, then the double-shift iteration, on the transpose of each matrix: rows of the operand are
// columns of the work area. No balancing, no order of the eigenvalues but that of their deflation.
#include "eigen_general.h"

#include "double_shift.h"
#include "eigen_general_work.h"

namespace vokm {

/// The eigenvalues of the matrix in h. `rows`: 2*n elements of working memory.
template <class V, class N, class T> [[gnu::noinline]] vokStatus valuesOf(Square<V, N> h, V* rows, T* re, T* im)
{
    toHessenberg(h, rows, rows + h.n());
    clearReflections(h);
    return DoubleShift<V, N, false>(h, h, 0, re, im).run();
}

/// Objects from..to, one by one.
template <class T, class N, class A>
VOKM_INLINE vokStatus valuesOfEach(const A& src, T* re, T* im, i32 from, i32 to, Square<T, N> h, T* rows)
{
    for (i32 k = from; k < to; ++k) {
        copyIn(src, k, h);
        if (const vokStatus status = valuesOf(h, rows, re + i64(k) * h.n(), im + i64(k) * h.n())) return status;
    }
    return vokStatusOk;
}

/// The pack of objects from k on; false if a lane does not come to its end.
template <int n, class T, class A> VOKM_INLINE bool valuesOfPack(const A& src, T* re, T* im, i32 k)
{
    Pack<T> tile[n][n], rows[2 * n];
    PackValues<T, n> values;
    copyPackIn(src, k, tile);
    if (valuesOf(Square<Pack<T>, Fixed<n>>{&tile[0][0], {}}, rows, values.re, values.im)) return false;
    for (int l = 0; l < packLanes<T>; ++l) values.copyLane(l, re + i64(k + l) * n, im + i64(k + l) * n);
    return true;
}

/// Packs, as long as there are whole ones. What a pack cannot do is done one by one.
template <int n, class T, class A> VOKM_INLINE vokStatus valuesOfPacks(const A& src, T* re, T* im, i32 count)
{
    constexpr i32 L = packLanes<T>;
    T one[n * n], rows[2 * n];
    const Square<T, Fixed<n>> h{one, {}};
    const auto guard = lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA { return generalGuard(n, count, src, re, im); });
    i32 k = 0;
    for (; k + L <= count; k += L) {
        if (guard(k) && valuesOfPack<n>(src, re, im, k)) continue;
        if (const vokStatus status = valuesOfEach(src, re, im, k, k + L, h, rows)) return status;
    }
    return valuesOfEach(src, re, im, k, count, h, rows);
}

template <class T, class A>
VOKM_INLINE vokStatus eigenvalues(const A& src, Packed<T> re, Packed<T> im, i32 n, i32 count, Scratch<T> buffer)
{
    const auto small = [&]<int size>(Fixed<size>)
                           VOKM_INLINE_LAMBDA { return valuesOfPacks<size>(src, re.base, im.base, count); };
    return onFixed(n, small, [&]() VOKM_INLINE_LAMBDA {
        const Square<T, AnySize> h{buffer.base, {n}};
        return valuesOfEach(src, re.base, im.base, 0, count, h, h.column(n));
    });
}

/// Bytes of a buffer, formed in 64 bits, where they wrap, and stored in 32.
static vokStatus storeBytes(std::uint64_t (*elements)(std::uint64_t), i32 n, std::uint64_t E, i32* bytes)
{
    if (bytes == nullptr) return vokStatusNullPointer;
    if (n < 1) return vokStatusBadSize;
    *bytes = static_cast<i32>(elements(static_cast<std::uint64_t>(n)) * E);
    return vokStatusOk;
}

}  // namespace vokm

extern "C" {
VALUES_FORMS_M(GENERAL_KERNELS_M)
VALUES_FORMS_MA(GENERAL_KERNELS_MA)
VALUES_FORMS_M(GENERAL_EXPORTS_M)
VALUES_FORMS_MA(GENERAL_EXPORTS_MA)

#define GENERAL_QUERY(family, elements, ty, T)                                                                                   \
    vokStatus vokm##family##GetBufSize_##ty(int32_t widthHeight, int32_t* bufSize)                                               \
    {                                                                                                                            \
        return vokm::storeBytes(vokm::elements<std::uint64_t>, widthHeight, sizeof(T), bufSize);                                     \
    }
GENERAL_QUERY(EigenValues, valuesElements, 32f, float)
GENERAL_QUERY(EigenValues, valuesElements, 64f, double)
GENERAL_QUERY(EigenValuesVectors, vectorsElements, 32f, float)
GENERAL_QUERY(EigenValuesVectors, vectorsElements, 64f, double)
}
