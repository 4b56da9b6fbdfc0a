// The parallel wrappers of vokmSub of two arrays of matrices.
#include "../frame/parallel.h"
#include "matrix_elementwise.h"

extern "C" {
MATRIX_SUB_MAMA(VOKM_ARRAY_WRAPPERS)
}
