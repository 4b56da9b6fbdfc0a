#pragma once

/* Linear combination of two vectors: dst[j] = src1[j]*val1 + src2[j]*val2.

       operand     shape
       src1, src2  length elements; one vector (v) or count of them (va)
       dst         length elements; one vector, or count of them as soon as a source is an array
       val1, val2  one number each by value, for all objects

   Statuses: those of the checks.

   In place: dst may equal a source with the same strides. A single source that overlaps the array dst is read once at the
   start for length 3 to 6, and anew for each object at other lengths.

   Rounding: both products, then the sum, in the element type: all paths give the same bits.

   Threads start above 20000, but in L 32f with every stride2 equal to 4 above 40000. Work value: (2*count + 1)*length for
   vav, 3*length*count for vava. */

vokStatus vokmLComb_vv_32f(const float* src1, int32_t src1Stride2, const float* src2, int32_t src2Stride2, float* dst,
    int32_t dstStride2, int32_t length, float val1, float val2);
vokStatus vokmLComb_vv_64f(const double* src1, int32_t src1Stride2, const double* src2, int32_t src2Stride2, double* dst,
    int32_t dstStride2, int32_t length, double val1, double val2);
vokStatus vokmLComb_vv_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2, int32_t src2ObjShift,
    float* const* dst, int32_t dstObjShift, int32_t length, float val1, float val2);
vokStatus vokmLComb_vv_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2, int32_t src2ObjShift,
    double* const* dst, int32_t dstObjShift, int32_t length, double val1, double val2);

vokStatus vokmLComb_vav_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride2, const float* src2, int32_t src2Stride2,
    float* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count, float val1, float val2);
vokStatus vokmLComb_vav_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride2, const double* src2, int32_t src2Stride2,
    double* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count, double val1, double val2);
vokStatus vokmLComb_vav_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count, float val1,
    float val2);
vokStatus vokmLComb_vav_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count, double val1,
    double val2);
vokStatus vokmLComb_vav_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const float* src2,
    int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count, float val1,
    float val2);
vokStatus vokmLComb_vav_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const double* src2,
    int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count, double val1,
    double val2);

vokStatus vokmLComb_vava_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride2, const float* src2, int32_t src2Stride0,
    int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count, float val1,
    float val2);
vokStatus vokmLComb_vava_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride2, const double* src2,
    int32_t src2Stride0, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count,
    double val1, double val2);
vokStatus vokmLComb_vava_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length,
    int32_t count, float val1, float val2);
vokStatus vokmLComb_vava_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length,
    int32_t count, double val1, double val2);
vokStatus vokmLComb_vava_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length,
    int32_t count, float val1, float val2);
vokStatus vokmLComb_vava_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length,
    int32_t count, double val1, double val2);
