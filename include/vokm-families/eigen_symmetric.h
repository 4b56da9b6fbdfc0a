#pragma once

/* Eigenvalues, and eigenvalues with eigenvectors, of symmetric matrices, by reduction to tridiagonal form and implicit QL or QR.

       vokmEigenValuesSym          dst = eigenvalues
       vokmEigenValuesVectorsSym   dstValues = eigenvalues, column j of dstVectors = unit vector of eigenvalue j

       operand         shape
       src             widthHeight rows and columns; one matrix (m) or count of them (ma). Not written
       buffer          widthHeight*widthHeight elements, for all objects in turn; not used by threads, but never null
       dst, dstValues  widthHeight elements a matrix, packed in every layout
       dstVectors      widthHeight rows and columns a matrix, in the layout of src

   Values descend, but at size 2 the one of largest magnitude is first. The signs of vectors are not fixed.

   Statuses: those of the checks, in the order pointers, sizes, count, shifts, strides. All tolerances are absolute: scale the
   matrix to entries near 1.

   - vokStatusSingular: the product of all eigenvalues is near 0: not above FLT_EPSILON (DBL_EPSILON; FLT_EPSILON for 64f arrays
     with vectors above size 2; DBL_EPSILON for 32f S arrays of 2x2 without vectors and with dense rows). At size 2 nothing is
     written; at others values and vectors are complete, but perhaps unsorted.
   - vokStatusNoConvergence: an eigenvalue took more than 30 steps. What the object's results hold is intermediate. It happens to
     good matrices too: of a million random 3x3, to 30 to 120 in 32f and 12 to 40 in 64f. Try again with the axes in another
     order, rows and columns permuted alike (a table in P does that without a copy): the values are the same, and the rows of the
     vectors are permuted like the axes.

   In place: not supported; results must not overlap src, buffer or one another.

   Rounding: in the element type, but for roots, taken in double. The same matrix may give other last bits in another layout.

   Threads start above these limits, with n for widthHeight.

       function                   work value           S, P  L 32f dense  L other
       vokmEigenValuesSym         (n*n + n)*count     20000        40000    20000
       vokmEigenValuesVectorsSym  (2*n*n + n)*count    1700         1700     1700 */

vokStatus vokmEigenValuesSym_m_32f(const float* src, int32_t srcStride1, int32_t srcStride2, float* buffer, float* dst,
    int32_t widthHeight);
vokStatus vokmEigenValuesSym_m_64f(const double* src, int32_t srcStride1, int32_t srcStride2, double* buffer, double* dst,
    int32_t widthHeight);
vokStatus vokmEigenValuesSym_m_32f_P(const float* const* src, int32_t srcObjShift, float* buffer, float* dst,
    int32_t widthHeight);
vokStatus vokmEigenValuesSym_m_64f_P(const double* const* src, int32_t srcObjShift, double* buffer, double* dst,
    int32_t widthHeight);

vokStatus vokmEigenValuesSym_ma_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, float* buffer,
    float* dst, int32_t widthHeight, int32_t count);
vokStatus vokmEigenValuesSym_ma_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, double* buffer,
    double* dst, int32_t widthHeight, int32_t count);
vokStatus vokmEigenValuesSym_ma_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float* buffer, float* dst,
    int32_t widthHeight, int32_t count);
vokStatus vokmEigenValuesSym_ma_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double* buffer,
    double* dst, int32_t widthHeight, int32_t count);
vokStatus vokmEigenValuesSym_ma_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    float* buffer, float* dst, int32_t widthHeight, int32_t count);
vokStatus vokmEigenValuesSym_ma_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    double* buffer, double* dst, int32_t widthHeight, int32_t count);

vokStatus vokmEigenValuesVectorsSym_m_32f(const float* src, int32_t srcStride1, int32_t srcStride2, float* buffer,
    float* dstVectors, int32_t dstStride1, int32_t dstStride2, float* dstValues, int32_t widthHeight);
vokStatus vokmEigenValuesVectorsSym_m_64f(const double* src, int32_t srcStride1, int32_t srcStride2, double* buffer,
    double* dstVectors, int32_t dstStride1, int32_t dstStride2, double* dstValues, int32_t widthHeight);
vokStatus vokmEigenValuesVectorsSym_m_32f_P(const float* const* src, int32_t srcObjShift, float* buffer, float* const* dstVectors,
    int32_t dstObjShift, float* dstValues, int32_t widthHeight);
vokStatus vokmEigenValuesVectorsSym_m_64f_P(const double* const* src, int32_t srcObjShift, double* buffer,
    double* const* dstVectors, int32_t dstObjShift, double* dstValues, int32_t widthHeight);

vokStatus vokmEigenValuesVectorsSym_ma_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
    float* buffer, float* dstVectors, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, float* dstValues,
    int32_t widthHeight, int32_t count);
vokStatus vokmEigenValuesVectorsSym_ma_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
    double* buffer, double* dstVectors, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, double* dstValues,
    int32_t widthHeight, int32_t count);
vokStatus vokmEigenValuesVectorsSym_ma_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float* buffer,
    float* const* dstVectors, int32_t dstObjShift, int32_t dstStride0, float* dstValues, int32_t widthHeight, int32_t count);
vokStatus vokmEigenValuesVectorsSym_ma_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double* buffer,
    double* const* dstVectors, int32_t dstObjShift, int32_t dstStride0, double* dstValues, int32_t widthHeight, int32_t count);
vokStatus vokmEigenValuesVectorsSym_ma_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    float* buffer, float* const* dstVectors, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, float* dstValues,
    int32_t widthHeight, int32_t count);
vokStatus vokmEigenValuesVectorsSym_ma_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1,
    int32_t srcStride2, double* buffer, double* const* dstVectors, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2,
    double* dstValues, int32_t widthHeight, int32_t count);
