// The parallel wrappers of vokmSub on two arrays of vectors.
#include "../frame/parallel.h"
#include "vector_elementwise.h"

extern "C" {
VECTOR_SUB_VAVA(VOKM_ARRAY_WRAPPERS)
}
