// The parallel wrappers of vokmLUBackSubst with one matrix.
#include "../frame/parallel.h"
#include "lu.h"

extern "C" {
LU_SOLVE_FORMS_MVA(VOKM_ARRAY_WRAPPERS)
}
