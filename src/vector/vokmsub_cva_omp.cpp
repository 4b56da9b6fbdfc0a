// The parallel wrappers of vokmSub on constants and vectors.
#include "../frame/parallel.h"
#include "vector_elementwise.h"

extern "C" {
VECTOR_SUB_CVA(VOKM_ARRAY_WRAPPERS)
}
