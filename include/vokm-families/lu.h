#pragma once

/* LU decomposition with partial pivoting, and the solution of A x = b from it.

       vokmLUDecomp      row pivot[i] of A = row i of L * U, with L of unit diagonal
       vokmLUBackSubst   mv: one matrix, one vector; mva: one matrix, count vectors; mava: count matrices and vectors

       operand  vokmLUDecomp                               vokmLUBackSubst
       src      A: widthHeight rows and columns            dst of the decomposition
       pivot    out: widthHeight int32_t a matrix,         pivot of the decomposition
                packed, in every layout
       src2                                                b: widthHeight elements
       dst      factors: row pivot[i] holds row i of L     x: widthHeight elements
                left of the diagonal, of U from it on

   Rows are not moved: the exchanges stand in pivot alone, a permutation of 0 .. widthHeight-1.

   Statuses: those of the checks. vokmLUDecomp gives vokStatusSingular if the pivot of a step is too small: below 2*FLT_MIN
   (2*DBL_MIN) at sizes 3 to 6, at or below FLT_EPSILON (DBL_EPSILON) at others, whatever the scale of the matrix. A failing
   object of size 3 to 6 has the rows finished before in dst, the others untouched, and the failing exchange in pivot; one of
   other size the elimination up to the failing step, and no such exchange. vokmLUBackSubst tests no pivot: a zero on the
   diagonal gives infinities or NaN. The entries of pivot are not tested.

   In place: vokmLUDecomp with src equal to dst, vokmLUBackSubst with src2 equal to dst at sizes 3 to 6, with the same strides.

   Rounding: in the element type; sizes 3 to 6 multiply by reciprocals of the diagonal, others divide.

   Threads start above these limits, with n for widthHeight.

       function         form  work value          S, P  L 32f dense  L other
       vokmLUDecomp     ma    n*n*count          20000        40000    20000
       vokmLUBackSubst  mva   n*n + 2*n*count     1700         1700     1700
       vokmLUBackSubst  mava  (n*n + 2*n)*count   1700         1700     1700 */

vokStatus vokmLUDecomp_m_32f(const float* src, int32_t srcStride1, int32_t srcStride2, int32_t* pivot, float* dst,
    int32_t dstStride1, int32_t dstStride2, int32_t widthHeight);
vokStatus vokmLUDecomp_m_64f(const double* src, int32_t srcStride1, int32_t srcStride2, int32_t* pivot, double* dst,
    int32_t dstStride1, int32_t dstStride2, int32_t widthHeight);
vokStatus vokmLUDecomp_m_32f_P(const float* const* src, int32_t srcObjShift, int32_t* pivot, float* const* dst,
    int32_t dstObjShift, int32_t widthHeight);
vokStatus vokmLUDecomp_m_64f_P(const double* const* src, int32_t srcObjShift, int32_t* pivot, double* const* dst,
    int32_t dstObjShift, int32_t widthHeight);

vokStatus vokmLUDecomp_ma_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, int32_t* pivot,
    float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t widthHeight, int32_t count);
vokStatus vokmLUDecomp_ma_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, int32_t* pivot,
    double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t widthHeight, int32_t count);
vokStatus vokmLUDecomp_ma_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, int32_t* pivot,
    float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t widthHeight, int32_t count);
vokStatus vokmLUDecomp_ma_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, int32_t* pivot,
    double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t widthHeight, int32_t count);
vokStatus vokmLUDecomp_ma_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    int32_t* pivot, float* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t widthHeight,
    int32_t count);
vokStatus vokmLUDecomp_ma_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    int32_t* pivot, double* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t widthHeight,
    int32_t count);

vokStatus vokmLUBackSubst_mv_32f(const float* src, int32_t srcStride1, int32_t srcStride2, const int32_t* pivot,
    const float* src2, int32_t src2Stride2, float* dst, int32_t dstStride2, int32_t widthHeight);
vokStatus vokmLUBackSubst_mv_64f(const double* src, int32_t srcStride1, int32_t srcStride2, const int32_t* pivot,
    const double* src2, int32_t src2Stride2, double* dst, int32_t dstStride2, int32_t widthHeight);
vokStatus vokmLUBackSubst_mv_32f_P(const float* const* src, int32_t srcObjShift, const int32_t* pivot, const float* const* src2,
    int32_t src2ObjShift, float* const* dst, int32_t dstObjShift, int32_t widthHeight);
vokStatus vokmLUBackSubst_mv_64f_P(const double* const* src, int32_t srcObjShift, const int32_t* pivot, const double* const* src2,
    int32_t src2ObjShift, double* const* dst, int32_t dstObjShift, int32_t widthHeight);

vokStatus vokmLUBackSubst_mva_32f(const float* src, int32_t srcStride1, int32_t srcStride2, const int32_t* pivot,
    const float* src2, int32_t src2Stride0, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride2,
    int32_t widthHeight, int32_t count);
vokStatus vokmLUBackSubst_mva_64f(const double* src, int32_t srcStride1, int32_t srcStride2, const int32_t* pivot,
    const double* src2, int32_t src2Stride0, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride2,
    int32_t widthHeight, int32_t count);
vokStatus vokmLUBackSubst_mva_32f_P(const float* const* src, int32_t srcObjShift, const int32_t* pivot, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t widthHeight,
    int32_t count);
vokStatus vokmLUBackSubst_mva_64f_P(const double* const* src, int32_t srcObjShift, const int32_t* pivot,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, double* const* dst, int32_t dstObjShift,
    int32_t dstStride0, int32_t widthHeight, int32_t count);
vokStatus vokmLUBackSubst_mva_32f_L(const float* src, int32_t srcStride1, int32_t srcStride2, const int32_t* pivot,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride2, float* const* dst, int32_t dstObjShift,
    int32_t dstStride2, int32_t widthHeight, int32_t count);
vokStatus vokmLUBackSubst_mva_64f_L(const double* src, int32_t srcStride1, int32_t srcStride2, const int32_t* pivot,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride2, double* const* dst, int32_t dstObjShift,
    int32_t dstStride2, int32_t widthHeight, int32_t count);

vokStatus vokmLUBackSubst_mava_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
    const int32_t* pivot, const float* src2, int32_t src2Stride0, int32_t src2Stride2, float* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t widthHeight, int32_t count);
vokStatus vokmLUBackSubst_mava_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
    const int32_t* pivot, const double* src2, int32_t src2Stride0, int32_t src2Stride2, double* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t widthHeight, int32_t count);
vokStatus vokmLUBackSubst_mava_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, const int32_t* pivot,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride0, float* const* dst, int32_t dstObjShift,
    int32_t dstStride0, int32_t widthHeight, int32_t count);
vokStatus vokmLUBackSubst_mava_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, const int32_t* pivot,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, double* const* dst, int32_t dstObjShift,
    int32_t dstStride0, int32_t widthHeight, int32_t count);
vokStatus vokmLUBackSubst_mava_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    const int32_t* pivot, const float* const* src2, int32_t src2ObjShift, int32_t src2Stride2, float* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t widthHeight, int32_t count);
vokStatus vokmLUBackSubst_mava_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    const int32_t* pivot, const double* const* src2, int32_t src2ObjShift, int32_t src2Stride2, double* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t widthHeight, int32_t count);
