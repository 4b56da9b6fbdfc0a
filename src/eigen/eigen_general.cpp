// vokmEigenValues: Hessenberg form, then the double-shift iteration, on the transpose of each matrix: rows of the operand are
// columns of the work area. No balancing, no order of the eigenvalues but that of their deflation.
#include "eigen_general.h"

#include "double_shift.h"

namespace vokm {

/// The eigenvalues of the matrix in h. `rows`: 2*n elements of working memory.
template <class T, class N> [[gnu::noinline]] vokStatus valuesOf(Square<T, N> h, T* rows, T* re, T* im)
{
    toHessenberg(h, rows, rows + h.n());
    clearReflections(h);
    return DoubleShift<T, N, false>(h, h, 0).run(re, im);
}

template <class T, class N, class A>
VOKM_INLINE vokStatus valuesOfEach(const A& src, T* re, T* im, i32 count, Square<T, N> h, T* rows)
{
    const i32 n = h.n();
    for (i32 k = 0; k < count; ++k) {
        const auto a = src.object(k, Shape{n, n});
        for (i32 r = 0; r < n; ++r) {
            for (i32 c = 0; c < n; ++c) h(c, r) = a(r, c);
        }
        if (const vokStatus status = valuesOf(h, rows, re + i64(k) * n, im + i64(k) * n)) return status;
    }
    return vokStatusOk;
}

template <class T, class A>
VOKM_INLINE vokStatus eigenvalues(const A& src, Packed<T> re, Packed<T> im, i32 n, i32 count, Scratch<T> buffer)
{
    const auto small = [&]<int size>(Fixed<size>) VOKM_INLINE_LAMBDA {
        T h[size * size], rows[2 * size];
        return valuesOfEach(src, re.base, im.base, count, Square<T, Fixed<size>>{h, {}}, rows);
    };
    return onFixed(n, small, [&]() VOKM_INLINE_LAMBDA {
        const Square<T, AnySize> h{buffer.base, {n}};
        return valuesOfEach(src, re.base, im.base, count, h, h.column(n));
    });
}

/// Bytes of a buffer, formed in 64 bits and stored in 32.
static vokStatus storeBytes(i64 (*elements)(i64), i32 n, i64 E, i32* bytes)
{
    if (bytes == nullptr) return vokStatusNullPointer;
    if (n < 1) return vokStatusBadSize;
    *bytes = static_cast<i32>(elements(n) * E);
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
        return vokm::storeBytes(vokm::elements<vokm::i64>, widthHeight, sizeof(T), bufSize);                                     \
    }
GENERAL_QUERY(EigenValues, valuesElements, 32f, float)
GENERAL_QUERY(EigenValues, valuesElements, 64f, double)
GENERAL_QUERY(EigenValuesVectors, vectorsElements, 32f, float)
GENERAL_QUERY(EigenValuesVectors, vectorsElements, 64f, double)
}
