// vokmAdd of two arrays of matrices.
#include "matrix_elementwise.h"

extern "C" {
MATRIX_ADD_MAMA(VOKM_ARRAY_KERNELS)
MATRIX_ADD_MAMA(VOKM_ARRAY_EXPORTS)
}
