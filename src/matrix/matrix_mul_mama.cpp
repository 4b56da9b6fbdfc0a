// vokmMul of two arrays of matrices.
#include "matrix_product.h"

extern "C" {
PRODUCT_MAMA(VOKM_ARRAY_KERNELS)
PRODUCT_MAMA(VOKM_ARRAY_EXPORTS)
}
