// vokmMul of two matrices, as they are or transposed.
#include "matrix_product.h"

extern "C" {
PRODUCT_MM(VOKM_SINGLE_KERNELS)
PRODUCT_MM(VOKM_SINGLE_EXPORTS)
}
