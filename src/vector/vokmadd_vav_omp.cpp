// The parallel wrappers of vokmAdd on an array of vectors and one vector.
#include "../frame/parallel.h"
#include "vector_elementwise.h"

extern "C" {
VECTOR_ADD_VAV(VOKM_ARRAY_WRAPPERS)
}
