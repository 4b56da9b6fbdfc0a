// The parallel wrappers of vokmGaxpy.
#include "../frame/parallel.h"
#include "matrix_vector.h"

extern "C" {
GAXPY_MVA(VOKM_ARRAY_WRAPPERS)
}
