#pragma once

/* Matrix times matrix: dst = src1 * src2, with each source taken as it is (m, ma) or transposed (t, ta).

       operand  shape
       src1     src1Height rows of src1Width elements as stored; A is src1, or its transpose
       src2     src2Height rows of src2Width elements as stored; B is src2, or its transpose
       dst      as many rows as A and columns as B

   Statuses: those of the checks, vokStatusSizeMismatch if A has not as many columns as B has rows.

   In place: not supported; dst must not overlap a source.

   Memory: vokmMul_mat_32f with dense rows, a 4x4 src1 and a src2Height of 3 reads a fourth row behind src2 and writes a fourth
   column into dst; the first three columns are right. vokmMul_mm_32f_P and vokmMul_tt_64f_P treat the product as one of 3x3
   matrices if the bitwise or of the four sizes is 3, as in 2x3 times 3x3: every table is then read at 3 rows and 3 columns,
   with its own width, and must have valid entries there. In L with dense rows the 64f lists may be read one entry behind
   their end.

   Rounding: every element is summed left to right, in the element type. All paths give the same bits, but that a sum of
   negative zeros is -0 for 3x3 to 6x6 and 0 for other sizes; it is 0 too where a form has no code of its own for a size.

   Threads start above 36864 in S with dense rows, 18432 in S with strided rows and in L, 9216 in P. Work value: the elements
   of a single source, plus count times those of each array and of dst. */

vokStatus vokmMul_mm_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height, float* dst,
    int32_t dstStride1, int32_t dstStride2);
vokStatus vokmMul_mm_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height, double* dst,
    int32_t dstStride1, int32_t dstStride2);
vokStatus vokmMul_mm_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Width, int32_t src2Height, float* const* dst,
    int32_t dstObjShift);
vokStatus vokmMul_mm_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Width, int32_t src2Height, double* const* dst,
    int32_t dstObjShift);

vokStatus vokmMul_mt_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height, float* dst,
    int32_t dstStride1, int32_t dstStride2);
vokStatus vokmMul_mt_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height, double* dst,
    int32_t dstStride1, int32_t dstStride2);
vokStatus vokmMul_mt_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Width, int32_t src2Height, float* const* dst,
    int32_t dstObjShift);
vokStatus vokmMul_mt_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Width, int32_t src2Height, double* const* dst,
    int32_t dstObjShift);

vokStatus vokmMul_tm_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height, float* dst,
    int32_t dstStride1, int32_t dstStride2);
vokStatus vokmMul_tm_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height, double* dst,
    int32_t dstStride1, int32_t dstStride2);
vokStatus vokmMul_tm_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Width, int32_t src2Height, float* const* dst,
    int32_t dstObjShift);
vokStatus vokmMul_tm_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Width, int32_t src2Height, double* const* dst,
    int32_t dstObjShift);

vokStatus vokmMul_tt_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height, float* dst,
    int32_t dstStride1, int32_t dstStride2);
vokStatus vokmMul_tt_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height, double* dst,
    int32_t dstStride1, int32_t dstStride2);
vokStatus vokmMul_tt_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Width, int32_t src2Height, float* const* dst,
    int32_t dstObjShift);
vokStatus vokmMul_tt_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Width, int32_t src2Height, double* const* dst,
    int32_t dstObjShift);

vokStatus vokmMul_mam_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const float* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
    float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mam_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const double* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
    double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mam_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const float* const* src2, int32_t src2ObjShift, int32_t src2Width, int32_t src2Height, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_mam_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const double* const* src2, int32_t src2ObjShift, int32_t src2Width, int32_t src2Height,
    double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_mam_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, float* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mam_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, double* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t count);

vokStatus vokmMul_mat_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const float* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
    float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mat_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const double* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
    double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mat_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const float* const* src2, int32_t src2ObjShift, int32_t src2Width, int32_t src2Height, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_mat_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const double* const* src2, int32_t src2ObjShift, int32_t src2Width, int32_t src2Height,
    double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_mat_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, float* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mat_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, double* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t count);

vokStatus vokmMul_tam_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const float* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
    float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tam_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const double* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
    double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tam_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const float* const* src2, int32_t src2ObjShift, int32_t src2Width, int32_t src2Height, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_tam_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const double* const* src2, int32_t src2ObjShift, int32_t src2Width, int32_t src2Height,
    double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_tam_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, float* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tam_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, double* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t count);

vokStatus vokmMul_tat_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const float* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
    float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tat_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const double* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
    double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tat_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const float* const* src2, int32_t src2ObjShift, int32_t src2Width, int32_t src2Height, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_tat_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const double* const* src2, int32_t src2ObjShift, int32_t src2Width, int32_t src2Height,
    double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_tat_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const float* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, float* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tat_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const double* src2, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, double* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t count);

vokStatus vokmMul_mma_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
    float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mma_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
    double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mma_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Width, int32_t src2Height, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_mma_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
    double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_mma_32f_L(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, float* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mma_64f_L(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, double* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t count);

vokStatus vokmMul_mta_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
    float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mta_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
    double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mta_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Width, int32_t src2Height, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_mta_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
    double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_mta_32f_L(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, float* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mta_64f_L(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, double* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t count);

vokStatus vokmMul_tma_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
    float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tma_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
    double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tma_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Width, int32_t src2Height, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_tma_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
    double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_tma_32f_L(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, float* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tma_64f_L(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, double* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t count);

vokStatus vokmMul_tta_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
    float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tta_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
    double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tta_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Width, int32_t src2Height, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_tta_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
    double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_tta_32f_L(const float* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, float* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tta_64f_L(const double* src1, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, double* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t count);

vokStatus vokmMul_mama_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const float* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mama_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const double* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mama_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const float* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Width,
    int32_t src2Height, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_mama_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Width,
    int32_t src2Height, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_mama_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2ObjShift, int32_t src2Stride1,
    int32_t src2Stride2, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t count);
vokStatus vokmMul_mama_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2ObjShift, int32_t src2Stride1,
    int32_t src2Stride2, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t count);

vokStatus vokmMul_mata_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const float* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mata_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const double* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_mata_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const float* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Width,
    int32_t src2Height, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_mata_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Width,
    int32_t src2Height, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_mata_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2ObjShift, int32_t src2Stride1,
    int32_t src2Stride2, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t count);
vokStatus vokmMul_mata_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2ObjShift, int32_t src2Stride1,
    int32_t src2Stride2, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t count);

vokStatus vokmMul_tama_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const float* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tama_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const double* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tama_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const float* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Width,
    int32_t src2Height, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_tama_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Width,
    int32_t src2Height, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_tama_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2ObjShift, int32_t src2Stride1,
    int32_t src2Stride2, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t count);
vokStatus vokmMul_tama_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2ObjShift, int32_t src2Stride1,
    int32_t src2Stride2, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t count);

vokStatus vokmMul_tata_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const float* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tata_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
    int32_t src1Height, const double* src2, int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
    int32_t src2Height, double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t count);
vokStatus vokmMul_tata_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const float* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Width,
    int32_t src2Height, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_tata_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, int32_t src1Width,
    int32_t src1Height, const double* const* src2, int32_t src2ObjShift, int32_t src2Stride0, int32_t src2Width,
    int32_t src2Height, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t count);
vokStatus vokmMul_tata_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const float* const* src2, int32_t src2ObjShift, int32_t src2Stride1,
    int32_t src2Stride2, int32_t src2Width, int32_t src2Height, float* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t count);
vokStatus vokmMul_tata_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    int32_t src1Width, int32_t src1Height, const double* const* src2, int32_t src2ObjShift, int32_t src2Stride1,
    int32_t src2Stride2, int32_t src2Width, int32_t src2Height, double* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t count);
