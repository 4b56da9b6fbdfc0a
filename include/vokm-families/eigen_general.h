#pragma once

/* Eigenvalues, and eigenvalues with eigenvectors, of real square matrices, by reduction to Hessenberg form and double-shift QR,
   without balancing.

       vokmEigenValues               dstRe, dstIm = real and imaginary parts of the eigenvalues of A = src
       vokmEigenValuesVectors        dstRight and dstLeft as well
       vokmEigenValuesVectorsRight   the vectors of dstRight in dst
       vokmEigenValuesVectorsLeft    the vectors of dstLeft in dst

   For an eigenvalue w, the vector x of dstRight has transpose(A) * x = w * x, and the vector y of dstLeft has
   A * conj(y) = w * conj(y): whoever looks for A * v = w * v takes the conjugate of the left one.

       operand                 shape
       src                     widthHeight rows and columns; one matrix (m) or count of them (ma). Not written
       dstRight, dstLeft, dst  widthHeight rows and columns a matrix, in the layout of src; column j belongs to eigenvalue j
       dstRe, dstIm            widthHeight elements a matrix, packed in every layout
       buffer                  as many bytes as the query below says, for all objects in turn; not used by threads, but never
                               null. (n + 5)*n elements for vokmEigenValues, (3*n + 5)*n for the others, n = widthHeight

   Eigenvalues are not sorted. A conjugate pair takes positions j and j+1, the positive imaginary part first; column j then
   holds the real and column j+1 the imaginary parts of the vector of the first. Vectors are of unit length, that of a pair with
   its largest component turned real.

   Queries: vokmEigenValuesGetBufSize and vokmEigenValuesVectorsGetBufSize store bytes in bufSize. They test the pointer, then
   the size.

   Statuses: those of the checks, in the order pointers, sizes, count, shifts, strides; with vectors the shifts and strides of
   src come before those of the results. A singular matrix is no failure. The tolerance of vokmEigenValues is absolute:
   scale the matrix to entries near 1.

   - vokStatusNoConvergence: more than 30*widthHeight steps. Eigenvalues found so far are written, from the last position down;
     vectors are not.
   - vokStatusFailure: a system of the back substitution was too small. Eigenvalues are written, vectors are not.

   A real system that is too small ends the run in the same state, later objects included, with vokStatusOk.

   In place: not supported; results must not overlap src, buffer or one another.

   Some 2x2 blocks with equal diagonal elements and off-diagonal ones of one sign are given as a complex pair although their
   eigenvalues are real: [[1, 2], [3, 1]] gives 1 + sqrt(6)*i and 1 - sqrt(6)*i.

   Threads start above 10000 for vokmEigenValues, work value (n*n + n)*count, and above 7000 with vectors, work value
   (3*n*n + n)*count. */

vokStatus vokmEigenValuesGetBufSize_32f(int32_t widthHeight, int32_t* bufSize);
vokStatus vokmEigenValuesGetBufSize_64f(int32_t widthHeight, int32_t* bufSize);

vokStatus vokmEigenValuesVectorsGetBufSize_32f(int32_t widthHeight, int32_t* bufSize);
vokStatus vokmEigenValuesVectorsGetBufSize_64f(int32_t widthHeight, int32_t* bufSize);

vokStatus vokmEigenValues_m_32f(const float* src, int32_t srcStride1, int32_t srcStride2, float* dstRe, float* dstIm,
    int32_t widthHeight, float* buffer);
vokStatus vokmEigenValues_m_64f(const double* src, int32_t srcStride1, int32_t srcStride2, double* dstRe, double* dstIm,
    int32_t widthHeight, double* buffer);
vokStatus vokmEigenValues_m_32f_P(const float* const* src, int32_t srcObjShift, float* dstRe, float* dstIm, int32_t widthHeight,
    float* buffer);
vokStatus vokmEigenValues_m_64f_P(const double* const* src, int32_t srcObjShift, double* dstRe, double* dstIm,
    int32_t widthHeight, double* buffer);

vokStatus vokmEigenValues_ma_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, float* dstRe,
    float* dstIm, int32_t widthHeight, int32_t count, float* buffer);
vokStatus vokmEigenValues_ma_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2, double* dstRe,
    double* dstIm, int32_t widthHeight, int32_t count, double* buffer);
vokStatus vokmEigenValues_ma_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float* dstRe, float* dstIm,
    int32_t widthHeight, int32_t count, float* buffer);
vokStatus vokmEigenValues_ma_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0, double* dstRe,
    double* dstIm, int32_t widthHeight, int32_t count, double* buffer);
vokStatus vokmEigenValues_ma_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    float* dstRe, float* dstIm, int32_t widthHeight, int32_t count, float* buffer);
vokStatus vokmEigenValues_ma_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    double* dstRe, double* dstIm, int32_t widthHeight, int32_t count, double* buffer);

vokStatus vokmEigenValuesVectors_m_32f(const float* src, int32_t srcStride1, int32_t srcStride2, float* dstRight,
    int32_t dstRightStride1, int32_t dstRightStride2, float* dstLeft, int32_t dstLeftStride1, int32_t dstLeftStride2,
    float* dstRe, float* dstIm, int32_t widthHeight, float* buffer);
vokStatus vokmEigenValuesVectors_m_64f(const double* src, int32_t srcStride1, int32_t srcStride2, double* dstRight,
    int32_t dstRightStride1, int32_t dstRightStride2, double* dstLeft, int32_t dstLeftStride1, int32_t dstLeftStride2,
    double* dstRe, double* dstIm, int32_t widthHeight, double* buffer);
vokStatus vokmEigenValuesVectors_m_32f_P(const float* const* src, int32_t srcObjShift, float* const* dstRight,
    int32_t dstRightObjShift, float* const* dstLeft, int32_t dstLeftObjShift, float* dstRe, float* dstIm, int32_t widthHeight,
    float* buffer);
vokStatus vokmEigenValuesVectors_m_64f_P(const double* const* src, int32_t srcObjShift, double* const* dstRight,
    int32_t dstRightObjShift, double* const* dstLeft, int32_t dstLeftObjShift, double* dstRe, double* dstIm, int32_t widthHeight,
    double* buffer);

vokStatus vokmEigenValuesVectors_ma_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
    float* dstRight, int32_t dstRightStride0, int32_t dstRightStride1, int32_t dstRightStride2, float* dstLeft,
    int32_t dstLeftStride0, int32_t dstLeftStride1, int32_t dstLeftStride2, float* dstRe, float* dstIm, int32_t widthHeight,
    int32_t count, float* buffer);
vokStatus vokmEigenValuesVectors_ma_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
    double* dstRight, int32_t dstRightStride0, int32_t dstRightStride1, int32_t dstRightStride2, double* dstLeft,
    int32_t dstLeftStride0, int32_t dstLeftStride1, int32_t dstLeftStride2, double* dstRe, double* dstIm, int32_t widthHeight,
    int32_t count, double* buffer);
vokStatus vokmEigenValuesVectors_ma_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0,
    float* const* dstRight, int32_t dstRightObjShift, int32_t dstRightStride0, float* const* dstLeft, int32_t dstLeftObjShift,
    int32_t dstLeftStride0, float* dstRe, float* dstIm, int32_t widthHeight, int32_t count, float* buffer);
vokStatus vokmEigenValuesVectors_ma_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0,
    double* const* dstRight, int32_t dstRightObjShift, int32_t dstRightStride0, double* const* dstLeft, int32_t dstLeftObjShift,
    int32_t dstLeftStride0, double* dstRe, double* dstIm, int32_t widthHeight, int32_t count, double* buffer);
vokStatus vokmEigenValuesVectors_ma_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    float* const* dstRight, int32_t dstRightObjShift, int32_t dstRightStride1, int32_t dstRightStride2, float* const* dstLeft,
    int32_t dstLeftObjShift, int32_t dstLeftStride1, int32_t dstLeftStride2, float* dstRe, float* dstIm, int32_t widthHeight,
    int32_t count, float* buffer);
vokStatus vokmEigenValuesVectors_ma_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1, int32_t srcStride2,
    double* const* dstRight, int32_t dstRightObjShift, int32_t dstRightStride1, int32_t dstRightStride2, double* const* dstLeft,
    int32_t dstLeftObjShift, int32_t dstLeftStride1, int32_t dstLeftStride2, double* dstRe, double* dstIm, int32_t widthHeight,
    int32_t count, double* buffer);

vokStatus vokmEigenValuesVectorsRight_m_32f(const float* src, int32_t srcStride1, int32_t srcStride2, float* dst,
    int32_t dstStride1, int32_t dstStride2, float* dstRe, float* dstIm, int32_t widthHeight, float* buffer);
vokStatus vokmEigenValuesVectorsRight_m_64f(const double* src, int32_t srcStride1, int32_t srcStride2, double* dst,
    int32_t dstStride1, int32_t dstStride2, double* dstRe, double* dstIm, int32_t widthHeight, double* buffer);
vokStatus vokmEigenValuesVectorsRight_m_32f_P(const float* const* src, int32_t srcObjShift, float* const* dst,
    int32_t dstObjShift, float* dstRe, float* dstIm, int32_t widthHeight, float* buffer);
vokStatus vokmEigenValuesVectorsRight_m_64f_P(const double* const* src, int32_t srcObjShift, double* const* dst,
    int32_t dstObjShift, double* dstRe, double* dstIm, int32_t widthHeight, double* buffer);

vokStatus vokmEigenValuesVectorsRight_ma_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
    float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, float* dstRe, float* dstIm, int32_t widthHeight,
    int32_t count, float* buffer);
vokStatus vokmEigenValuesVectorsRight_ma_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
    double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, double* dstRe, double* dstIm, int32_t widthHeight,
    int32_t count, double* buffer);
vokStatus vokmEigenValuesVectorsRight_ma_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0,
    float* const* dst, int32_t dstObjShift, int32_t dstStride0, float* dstRe, float* dstIm, int32_t widthHeight, int32_t count,
    float* buffer);
vokStatus vokmEigenValuesVectorsRight_ma_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0,
    double* const* dst, int32_t dstObjShift, int32_t dstStride0, double* dstRe, double* dstIm, int32_t widthHeight, int32_t count,
    double* buffer);
vokStatus vokmEigenValuesVectorsRight_ma_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1,
    int32_t srcStride2, float* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, float* dstRe,
    float* dstIm, int32_t widthHeight, int32_t count, float* buffer);
vokStatus vokmEigenValuesVectorsRight_ma_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1,
    int32_t srcStride2, double* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, double* dstRe,
    double* dstIm, int32_t widthHeight, int32_t count, double* buffer);

vokStatus vokmEigenValuesVectorsLeft_m_32f(const float* src, int32_t srcStride1, int32_t srcStride2, float* dst,
    int32_t dstStride1, int32_t dstStride2, float* dstRe, float* dstIm, int32_t widthHeight, float* buffer);
vokStatus vokmEigenValuesVectorsLeft_m_64f(const double* src, int32_t srcStride1, int32_t srcStride2, double* dst,
    int32_t dstStride1, int32_t dstStride2, double* dstRe, double* dstIm, int32_t widthHeight, double* buffer);
vokStatus vokmEigenValuesVectorsLeft_m_32f_P(const float* const* src, int32_t srcObjShift, float* const* dst, int32_t dstObjShift,
    float* dstRe, float* dstIm, int32_t widthHeight, float* buffer);
vokStatus vokmEigenValuesVectorsLeft_m_64f_P(const double* const* src, int32_t srcObjShift, double* const* dst,
    int32_t dstObjShift, double* dstRe, double* dstIm, int32_t widthHeight, double* buffer);

vokStatus vokmEigenValuesVectorsLeft_ma_32f(const float* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
    float* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, float* dstRe, float* dstIm, int32_t widthHeight,
    int32_t count, float* buffer);
vokStatus vokmEigenValuesVectorsLeft_ma_64f(const double* src, int32_t srcStride0, int32_t srcStride1, int32_t srcStride2,
    double* dst, int32_t dstStride0, int32_t dstStride1, int32_t dstStride2, double* dstRe, double* dstIm, int32_t widthHeight,
    int32_t count, double* buffer);
vokStatus vokmEigenValuesVectorsLeft_ma_32f_P(const float* const* src, int32_t srcObjShift, int32_t srcStride0, float* const* dst,
    int32_t dstObjShift, int32_t dstStride0, float* dstRe, float* dstIm, int32_t widthHeight, int32_t count, float* buffer);
vokStatus vokmEigenValuesVectorsLeft_ma_64f_P(const double* const* src, int32_t srcObjShift, int32_t srcStride0,
    double* const* dst, int32_t dstObjShift, int32_t dstStride0, double* dstRe, double* dstIm, int32_t widthHeight, int32_t count,
    double* buffer);
vokStatus vokmEigenValuesVectorsLeft_ma_32f_L(const float* const* src, int32_t srcObjShift, int32_t srcStride1,
    int32_t srcStride2, float* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, float* dstRe,
    float* dstIm, int32_t widthHeight, int32_t count, float* buffer);
vokStatus vokmEigenValuesVectorsLeft_ma_64f_L(const double* const* src, int32_t srcObjShift, int32_t srcStride1,
    int32_t srcStride2, double* const* dst, int32_t dstObjShift, int32_t dstStride1, int32_t dstStride2, double* dstRe,
    double* dstIm, int32_t widthHeight, int32_t count, double* buffer);
