// The parallel wrappers of vokmCholeskyBackSubst.
#include "../frame/parallel.h"
#include "cholesky.h"

extern "C" {
CHOLESKY_BACK_SUBST_ARRAY(VOKM_ARRAY_WRAPPERS)
}
