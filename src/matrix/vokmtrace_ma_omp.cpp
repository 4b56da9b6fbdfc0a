// The parallel wrappers of vokmTrace.
#include "../frame/parallel.h"
#include "trace.h"

extern "C" {
TRACE_FORMS_ARRAY(VOKM_ARRAY_WRAPPERS)
}
