// vokmMul of a single matrix with an array of matrices.
#include "matrix_product.h"

extern "C" {
PRODUCT_MMA(VOKM_ARRAY_KERNELS)
PRODUCT_MMA(VOKM_ARRAY_EXPORTS)
}
