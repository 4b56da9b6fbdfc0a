// The parallel wrappers of vokmMul of a single matrix with an array of vectors.
#include "../frame/parallel.h"
#include "matrix_vector.h"

extern "C" {
VECTOR_MVA(VOKM_ARRAY_WRAPPERS)
}
