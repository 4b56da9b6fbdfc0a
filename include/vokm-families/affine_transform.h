#pragma once

/* Homogeneous transform of points: with a = src1 and a point (x, y, z) of src2,

       t[r] = a[r][0]*x + a[r][1]*y + a[r][2]*z + a[r][3]      for r = 0, 1, 2, 3
       dst[j] = t[j] * (1 / t[3])                              for j = 0, 1, 2

       operand  shape
       src1     one matrix of 4 rows and 4 columns; column 3 is the translation
       src2     count points of 3 elements
       dst      count points of 3 elements

   Statuses: those of the checks, and vokStatusDivideByZero if |t[3]| of any point is not above FLT_MIN (1.17549435e-38), a
   NaN included. The three elements of such a point become FLT_MAX, and all other points are transformed.

   In place: dst may equal src2 with the same strides; a point is read whole before it is written.

   Rounding: if every stride2 is 4, t[r] = (a[r][0]*x + a[r][1]*y) + (a[r][2]*z + a[r][3]); with any other stride2,
   t[r] = ((a[r][0]*x + a[r][3]) + a[r][1]*y) + a[r][2]*z. One division, then three products.

   Threads start above a work value (6*count + 16) of 2000: from 331 points on. */

vokStatus vokmAffineTransform3DH_mva_32f(const float* src1, int32_t src1Stride1, int32_t src1Stride2, const float* src2,
    int32_t src2Stride0, int32_t src2Stride2, float* dst, int32_t dstStride0, int32_t dstStride2, int32_t count);
