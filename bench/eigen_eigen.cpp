#include "eigen.h"

namespace flavour {

template <class T, int n> void eigenRows(Add add) {
    using Square = Eigen::Matrix<T, n, n>;
    const auto row = [add](const char* name, const char* how, void (*run)(const Operands&), bool aside = false) {
        add({name, code<T>, n, how, run, true, aside});
    };
    row("EigenValuesSym_ma", "iteration", [](const Operands& o) {
        Eigen::SelfAdjointEigenSolver<Square> solver;
        EACH(o, i) put<T, n>(o.out[0], i) = solver.compute(get<T, n, n>(o.in[0], i), Eigen::EigenvaluesOnly).eigenvalues();
    });
    row("EigenValuesVectorsSym_ma", "iteration", [](const Operands& o) {
        Eigen::SelfAdjointEigenSolver<Square> solver;
        EACH(o, i) {
            solver.compute(get<T, n, n>(o.in[0], i));
            put<T, n, n>(o.out[0], i) = solver.eigenvectors();
            put<T, n>(o.out[1], i) = solver.eigenvalues();
        }
    });
    // The closed form loses half of the digits where eigenvalues are close together.
    if constexpr (n == 3) {
        row("EigenValuesSym_ma", "closed form", [](const Operands& o) {
            Eigen::SelfAdjointEigenSolver<Square> solver;
            EACH(o, i) put<T, n>(o.out[0], i) = solver.computeDirect(get<T, n, n>(o.in[0], i), Eigen::EigenvaluesOnly).eigenvalues();
        }, true);
        row("EigenValuesVectorsSym_ma", "closed form", [](const Operands& o) {
            Eigen::SelfAdjointEigenSolver<Square> solver;
            EACH(o, i) {
                solver.computeDirect(get<T, n, n>(o.in[0], i));
                put<T, n, n>(o.out[0], i) = solver.eigenvectors();
                put<T, n>(o.out[1], i) = solver.eigenvalues();
            }
        }, true);
    }
    row("EigenValues_ma", "iteration", [](const Operands& o) {
        Eigen::EigenSolver<Square> solver;
        EACH(o, i) {
            solver.compute(get<T, n, n>(o.in[0], i), false);
            put<T, n>(o.out[0], i) = solver.eigenvalues().real();
            put<T, n>(o.out[1], i) = solver.eigenvalues().imag();
        }
    });
    // The vectors as real and imaginary columns, as the solver holds them, without the complex matrix made from them.
    row("EigenValuesVectorsRight_ma", "iteration", [](const Operands& o) {
        Eigen::EigenSolver<Square> solver;
        EACH(o, i) {
            solver.compute(get<T, n, n>(o.in[0], i));
            put<T, n, n>(o.out[0], i) = solver.pseudoEigenvectors();
            put<T, n>(o.out[1], i) = solver.eigenvalues().real();
            put<T, n>(o.out[2], i) = solver.eigenvalues().imag();
        }
    });
}

template void eigenRows<BENCH_TYPE, BENCH_SIZE>(Add);

} // namespace flavour
