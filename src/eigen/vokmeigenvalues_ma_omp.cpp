// The parallel wrappers of vokmEigenValues.
#include "../frame/parallel.h"
#include "eigen_general.h"

extern "C" {
VALUES_FORMS_MA(GENERAL_WRAPPERS)
}
