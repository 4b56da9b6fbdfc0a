// What bounds a reduction over planes: the loop that reads them, adds and stores, in the processor's widest registers.
#include <cmath>

#include "peer.h"

namespace bench {
namespace {

template <int planes, bool root, class T> void sums(const T* __restrict p, long pitch, T* __restrict d, long n) {
    for (long i = 0; i < n; ++i) {
        T s = p[i];
        for (int k = 1; k < planes; ++k) s += p[k * pitch + i];
        d[i] = root ? std::sqrt(s) : s;
    }
}

// Dot products read two vectors of 3 to 6, norms one.
template <class T> void reduced(const T* p, long count, long pitch, bool root, T* d, long n) {
    if (root) (count == 3 ? sums<3, true, T> : count == 4 ? sums<4, true, T> : count == 5 ? sums<5, true, T> : sums<6, true, T>)(p, pitch, d, n);
    else (count == 6 ? sums<6, false, T> : count == 8 ? sums<8, false, T> : count == 10 ? sums<10, false, T> : sums<12, false, T>)(p, pitch, d, n);
}

} // namespace

void bare(const float* planes, long count, long pitch, bool root, float* d, long n) { reduced(planes, count, pitch, root, d, n); }
void bare(const double* planes, long count, long pitch, bool root, double* d, long n) { reduced(planes, count, pitch, root, d, n); }

} // namespace bench
