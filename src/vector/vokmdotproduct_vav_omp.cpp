// The parallel wrappers of vokmDotProduct.
#include "../frame/parallel.h"
#include "dot_product.h"

extern "C" {
DOT_FORMS_ARRAY(VOKM_ARRAY_WRAPPERS)
}
