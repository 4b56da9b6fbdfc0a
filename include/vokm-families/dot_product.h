#pragma once

/* Dot product: dst = src1[0]*src2[0] + src1[1]*src2[1] + ...

       operand     shape
       src1, src2  length elements; one vector (v) or count of them (va)
       dst         one number, or a plain array of count numbers

   Statuses: those of the checks.

   Rounding: products and sums in the element type. Write p0, p1, ... for the products. "Chain" is ((p0 + p1) + p2) + ...

       length                     3      4                      5                            6
       vv 32f dense               chain  chain                  chain                        chain
       vv 32f _P, 64f _P          chain  chain                  chain                        chain
       vv 64f dense               chain  (p0 + p2) + (p1 + p3)  as for 4, then + p4          (p0 + (p2 + p4)) + (p1 + (p3 + p5))
       strided, S and L           chain  ((p3 + p0) + p1) + p2  (((p4 + p0) + p1) + p2) + p3 ((((p5 + p4) + p0) + p1) + p2) + p3
       vav 32f dense, S and L     chain  (p0 + p1) + (p2 + p3)  chain                        chain
       vava 32f dense, S and L    chain  chain                  chain                        chain
       vav, vava _P               chain  chain                  chain                        chain
       vav, vava 64f dense        chain  (p0 + p2) + (p1 + p3)  as for 4, then + p4          (p0 + (p2 + p4)) + (p1 + (p3 + p5))

   vokmDotProduct_vava_32f of dense vectors of length 3 sums (p0 + p2) + p1 in whole groups of four objects if count is at
   least 5 and src1, src2, dst and both stride0 are multiples of 16 bytes. Other lengths: one ascending sum from 0; but long
   dense vectors in vv sum in two accumulators of 16 bytes, from the first element of src2 that is a multiple of 16 bytes.

   Threads start above these limits; dense: every stride2 equals the element size.

       work value                      S dense, else  P 32f  P 64f   L dense, else
       (count + 1)*length   vav        40000, 20000   20000  40000   40000, 20000
       2*length*count       vava       40000, 20000   20000  40000   40000, 20000 */

vokStatus vokmDotProduct_vv_32f(const float* src1, int32_t src1Stride2, const float* src2, int32_t src2Stride2, float* dst,
    int32_t length);
vokStatus vokmDotProduct_vv_64f(const double* src1, int32_t src1Stride2, const double* src2, int32_t src2Stride2, double* dst,
    int32_t length);
vokStatus vokmDotProduct_vv_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2, int32_t src2ObjShift,
    float* dst, int32_t length);
vokStatus vokmDotProduct_vv_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2,
    int32_t src2ObjShift, double* dst, int32_t length);

vokStatus vokmDotProduct_vav_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride2, const float* src2,
    int32_t src2Stride2, float* dst, int32_t length, int32_t count);
vokStatus vokmDotProduct_vav_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride2, const double* src2,
    int32_t src2Stride2, double* dst, int32_t length, int32_t count);
vokStatus vokmDotProduct_vav_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, float* dst, int32_t length, int32_t count);
vokStatus vokmDotProduct_vav_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0,
    const double* const* src2, int32_t src2ObjShift, double* dst, int32_t length, int32_t count);
vokStatus vokmDotProduct_vav_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const float* src2,
    int32_t src2Stride2, float* dst, int32_t length, int32_t count);
vokStatus vokmDotProduct_vav_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const double* src2,
    int32_t src2Stride2, double* dst, int32_t length, int32_t count);

vokStatus vokmDotProduct_vava_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride2, const float* src2,
    int32_t src2Stride0, int32_t src2Stride2, float* dst, int32_t length, int32_t count);
vokStatus vokmDotProduct_vava_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride2, const double* src2,
    int32_t src2Stride0, int32_t src2Stride2, double* dst, int32_t length, int32_t count);
vokStatus vokmDotProduct_vava_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, float* dst, int32_t length, int32_t count);
vokStatus vokmDotProduct_vava_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, double* dst, int32_t length, int32_t count);
vokStatus vokmDotProduct_vava_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride2, float* dst, int32_t length, int32_t count);
vokStatus vokmDotProduct_vava_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride2,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride2, double* dst, int32_t length, int32_t count);
