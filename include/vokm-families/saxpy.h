#pragma once

/* Scaled vector plus vector: dst[j] = src1[j]*val + src2[j]. Only src1 is multiplied, whichever of the two is the array.

       operand     shape
       src1, src2  length elements; one vector (v) or count of them (va)
       dst         length elements; one vector, or count of them as soon as a source is an array
       val         one number by value, for all objects

   Statuses: those of the checks.

   In place: dst may equal a source with the same strides. A single source that overlaps the array dst is read once at the
   start for length 3 to 6, and anew for each object at other lengths.

   Rounding: the product, then the sum, in the element type: all paths give the same bits.

   Threads start above 40000, in all layouts. Work value: (2*count + 1)*length for vav and vva, 3*length*count for vava. */

vokStatus vokmSaxpy_vv_32f(const float* src1, int32_t src1Stride2, const float* src2, int32_t src2Stride2, float* dst,
    int32_t dstStride2, int32_t length, float val);
vokStatus vokmSaxpy_vv_64f(const double* src1, int32_t src1Stride2, const double* src2, int32_t src2Stride2, double* dst,
    int32_t dstStride2, int32_t length, double val);
vokStatus vokmSaxpy_vv_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2, int32_t src2ObjShift,
    float* const* dst, int32_t dstObjShift, int32_t length, float val);
vokStatus vokmSaxpy_vv_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2, int32_t src2ObjShift,
    double* const* dst, int32_t dstObjShift, int32_t length, double val);

vokStatus vokmSaxpy_vav_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride2, const float* src2, int32_t src2Stride2,
    float* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count, float val);
vokStatus vokmSaxpy_vav_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride2, const double* src2, int32_t src2Stride2,
    double* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count, double val);
vokStatus vokmSaxpy_vav_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count, float val);
vokStatus vokmSaxpy_vav_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count, double val);
vokStatus vokmSaxpy_vav_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const float* src2,
    int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count, float val);
vokStatus vokmSaxpy_vav_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const double* src2,
    int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count, double val);

vokStatus vokmSaxpy_vva_32f(const float* src1, int32_t src1Stride2, const float* src2, int32_t src2Stride0, int32_t src2Stride2,
    float* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count, float val);
vokStatus vokmSaxpy_vva_64f(const double* src1, int32_t src1Stride2, const double* src2, int32_t src2Stride0, int32_t src2Stride2,
    double* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count, double val);
vokStatus vokmSaxpy_vva_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2, int32_t src2ObjShift,
    int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count, float val);
vokStatus vokmSaxpy_vva_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2, int32_t src2ObjShift,
    int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length, int32_t count, double val);
vokStatus vokmSaxpy_vva_32f_L(const float* src1, int32_t src1Stride2, const float* const* src2, int32_t src2ObjShift,
    int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count, float val);
vokStatus vokmSaxpy_vva_64f_L(const double* src1, int32_t src1Stride2, const double* const* src2, int32_t src2ObjShift,
    int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length, int32_t count, double val);

vokStatus vokmSaxpy_vava_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride2, const float* src2, int32_t src2Stride0,
    int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count, float val);
vokStatus vokmSaxpy_vava_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride2, const double* src2,
    int32_t src2Stride0, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride2, int32_t length, int32_t count,
    double val);
vokStatus vokmSaxpy_vava_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length,
    int32_t count, float val);
vokStatus vokmSaxpy_vava_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t length,
    int32_t count, double val);
vokStatus vokmSaxpy_vava_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length,
    int32_t count, float val);
vokStatus vokmSaxpy_vava_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride2, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t length,
    int32_t count, double val);
