#pragma once

/* Vector product of three-element vectors: dst = src1 x src2, that is

       dst[0] = src1[1]*src2[2] - src1[2]*src2[1]
       dst[1] = src1[2]*src2[0] - src1[0]*src2[2]
       dst[2] = src1[0]*src2[1] - src1[1]*src2[0]

       operand     shape
       src1, src2  3 elements; one vector (v) or count of them (va)
       dst         3 elements; one vector, or count of them as soon as a source is an array

   Statuses: those of the checks. vav tests count behind the strides (in L behind the shifts too); vva and vava test it
   right behind the pointers.

   In place: dst may equal a source with the same strides, since all six elements are read before the first is written.
   A single source of an array form is read once at the start.

   Rounding: both products, then the difference, in the element type: all paths give the same bits.

   Threads start above these limits; vokmCrossProduct_vva_64f_P never forks.

       work value                 S      P   L 32f  L 64f
       2*count + 1   vav vva  20000  20000   40000  20000
       3*count       vava     20000  20000   40000  20000 */

vokStatus vokmCrossProduct_vv_32f(const float* src1, int32_t src1Stride2, const float* src2, int32_t src2Stride2, float* dst,
    int32_t dstStride2);
vokStatus vokmCrossProduct_vv_64f(const double* src1, int32_t src1Stride2, const double* src2, int32_t src2Stride2, double* dst,
    int32_t dstStride2);
vokStatus vokmCrossProduct_vv_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2,
    int32_t src2ObjShift, float* const* dst, int32_t dstObjShift);
vokStatus vokmCrossProduct_vv_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2,
    int32_t src2ObjShift, double* const* dst, int32_t dstObjShift);

vokStatus vokmCrossProduct_vav_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride2, const float* src2,
    int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
vokStatus vokmCrossProduct_vav_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride2, const double* src2,
    int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
vokStatus vokmCrossProduct_vav_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0,
    const float* const* src2, int32_t src2ObjShift, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmCrossProduct_vav_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0,
    const double* const* src2, int32_t src2ObjShift, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmCrossProduct_vav_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const float* src2,
    int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t count);
vokStatus vokmCrossProduct_vav_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const double* src2,
    int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t count);

vokStatus vokmCrossProduct_vva_32f(const float* src1, int32_t src1Stride2, const float* src2, int32_t src2Stride0,
    int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
vokStatus vokmCrossProduct_vva_64f(const double* src1, int32_t src1Stride2, const double* src2, int32_t src2Stride0,
    int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
vokStatus vokmCrossProduct_vva_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmCrossProduct_vva_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmCrossProduct_vva_32f_L(const float* src1, int32_t src1Stride2, const float* const* src2, int32_t src2ObjShift,
    int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t count);
vokStatus vokmCrossProduct_vva_64f_L(const double* src1, int32_t src1Stride2, const double* const* src2, int32_t src2ObjShift,
    int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t count);

vokStatus vokmCrossProduct_vava_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride2, const float* src2,
    int32_t src2Stride0, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
vokStatus vokmCrossProduct_vava_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride2, const double* src2,
    int32_t src2Stride0, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
vokStatus vokmCrossProduct_vava_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride0, float* const* dst, int32_t dstObjShift,
    int32_t dstStride0, int32_t count);
vokStatus vokmCrossProduct_vava_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, double* const* dst, int32_t dstObjShift,
    int32_t dstStride0, int32_t count);
vokStatus vokmCrossProduct_vava_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride2,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride2, float* const* dst, int32_t dstObjShift,
    int32_t dstStride2, int32_t count);
vokStatus vokmCrossProduct_vava_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride2,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride2, double* const* dst, int32_t dstObjShift,
    int32_t dstStride2, int32_t count);
