// The parallel wrappers of vokmSub on an array of vectors and one vector.
#include "../frame/parallel.h"
#include "vector_elementwise.h"

extern "C" {
VECTOR_SUB_VAV(VOKM_ARRAY_WRAPPERS)
}
