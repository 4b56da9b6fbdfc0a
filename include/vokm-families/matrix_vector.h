#pragma once

/* Matrix times vector, and matrix times vector plus vector.

       vokmMul    mv mva mav mava   dst = src1 * src2
       vokmMul    tv tva tav tava   dst = transpose(src1) * src2
       vokmGaxpy  mv mva mvav       dst = src1 * src2 + src3

       operand  shape
       src1     src1Height rows of src1Width elements as stored, also if taken transposed
       src2     src2Len elements; src2Len must equal src1Width, or src1Height if src1 is taken transposed
       src3     src3Len elements; src3Len must equal src1Height. mva: an array as src2 is; mvav: one vector
       dst      src1Height elements, or src1Width if src1 is taken transposed

   Statuses: those of the checks, vokStatusSizeMismatch for lengths that do not fit.

   In place: not supported; dst must not overlap a source.

   Memory: vokmMul_tava_32f in S with dense 3x3 matrices, all pointers, stride0 and stride1 multiples of 16 and src1Stride1
   equal to 16 takes two objects at a time, also behind an odd count: src1, src2 and dst need room for one object more.

   Rounding: products p0, p1, ... of a row in the element type, then src3 last. Square matrices of 4, 5 and 6, where the order
   is not left to right:

       order       4                      5                              6
       pairwise    (p0 + p1) + (p2 + p3)  as for 4, then + p4            as for 4, then + (p4 + p5)
       even-odd    (p0 + p2) + (p1 + p3)  ((p0 + p1) + p4) + (p2 + p3),  ((p0 + p2) + p4) + ((p1 + p3) + p5)
                                          row 4: ((p0 + p2) + p4) + (p1 + p3)
       mixed       (p0 + p1) + (p2 + p3)  ((p0 + p1) + p4) + (p2 + p3)   ((p0 + p1) + (p2 + p3)) + (p4 + p5)
       last first  ((p0 + p3) + p1) + p2  (((p0 + p4) + p1) + p2) + p3   ((((p0 + p5) + p1) + p2) + p3) + p4

       vokmMul 32f    even-odd: dense mva in S, mav and mava in S and L; mixed: dense tva in S, tav and tava in S and L
       vokmMul 64f    pairwise: dense mv; dense mva, mav and mava in S and L; dense tav in L
       vokmGaxpy      dense: even-odd for 32f, pairwise for 64f; strided and _P: last first

   Other sizes are summed from 0, so that a sum of negative zeros is 0 there; so is vokmMul in L with dense rows in 32f mva and
   tva and in 64f tva and tava, at any size.

   Threads start above these limits, with w and h for src1Width and src1Height.

       function   form        work value                           S dense  S strided     P      L
       vokmMul    mva tva     w*h + (w + h)*count                    36864      18432  9216  18432
       vokmMul    mav         (w*h + h)*count + w                    36864      18432  9216  18432
       vokmMul    tav         (w*h + w)*count + h                    36864      18432  9216  18432
       vokmMul    mava tava   (w*h + w + h)*count                    36864      18432  9216  18432
       vokmGaxpy  mva         (src2Len + 2*src3Len)*count             5000       5000  5000   5000
       vokmGaxpy  mvav        (src2Len + src3Len)*count + src3Len     5000       5000  5000   5000 */

vokStatus vokmMul_mv_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* src2, int32_t src2Stride2, int32_t src2Len, float* dst, int32_t dstStride2);
vokStatus vokmMul_mv_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* src2, int32_t src2Stride2, int32_t src2Len, double* dst, int32_t dstStride2);
vokStatus vokmMul_mv_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Len, float* const* dst, int32_t dstObjShift);
vokStatus vokmMul_mv_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Len, double* const* dst, int32_t dstObjShift);

vokStatus vokmMul_tv_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* src2, int32_t src2Stride2, int32_t src2Len, float* dst, int32_t dstStride2);
vokStatus vokmMul_tv_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* src2, int32_t src2Stride2, int32_t src2Len, double* dst, int32_t dstStride2);
vokStatus vokmMul_tv_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Len, float* const* dst, int32_t dstObjShift);
vokStatus vokmMul_tv_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Len, double* const* dst, int32_t dstObjShift);

vokStatus vokmMul_mva_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* src2, int32_t src2Stride0, int32_t src2Stride2, int32_t src2Len, float* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t count);
vokStatus vokmMul_mva_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* src2, int32_t src2Stride0, int32_t src2Stride2, int32_t src2Len, double* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t count);
vokStatus vokmMul_mva_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Len, float* const* dst, int32_t dstObjShift,
    int32_t dstStride0, int32_t count);
vokStatus vokmMul_mva_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Len, double* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_mva_32f_L(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride2, int32_t src2Len, float* const* dst, int32_t dstObjShift,
    int32_t dstStride2, int32_t count);
vokStatus vokmMul_mva_64f_L(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride2, int32_t src2Len, double* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t count);

vokStatus vokmMul_tva_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* src2, int32_t src2Stride0, int32_t src2Stride2, int32_t src2Len, float* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t count);
vokStatus vokmMul_tva_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* src2, int32_t src2Stride0, int32_t src2Stride2, int32_t src2Len, double* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t count);
vokStatus vokmMul_tva_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Len, float* const* dst, int32_t dstObjShift,
    int32_t dstStride0, int32_t count);
vokStatus vokmMul_tva_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Len, double* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_tva_32f_L(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride2, int32_t src2Len, float* const* dst, int32_t dstObjShift,
    int32_t dstStride2, int32_t count);
vokStatus vokmMul_tva_64f_L(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride2, int32_t src2Len, double* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t count);

vokStatus vokmMul_mav_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const float* src2, int32_t src2Stride2, int32_t src2Len, float* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t count);
vokStatus vokmMul_mav_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const double* src2, int32_t src2Stride2, int32_t src2Len, double* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t count);
vokStatus vokmMul_mav_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const float* const* src2, int32_t src2ObjShift, int32_t src2Len, float* const* dst, int32_t dstObjShift,
    int32_t dstStride0, int32_t count);
vokStatus vokmMul_mav_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const double* const* src2, int32_t src2ObjShift, int32_t src2Len, double* const* dst, int32_t dstObjShift,
    int32_t dstStride0, int32_t count);
vokStatus vokmMul_mav_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2Stride2, int32_t src2Len, float* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mav_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2Stride2, int32_t src2Len, double* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t count);

vokStatus vokmMul_tav_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const float* src2, int32_t src2Stride2, int32_t src2Len, float* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t count);
vokStatus vokmMul_tav_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const double* src2, int32_t src2Stride2, int32_t src2Len, double* dst, int32_t dstStride0,
    int32_t dstStride2, int32_t count);
vokStatus vokmMul_tav_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const float* const* src2, int32_t src2ObjShift, int32_t src2Len, float* const* dst, int32_t dstObjShift,
    int32_t dstStride0, int32_t count);
vokStatus vokmMul_tav_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const double* const* src2, int32_t src2ObjShift, int32_t src2Len, double* const* dst, int32_t dstObjShift,
    int32_t dstStride0, int32_t count);
vokStatus vokmMul_tav_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2Stride2, int32_t src2Len, float* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tav_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2Stride2, int32_t src2Len, double* const* dst,
    int32_t dstObjShift, int32_t dstStride2, int32_t count);

vokStatus vokmMul_mava_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const float* src2, int32_t src2Stride0, int32_t src2Stride2, int32_t src2Len, float* dst,
    int32_t dstStride0, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mava_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const double* src2, int32_t src2Stride0, int32_t src2Stride2, int32_t src2Len, double* dst,
    int32_t dstStride0, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mava_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const float* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Len, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_mava_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Len, double* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_mava_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2ObjShift, int32_t src2Stride2, int32_t src2Len,
    float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mava_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2ObjShift, int32_t src2Stride2, int32_t src2Len,
    double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t count);

vokStatus vokmMul_tava_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const float* src2, int32_t src2Stride0, int32_t src2Stride2, int32_t src2Len, float* dst,
    int32_t dstStride0, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tava_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const double* src2, int32_t src2Stride0, int32_t src2Stride2, int32_t src2Len, double* dst,
    int32_t dstStride0, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tava_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const float* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Len, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_tava_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Len, double* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_tava_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2ObjShift, int32_t src2Stride2, int32_t src2Len,
    float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tava_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2ObjShift, int32_t src2Stride2, int32_t src2Len,
    double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t count);

vokStatus vokmGaxpy_mv_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* src2, int32_t src2Stride2, int32_t src2Len, const float* src3, int32_t src3Stride2, int32_t src3Len, float* dst,
    int32_t dstStride2);
vokStatus vokmGaxpy_mv_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* src2, int32_t src2Stride2, int32_t src2Len, const double* src3, int32_t src3Stride2, int32_t src3Len,
    double* dst, int32_t dstStride2);
vokStatus vokmGaxpy_mv_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Len, const float* const* src3, int32_t src3ObjShift,
    int32_t src3Len, float* const* dst, int32_t dstObjShift);
vokStatus vokmGaxpy_mv_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Len, const double* const* src3, int32_t src3ObjShift,
    int32_t src3Len, double* const* dst, int32_t dstObjShift);

vokStatus vokmGaxpy_mva_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* src2, int32_t src2Stride0, int32_t src2Stride2, int32_t src2Len, const float* src3, int32_t src3Stride0,
    int32_t src3Stride2, int32_t src3Len, float* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
vokStatus vokmGaxpy_mva_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* src2, int32_t src2Stride0, int32_t src2Stride2, int32_t src2Len, const double* src3, int32_t src3Stride0,
    int32_t src3Stride2, int32_t src3Len, double* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
vokStatus vokmGaxpy_mva_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Len, const float* const* src3,
    int32_t src3ObjShift, int32_t src3Stride0, int32_t src3Len, float* const* dst, int32_t dstObjShift, int32_t dstStride0,
    int32_t count);
vokStatus vokmGaxpy_mva_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Len, const double* const* src3,
    int32_t src3ObjShift, int32_t src3Stride0, int32_t src3Len, double* const* dst, int32_t dstObjShift, int32_t dstStride0,
    int32_t count);
vokStatus vokmGaxpy_mva_32f_L(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride2, int32_t src2Len, const float* const* src3,
    int32_t src3ObjShift, int32_t src3Stride2, int32_t src3Len, float* const* dst, int32_t dstObjShift, int32_t dstStride2,
    int32_t count);
vokStatus vokmGaxpy_mva_64f_L(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride2, int32_t src2Len, const double* const* src3,
    int32_t src3ObjShift, int32_t src3Stride2, int32_t src3Len, double* const* dst, int32_t dstObjShift, int32_t dstStride2,
    int32_t count);

vokStatus vokmGaxpy_mvav_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* src2, int32_t src2Stride0, int32_t src2Stride2, int32_t src2Len, const float* src3, int32_t src3Stride2,
    int32_t src3Len, float* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
vokStatus vokmGaxpy_mvav_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* src2, int32_t src2Stride0, int32_t src2Stride2, int32_t src2Len, const double* src3, int32_t src3Stride2,
    int32_t src3Len, double* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
vokStatus vokmGaxpy_mvav_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Len, const float* const* src3,
    int32_t src3ObjShift, int32_t src3Len, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmGaxpy_mvav_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Len, const double* const* src3,
    int32_t src3ObjShift, int32_t src3Len, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmGaxpy_mvav_32f_L(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride2, int32_t src2Len, const float* src3, int32_t src3Stride2,
    int32_t src3Len, float* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t count);
vokStatus vokmGaxpy_mvav_64f_L(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const double* const* src2, int32_t src2ObjShift, int32_t src2Stride2, int32_t src2Len, const double* src3,
    int32_t src3Stride2, int32_t src3Len, double* const* dst, int32_t dstObjShift, int32_t dstStride2, int32_t count);
