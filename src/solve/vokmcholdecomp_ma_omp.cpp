// The parallel wrappers of vokmCholeskyDecomp.
#include "../frame/parallel.h"
#include "cholesky.h"

extern "C" {
CHOLESKY_DECOMP_ARRAY(VOKM_ARRAY_WRAPPERS)
}
