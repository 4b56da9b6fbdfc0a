// The parallel wrappers of vokmAdd of an array of matrices and a single one.
#include "../frame/parallel.h"
#include "matrix_elementwise.h"

extern "C" {
MATRIX_ADD_MAM(VOKM_ARRAY_WRAPPERS)
}
