// The parallel wrappers of vokmAdd of two arrays of matrices.
#include "../frame/parallel.h"
#include "matrix_elementwise.h"

extern "C" {
MATRIX_ADD_MAMA(VOKM_ARRAY_WRAPPERS)
}
