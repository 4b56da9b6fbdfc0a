// vokmLComb: dst = src1*val1 + src2*val2, both products rounded before the sum.
#include "saxpy_lcomb.h"

extern "C" {
LCOMB_FORMS_SINGLE(VOKM_SINGLE_KERNELS)
LCOMB_FORMS_SINGLE(VOKM_SINGLE_EXPORTS)
LCOMB_FORMS_ARRAY(VOKM_ARRAY_KERNELS)
LCOMB_FORMS_ARRAY(VOKM_ARRAY_EXPORTS)
}
