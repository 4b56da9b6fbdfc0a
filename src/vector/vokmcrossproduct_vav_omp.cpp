// The parallel wrappers of vokmCrossProduct.
#include "../frame/parallel.h"
#include "cross_product.h"

extern "C" {
CROSS_FORMS_ARRAY(VOKM_ARRAY_WRAPPERS)
CROSS_FORM_VVA(VOKM_ARRAY_WRAPPERS_BUT_64f_P)
}
