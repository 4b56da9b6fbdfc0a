// The parallel wrappers of vokmMul of an array of matrices with a constant.
#include "../frame/parallel.h"
#include "matrix_elementwise.h"

extern "C" {
MATRIX_MUL_MAC(VOKM_ARRAY_WRAPPERS)
}
