// vokmMul of one matrix with a constant.
#include "matrix_elementwise.h"

extern "C" {
MATRIX_MUL_MC(VOKM_SINGLE_KERNELS)
MATRIX_MUL_MC(VOKM_SINGLE_EXPORTS)
}
