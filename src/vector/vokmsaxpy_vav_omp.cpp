// The parallel wrappers of vokmSaxpy.
#include "../frame/parallel.h"
#include "saxpy_lcomb.h"

extern "C" {
SAXPY_FORMS_ARRAY(VOKM_ARRAY_WRAPPERS)
}
