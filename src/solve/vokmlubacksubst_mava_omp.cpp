// The parallel wrappers of vokmLUBackSubst with arrays of matrices.
#include "../frame/parallel.h"
#include "lu.h"

extern "C" {
LU_SOLVE_FORMS_MAVA(VOKM_ARRAY_WRAPPERS)
}
