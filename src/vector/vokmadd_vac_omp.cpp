// The parallel wrappers of vokmAdd on vectors and constants.
#include "../frame/parallel.h"
#include "vector_elementwise.h"

extern "C" {
VECTOR_ADD_VAC(VOKM_ARRAY_WRAPPERS)
}
