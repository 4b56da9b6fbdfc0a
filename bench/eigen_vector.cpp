#include "eigen.h"

namespace flavour {

// Adds the single vector to `block` objects at a time.
template <class T, int n, int block> void repeated(const Operands& o) {
    const Eigen::Matrix<T, n * block, 1> b = get<T, n>(o.in[1]).template replicate<block, 1>();
    const long blocks = o.count / block;
    for (long i = 0; i < blocks; ++i) put<T, n * block>(o.out[0], i) = get<T, n * block>(o.in[0], i) + b;
    for (long i = blocks * block; i < o.count; ++i) put<T, n>(o.out[0], i) = get<T, n>(o.in[0], i) + b.template head<n>();
}

template <class T, int n> void vectors(Add add) {
    const auto row = [add](const char* name, const char* how, void (*run)(const Operands&)) { add({name, code<T>, n, how, run}); };

    row("Add_vava", "one map", [](const Operands& o) {
        const long all = n * o.count;
        run<T>(o.out[0], all) = run<T>(o.in[0], all) + run<T>(o.in[1], all);
    });
    row("Saxpy_vava", "one map", [](const Operands& o) {
        const long all = n * o.count;
        run<T>(o.out[0], all) = run<T>(o.in[0], all) * T(0.75) + run<T>(o.in[1], all);
    });

    row("Add_vav", "objects", [](const Operands& o) {
        const Eigen::Matrix<T, n, 1> b = get<T, n>(o.in[1]);
        EACH(o, i) put<T, n>(o.out[0], i) = get<T, n>(o.in[0], i) + b;
    });
    row("Add_vav", "blocks of 4", repeated<T, n, 4>);
    row("Add_vav", "blocks of 16", repeated<T, n, 16>);

    row("DotProduct_vava", "objects", [](const Operands& o) {
        T* dst = static_cast<T*>(o.out[0]);
        EACH(o, i) dst[i] = get<T, n>(o.in[0], i).dot(get<T, n>(o.in[1], i));
    });
    row("DotProduct_vava", "columnwise", [](const Operands& o) {
        table<T, 1>(o.out[0], o.count) = table<T, n>(o.in[0], o.count).cwiseProduct(table<T, n>(o.in[1], o.count)).colwise().sum();
    });

    row("L2Norm_va", "objects", [](const Operands& o) {
        T* dst = static_cast<T*>(o.out[0]);
        EACH(o, i) dst[i] = get<T, n>(o.in[0], i).norm();
    });
    row("L2Norm_va", "columnwise", [](const Operands& o) {
        table<T, 1>(o.out[0], o.count) = table<T, n>(o.in[0], o.count).colwise().norm();
    });
    row("L2Norm_va", "squares, then roots", [](const Operands& o) {
        T* dst = static_cast<T*>(o.out[0]);
        EACH(o, i) dst[i] = get<T, n>(o.in[0], i).squaredNorm();
        run<T>(o.out[0], o.count) = run<T>(o.out[0], o.count).sqrt();
    });
}

template <class T> void threeVectors(Add add) {
    add({"CrossProduct_vava", code<T>, 3, "objects", [](const Operands& o) {
             EACH(o, i) put<T, 3>(o.out[0], i) = get<T, 3>(o.in[0], i).cross(get<T, 3>(o.in[1], i));
         }});
    // Four elements at a time: the fourth belongs to the next object, and the next store repairs it.
    add({"CrossProduct_vava", code<T>, 3, "cross3", [](const Operands& o) {
             using Four = Eigen::Matrix<T, 4, 1>;
             const T *a = static_cast<const T*>(o.in[0]), *b = static_cast<const T*>(o.in[1]);
             T* dst = static_cast<T*>(o.out[0]);
             const long last = o.count - 1;
             for (long i = 0; i < last; ++i)
                 Eigen::Map<Four>(dst + 3 * i) = Four(Eigen::Map<const Four>(a + 3 * i)).cross3(Four(Eigen::Map<const Four>(b + 3 * i)));
             put<T, 3>(o.out[0], last) = get<T, 3>(o.in[0], last).cross(get<T, 3>(o.in[1], last));
         }});
    add({"CrossProduct_vava", code<T>, 3, "planes of the table", [](const Operands& o) {
             const auto a = table<T, 3>(o.in[0], o.count), b = table<T, 3>(o.in[1], o.count);
             auto dst = table<T, 3>(o.out[0], o.count);
             for (int j = 0; j < 3; ++j) {
                 const int k = (j + 1) % 3, l = (j + 2) % 3;
                 dst.row(j) = a.row(k).cwiseProduct(b.row(l)) - a.row(l).cwiseProduct(b.row(k));
             }
         }});
}

[[maybe_unused]] static void transforms(Add add) {
    const auto row = [add](const char* how, void (*run)(const Operands&)) {
        add({"AffineTransform3DH_mva", 'f', 3, how, run});
    };
    row("columns, reciprocal", [](const Operands& o) {
        const Eigen::Matrix4f m = get<float, 4, 4, RowMajor>(o.in[0]);
        EACH(o, i) {
            const auto p = get<float, 3>(o.in[1], i);
            const Eigen::Vector4f h = m.col(0) * p[0] + m.col(1) * p[1] + m.col(2) * p[2] + m.col(3);
            put<float, 3>(o.out[0], i) = h.head<3>() * (1 / h[3]);
        }
    });
    // Divides all four lanes at once and stores four; the next store repairs the fourth.
    row("columns, four lanes", [](const Operands& o) {
        const Eigen::Matrix4f m = get<float, 4, 4, RowMajor>(o.in[0]);
        const float* p = static_cast<const float*>(o.in[1]);
        float* dst = static_cast<float*>(o.out[0]);
        const auto point = [&](long i) -> Eigen::Vector4f {
            const Eigen::Vector4f h = m.col(0) * p[3 * i] + m.col(1) * p[3 * i + 1] + m.col(2) * p[3 * i + 2] + m.col(3);
            return h / h[3];
        };
        const long last = o.count - 1;
        for (long i = 0; i < last; ++i) Eigen::Map<Eigen::Vector4f>(dst + 3 * i) = point(i);
        put<float, 3>(o.out[0], last) = point(last).head<3>();
    });
    row("product", [](const Operands& o) {
        const Eigen::Matrix4f m = get<float, 4, 4, RowMajor>(o.in[0]);
        EACH(o, i) {
            const Eigen::Vector4f h = m * get<float, 3>(o.in[1], i).homogeneous();
            put<float, 3>(o.out[0], i) = h.hnormalized();
        }
    });
}

template <class T, int n> void vectorRows(Add add) {
    vectors<T, n>(add);
    if constexpr (n == 3) threeVectors<T>(add);
    if constexpr (n == 3 && sizeof(T) == 4) transforms(add);
}
template void vectorRows<BENCH_TYPE, BENCH_SIZE>(Add);

} // namespace flavour
