// The parallel wrappers of vokmAdd on two arrays of vectors.
#include "../frame/parallel.h"
#include "vector_elementwise.h"

extern "C" {
VECTOR_ADD_VAVA(VOKM_ARRAY_WRAPPERS)
}
