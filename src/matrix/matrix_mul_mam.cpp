// vokmMul of an array of matrices with a single one.
#include "matrix_product.h"

extern "C" {
PRODUCT_MAM(VOKM_ARRAY_KERNELS)
PRODUCT_MAM(VOKM_ARRAY_EXPORTS)
}
