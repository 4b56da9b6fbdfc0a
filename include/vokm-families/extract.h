#pragma once

/* Gathering of a vector, a matrix or an array of them into one dense block.

       v va   dst[i*length + j] = element j of vector i
       m ma   dst[(i*height + r)*width + c] = element (r, c) of matrix i
       t ta   the same of the transposed matrix: width and height are its sizes, and it is stored as width rows of height

       operand  shape
       src      one object, or count of them
       dst      a plain array of length or width*height elements for each object

   Statuses: those of the checks. Array forms test sizes before count and shifts before strides. m _P, t _P and v_64f_P test
   sizes before pointers.

   Overlap of dst and src is not supported. Runs on the calling thread. */

vokStatus vokmExtract_v_32f(const float* src, int32_t srcStride2, float* dst, int32_t length);
vokStatus vokmExtract_v_64f(const double* src, int32_t srcStride2, double* dst, int32_t length);
vokStatus vokmExtract_v_32f_P(const float* const* src, int32_t srcObjShift, float* dst, int32_t length);
vokStatus vokmExtract_v_64f_P(const double* const* src, int32_t srcObjShift, double* dst, int32_t length);

vokStatus vokmExtract_va_32f(const float* src, int32_t srcStride0, int32_t srcStride2, float* dst, int32_t length, int32_t count);
vokStatus vokmExtract_va_64f(const double* src, int32_t srcStride0, int32_t srcStride2, double* dst, int32_t length,
    int32_t count);
vokStatus vokmExtract_va_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float* dst, int32_t length,
    int32_t count);
vokStatus vokmExtract_va_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double* dst, int32_t length,
    int32_t count);
vokStatus vokmExtract_va_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride2, float* dst, int32_t length,
    int32_t count);
vokStatus vokmExtract_va_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride2, double* dst, int32_t length,
    int32_t count);

vokStatus vokmExtract_m_32f(const float* src, int32_t srcStride1, int32_t srcStride2, float* dst, int32_t width, int32_t height);
vokStatus vokmExtract_m_64f(const double* src, int32_t srcStride1, int32_t srcStride2, double* dst, int32_t width,
    int32_t height);
vokStatus vokmExtract_m_32f_P(const float* const* src, int32_t srcObjShift, float* dst, int32_t width, int32_t height);
vokStatus vokmExtract_m_64f_P(const double* const* src, int32_t srcObjShift, double* dst, int32_t width, int32_t height);

vokStatus vokmExtract_ma_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, float* dst,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmExtract_ma_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, double* dst,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmExtract_ma_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float* dst, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmExtract_ma_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double* dst, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmExtract_ma_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2, float* dst,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmExtract_ma_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2, double* dst,
    int32_t width, int32_t height, int32_t count);

vokStatus vokmExtract_t_32f(const float* src, int32_t srcStride1, int32_t srcStride2, float* dst, int32_t width, int32_t height);
vokStatus vokmExtract_t_64f(const double* src, int32_t srcStride1, int32_t srcStride2, double* dst, int32_t width,
    int32_t height);
vokStatus vokmExtract_t_32f_P(const float* const* src, int32_t srcObjShift, float* dst, int32_t width, int32_t height);
vokStatus vokmExtract_t_64f_P(const double* const* src, int32_t srcObjShift, double* dst, int32_t width, int32_t height);

vokStatus vokmExtract_ta_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, float* dst,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmExtract_ta_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, double* dst,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmExtract_ta_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float* dst, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmExtract_ta_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double* dst, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmExtract_ta_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2, float* dst,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmExtract_ta_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2, double* dst,
    int32_t width, int32_t height, int32_t count);
