// The parallel wrappers of vokmSub on vectors and constants.
#include "../frame/parallel.h"
#include "vector_elementwise.h"

extern "C" {
VECTOR_SUB_VAC(VOKM_ARRAY_WRAPPERS)
}
