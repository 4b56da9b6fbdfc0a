// The parallel wrapper of vokmAffineTransform3DH.
#include "../frame/parallel.h"
#include "affine_transform.h"

extern "C" {
AFFINE_FORM(VOKM_OMP)
}
