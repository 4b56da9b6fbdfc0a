// vokmMul of an array of matrices with a single vector.
#include "matrix_vector.h"

extern "C" {
VECTOR_MAV(VOKM_ARRAY_KERNELS)
VECTOR_MAV(VOKM_ARRAY_EXPORTS)
}
