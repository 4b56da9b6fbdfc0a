// LIBXSMM, whose kernels are generated while the program runs for the processor at hand. Matrices by columns.
#include "peer.h"

#include <libxsmm.h>

namespace bench {

template <class T, int n> struct Xsmm {
    static inline libxsmm_xmmfunction kernel{};
    static void run(const Operands& o) {
        const T *a = static_cast<const T*>(o.in[0]), *b = static_cast<const T*>(o.in[1]);
        T* c = static_cast<T*>(o.out[0]);
        for (long i = 0; i < o.count; ++i, a += n * n, b += n * n, c += n * n) {
            if constexpr (sizeof(T) == 4) kernel.smm(a, b, c);
            else kernel.dmm(a, b, c);
        }
    }
    static void row(Add add) {
        const T one = 1, zero = 0;
        if constexpr (sizeof(T) == 4) kernel.smm = libxsmm_smmdispatch(n, n, n, nullptr, nullptr, nullptr, &one, &zero, nullptr, nullptr);
        else kernel.dmm = libxsmm_dmmdispatch(n, n, n, nullptr, nullptr, nullptr, &one, &zero, nullptr, nullptr);
        if (kernel.xmm) add({"Mul_mama", sizeof(T) == 4 ? 'f' : 'd', n, "dispatched kernel", run, true});
    }
};

template <class T> void allSizes(Add add) {
    Xsmm<T, 3>::row(add);
    Xsmm<T, 4>::row(add);
    Xsmm<T, 5>::row(add);
    Xsmm<T, 6>::row(add);
}

} // namespace bench

void benchXsmm(bench::Add add) {
    bench::allSizes<float>(add);
    bench::allSizes<double>(add);
}
