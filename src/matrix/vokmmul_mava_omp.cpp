// The parallel wrappers of vokmMul of an array of matrices with an array of vectors.
#include "../frame/parallel.h"
#include "matrix_vector.h"

extern "C" {
VECTOR_MAVA(VOKM_ARRAY_WRAPPERS)
}
