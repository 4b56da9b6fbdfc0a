#pragma once

/* Cholesky decomposition A = L * transpose(L), and the solution of A x = b from it.

       vokmCholeskyDecomp      m ma
       vokmCholeskyBackSubst   mv: one matrix, one vector; mva: one matrix, count vectors; mava: count matrices and vectors

       operand  vokmCholeskyDecomp                         vokmCholeskyBackSubst
       src      A: widthHeight rows and columns, of        dst of the decomposition
                which the lower triangle is read
       src2                                                b: widthHeight elements
       dst      L below the diagonal, 1 / L(i, i) on it;   x: widthHeight elements
                the upper triangle is not written

   Statuses: those of the checks. vokmCholeskyBackSubst_mva in L tests strides, shifts, size, count in this order.
   vokmCholeskyDecomp gives vokStatusNotPositiveDefinite if the square of a diagonal element of L is not above 0, or in P at
   size 3 not above 1.1920929e-07. dst of the failing object then holds the rows above in full and the failing row left of the
   diagonal, which in P at sizes 3 to 6 is untouched. vokmCholeskyBackSubst cannot fail behind its checks.

   In place: vokmCholeskyDecomp with src equal to dst, vokmCholeskyBackSubst with src2 equal to dst, with the same strides.

   Rounding: in the element type, but 1 / sqrt(t) in double and then rounded; in 32f P at sizes 1, 2, 7 and above the root is
   rounded first and the reciprocal is one of floats. Sums run upwards in the factor and in the forward substitution, downwards
   in the backward one; vokmCholeskyBackSubst_mv_32f with dense rows has another order there at sizes 4 to 6.

   Threads start above these limits, with n for widthHeight.

       function               form  work value         S 32f  S 64f  P 32f  P 64f  L 32f  L 64f
       vokmCholeskyDecomp     ma    n*n*count           7500   2000   2000   2000   2000    720 dense, 2000
       vokmCholeskyBackSubst  mva   n*n + 2*n*count     1200    720    720    720    720    720
       vokmCholeskyBackSubst  mava  (n*n + 2*n)*count   1700   1700   1700   2050   1700   1700

   S 32f mava with dense rows: 2050. */

vokStatus vokmCholeskyDecomp_m_32f(const float* src, int32_t srcStride1, int32_t srcStride2, float* dst, int32_t dstStride1,
    int32_t dstStride2, int32_t widthHeight);
vokStatus vokmCholeskyDecomp_m_64f(const double* src, int32_t srcStride1, int32_t srcStride2, double* dst, int32_t dstStride1,
    int32_t dstStride2, int32_t widthHeight);
vokStatus vokmCholeskyDecomp_m_32f_P(const float* const* src, int32_t srcObjShift, float* const* dst, int32_t dstObjShift,
    int32_t widthHeight);
vokStatus vokmCholeskyDecomp_m_64f_P(const double* const* src, int32_t srcObjShift, double* const* dst, int32_t dstObjShift,
    int32_t widthHeight);

vokStatus vokmCholeskyDecomp_ma_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, float* dst,
    int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t widthHeight, int32_t count);
vokStatus vokmCholeskyDecomp_ma_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, double* dst,
    int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t widthHeight, int32_t count);
vokStatus vokmCholeskyDecomp_ma_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t widthHeight, int32_t count);
vokStatus vokmCholeskyDecomp_ma_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t widthHeight, int32_t count);
vokStatus vokmCholeskyDecomp_ma_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    float* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t widthHeight, int32_t count);
vokStatus vokmCholeskyDecomp_ma_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    double* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t widthHeight, int32_t count);

vokStatus vokmCholeskyBackSubst_mv_32f(const float* src, int32_t srcStride1, int32_t srcStride2, const float* src2,
    int32_t src2Stride2, float* dst, int32_t dstStride2, int32_t widthHeight);
vokStatus vokmCholeskyBackSubst_mv_64f(const double* src, int32_t srcStride1, int32_t srcStride2, const double* src2,
    int32_t src2Stride2, double* dst, int32_t dstStride2, int32_t widthHeight);
vokStatus vokmCholeskyBackSubst_mv_32f_P(const float* const* src, int32_t srcObjShift, const float* const* src2,
    int32_t src2ObjShift, float* const* dst, int32_t dstObjShift, int32_t widthHeight);
vokStatus vokmCholeskyBackSubst_mv_64f_P(const double* const* src, int32_t srcObjShift, const double* const* src2,
    int32_t src2ObjShift, double* const* dst, int32_t dstObjShift, int32_t widthHeight);

vokStatus vokmCholeskyBackSubst_mva_32f(const float* src, int32_t srcStride1, int32_t srcStride2, const float* src2,
    int32_t src2Stride0, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride2, int32_t widthHeight,
    int32_t count);
vokStatus vokmCholeskyBackSubst_mva_64f(const double* src, int32_t srcStride1, int32_t srcStride2, const double* src2,
    int32_t src2Stride0, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride2, int32_t widthHeight,
    int32_t count);
vokStatus vokmCholeskyBackSubst_mva_32f_P(const float* const* src, int32_t srcObjShift, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t widthHeight,
    int32_t count);
vokStatus vokmCholeskyBackSubst_mva_64f_P(const double* const* src, int32_t srcObjShift, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t widthHeight,
    int32_t count);
vokStatus vokmCholeskyBackSubst_mva_32f_L(const float* src, int32_t srcStride1, int32_t srcStride2, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t widthHeight,
    int32_t count);
vokStatus vokmCholeskyBackSubst_mva_64f_L(const double* src, int32_t srcStride1, int32_t srcStride2, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t widthHeight,
    int32_t count);

vokStatus vokmCholeskyBackSubst_mava_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
    const float* src2, int32_t src2Stride0, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride2,
    int32_t widthHeight, int32_t count);
vokStatus vokmCholeskyBackSubst_mava_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
    const double* src2, int32_t src2Stride0, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride2,
    int32_t widthHeight, int32_t count);
vokStatus vokmCholeskyBackSubst_mava_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride0, float* const* dst, int32_t dstObjShift,
    int32_t dstStride0, int32_t widthHeight, int32_t count);
vokStatus vokmCholeskyBackSubst_mava_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, double* const* dst, int32_t dstObjShift,
    int32_t dstStride0, int32_t widthHeight, int32_t count);
vokStatus vokmCholeskyBackSubst_mava_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride2, float* const* dst, int32_t dstObjShift,
    int32_t dstStride2, int32_t widthHeight, int32_t count);
vokStatus vokmCholeskyBackSubst_mava_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride2, double* const* dst, int32_t dstObjShift,
    int32_t dstStride2, int32_t widthHeight, int32_t count);
