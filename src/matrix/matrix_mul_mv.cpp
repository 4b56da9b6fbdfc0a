// vokmMul of a matrix with a vector.
#include "matrix_vector.h"

extern "C" {
VECTOR_MV(VOKM_SINGLE_KERNELS)
VECTOR_MV(VOKM_SINGLE_EXPORTS)
}
