// vokmAdd of an array of matrices and a single one.
#include "matrix_elementwise.h"

extern "C" {
MATRIX_ADD_MAM(VOKM_ARRAY_KERNELS)
MATRIX_ADD_MAM(VOKM_ARRAY_EXPORTS)
}
