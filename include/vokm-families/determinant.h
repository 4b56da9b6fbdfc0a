#pragma once

/* Determinant.

       operand  shape
       src      widthHeight rows and columns; one matrix (m) or count of them (ma)
       buffer   widthHeight*widthHeight elements and widthHeight int32_t behind them, for all objects in turn. Used at sizes
                other than 3 to 6 and not by threads, but never null
       dst      one number, or a plain array of count numbers

   Statuses: those of the checks. A singular matrix is no failure.

   Rounding: in the element type; sizes 3 to 6 by Laplace expansion along the bottom row, others by elimination with partial
   pivoting, where a pivot below t = 2*widthHeight^3*FLT_MIN (DBL_MIN), or a last one not above it, gives 0.

   Threads start when widthHeight*count is above 20000, in L 32f with dense rows above 40000. */

vokStatus vokmDet_m_32f(const float* src, int32_t srcStride1, int32_t srcStride2, int32_t widthHeight, float* buffer, float* dst);
vokStatus vokmDet_m_64f(const double* src, int32_t srcStride1, int32_t srcStride2, int32_t widthHeight, double* buffer,
    double* dst);
vokStatus vokmDet_m_32f_P(const float* const* src, int32_t srcObjShift, int32_t widthHeight, float* buffer, float* dst);
vokStatus vokmDet_m_64f_P(const double* const* src, int32_t srcObjShift, int32_t widthHeight, double* buffer, double* dst);

vokStatus vokmDet_ma_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, int32_t widthHeight,
    float* buffer, float* dst, int32_t count);
vokStatus vokmDet_ma_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, int32_t widthHeight,
    double* buffer, double* dst, int32_t count);
vokStatus vokmDet_ma_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, int32_t widthHeight, float* buffer,
    float* dst, int32_t count);
vokStatus vokmDet_ma_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, int32_t widthHeight, double* buffer,
    double* dst, int32_t count);
vokStatus vokmDet_ma_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    int32_t widthHeight, float* buffer, float* dst, int32_t count);
vokStatus vokmDet_ma_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    int32_t widthHeight, double* buffer, double* dst, int32_t count);
