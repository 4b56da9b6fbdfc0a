#include "eigen.h"

namespace flavour {

template <class T, int n> void rows(Add add) {
    vectorRows<T, n>(add);
    matrixRows<T, n>(add);
    solveRows<T, n>(add);
    eigenRows<T, n>(add);
}
template <class T> void sizes(Add add) {
    rows<T, 3>(add);
    rows<T, 4>(add);
    rows<T, 5>(add);
    rows<T, 6>(add);
}

} // namespace flavour

// The one name that a flavour's shared object lets out; all the rest is local, so that the linker never takes an instance
// of a template from the other flavour.
extern "C" __attribute__((visibility("default"))) void BENCH_ENTRY(bench::Add add) {
    flavour::sizes<float>(add);
    flavour::sizes<double>(add);
}
