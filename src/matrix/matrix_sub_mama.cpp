// vokmSub of two arrays of matrices.
#include "matrix_elementwise.h"

extern "C" {
MATRIX_SUB_MAMA(VOKM_ARRAY_KERNELS)
MATRIX_SUB_MAMA(VOKM_ARRAY_EXPORTS)
}
