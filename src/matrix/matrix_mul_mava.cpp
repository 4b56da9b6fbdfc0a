// vokmMul of an array of matrices with an array of vectors.
#include "matrix_vector.h"

extern "C" {
VECTOR_MAVA(VOKM_ARRAY_KERNELS)
VECTOR_MAVA(VOKM_ARRAY_EXPORTS)
}
