// The parallel wrappers of vokmFrobNorm.
#include "../frame/parallel.h"
#include "frob_norm.h"

extern "C" {
FROB_FORMS_ARRAY(VOKM_ARRAY_WRAPPERS)
}
