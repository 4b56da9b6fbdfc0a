// The parallel wrappers of vokmMul of an array of matrices with a single vector.
#include "../frame/parallel.h"
#include "matrix_vector.h"

extern "C" {
VECTOR_MAV(VOKM_ARRAY_WRAPPERS)
}
