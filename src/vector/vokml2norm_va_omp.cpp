// The parallel wrappers of vokmL2Norm.
#include "../frame/parallel.h"
#include "l2_norm.h"

extern "C" {
NORM_FORMS_ARRAY(VOKM_ARRAY_WRAPPERS)
}
