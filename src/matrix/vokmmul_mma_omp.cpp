// The parallel wrappers of vokmMul of a single matrix with an array of matrices.
#include "../frame/parallel.h"
#include "matrix_product.h"

extern "C" {
PRODUCT_MMA(VOKM_ARRAY_WRAPPERS)
}
