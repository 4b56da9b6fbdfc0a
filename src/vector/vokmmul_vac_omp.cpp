// The parallel wrappers of vokmMul on vectors and constants.
#include "../frame/parallel.h"
#include "vector_elementwise.h"

extern "C" {
VECTOR_MUL_VAC(VOKM_ARRAY_WRAPPERS)
}
