// The parallel wrappers of vokmSub on one vector and an array of vectors.
#include "../frame/parallel.h"
#include "vector_elementwise.h"

extern "C" {
VECTOR_SUB_VVA(VOKM_ARRAY_WRAPPERS_BUT_64f_P)
}
