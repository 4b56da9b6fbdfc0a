// The parallel wrappers of vokmSub of an array of matrices from a single one.
#include "../frame/parallel.h"
#include "matrix_elementwise.h"

extern "C" {
MATRIX_SUB_MMA(VOKM_ARRAY_WRAPPERS)
}
