// The parallel wrappers of vokmEigenValuesSym.
#include "../frame/parallel.h"
#include "eigen_symmetric.h"

extern "C" {
SYMVAL_FORMS_ARRAY(VOKM_ARRAY_WRAPPERS)
}
