// The parallel wrappers of vokmLComb.
#include "../frame/parallel.h"
#include "saxpy_lcomb.h"

extern "C" {
LCOMB_FORMS_ARRAY(VOKM_ARRAY_WRAPPERS)
}
