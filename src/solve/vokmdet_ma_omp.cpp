// The parallel wrappers of vokmDet.
#include "../frame/parallel.h"
#include "determinant.h"

extern "C" {
DET_FORMS_ARRAY(VOKM_ARRAY_WRAPPERS)
}
