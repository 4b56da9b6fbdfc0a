// vokmAdd of one matrix and another.
#include "matrix_elementwise.h"

extern "C" {
MATRIX_ADD_MM(VOKM_SINGLE_KERNELS)
MATRIX_ADD_MM(VOKM_SINGLE_EXPORTS)
}
