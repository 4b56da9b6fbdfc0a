// The parallel wrappers of vokmQRBackSubst.
#include "../frame/parallel.h"
#include "qr.h"

extern "C" {
QR_BACK_SUBST_ARRAY(VOKM_ARRAY_WRAPPERS)
}
