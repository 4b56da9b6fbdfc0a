#pragma once

/* Inverse: dst * src = identity.

       operand  shape
       src      widthHeight rows and columns; one matrix (m) or count of them (ma)
       buffer   widthHeight*widthHeight elements and widthHeight int32_t behind them, for all objects in turn. Used at sizes 2,
                7 and above and not by threads, but never null
       dst      as src

   Statuses: those of the checks, and vokStatusSingular if a determinant or pivot is too small. The limit is
   t = 2*n^3*FLT_MIN (DBL_MIN) for n = widthHeight, and twice that for 64f dense rows at sizes 3 and 4:

       size 1             |a| is not above t
       3 to 6             |determinant| is below t; at 5 and 6 in 32f with dense rows, a pivot or the determinant of the 4x4
                          rest is. The pivot at size 5 is sought among the first four elements of row 0 only
       2, 7 and above     a pivot is below t, or |determinant| is at or below t

   dst of a failing object is untouched, but that in 32f with dense rows row 0 at size 5 and rows 0 and 1 at size 6 hold
   intermediate values. In 32f S arrays of 4x4 with dense rows of 16 bytes and everything aligned to 16, objects go in pairs,
   and if the second of a pair fails the first is untouched too.

   In place: src equal to dst with the same strides at sizes 1 and 3 to 6, but not at 6 in 32f with dense rows.

   Rounding: a 32f matrix inverted alone, in an array, or in another layout may give other last bits. In 32f with dense rows,
   sizes 3 to 6 multiply by an approximate reciprocal with one refinement (arrays of 3x3 in S divide); others divide. At sizes
   2, 7 and above each element is a minor over the determinant, and one that should be 0 is of about t/|determinant|.

   Threads start when 2*widthHeight*count is above 20000, in L 32f with dense rows above 40000; never at size 1. */

vokStatus vokmInvert_m_32f(const float* src, int32_t srcStride1, int32_t srcStride2, float* buffer, float* dst,
    int32_t dstStride1, int32_t dstStride2, int32_t widthHeight);
vokStatus vokmInvert_m_64f(const double* src, int32_t srcStride1, int32_t srcStride2, double* buffer, double* dst,
    int32_t dstStride1, int32_t dstStride2, int32_t widthHeight);
vokStatus vokmInvert_m_32f_P(const float* const* src, int32_t srcObjShift, float* buffer, float* const* dst, int32_t dstObjShift,
    int32_t widthHeight);
vokStatus vokmInvert_m_64f_P(const double* const* src, int32_t srcObjShift, double* buffer, double* const* dst,
    int32_t dstObjShift, int32_t widthHeight);

vokStatus vokmInvert_ma_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, float* buffer,
    float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t widthHeight, int32_t count);
vokStatus vokmInvert_ma_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, double* buffer,
    double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t widthHeight, int32_t count);
vokStatus vokmInvert_ma_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float* buffer, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t widthHeight, int32_t count);
vokStatus vokmInvert_ma_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double* buffer,
    double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t widthHeight, int32_t count);
vokStatus vokmInvert_ma_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2, float* buffer,
    float* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t widthHeight, int32_t count);
vokStatus vokmInvert_ma_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    double* buffer, double* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t widthHeight,
    int32_t count);
