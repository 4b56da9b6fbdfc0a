// vokmSub of a single matrix from an array of them.
#include "matrix_elementwise.h"

extern "C" {
MATRIX_SUB_MAM(VOKM_ARRAY_KERNELS)
MATRIX_SUB_MAM(VOKM_ARRAY_EXPORTS)
}
