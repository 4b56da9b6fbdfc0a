// The parallel wrappers of vokmMul of an array of matrices with a single one.
#include "../frame/parallel.h"
#include "matrix_product.h"

extern "C" {
PRODUCT_MAM(VOKM_ARRAY_WRAPPERS)
}
