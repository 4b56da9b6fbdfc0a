#pragma once

/* Copy of arrays from one layout to another, element by element. The suffix names the layouts of src and dst: vokmCopy_ma_32f_SL
   reads strides and writes lists. A single object is an array with a count of 1.

       operand  shape
       src      count vectors (va) of length elements, or count matrices (ma) of height rows of width elements
       dst      as src

   Statuses: those of the checks, in the order pointers, sizes, count, strides, shifts. stride0 is tested last, and only if
   count is above 1: for one object any value passes. vokmCopy_va_32f_LP and vokmCopy_va_32f_SP test shifts before strides.

   Overlap: elements are read and written one at a time in ascending order of object, row and column.

   Runs on the calling thread. */

vokStatus vokmCopy_va_32f_SS(const float* src, int32_t srcStride0, int32_t srcStride2, float* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmCopy_va_64f_SS(const double* src, int32_t srcStride0, int32_t srcStride2, double* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmCopy_va_32f_SP(const float* src, int32_t srcStride0, int32_t srcStride2, float* const* dst, int32_t dstObjShift,
    int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmCopy_va_64f_SP(const double* src, int32_t srcStride0, int32_t srcStride2, double* const* dst, int32_t dstObjShift,
    int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmCopy_va_32f_SL(const float* src, int32_t srcStride0, int32_t srcStride2, float* const* dst, int32_t dstObjShift,
    int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmCopy_va_64f_SL(const double* src, int32_t srcStride0, int32_t srcStride2, double* const* dst, int32_t dstObjShift,
    int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmCopy_va_32f_PS(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmCopy_va_64f_PS(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmCopy_va_32f_PP(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmCopy_va_64f_PP(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmCopy_va_32f_PL(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmCopy_va_64f_PL(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmCopy_va_32f_LS(const float* const* src, int32_t srcObjShift, int32_t srcStride2, float* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmCopy_va_64f_LS(const double* const* src, int32_t srcObjShift, int32_t srcStride2, double* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmCopy_va_32f_LP(const float* const* src, int32_t srcObjShift, int32_t srcStride2, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmCopy_va_64f_LP(const double* const* src, int32_t srcObjShift, int32_t srcStride2, double* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmCopy_va_32f_LL(const float* const* src, int32_t srcObjShift, int32_t srcStride2, float* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmCopy_va_64f_LL(const double* const* src, int32_t srcObjShift, int32_t srcStride2, double* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);

vokStatus vokmCopy_ma_32f_SS(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, float* dst,
    int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmCopy_ma_64f_SS(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, double* dst,
    int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmCopy_ma_32f_SP(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
vokStatus vokmCopy_ma_64f_SP(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, double* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
vokStatus vokmCopy_ma_32f_SL(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, float* const* dst,
    int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmCopy_ma_64f_SL(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, double* const* dst,
    int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmCopy_ma_32f_PS(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float* dst, int32_t dstStride0,
    int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmCopy_ma_64f_PS(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double* dst, int32_t dstStride0,
    int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmCopy_ma_32f_PP(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
vokStatus vokmCopy_ma_64f_PP(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
vokStatus vokmCopy_ma_32f_PL(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float* const* dst,
    int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmCopy_ma_64f_PL(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double* const* dst,
    int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmCopy_ma_32f_LS(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2, float* dst,
    int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmCopy_ma_64f_LS(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2, double* dst,
    int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmCopy_ma_32f_LP(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
vokStatus vokmCopy_ma_64f_LP(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
vokStatus vokmCopy_ma_32f_LL(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    float* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmCopy_ma_64f_LL(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    double* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
    int32_t count);
