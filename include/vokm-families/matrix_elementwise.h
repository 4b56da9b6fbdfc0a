#pragma once

/* Matrices plus and minus matrices, and matrices times constants, element by element.

       vokmAdd   dst(r, c) = src1(r, c) + src2(r, c)
       vokmSub   dst(r, c) = src1(r, c) - src2(r, c)
       vokmMul   dst(r, c) = src(r, c) * val

       operand          shape
       src, src1, src2  m, ma: height rows of width elements; t, ta: stored as width rows of height elements
       val              one number by value
       dst              height rows of width elements; one matrix, or count of them as soon as a source is an array

   Statuses: those of the checks. In S, vokmAdd_mam, vokmSub_mam and vokmSub_mma test strides before sizes.

   In place: dst may equal a source that is not transposed, and is an array if dst is one, with the same strides. Overlap with
   a transposed source or with the single source of an array form is not supported.

   Memory: vokmAdd_tam_32f and vokmSub_tam_32f in S and L may read one element behind the last row of a dense 3x3 object of
   src1. For dense 6x6 matrices vokmAdd_mam_32f and vokmAdd_mama_32f need every stride0 to be a multiple of 16 if the pointers,
   the row strides and src1Stride0 are.

   Rounding: one operation for each element, so all paths give the same bits.

   Threads start at (vokmAdd, vokmSub) or above (vokmMul) these limits.

       function          form                                   work value                         S      P  L 32f  L 64f
       vokmAdd, vokmSub  one source an array, rows dense        width*height*(2*count + 1)     36864   9216  18432  18432
       vokmAdd, vokmSub  one source an array, rows strided      width*height*(2*count + 1)     18432   9216  18432  18432
       vokmAdd, vokmSub  both sources arrays, rows dense        3*width*height*count           36864   9216  18432  18432
       vokmAdd, vokmSub  both sources arrays, rows strided      3*width*height*count           18432   9216  18432  18432
       vokmMul           mac tac, rows dense                    2*width*height*count           35000  17000  35000  35000
       vokmMul           mac tac, rows strided                  2*width*height*count           35000  17000  15000  35000 */

vokStatus vokmAdd_mm_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, const float* src2, int32_t src2Stride1,
    int32_t src2Stride2, float* dst, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmAdd_mm_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, const double* src2, int32_t src2Stride1,
    int32_t src2Stride2, double* dst, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmAdd_mm_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2, int32_t src2ObjShift,
    float* const* dst, int32_t dstObjShift, int32_t width, int32_t height);
vokStatus vokmAdd_mm_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2, int32_t src2ObjShift,
    double* const* dst, int32_t dstObjShift, int32_t width, int32_t height);

vokStatus vokmAdd_tm_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, const float* src2, int32_t src2Stride1,
    int32_t src2Stride2, float* dst, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmAdd_tm_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, const double* src2, int32_t src2Stride1,
    int32_t src2Stride2, double* dst, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmAdd_tm_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2, int32_t src2ObjShift,
    float* const* dst, int32_t dstObjShift, int32_t width, int32_t height);
vokStatus vokmAdd_tm_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2, int32_t src2ObjShift,
    double* const* dst, int32_t dstObjShift, int32_t width, int32_t height);

vokStatus vokmAdd_tt_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, const float* src2, int32_t src2Stride1,
    int32_t src2Stride2, float* dst, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmAdd_tt_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, const double* src2, int32_t src2Stride1,
    int32_t src2Stride2, double* dst, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmAdd_tt_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2, int32_t src2ObjShift,
    float* const* dst, int32_t dstObjShift, int32_t width, int32_t height);
vokStatus vokmAdd_tt_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2, int32_t src2ObjShift,
    double* const* dst, int32_t dstObjShift, int32_t width, int32_t height);

vokStatus vokmAdd_mam_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const float* src2,
    int32_t src2Stride1, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_mam_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const double* src2,
    int32_t src2Stride1, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_mam_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmAdd_mam_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmAdd_mam_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const float* src2, int32_t src2Stride1, int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_mam_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const double* src2, int32_t src2Stride1, int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmAdd_mat_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const float* src2,
    int32_t src2Stride1, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_mat_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const double* src2,
    int32_t src2Stride1, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_mat_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmAdd_mat_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmAdd_mat_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const float* src2, int32_t src2Stride1, int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_mat_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const double* src2, int32_t src2Stride1, int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmAdd_tam_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const float* src2,
    int32_t src2Stride1, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_tam_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const double* src2,
    int32_t src2Stride1, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_tam_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmAdd_tam_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmAdd_tam_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const float* src2, int32_t src2Stride1, int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_tam_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const double* src2, int32_t src2Stride1, int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmAdd_tat_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const float* src2,
    int32_t src2Stride1, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_tat_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const double* src2,
    int32_t src2Stride1, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_tat_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmAdd_tat_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmAdd_tat_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const float* src2, int32_t src2Stride1, int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_tat_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const double* src2, int32_t src2Stride1, int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmAdd_mama_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const float* src2,
    int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_mama_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const double* src2,
    int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_mama_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmAdd_mama_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmAdd_mama_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, float* const* dst,
    int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_mama_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, double* const* dst,
    int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmAdd_tama_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const float* src2,
    int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_tama_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const double* src2,
    int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_tama_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmAdd_tama_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmAdd_tama_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, float* const* dst,
    int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_tama_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, double* const* dst,
    int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmAdd_tata_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const float* src2,
    int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_tata_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const double* src2,
    int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_tata_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmAdd_tata_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmAdd_tata_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, float* const* dst,
    int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmAdd_tata_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, double* const* dst,
    int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmSub_mm_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, const float* src2, int32_t src2Stride1,
    int32_t src2Stride2, float* dst, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmSub_mm_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, const double* src2, int32_t src2Stride1,
    int32_t src2Stride2, double* dst, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmSub_mm_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2, int32_t src2ObjShift,
    float* const* dst, int32_t dstObjShift, int32_t width, int32_t height);
vokStatus vokmSub_mm_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2, int32_t src2ObjShift,
    double* const* dst, int32_t dstObjShift, int32_t width, int32_t height);

vokStatus vokmSub_mt_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, const float* src2, int32_t src2Stride1,
    int32_t src2Stride2, float* dst, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmSub_mt_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, const double* src2, int32_t src2Stride1,
    int32_t src2Stride2, double* dst, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmSub_mt_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2, int32_t src2ObjShift,
    float* const* dst, int32_t dstObjShift, int32_t width, int32_t height);
vokStatus vokmSub_mt_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2, int32_t src2ObjShift,
    double* const* dst, int32_t dstObjShift, int32_t width, int32_t height);

vokStatus vokmSub_tm_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, const float* src2, int32_t src2Stride1,
    int32_t src2Stride2, float* dst, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmSub_tm_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, const double* src2, int32_t src2Stride1,
    int32_t src2Stride2, double* dst, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmSub_tm_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2, int32_t src2ObjShift,
    float* const* dst, int32_t dstObjShift, int32_t width, int32_t height);
vokStatus vokmSub_tm_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2, int32_t src2ObjShift,
    double* const* dst, int32_t dstObjShift, int32_t width, int32_t height);

vokStatus vokmSub_tt_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, const float* src2, int32_t src2Stride1,
    int32_t src2Stride2, float* dst, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmSub_tt_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, const double* src2, int32_t src2Stride1,
    int32_t src2Stride2, double* dst, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmSub_tt_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2, int32_t src2ObjShift,
    float* const* dst, int32_t dstObjShift, int32_t width, int32_t height);
vokStatus vokmSub_tt_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2, int32_t src2ObjShift,
    double* const* dst, int32_t dstObjShift, int32_t width, int32_t height);

vokStatus vokmSub_mam_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const float* src2,
    int32_t src2Stride1, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_mam_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const double* src2,
    int32_t src2Stride1, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_mam_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmSub_mam_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmSub_mam_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const float* src2, int32_t src2Stride1, int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_mam_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const double* src2, int32_t src2Stride1, int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmSub_mat_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const float* src2,
    int32_t src2Stride1, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_mat_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const double* src2,
    int32_t src2Stride1, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_mat_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmSub_mat_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmSub_mat_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const float* src2, int32_t src2Stride1, int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_mat_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const double* src2, int32_t src2Stride1, int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmSub_tam_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const float* src2,
    int32_t src2Stride1, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_tam_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const double* src2,
    int32_t src2Stride1, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_tam_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmSub_tam_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmSub_tam_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const float* src2, int32_t src2Stride1, int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_tam_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const double* src2, int32_t src2Stride1, int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmSub_tat_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const float* src2,
    int32_t src2Stride1, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_tat_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const double* src2,
    int32_t src2Stride1, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_tat_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmSub_tat_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmSub_tat_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const float* src2, int32_t src2Stride1, int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_tat_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const double* src2, int32_t src2Stride1, int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmSub_mma_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, const float* src2, int32_t src2Stride0,
    int32_t src2Stride1, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_mma_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, const double* src2, int32_t src2Stride0,
    int32_t src2Stride1, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_mma_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2, int32_t src2ObjShift,
    int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmSub_mma_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2, int32_t src2ObjShift,
    int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmSub_mma_32f_L(const float* src1, int32_t src1Stride1, int32_t src1Stride2, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_mma_64f_L(const double* src1, int32_t src1Stride1, int32_t src1Stride2, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmSub_mta_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, const float* src2, int32_t src2Stride0,
    int32_t src2Stride1, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_mta_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, const double* src2, int32_t src2Stride0,
    int32_t src2Stride1, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_mta_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2, int32_t src2ObjShift,
    int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmSub_mta_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2, int32_t src2ObjShift,
    int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmSub_mta_32f_L(const float* src1, int32_t src1Stride1, int32_t src1Stride2, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_mta_64f_L(const double* src1, int32_t src1Stride1, int32_t src1Stride2, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmSub_tma_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, const float* src2, int32_t src2Stride0,
    int32_t src2Stride1, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_tma_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, const double* src2, int32_t src2Stride0,
    int32_t src2Stride1, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_tma_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2, int32_t src2ObjShift,
    int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmSub_tma_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2, int32_t src2ObjShift,
    int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmSub_tma_32f_L(const float* src1, int32_t src1Stride1, int32_t src1Stride2, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_tma_64f_L(const double* src1, int32_t src1Stride1, int32_t src1Stride2, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmSub_tta_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, const float* src2, int32_t src2Stride0,
    int32_t src2Stride1, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_tta_64f(const double* src1, int32_t src1Stride1, int32_t src1Stride2, const double* src2, int32_t src2Stride0,
    int32_t src2Stride1, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
    int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_tta_32f_P(const float* const* src1, int32_t src1ObjShift, const float* const* src2, int32_t src2ObjShift,
    int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmSub_tta_64f_P(const double* const* src1, int32_t src1ObjShift, const double* const* src2, int32_t src2ObjShift,
    int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height,
    int32_t count);
vokStatus vokmSub_tta_32f_L(const float* src1, int32_t src1Stride1, int32_t src1Stride2, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, float* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_tta_64f_L(const double* src1, int32_t src1Stride1, int32_t src1Stride2, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, double* const* dst, int32_t dstObjShift, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmSub_mama_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const float* src2,
    int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_mama_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const double* src2,
    int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_mama_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmSub_mama_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmSub_mama_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, float* const* dst,
    int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_mama_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, double* const* dst,
    int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmSub_mata_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const float* src2,
    int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_mata_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const double* src2,
    int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_mata_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmSub_mata_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmSub_mata_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, float* const* dst,
    int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_mata_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, double* const* dst,
    int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmSub_tama_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const float* src2,
    int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_tama_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const double* src2,
    int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_tama_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmSub_tama_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmSub_tama_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, float* const* dst,
    int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_tama_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, double* const* dst,
    int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmSub_tata_32f(const float* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const float* src2,
    int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_tata_64f(const double* src1, int32_t src1Stride0, int32_t src1Stride1, int32_t src1Stride2, const double* src2,
    int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2, double* dst, int32_t dstStride0, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_tata_32f_P(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const float* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, float* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmSub_tata_64f_P(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride0, const double* const* src2,
    int32_t src2ObjShift, int32_t src2Stride0, double* const* dst, int32_t dstObjShift, int32_t dstStride0, int32_t width,
    int32_t height, int32_t count);
vokStatus vokmSub_tata_32f_L(const float* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const float* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, float* const* dst,
    int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmSub_tata_64f_L(const double* const* src1, int32_t src1ObjShift, int32_t src1Stride1, int32_t src1Stride2,
    const double* const* src2, int32_t src2ObjShift, int32_t src2Stride1, int32_t src2Stride2, double* const* dst,
    int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);

vokStatus vokmMul_mc_32f(const float* src, int32_t srcStride1, int32_t srcStride2, float val, float* dst, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmMul_mc_64f(const double* src, int32_t srcStride1, int32_t srcStride2, double val, double* dst, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmMul_mc_32f_P(const float* const* src, int32_t srcObjShift, float val, float* const* dst, int32_t dstObjShift,
    int32_t width, int32_t height);
vokStatus vokmMul_mc_64f_P(const double* const* src, int32_t srcObjShift, double val, double* const* dst, int32_t dstObjShift,
    int32_t width, int32_t height);

vokStatus vokmMul_tc_32f(const float* src, int32_t srcStride1, int32_t srcStride2, float val, float* dst, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmMul_tc_64f(const double* src, int32_t srcStride1, int32_t srcStride2, double val, double* dst, int32_t dstStride1,
    int32_t dstStride2, int32_t width, int32_t height);
vokStatus vokmMul_tc_32f_P(const float* const* src, int32_t srcObjShift, float val, float* const* dst, int32_t dstObjShift,
    int32_t width, int32_t height);
vokStatus vokmMul_tc_64f_P(const double* const* src, int32_t srcObjShift, double val, double* const* dst, int32_t dstObjShift,
    int32_t width, int32_t height);

vokStatus vokmMul_mac_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, float val, float* dst,
    int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmMul_mac_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, double val, double* dst,
    int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmMul_mac_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float val, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
vokStatus vokmMul_mac_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double val, double* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
vokStatus vokmMul_mac_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2, float val,
    float* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmMul_mac_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2, double val,
    double* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
    int32_t count);

vokStatus vokmMul_tac_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, float val, float* dst,
    int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmMul_tac_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, double val, double* dst,
    int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmMul_tac_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float val, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
vokStatus vokmMul_tac_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double val, double* const* dst,
    int32_t dstObjShift, int32_t dstStride0, int32_t width, int32_t height, int32_t count);
vokStatus vokmMul_tac_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2, float val,
    float* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height, int32_t count);
vokStatus vokmMul_tac_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2, double val,
    double* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, int32_t width, int32_t height,
    int32_t count);
