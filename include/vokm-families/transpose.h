#pragma once

/* Transpose: dst(c, r) = src(r, c).

       operand  shape
       src      height rows of width elements; one matrix (m) or count of them (ma)
       dst      width rows of height elements; as many

   Statuses: those of the checks.

   In place: not supported; dst must not overlap src.

   Runs on the calling thread. Large 32f matrices that outgrow the cache are written past it. */

vokStatus vokmTranspose_m_32f(const float* src, int32_t srcStride1, int32_t srcStride2, int32_t width, int32_t height, float* dst,
    int32_t dstStride1, int32_t dstStride2);
vokStatus vokmTranspose_m_64f(const double* src, int32_t srcStride1, int32_t srcStride2, int32_t width, int32_t height,
    double* dst, int32_t dstStride1, int32_t dstStride2);
vokStatus vokmTranspose_m_32f_P(const float* const* src, int32_t srcObjShift, int32_t width, int32_t height, float* const* dst,
    int32_t dstObjShift);
vokStatus vokmTranspose_m_64f_P(const double* const* src, int32_t srcObjShift, int32_t width, int32_t height, double* const* dst,
    int32_t dstObjShift);

vokStatus vokmTranspose_ma_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, int32_t width,
    int32_t height, float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmTranspose_ma_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, int32_t width,
    int32_t height, double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmTranspose_ma_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, int32_t width, int32_t height,
    float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmTranspose_ma_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, int32_t width, int32_t height,
    double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmTranspose_ma_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    int32_t width, int32_t height, float* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmTranspose_ma_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    int32_t width, int32_t height, double* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2,
    int32_t count);
