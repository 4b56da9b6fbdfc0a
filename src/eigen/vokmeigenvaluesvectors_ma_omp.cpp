// The parallel wrappers of vokmEigenValuesVectors, vokmEigenValuesVectorsRight, vokmEigenValuesVectorsLeft.
#include "../frame/parallel.h"
#include "eigen_general.h"

extern "C" {
VECTORS_FORMS_MA(GENERAL_WRAPPERS)
}
