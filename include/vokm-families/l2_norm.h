#pragma once

/* Euclidean norm: dst = sqrt(src[0]*src[0] + src[1]*src[1] + ...), without scaling: squares may overflow to infinity and
   underflow to 0.

       operand  shape
       src      length elements; one vector (v) or count of them (va)
       dst      one number, or a plain array of count numbers

   Statuses: those of the checks.

   Rounding: squares p0, p1, ... and their sums in the element type; "chain" is ((p0 + p1) + p2) + ... The root is taken in
   the element type, but in double and then rounded for 32f in _P, for 32f strided vectors, and for 32f of other lengths.

       length        3               4                      5                           6
       v 32f dense   chain           (p0 + p1) + (p2 + p3)  as for 4, then + p4         as for 4, then + (p4 + p5)
       va 32f dense  chain           chain                  ((p0+p1) + (p2+p3)) + p4    ((p0+p2) + p4) + ((p1+p3) + p5)
       64f dense     (p0 + p2) + p1  (p0 + p2) + (p1 + p3)  ((p0+p2) + p4) + (p1+p3)    ((p0+p2) + p4) + ((p1+p3) + p5)
       strided; _P   chain           ((p3 + p0) + p1) + p2  (((p4+p0) + p1) + p2) + p3  ((((p5+p0) + p1) + p2) + p3) + p4

   va 32f dense of length 5 sums ((p0 + p2) + (p1 + p3)) + p4 in whole groups of four objects. Other lengths: one ascending
   sum from 0; but long dense vectors in v sum in two accumulators of 16 bytes, from the first element of src that is a
   multiple of 16 bytes.

   Threads start when length*count is above 20000. */

vokStatus vokmL2Norm_v_32f(const float* src, int32_t srcStride2, float* dst, int32_t length);
vokStatus vokmL2Norm_v_64f(const double* src, int32_t srcStride2, double* dst, int32_t length);
vokStatus vokmL2Norm_v_32f_P(const float* const* src, int32_t srcObjShift, float* dst, int32_t length);
vokStatus vokmL2Norm_v_64f_P(const double* const* src, int32_t srcObjShift, double* dst, int32_t length);

vokStatus vokmL2Norm_va_32f(const float* src, int32_t srcStride0, int32_t srcStride2, float* dst, int32_t length, int32_t count);
vokStatus vokmL2Norm_va_64f(const double* src, int32_t srcStride0, int32_t srcStride2, double* dst, int32_t length,
    int32_t count);
vokStatus vokmL2Norm_va_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float* dst, int32_t length,
    int32_t count);
vokStatus vokmL2Norm_va_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double* dst, int32_t length,
    int32_t count);
vokStatus vokmL2Norm_va_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride2, float* dst, int32_t length,
    int32_t count);
vokStatus vokmL2Norm_va_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride2, double* dst, int32_t length,
    int32_t count);
