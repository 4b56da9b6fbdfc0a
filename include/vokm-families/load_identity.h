#pragma once

/* Identity matrices: dst(r, c) = 1 if r equals c, else 0. A matrix need not be square.

       operand  shape
       dst      count matrices of height rows of width elements

   Statuses: those of the checks, with sizes before count; vokmLoadIdentity_ma_32f_P tests the shift before count. In S and P
   dstStride0 is tested last, and only if count is above 1: for one object any value passes.

   Runs on the calling thread. */

vokStatus vokmLoadIdentity_ma_32f(float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmLoadIdentity_ma_64f(double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmLoadIdentity_ma_32f_P(float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmLoadIdentity_ma_64f_P(double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmLoadIdentity_ma_32f_L(float* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmLoadIdentity_ma_64f_L(double* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
