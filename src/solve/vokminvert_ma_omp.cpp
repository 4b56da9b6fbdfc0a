// The parallel wrappers of vokmInvert.
#include "../frame/parallel.h"
#include "inverse.h"

extern "C" {
INVERT_FORMS_ARRAY(VOKM_ARRAY_WRAPPERS)
}
