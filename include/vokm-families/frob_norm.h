#pragma once

/* Frobenius norm: the square root of the sum of the squares of all elements, without scaling: squares may overflow to infinity
   and underflow to 0.

       operand  shape
       src      height rows of width elements; one matrix (m) or count of them (ma)
       dst      one number, or a plain array of count numbers

   Statuses: those of the checks.

   Rounding: squares and sums in the element type. The root is taken in the element type, but in double and then rounded for
   32f in P, in L, and in S for ma with strided rows. The order of the sum:

       m 64f in S                                row by row, left to right
       m and ma in P                             in pairs, ((q0 + q1) + (q2 + q3)) + ...; ma of 3x3: row by row
       ma in L, and in S with strided rows       3x3: row by row; width 4: each row by itself, then the rows; widths 5 and 6,
                                                 and width 4 in L 64f with strided rows: the last column of a row first
       m 32f and dense ma in S, 3x3 to 5x5       each column from the top, at 4 rows (r0 + r1) + (r2 + r3); then the columns,
                                                 at 4 columns (c0 + c2) + (c1 + c3)

   Threads start when width*height*count is above 20000, in L 32f with dense rows above 40000. */

vokStatus vokmFrobNorm_m_32f(const float* src, int32_t srcStride1, int32_t srcStride2, int32_t width, int32_t height, float* dst);
vokStatus vokmFrobNorm_m_64f(const double* src, int32_t srcStride1, int32_t srcStride2, int32_t width, int32_t height,
    double* dst);
vokStatus vokmFrobNorm_m_32f_P(const float* const* src, int32_t srcObjShift, int32_t width, int32_t height, float* dst);
vokStatus vokmFrobNorm_m_64f_P(const double* const* src, int32_t srcObjShift, int32_t width, int32_t height, double* dst);

vokStatus vokmFrobNorm_ma_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, int32_t width,
    int32_t height, float* dst, int32_t count);
vokStatus vokmFrobNorm_ma_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, int32_t width,
    int32_t height, double* dst, int32_t count);
vokStatus vokmFrobNorm_ma_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, int32_t width, int32_t height,
    float* dst, int32_t count);
vokStatus vokmFrobNorm_ma_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, int32_t width, int32_t height,
    double* dst, int32_t count);
vokStatus vokmFrobNorm_ma_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    int32_t width, int32_t height, float* dst, int32_t count);
vokStatus vokmFrobNorm_ma_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    int32_t width, int32_t height, double* dst, int32_t count);
