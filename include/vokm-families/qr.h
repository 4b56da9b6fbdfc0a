#pragma once

/* QR decomposition A = Q * R by Householder reflections, and the solution of A x = b, or of its least squares, from it.

       vokmQRDecomp      m ma
       vokmQRBackSubst   mv: one matrix, one vector; mva: one matrix, count vectors; mava: count matrices and vectors

       operand  vokmQRDecomp                               vokmQRBackSubst
       src      A: height rows of width elements,          dst of the decomposition
                width at most height
       buffer   height elements                            height elements
       src2                                                b: height elements
       dst      R on and above the diagonal; below it, in  x: width elements
                column k, the vector of reflection k

   The first element of a reflection's vector v is 1 and not stored; the reflection is I - 2*v*transpose(v)/(transpose(v)*v).
   A square matrix has none for its last column. buffer serves all objects in turn, is not used by threads, and is never null.

   Statuses: those of the checks, vokStatusSizeMismatch, tested last, if width is above height. vokmQRDecomp gives
   vokStatusDivideByZero if the squared norm of a column from the diagonal down is below FLT_EPSILON (DBL_EPSILON), whatever the
   scale of the matrix; dst of the failing object then holds the finished steps. vokmQRBackSubst tests no diagonal: a zero there
   gives infinities or NaN.

   In place: vokmQRDecomp with src equal to dst, and vokmQRBackSubst with src2 equal to dst if width equals height, with the
   same strides.

   Rounding: in the element type but for the root, taken in double; true divisions. vokmQRBackSubst sums left to right, and in
   other orders, which differ by form and layout, for square matrices of 3 to 6.

   Threads start above 2800 in S and 1800 in P and L. Work value: 2*width*height*count for vokmQRDecomp_ma,
   width*height + (width + height)*count for vokmQRBackSubst_mva, (width*height + width + height)*count for mava. */

vokStatus vokmQRDecomp_m_32f(const float* src, int32_t srcStride1, int32_t srcStride2, float* buffer, float* dst,
    int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmQRDecomp_m_64f(const double* src, int32_t srcStride1, int32_t srcStride2, double* buffer, double* dst,
    int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmQRDecomp_m_32f_P(const float* const* src, int32_t srcObjShift, float* buffer, float* const* dst,
    int32_t dstObjShift, int32_t width, int32_t height);
vokStatus vokmQRDecomp_m_64f_P(const double* const* src, int32_t srcObjShift, double* buffer, double* const* dst,
    int32_t dstObjShift, int32_t width, int32_t height);

vokStatus vokmQRDecomp_ma_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, float* buffer,
    float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmQRDecomp_ma_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, double* buffer,
    double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmQRDecomp_ma_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float* buffer,
    float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
vokStatus vokmQRDecomp_ma_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double* buffer,
    double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
vokStatus vokmQRDecomp_ma_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    float* buffer, float* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmQRDecomp_ma_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    double* buffer, double* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width,
    int32_t height, int32_t count);

vokStatus vokmQRBackSubst_mv_32f(const float* src, int32_t srcStride1, int32_t srcStride2, float* buffer, const float* src2,
    int32_t src2Stride2, float* dst, int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmQRBackSubst_mv_64f(const double* src, int32_t srcStride1, int32_t srcStride2, double* buffer, const double* src2,
    int32_t src2Stride2, double* dst, int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmQRBackSubst_mv_32f_P(const float* const* src, int32_t srcObjShift, float* buffer, const float* const* src2,
    int32_t src2ObjShift, float* const* dst, int32_t dstObjShift, int32_t width, int32_t height);
vokStatus vokmQRBackSubst_mv_64f_P(const double* const* src, int32_t srcObjShift, double* buffer, const double* const* src2,
    int32_t src2ObjShift, double* const* dst, int32_t dstObjShift, int32_t width, int32_t height);

vokStatus vokmQRBackSubst_mva_32f(const float* src, int32_t srcStride1, int32_t srcStride2, float* buffer, const float* src2,
    int32_t src2Stride0, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride2, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmQRBackSubst_mva_64f(const double* src, int32_t srcStride1, int32_t srcStride2, double* buffer, const double* src2,
    int32_t src2Stride0, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride2, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmQRBackSubst_mva_32f_P(const float* const* src, int32_t srcObjShift, float* buffer, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmQRBackSubst_mva_64f_P(const double* const* src, int32_t srcObjShift, double* buffer, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmQRBackSubst_mva_32f_L(const float* src, int32_t srcStride1, int32_t srcStride2, float* buffer,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride2, float* const* dst, int32_t dstObjShift,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmQRBackSubst_mva_64f_L(const double* src, int32_t srcStride1, int32_t srcStride2, double* buffer,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride2, double* const* dst, int32_t dstObjShift,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmQRBackSubst_mava_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, float* buffer,
    const float* src2, int32_t src2Stride0, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmQRBackSubst_mava_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, double* buffer,
    const double* src2, int32_t src2Stride0, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmQRBackSubst_mava_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float* buffer,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride0, float* const* dst, int32_t dstObjShift,
    int32_t dstStride0, int32_t width, int32_t height, int32_t count);
vokStatus vokmQRBackSubst_mava_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double* buffer,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, double* const* dst, int32_t dstObjShift,
    int32_t dstStride0, int32_t width, int32_t height, int32_t count);
vokStatus vokmQRBackSubst_mava_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    float* buffer, const float* const* src2, int32_t src2ObjShift, int32_t src2Stride2, float* const* dst, int32_t dstObjShift,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmQRBackSubst_mava_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    double* buffer, const double* const* src2, int32_t src2ObjShift, int32_t src2Stride2, double* const* dst, int32_t dstObjShift,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
