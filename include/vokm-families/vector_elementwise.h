#pragma once

/* Vectors plus, minus and times vectors or constants, element by element.

       vokmAdd   vv vav vava       dst[j] = src1[j] + src2[j]
       vokmSub   vv vav vva vava   dst[j] = src1[j] - src2[j]
       vokmAdd   vc vac vca vaca   dst[j] = src[j] + val
       vokmSub   vc vac vca vaca   dst[j] = src[j] - val
       vokmSub   cv cva cav cava   dst[j] = val - src[j]
       vokmMul   vc vac vca vaca   dst[j] = src[j] * val

       operand          shape
       src, src1, src2  length elements; one vector (v) or count of them (va)
       val              c: one number by value; ca: count numbers, behind src also in the forms that begin with a constant
       dst              length elements; one vector, or count of them as soon as a source is an array

   Statuses: those of the checks. vokmAdd_vav and vokmSub_vav test count behind the strides (in L behind the shifts too).
   vokmAdd_vca_64f_P and vokmSub_cav_32f_P do not test the shifts, and vokmAdd_vaca_32f_P does not test srcStride0.

   In place: dst may equal a source with the same strides. A single source that overlaps the array dst is read at its old
   or its new values, depending on length and layout.

   Rounding: one operation for each element, so all paths give the same bits.

   Threads start above these limits; vokmSub_vva_64f_P never forks.

       function          form          work value                         S      P  L 32f  L 64f
       vokmAdd, vokmSub  vav vac vva   (2*count + 1)*length           20000  20000  40000  20000
       vokmAdd, vokmSub  vava          3*length*count                 20000  20000  40000  20000
       vokmAdd, vokmSub  vca cav       length*count + length + count  20000  20000  40000  20000
       vokmAdd, vokmSub  vaca cava     (2*length + 1)*count           20000  20000  40000  20000
       vokmSub           cva           2*count + 1                    20000  20000  40000  20000
       vokmMul           vac, dense    2*length*count                 36864   9216  18432  18432
       vokmMul           vac, strided  2*length*count                 18432   9216  18432  18432
       vokmMul           vca           length*count + length + count  36864   9216  18432  18432
       vokmMul           vaca          (2*length + 1)*count           36864   9216  18432  18432 */

vokStatus vokmAdd_vv_32f(const float* src1, int32_t src1Stride2, const float* src2, int32_t src2Stride2, float* dst,
    int32_t dstStride2, int32_t length);
vokStatus vokmAdd_vv_64f(const double* src1, int32_t src1Stride2, const double* src2, int32_t src2Stride2, double* dst,
    int32_t dstStride2, int32_t length);
vokStatus vokmAdd_vv_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2, int32_t src2ObjShift,
    float* const* dst, int32_t dstObjShift, int32_t length);
vokStatus vokmAdd_vv_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2, int32_t src2ObjShift,
    double* const* dst, int32_t dstObjShift, int32_t length);

vokStatus vokmAdd_vav_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride2, const float* src2, int32_t src2Stride2,
    float* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmAdd_vav_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride2, const double* src2, int32_t src2Stride2,
    double* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmAdd_vav_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmAdd_vav_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmAdd_vav_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const float* src2,
    int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmAdd_vav_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const double* src2,
    int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);

vokStatus vokmAdd_vava_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride2, const float* src2, int32_t src2Stride0,
    int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmAdd_vava_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride2, const double* src2, int32_t src2Stride0,
    int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmAdd_vava_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length,
    int32_t count);
vokStatus vokmAdd_vava_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length,
    int32_t count);
vokStatus vokmAdd_vava_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length,
    int32_t count);
vokStatus vokmAdd_vava_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length,
    int32_t count);

vokStatus vokmAdd_vc_32f(const float* src, int32_t srcStride2, float val, float* dst, int32_t dstStride2, int32_t length);
vokStatus vokmAdd_vc_64f(const double* src, int32_t srcStride2, double val, double* dst, int32_t dstStride2, int32_t length);
vokStatus vokmAdd_vc_32f_P(const float* const* src, int32_t srcObjShift, float val, float* const* dst, int32_t dstObjShift,
    int32_t length);
vokStatus vokmAdd_vc_64f_P(const double* const* src, int32_t srcObjShift, double val, double* const* dst, int32_t dstObjShift,
    int32_t length);

vokStatus vokmAdd_vac_32f(const float* src, int32_t srcStride0, int32_t srcStride2, float val, float* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmAdd_vac_64f(const double* src, int32_t srcStride0, int32_t srcStride2, double val, double* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmAdd_vac_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float val, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmAdd_vac_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double val, double* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmAdd_vac_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride2, float val, float* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmAdd_vac_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride2, double val, double* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);

vokStatus vokmAdd_vca_32f(const float* src, int32_t srcStride2, const float* val, int32_t valStride0, float* dst,
    int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmAdd_vca_64f(const double* src, int32_t srcStride2, const double* val, int32_t valStride0, double* dst,
    int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmAdd_vca_32f_P(const float* const* src, int32_t srcObjShift, const float* val, int32_t valStride0, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmAdd_vca_64f_P(const double* const* src, int32_t srcObjShift, const double* val, int32_t valStride0,
    double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmAdd_vca_32f_L(const float* src, int32_t srcStride2, const float* const* val, int32_t valObjShift, float* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmAdd_vca_64f_L(const double* src, int32_t srcStride2, const double* const* val, int32_t valObjShift,
    double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);

vokStatus vokmAdd_vaca_32f(const float* src, int32_t srcStride0, int32_t srcStride2, const float* val, int32_t valStride0,
    float* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmAdd_vaca_64f(const double* src, int32_t srcStride0, int32_t srcStride2, const double* val, int32_t valStride0,
    double* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmAdd_vaca_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, const float* val,
    int32_t valStride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmAdd_vaca_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, const double* val,
    int32_t valStride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmAdd_vaca_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride2, const float* const* val,
    int32_t valObjShift, float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmAdd_vaca_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride2, const double* const* val,
    int32_t valObjShift, double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);

vokStatus vokmSub_vv_32f(const float* src1, int32_t src1Stride2, const float* src2, int32_t src2Stride2, float* dst,
    int32_t dstStride2, int32_t length);
vokStatus vokmSub_vv_64f(const double* src1, int32_t src1Stride2, const double* src2, int32_t src2Stride2, double* dst,
    int32_t dstStride2, int32_t length);
vokStatus vokmSub_vv_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2, int32_t src2ObjShift,
    float* const* dst, int32_t dstObjShift, int32_t length);
vokStatus vokmSub_vv_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2, int32_t src2ObjShift,
    double* const* dst, int32_t dstObjShift, int32_t length);

vokStatus vokmSub_vav_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride2, const float* src2, int32_t src2Stride2,
    float* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_vav_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride2, const double* src2, int32_t src2Stride2,
    double* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_vav_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmSub_vav_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmSub_vav_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const float* src2,
    int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_vav_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const double* src2,
    int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);

vokStatus vokmSub_vva_32f(const float* src1, int32_t src1Stride2, const float* src2, int32_t src2Stride0, int32_t src2Stride2,
    float* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_vva_64f(const double* src1, int32_t src1Stride2, const double* src2, int32_t src2Stride0, int32_t src2Stride2,
    double* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_vva_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2, int32_t src2ObjShift,
    int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmSub_vva_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2, int32_t src2ObjShift,
    int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmSub_vva_32f_L(const float* src1, int32_t src1Stride2, const float* const* src2, int32_t src2ObjShift,
    int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_vva_64f_L(const double* src1, int32_t src1Stride2, const double* const* src2, int32_t src2ObjShift,
    int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);

vokStatus vokmSub_vava_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride2, const float* src2, int32_t src2Stride0,
    int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_vava_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride2, const double* src2, int32_t src2Stride0,
    int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_vava_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length,
    int32_t count);
vokStatus vokmSub_vava_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length,
    int32_t count);
vokStatus vokmSub_vava_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length,
    int32_t count);
vokStatus vokmSub_vava_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length,
    int32_t count);

vokStatus vokmSub_vc_32f(const float* src, int32_t srcStride2, float val, float* dst, int32_t dstStride2, int32_t length);
vokStatus vokmSub_vc_64f(const double* src, int32_t srcStride2, double val, double* dst, int32_t dstStride2, int32_t length);
vokStatus vokmSub_vc_32f_P(const float* const* src, int32_t srcObjShift, float val, float* const* dst, int32_t dstObjShift,
    int32_t length);
vokStatus vokmSub_vc_64f_P(const double* const* src, int32_t srcObjShift, double val, double* const* dst, int32_t dstObjShift,
    int32_t length);

vokStatus vokmSub_cv_32f(const float* src, int32_t srcStride2, float val, float* dst, int32_t dstStride2, int32_t length);
vokStatus vokmSub_cv_64f(const double* src, int32_t srcStride2, double val, double* dst, int32_t dstStride2, int32_t length);
vokStatus vokmSub_cv_32f_P(const float* const* src, int32_t srcObjShift, float val, float* const* dst, int32_t dstObjShift,
    int32_t length);
vokStatus vokmSub_cv_64f_P(const double* const* src, int32_t srcObjShift, double val, double* const* dst, int32_t dstObjShift,
    int32_t length);

vokStatus vokmSub_vac_32f(const float* src, int32_t srcStride0, int32_t srcStride2, float val, float* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_vac_64f(const double* src, int32_t srcStride0, int32_t srcStride2, double val, double* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_vac_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float val, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmSub_vac_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double val, double* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmSub_vac_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride2, float val, float* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_vac_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride2, double val, double* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);

vokStatus vokmSub_cva_32f(const float* src, int32_t srcStride0, int32_t srcStride2, float val, float* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_cva_64f(const double* src, int32_t srcStride0, int32_t srcStride2, double val, double* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_cva_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float val, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmSub_cva_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double val, double* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmSub_cva_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride2, float val, float* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_cva_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride2, double val, double* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);

vokStatus vokmSub_vca_32f(const float* src, int32_t srcStride2, const float* val, int32_t valStride0, float* dst,
    int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_vca_64f(const double* src, int32_t srcStride2, const double* val, int32_t valStride0, double* dst,
    int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_vca_32f_P(const float* const* src, int32_t srcObjShift, const float* val, int32_t valStride0, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmSub_vca_64f_P(const double* const* src, int32_t srcObjShift, const double* val, int32_t valStride0,
    double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmSub_vca_32f_L(const float* src, int32_t srcStride2, const float* const* val, int32_t valObjShift, float* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_vca_64f_L(const double* src, int32_t srcStride2, const double* const* val, int32_t valObjShift,
    double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);

vokStatus vokmSub_cav_32f(const float* src, int32_t srcStride2, const float* val, int32_t valStride0, float* dst,
    int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_cav_64f(const double* src, int32_t srcStride2, const double* val, int32_t valStride0, double* dst,
    int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_cav_32f_P(const float* const* src, int32_t srcObjShift, const float* val, int32_t valStride0, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmSub_cav_64f_P(const double* const* src, int32_t srcObjShift, const double* val, int32_t valStride0,
    double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmSub_cav_32f_L(const float* src, int32_t srcStride2, const float* const* val, int32_t valObjShift, float* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_cav_64f_L(const double* src, int32_t srcStride2, const double* const* val, int32_t valObjShift,
    double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);

vokStatus vokmSub_vaca_32f(const float* src, int32_t srcStride0, int32_t srcStride2, const float* val, int32_t valStride0,
    float* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_vaca_64f(const double* src, int32_t srcStride0, int32_t srcStride2, const double* val, int32_t valStride0,
    double* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_vaca_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, const float* val,
    int32_t valStride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmSub_vaca_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, const double* val,
    int32_t valStride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmSub_vaca_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride2, const float* const* val,
    int32_t valObjShift, float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_vaca_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride2, const double* const* val,
    int32_t valObjShift, double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);

vokStatus vokmSub_cava_32f(const float* src, int32_t srcStride0, int32_t srcStride2, const float* val, int32_t valStride0,
    float* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_cava_64f(const double* src, int32_t srcStride0, int32_t srcStride2, const double* val, int32_t valStride0,
    double* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_cava_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, const float* val,
    int32_t valStride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmSub_cava_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, const double* val,
    int32_t valStride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmSub_cava_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride2, const float* const* val,
    int32_t valObjShift, float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmSub_cava_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride2, const double* const* val,
    int32_t valObjShift, double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);

vokStatus vokmMul_vc_32f(const float* src, int32_t srcStride2, float val, float* dst, int32_t dstStride2, int32_t length);
vokStatus vokmMul_vc_64f(const double* src, int32_t srcStride2, double val, double* dst, int32_t dstStride2, int32_t length);
vokStatus vokmMul_vc_32f_P(const float* const* src, int32_t srcObjShift, float val, float* const* dst, int32_t dstObjShift,
    int32_t length);
vokStatus vokmMul_vc_64f_P(const double* const* src, int32_t srcObjShift, double val, double* const* dst, int32_t dstObjShift,
    int32_t length);

vokStatus vokmMul_vac_32f(const float* src, int32_t srcStride0, int32_t srcStride2, float val, float* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmMul_vac_64f(const double* src, int32_t srcStride0, int32_t srcStride2, double val, double* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmMul_vac_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float val, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmMul_vac_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double val, double* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmMul_vac_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride2, float val, float* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmMul_vac_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride2, double val, double* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);

vokStatus vokmMul_vca_32f(const float* src, int32_t srcStride2, const float* val, int32_t valStride0, float* dst,
    int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmMul_vca_64f(const double* src, int32_t srcStride2, const double* val, int32_t valStride0, double* dst,
    int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmMul_vca_32f_P(const float* const* src, int32_t srcObjShift, const float* val, int32_t valStride0, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmMul_vca_64f_P(const double* const* src, int32_t srcObjShift, const double* val, int32_t valStride0,
    double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmMul_vca_32f_L(const float* src, int32_t srcStride2, const float* const* val, int32_t valObjShift, float* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmMul_vca_64f_L(const double* src, int32_t srcStride2, const double* const* val, int32_t valObjShift,
    double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);

vokStatus vokmMul_vaca_32f(const float* src, int32_t srcStride0, int32_t srcStride2, const float* val, int32_t valStride0,
    float* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmMul_vaca_64f(const double* src, int32_t srcStride0, int32_t srcStride2, const double* val, int32_t valStride0,
    double* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmMul_vaca_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, const float* val,
    int32_t valStride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmMul_vaca_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, const double* val,
    int32_t valStride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count);
vokStatus vokmMul_vaca_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride2, const float* const* val,
    int32_t valObjShift, float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);
vokStatus vokmMul_vaca_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride2, const double* const* val,
    int32_t valObjShift, double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count);
