#pragma once

/* Trace: dst = src(0, 0) + src(1, 1) + ...

       operand  shape
       src      widthHeight rows and columns; one matrix (m) or count of them (ma)
       dst      one number, or a plain array of count numbers

   Statuses: those of the checks.

   Rounding: left to right in the element type, for sizes other than 3 to 6 from 0. Strided rows in S and L at sizes 4, 5, 6:
   ((d0 + d3) + d1) + d2, (((d0 + d4) + d1) + d2) + d3, ((((d4 + d5) + d0) + d1) + d2) + d3.

   Threads start when widthHeight*count is above 20000, in L 32f with dense rows above 40000. */

vokStatus vokmTrace_m_32f(const float* src, int32_t srcStride1, int32_t srcStride2, int32_t widthHeight, float* dst);
vokStatus vokmTrace_m_64f(const double* src, int32_t srcStride1, int32_t srcStride2, int32_t widthHeight, double* dst);
vokStatus vokmTrace_m_32f_P(const float* const* src, int32_t srcObjShift, int32_t widthHeight, float* dst);
vokStatus vokmTrace_m_64f_P(const double* const* src, int32_t srcObjShift, int32_t widthHeight, double* dst);

vokStatus vokmTrace_ma_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, int32_t widthHeight,
    float* dst, int32_t count);
vokStatus vokmTrace_ma_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, int32_t widthHeight,
    double* dst, int32_t count);
vokStatus vokmTrace_ma_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, int32_t widthHeight, float* dst,
    int32_t count);
vokStatus vokmTrace_ma_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, int32_t widthHeight, double* dst,
    int32_t count);
vokStatus vokmTrace_ma_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    int32_t widthHeight, float* dst, int32_t count);
vokStatus vokmTrace_ma_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    int32_t widthHeight, double* dst, int32_t count);
