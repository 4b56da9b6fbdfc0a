// The parallel wrappers of vokmEigenValuesVectorsSym.
#include "../frame/parallel.h"
#include "eigen_symmetric.h"

extern "C" {
SYMVEC_FORMS_ARRAY(VOKM_ARRAY_WRAPPERS)
}
