#include "eigen.h"

namespace flavour {

// Applies the reflections k to n - 2 of a packed factor, each with its stored scale; the last of a square matrix is the identity.
template <class T, int n, int k, class Factor, class Scales> void reflect(const Factor& factor, const Scales& tau, Eigen::Matrix<T, n, 1>& x) {
    if constexpr (k < n - 1) {
        constexpr int rest = n - 1 - k;
        const auto v = factor.col(k).template tail<rest>();
        const T scaled = tau[k] * (x[k] + v.dot(x.template tail<rest>()));
        x[k] -= scaled;
        x.template tail<rest>() -= scaled * v;
        reflect<T, n, k + 1>(factor, tau, x);
    }
}

// Factorisations and solutions, for matrices by rows and by columns. The harness hands what the first formulation of a
// factorisation leaves to the solutions.
template <class T, int n, int order> void solvers(Add add) {
    using Square = Eigen::Matrix<T, n, n, order>;
    using Vector = Eigen::Matrix<T, n, 1>;
    const auto row = [add](const char* name, const char* byRows, const char* byColumns, void (*run)(const Operands&)) {
        add({name, code<T>, n, order == RowMajor ? byRows : byColumns, run, order == ColMajor});
    };
#define FROM(k, i) get<T, n, n, order>(o.in[k], i)
#define TO(k, i) put<T, n, n, order>(o.out[k], i)
    const auto lu = [](const Operands& o) {
        EACH(o, i) {
            const Eigen::PartialPivLU<Square> lu(FROM(0, i));
            TO(1, i) = lu.matrixLU();
            put<int, n>(o.out[0], i) = lu.permutationP().indices();
        }
    };
    const auto luInPlace = [](const Operands& o) {
        EACH(o, i) {
            auto to = TO(1, i);
            to = FROM(0, i);
            Eigen::Ref<Square> place(to);
            const Eigen::PartialPivLU<Eigen::Ref<Square>> lu(place);
            put<int, n>(o.out[0], i) = lu.permutationP().indices();
        }
    };
    const auto luSolve = [](const Operands& o) {
        EACH(o, i) {
            const auto factor = FROM(0, i);
            const int* indices = static_cast<const int*>(o.in[1]) + i * n;
            const auto b = get<T, n>(o.in[2], i);
            Vector x;
            for (int k = 0; k < n; ++k) x[indices[k]] = b[k];
            factor.template triangularView<Eigen::UnitLower>().solveInPlace(x);
            factor.template triangularView<Eigen::Upper>().solveInPlace(x);
            put<T, n>(o.out[0], i) = x;
        }
    };
    row("LUDecomp_ma", "rows", "columns", lu);
    row("LUDecomp_ma", "rows, in place", "columns, in place", luInPlace);
    row("LUBackSubst_mava", "rows", "columns", luSolve);

    const auto cholesky = [](const Operands& o) {
        EACH(o, i) TO(0, i) = Eigen::LLT<Square>(FROM(0, i)).matrixLLT();
    };
    const auto choleskyInPlace = [](const Operands& o) {
        EACH(o, i) {
            auto to = TO(0, i);
            to = FROM(0, i);
            Eigen::Ref<Square> place(to);
            const Eigen::LLT<Eigen::Ref<Square>> llt(place);
        }
    };
    const auto choleskySolve = [](const Operands& o) {
        EACH(o, i) {
            const auto factor = FROM(0, i);
            Vector x = get<T, n>(o.in[1], i);
            factor.template triangularView<Eigen::Lower>().solveInPlace(x);
            factor.template triangularView<Eigen::Lower>().transpose().solveInPlace(x);
            put<T, n>(o.out[0], i) = x;
        }
    };
    row("CholeskyDecomp_ma", "rows", "columns", cholesky);
    row("CholeskyDecomp_ma", "rows, in place", "columns, in place", choleskyInPlace);
    row("CholeskyBackSubst_mava", "rows", "columns", choleskySolve);

    const auto qr = [](const Operands& o) {
        EACH(o, i) {
            const Eigen::HouseholderQR<Square> qr(FROM(0, i));
            TO(0, i) = qr.matrixQR();
            put<T, n>(o.extra, i) = qr.hCoeffs();
        }
    };
    const auto qrSolve = [](const Operands& o) {
        EACH(o, i) {
            const auto factor = FROM(0, i);
            Vector x = get<T, n>(o.in[1], i);
            x.applyOnTheLeft(Eigen::householderSequence(factor, get<T, n>(o.extra, i)).adjoint());
            factor.template triangularView<Eigen::Upper>().solveInPlace(x);
            put<T, n>(o.out[0], i) = x;
        }
    };
    // The reflections one by one, without the general sequence object.
    const auto qrSolveReflections = [](const Operands& o) {
        EACH(o, i) {
            const auto factor = FROM(0, i);
            const auto tau = get<T, n>(o.extra, i);
            Vector x = get<T, n>(o.in[1], i);
            reflect<T, n, 0>(factor, tau, x);
            factor.template triangularView<Eigen::Upper>().solveInPlace(x);
            put<T, n>(o.out[0], i) = x;
        }
    };
    row("QRDecomp_ma", "rows", "columns", qr);
    row("QRBackSubst_mava", "rows", "columns", qrSolve);
    row("QRBackSubst_mava", "rows, reflections", "columns, reflections", qrSolveReflections);

    row("Det_ma", "rows", "columns", [](const Operands& o) {
        T* dst = static_cast<T*>(o.out[0]);
        EACH(o, i) dst[i] = FROM(0, i).determinant();
    });
    row("Invert_ma", "rows", "columns", [](const Operands& o) { EACH(o, i) TO(0, i) = FROM(0, i).inverse(); });
    row("Invert_ma", "rows, copied", "columns, copied", [](const Operands& o) {
        EACH(o, i) {
            const Square a = FROM(0, i), inverse = a.inverse();
            TO(0, i) = inverse;
        }
    });
#undef FROM
#undef TO
}

template <class T, int n> void solveRows(Add add) {
    solvers<T, n, RowMajor>(add);
    solvers<T, n, ColMajor>(add);
}
template void solveRows<BENCH_TYPE, BENCH_SIZE>(Add);

} // namespace flavour
