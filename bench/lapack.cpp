// LAPACK as OpenBLAS ships it, one call an object. Matrices by columns; where it works in place, the source is copied first.
#include "lapack.h"
#include "peer.h"

#include <algorithm>
#include <cstring>

namespace bench {

namespace {

constexpr int one = 1, lwork = 512;

// Calls body(sources, results) for each object, after copying the matrix in[0] to `to`.
template <class T, int n, class Body> void each(const Operands& o, void* to, Body body) {
    const T* source = static_cast<const T*>(o.in[0]);
    for (long i = 0; i < o.count; ++i) {
        T* a = static_cast<T*>(to) + i * n * n;
        std::memcpy(a, source + i * n * n, n * n * sizeof(T));
        body(i, a);
    }
}

template <class T> T* at(const void* base, long i, int size) { return static_cast<T*>(const_cast<void*>(base)) + i * size; }

template <class T, int n> void rows(Add add) {
    using L = Lapack<T>;
    static constexpr int N = n;
    static T work[lwork];
    static int info;
    const auto row = [add](const char* name, const char* how, void (*run)(const Operands&)) {
        add({name, sizeof(T) == 4 ? 'f' : 'd', n, how, run, true});
    };
    row("LUDecomp_ma", "getrf", [](const Operands& o) {
        each<T, n>(o, o.out[1], [&](long i, T* a) { L::getrf(&N, &N, a, &N, at<int>(o.out[0], i, n), &info); });
    });
    row("LUBackSubst_mava", "getrs", [](const Operands& o) {
        std::memcpy(o.out[0], o.in[2], o.count * n * sizeof(T));
        for (long i = 0; i < o.count; ++i)
            L::getrs("N", &N, &one, at<T>(o.in[0], i, n * n), &N, at<int>(o.in[1], i, n), at<T>(o.out[0], i, n), &N, &info, 1);
    });
    row("CholeskyDecomp_ma", "potrf", [](const Operands& o) {
        each<T, n>(o, o.out[0], [&](long, T* a) { L::potrf("L", &N, a, &N, &info, 1); });
    });
    row("CholeskyBackSubst_mava", "potrs", [](const Operands& o) {
        std::memcpy(o.out[0], o.in[1], o.count * n * sizeof(T));
        for (long i = 0; i < o.count; ++i) L::potrs("L", &N, &one, at<T>(o.in[0], i, n * n), &N, at<T>(o.out[0], i, n), &N, &info, 1);
    });
    row("QRDecomp_ma", "geqrf", [](const Operands& o) {
        each<T, n>(o, o.out[0], [&](long i, T* a) { L::geqrf(&N, &N, a, &N, at<T>(o.extra, i, n), work, &lwork, &info); });
    });
    row("QRBackSubst_mava", "ormqr and trtrs", [](const Operands& o) {
        std::memcpy(o.out[0], o.in[1], o.count * n * sizeof(T));
        for (long i = 0; i < o.count; ++i) {
            T *a = at<T>(o.in[0], i, n * n), *x = at<T>(o.out[0], i, n);
            L::ormqr("L", "T", &N, &one, &N, a, &N, at<T>(o.extra, i, n), x, &N, work, &lwork, &info, 1, 1);
            L::trtrs("U", "N", "N", &N, &one, a, &N, x, &N, &info, 1, 1, 1);
        }
    });
    row("Det_ma", "getrf", [](const Operands& o) {
        T* dst = static_cast<T*>(o.out[0]);
        each<T, n>(o, o.extra, [&](long i, T* a) {
            int pivot[n];
            L::getrf(&N, &N, a, &N, pivot, &info);
            T product = 1;
            for (int k = 0; k < n; ++k) product *= pivot[k] == k + 1 ? a[k * n + k] : -a[k * n + k];
            dst[i] = product;
        });
    });
    row("Invert_ma", "getrf and getri", [](const Operands& o) {
        each<T, n>(o, o.out[0], [&](long, T* a) {
            int pivot[n];
            L::getrf(&N, &N, a, &N, pivot, &info);
            L::getri(&N, a, &N, pivot, work, &lwork, &info);
        });
    });
    row("EigenValuesSym_ma", "syev", [](const Operands& o) {
        each<T, n>(o, o.extra, [&](long i, T* a) { L::syev("N", "L", &N, a, &N, at<T>(o.out[0], i, n), work, &lwork, &info, 1, 1); });
    });
    row("EigenValuesVectorsSym_ma", "syev", [](const Operands& o) {
        each<T, n>(o, o.out[0], [&](long i, T* a) { L::syev("V", "L", &N, a, &N, at<T>(o.out[1], i, n), work, &lwork, &info, 1, 1); });
    });
    row("EigenValues_ma", "geev", [](const Operands& o) {
        each<T, n>(o, o.extra, [&](long i, T* a) {
            L::geev("N", "N", &N, a, &N, at<T>(o.out[0], i, n), at<T>(o.out[1], i, n), nullptr, &N, nullptr, &N, work, &lwork, &info, 1, 1);
        });
    });
    row("EigenValuesVectorsRight_ma", "geev", [](const Operands& o) {
        each<T, n>(o, o.extra, [&](long i, T* a) {
            L::geev("N", "V", &N, a, &N, at<T>(o.out[1], i, n), at<T>(o.out[2], i, n), nullptr, &N, at<T>(o.out[0], i, n * n), &N, work, &lwork,
                    &info, 1, 1);
        });
    });
}

template <class T> void allSizes(Add add) {
    rows<T, 3>(add);
    rows<T, 4>(add);
    rows<T, 5>(add);
    rows<T, 6>(add);
}

} // namespace

} // namespace bench

void benchLapack(bench::Add add) {
    bench::allSizes<float>(add);
    bench::allSizes<double>(add);
}
