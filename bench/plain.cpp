// Contenders of the program's own: the plain loop over the same bytes, and the double loop for large matrices.
#include "peer.h"

namespace bench {

// For every 16 bytes of `w` results reads 16 bytes of each of the `ra` and `rb` elements of the sources, in the order of
// memory: the traffic of the operation without its arithmetic.
void loop(const void* a, long ra, const void* b, long rb, void* d, long w, long blocks) {
    using Vector = float __attribute__((vector_size(16)));
    const Vector *pa = static_cast<const Vector*>(a), *pb = static_cast<const Vector*>(b);
    Vector* pd = static_cast<Vector*>(d);
    if (ra == 1 && rb == 1 && w == 1) {
        for (long i = 0; i < blocks; ++i) pd[i] = pa[i] + pb[i];
        return;
    }
    if (ra == 1 && rb == 0 && w == 1) {
        const Vector one = {1, 1, 1, 1};
        for (long i = 0; i < blocks; ++i) pd[i] = pa[i] + one;
        return;
    }
    for (long i = 0; i < blocks; ++i) {
        Vector sum{};
        for (long j = 0; j < ra; ++j) sum += *pa++;
        for (long j = 0; j < rb; ++j) sum += *pb++;
        for (long j = 0; j < w; ++j) *pd++ = sum;
    }
}

template <class T> void largeRows(Add add) {
    add({"Transpose_m", sizeof(T) == 4 ? 'f' : 'd', 4096, "double loop", [](const Operands& o) {
             constexpr long n = 4096;
             const T* src = static_cast<const T*>(o.in[0]);
             T* dst = static_cast<T*>(o.out[0]);
             for (long r = 0; r < n; ++r)
                 for (long c = 0; c < n; ++c) dst[c * n + r] = src[r * n + c];
         }});
}

} // namespace bench

void benchPlain(bench::Add add) {
    bench::largeRows<float>(add);
    bench::largeRows<double>(add);
}

// One thread for every contender: this definition wins over the core library's.
extern "C" int ownGetNumThreads() { return 1; }
