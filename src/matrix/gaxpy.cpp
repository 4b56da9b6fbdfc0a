// vokmGaxpy: dst = src1 * src2 + src3.
#include "matrix_vector.h"

extern "C" {
GAXPY_MV(VOKM_SINGLE_KERNELS)
GAXPY_MV(VOKM_SINGLE_EXPORTS)
GAXPY_MVA(VOKM_ARRAY_KERNELS)
GAXPY_MVA(VOKM_ARRAY_EXPORTS)
}
