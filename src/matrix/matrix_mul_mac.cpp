// vokmMul of an array of matrices with a constant.
#include "matrix_elementwise.h"

extern "C" {
MATRIX_MUL_MAC(VOKM_ARRAY_KERNELS)
MATRIX_MUL_MAC(VOKM_ARRAY_EXPORTS)
}
