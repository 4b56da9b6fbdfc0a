// vokmSub of an array of matrices from a single one.
#include "matrix_elementwise.h"

extern "C" {
MATRIX_SUB_MMA(VOKM_ARRAY_KERNELS)
MATRIX_SUB_MMA(VOKM_ARRAY_EXPORTS)
}
