#include "eigen.h"

namespace flavour {

// An object as a map, or copied into a value first: a map's elements are read again after every store that might change them.
template <bool values, class Map> auto object(const Map& map) {
    if constexpr (values) return typename Map::PlainObject(map);
    else return map;
}
template <bool values, class Map, class Expression> void assign(Map to, const Expression& e) {
    if constexpr (values) {
        typename Map::PlainObject result;
        result.noalias() = e;
        to = result;
    } else to.noalias() = e;
}

// One text for matrices by rows and by columns; the harness stores the operands as the flag asks.
enum Copies { none, first, every };

template <class T, int n, int order, Copies copies> void products(Add add) {
    const auto row = [add](const char* name, void (*run)(const Operands&)) {
        static constexpr const char* hows[] = {"columns", "columns, first copied", "columns, copied", "rows", "rows, first copied", "rows, copied"};
        add({name, code<T>, n, hows[copies + 3 * (order == RowMajor)], run, order == ColMajor});
    };
#define A(base, i) object<copies != none>(get<T, n, n, order>(base, i))
#define M(base, i) object<copies == every>(get<T, n, n, order>(base, i))
#define V(base, i) object<copies == every>(get<T, n>(base, i))
#define TO_M(i, ...) assign<copies == every>(put<T, n, n, order>(o.out[0], i), __VA_ARGS__)
#define TO_V(i, ...) assign<copies == every>(put<T, n>(o.out[0], i), __VA_ARGS__)
    if constexpr (copies != every) row("Mul_mama", [](const Operands& o) { EACH(o, i) {
        const auto a = A(o.in[0], i);
        const auto b = M(o.in[1], i);
        TO_M(i, a * b);
    }});
    row("Mul_mata", [](const Operands& o) { EACH(o, i) {
        const auto a = A(o.in[0], i);
        const auto b = M(o.in[1], i);
        TO_M(i, a * b.transpose());
    }});
    if constexpr (copies == none) {
        row("Mul_mam", [](const Operands& o) {
            const Eigen::Matrix<T, n, n, order> b = M(o.in[1], 0);
            EACH(o, i) {
                const auto a = A(o.in[0], i);
                TO_M(i, a * b);
            }
        });
        row("Mul_mma", [](const Operands& o) {
            const Eigen::Matrix<T, n, n, order> a = M(o.in[0], 0);
            EACH(o, i) {
                const auto b = M(o.in[1], i);
                TO_M(i, a * b);
            }
        });
    }
    if constexpr (copies != first) {
        row("Mul_mava", [](const Operands& o) { EACH(o, i) {
            const auto a = A(o.in[0], i);
            const auto x = V(o.in[1], i);
            TO_V(i, a * x);
        }});
        row("Mul_mav", [](const Operands& o) {
            const Eigen::Matrix<T, n, 1> x = V(o.in[1], 0);
            EACH(o, i) {
                const auto a = A(o.in[0], i);
                TO_V(i, a * x);
            }
        });
        row("Mul_mva", [](const Operands& o) {
            const Eigen::Matrix<T, n, n, order> a = M(o.in[0], 0);
            EACH(o, i) {
                const auto x = V(o.in[1], i);
                TO_V(i, a * x);
            }
        });
        row("Gaxpy_mva", [](const Operands& o) {
            const Eigen::Matrix<T, n, n, order> a = M(o.in[0], 0);
            EACH(o, i) {
                const auto x = V(o.in[1], i);
                const auto y = V(o.in[2], i);
                TO_V(i, a * x + y);
            }
        });
        row("Transpose_ma", [](const Operands& o) { EACH(o, i) {
            const auto a = A(o.in[0], i);
            TO_M(i, a.transpose());
        }});
    }
    if constexpr (copies == none)
        row("Trace_ma", [](const Operands& o) {
            T* dst = static_cast<T*>(o.out[0]);
            EACH(o, i) dst[i] = M(o.in[0], i).trace();
        });
#undef A
#undef M
#undef V
#undef TO_M
#undef TO_V
}

// Products as linear combinations of columns: no element of the result is written before it is complete.
template <class T, int n, class B> void combine(void* dst, long i, const void* src, long j, B b) {
    const auto a = get<T, n, n>(src, j);
    auto c = put<T, n, n>(dst, i);
    for (int column = 0; column < n; ++column) {
        Eigen::Matrix<T, n, 1> sum = a.col(0) * b(0, column);
        for (int k = 1; k < n; ++k) sum += a.col(k) * b(k, column);
        c.col(column) = sum;
    }
}

template <class T, int n> void combinations(Add add) {
    const auto row = [add](const char* name, void (*run)(const Operands&)) { add({name, code<T>, n, "combined columns", run, true}); };
    row("Mul_mama", [](const Operands& o) { EACH(o, i) combine<T, n>(o.out[0], i, o.in[0], i, get<T, n, n>(o.in[1], i)); });
    row("Mul_mata", [](const Operands& o) { EACH(o, i) combine<T, n>(o.out[0], i, o.in[0], i, get<T, n, n>(o.in[1], i).transpose()); });
    row("Mul_mam", [](const Operands& o) { EACH(o, i) combine<T, n>(o.out[0], i, o.in[0], i, get<T, n, n>(o.in[1], 0)); });
    row("Mul_mma", [](const Operands& o) {
        const Eigen::Matrix<T, n, n> a = get<T, n, n>(o.in[0], 0);
        EACH(o, i) combine<T, n>(o.out[0], i, a.data(), 0, get<T, n, n>(o.in[1], i));
    });
}

// Where the whole array is one long operand, and order doesn't matter or is that of the rows.
template <class T, int n> void wholes(Add add) {
    const auto row = [add](const char* name, const char* how, void (*run)(const Operands&)) { add({name, code<T>, n, how, run}); };
    row("Add_mama", "one map", [](const Operands& o) {
        const long all = n * n * o.count;
        run<T>(o.out[0], all) = run<T>(o.in[0], all) + run<T>(o.in[1], all);
    });
    // The rows of all matrices below one another, as the columns of the transposed problem.
    row("Mul_mam", "one product", [](const Operands& o) {
        table<T, n>(o.out[0], n * o.count).noalias() = get<T, n, n>(o.in[1]) * table<T, n>(o.in[0], n * o.count);
    });
    row("Mul_mam", "one lazy product", [](const Operands& o) {
        const Eigen::Matrix<T, n, n> b = get<T, n, n>(o.in[1]);
        table<T, n>(o.out[0], n * o.count) = b.lazyProduct(table<T, n>(o.in[0], n * o.count));
    });
    row("Mul_mva", "one product", [](const Operands& o) {
        table<T, n>(o.out[0], o.count).noalias() = get<T, n, n, RowMajor>(o.in[0]) * table<T, n>(o.in[1], o.count);
    });
    row("Mul_mva", "one lazy product", [](const Operands& o) {
        const Eigen::Matrix<T, n, n> a = get<T, n, n, RowMajor>(o.in[0]);
        table<T, n>(o.out[0], o.count) = a.lazyProduct(table<T, n>(o.in[1], o.count));
    });
    row("Gaxpy_mva", "one lazy product", [](const Operands& o) {
        const Eigen::Matrix<T, n, n> a = get<T, n, n, RowMajor>(o.in[0]);
        table<T, n>(o.out[0], o.count) = a.lazyProduct(table<T, n>(o.in[1], o.count)) + table<T, n>(o.in[2], o.count);
    });
    row("FrobNorm_ma", "objects", [](const Operands& o) {
        T* dst = static_cast<T*>(o.out[0]);
        EACH(o, i) dst[i] = get<T, n * n>(o.in[0], i).norm();
    });
    row("FrobNorm_ma", "squares, then roots", [](const Operands& o) {
        T* dst = static_cast<T*>(o.out[0]);
        EACH(o, i) dst[i] = get<T, n * n>(o.in[0], i).squaredNorm();
        run<T>(o.out[0], o.count) = run<T>(o.out[0], o.count).sqrt();
    });
}

template <class T> void large(Add add) {
    add({"Transpose_m", code<T>, 4096, "one matrix", [](const Operands& o) {
             table<T, Dynamic>(o.out[0], 4096, 4096) = table<T, Dynamic>(o.in[0], 4096, 4096).transpose();
         }});
    add({"Mul_mm", code<T>, 512, "one matrix, by columns", [](const Operands& o) {
             table<T, Dynamic>(o.out[0], 512, 512).noalias() =
                 table<T, Dynamic>(o.in[0], 512, 512) * table<T, Dynamic>(o.in[1], 512, 512);
         }, true});
}

template <class T, int n> void matrixRows(Add add) {
    products<T, n, RowMajor, none>(add);
    products<T, n, RowMajor, first>(add);
    products<T, n, RowMajor, every>(add);
    products<T, n, ColMajor, none>(add);
    products<T, n, ColMajor, first>(add);
    products<T, n, ColMajor, every>(add);
    combinations<T, n>(add);
    wholes<T, n>(add);
    if constexpr (n == 3) large<T>(add); // once a type
}
template void matrixRows<BENCH_TYPE, BENCH_SIZE>(Add);

} // namespace flavour
