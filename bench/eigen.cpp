#include "eigen.h"

// The one name that a flavour's shared object lets out; all the rest is local, so that the linker never takes an instance
// of a template from the other flavour.
extern "C" __attribute__((visibility("default"))) void BENCH_ENTRY(bench::Add add) {
    flavour::vectorRows(add);
    flavour::matrixRows(add);
    flavour::solveRows(add);
    flavour::eigenRows(add);
}
