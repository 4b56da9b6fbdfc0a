// The parallel wrappers of vokmQRDecomp.
#include "../frame/parallel.h"
#include "qr.h"

extern "C" {
QR_DECOMP_ARRAY(VOKM_ARRAY_WRAPPERS)
}
