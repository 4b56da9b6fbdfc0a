// vokmSub of one matrix and another.
#include "matrix_elementwise.h"

extern "C" {
MATRIX_SUB_MM(VOKM_SINGLE_KERNELS)
MATRIX_SUB_MM(VOKM_SINGLE_EXPORTS)
}
