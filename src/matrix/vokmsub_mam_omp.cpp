// The parallel wrappers of vokmSub of a single matrix from an array of them.
#include "../frame/parallel.h"
#include "matrix_elementwise.h"

extern "C" {
MATRIX_SUB_MAM(VOKM_ARRAY_WRAPPERS)
}
