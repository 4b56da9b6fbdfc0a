// The parallel wrappers of vokmLUDecomp.
#include "../frame/parallel.h"
#include "lu.h"

extern "C" {
LU_FORMS_ARRAY(VOKM_ARRAY_WRAPPERS)
}
