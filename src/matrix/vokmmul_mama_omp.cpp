// The parallel wrappers of vokmMul of two arrays of matrices.
#include "../frame/parallel.h"
#include "matrix_product.h"

extern "C" {
PRODUCT_MAMA(VOKM_ARRAY_WRAPPERS)
}
