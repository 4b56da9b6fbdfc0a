// vokmMul of a single matrix with an array of vectors.
#include "matrix_vector.h"

extern "C" {
VECTOR_MVA(VOKM_ARRAY_KERNELS)
VECTOR_MVA(VOKM_ARRAY_EXPORTS)
}
