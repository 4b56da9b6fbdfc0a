// How exact the direct solvers are, beside LAPACK: backward errors on random matrices of prescribed condition, as a table in
// Markdown. What judges is computed with more digits than what is judged.
#include "lapack.h"

#include <vokm>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace bench {
namespace {

using Wide = long double;
constexpr int smallest = 3, largest = 6;
constexpr std::array conditions{1.0, 1e2, 1e4, 1e6};

using Square = std::array<std::array<Wide, largest>, largest>;
using Column = std::array<Wide, largest>;

// ---- the matrices

// n by n matrices by rows, dense, and right sides.
template <class T> struct Batch {
    int n, count;
    std::vector<T> general, definite, right;

    Batch(int size, int objects) : n(size), count(objects), general(n * n * count), definite(n * n * count), right(n * count) {}
};

using Random = std::mt19937_64;
using Grid = std::array<std::array<double, largest>, largest>;

// Applies to the rows from `first` on, or to the columns, the reflection along a random direction.
void reflect(Grid& a, int n, int first, const std::array<double, largest>& v, bool rows) {
    double square = 0;
    for (int i = first; i < n; ++i) square += v[i] * v[i];
    for (int j = 0; j < n; ++j) {
        double inner = 0;
        for (int i = first; i < n; ++i) inner += v[i] * (rows ? a[i][j] : a[j][i]);
        for (int i = first; i < n; ++i) (rows ? a[i][j] : a[j][i]) -= 2 * inner / square * v[i];
    }
}

// Random orthogonal factors around singular values in a geometric series from sqrt(condition) down to 1/sqrt(condition),
// so that no absolute threshold for singular matrices comes near; the random scale keeps condition 1 from exact ones.
Grid matrix(int n, double condition, bool symmetric, Random& random) {
    std::normal_distribution<double> normal;
    Grid a{};
    const double scale = std::uniform_real_distribution<double>(1, 2)(random);
    for (int i = 0; i < n; ++i) a[i][i] = scale * std::pow(condition, 0.5 - double(i) / (n - 1));
    for (int first = n - 2; first >= 0; --first) {
        std::array<double, largest> v, w;
        for (double& x : v) x = normal(random);
        for (double& x : w) x = normal(random);
        reflect(a, n, first, v, true);
        reflect(a, n, first, symmetric ? v : w, false);
    }
    return a;
}

template <class T> Batch<T> draw(int n, int count, double condition, Random& random) {
    Batch<T> batch(n, count);
    std::normal_distribution<double> normal;
    for (int i = 0; i < count; ++i) {
        const Grid general = matrix(n, condition, false, random), definite = matrix(n, condition, true, random);
        for (int r = 0; r < n; ++r) {
            for (int c = 0; c < n; ++c) {
                batch.general[(i * n + r) * n + c] = T(general[r][c]);
                batch.definite[(i * n + r) * n + c] = T(definite[std::max(r, c)][std::min(r, c)]);
            }
            batch.right[i * n + r] = T(normal(random));
        }
    }
    return batch;
}

// ---- the contenders

struct Factors {
    Square left{}, right{}; // the product is the matrix
};

// What a contender says of one general and one definite matrix.
struct Answer {
    Factors lu, cholesky, qr;
    Column byLu{}, byCholesky{}, byQr{};
    Square inverse{};
    Wide determinant = 0;
};

// A packed factor, row position[i] of the matrix being row i of the product.
template <class At> Factors unpackLu(int n, const int* position, At at) {
    Factors f;
    for (int i = 0; i < n; ++i) {
        for (int k = 0; k < i; ++k) f.left[position[i]][k] = at(i, k);
        f.left[position[i]][i] = 1;
        for (int k = i; k < n; ++k) f.right[i][k] = at(i, k);
    }
    return f;
}

template <class At> Factors unpackCholesky(int n, At at) {
    Factors f;
    for (int i = 0; i < n; ++i)
        for (int k = 0; k <= i; ++k) f.left[i][k] = f.right[k][i] = at(i, k);
    return f;
}

void want(bool done, const char* what) {
    if (!done) throw std::runtime_error(std::string(what) + " failed");
}

template <class T> struct Calls;
#define NAMES(T, type)                                                                                                                 \
    template <> struct Calls<T> {                                                                                                      \
        static constexpr auto lu = vokmLUDecomp_ma_##type;                                                                             \
        static constexpr auto luSolve = vokmLUBackSubst_mava_##type;                                                                   \
        static constexpr auto cholesky = vokmCholeskyDecomp_ma_##type;                                                                 \
        static constexpr auto choleskySolve = vokmCholeskyBackSubst_mava_##type;                                                       \
        static constexpr auto qr = vokmQRDecomp_ma_##type;                                                                             \
        static constexpr auto qrSolve = vokmQRBackSubst_mava_##type;                                                                   \
        static constexpr auto invert = vokmInvert_ma_##type;                                                                           \
        static constexpr auto det = vokmDet_ma_##type;                                                                                 \
    };
NAMES(float, 32f)
NAMES(double, 64f)
#undef NAMES

// The library: all matrices of the batch in one call an operation.
template <class T> class Ours {
public:
    explicit Ours(const Batch<T>& batch)
        : n(batch.n), lu(batch.general.size()), cholesky(lu), qr(lu), inverse(lu), byLu(batch.right.size()), byCholesky(byLu), byQr(byLu),
          determinant(batch.count), pivot(byLu.size()) {
        using C = Calls<T>;
        constexpr int e = sizeof(T);
        const int row = n * e, object = n * row, count = batch.count;
        const T *a = batch.general.data(), *d = batch.definite.data(), *b = batch.right.data();
        std::vector<T> scratch(n * n + n);
        T* s = scratch.data();

        want(C::lu(a, object, row, e, pivot.data(), lu.data(), object, row, e, n, count) == vokStatusOk, "LUDecomp");
        want(C::luSolve(lu.data(), object, row, e, pivot.data(), b, row, e, byLu.data(), row, e, n, count) == vokStatusOk,
             "LUBackSubst");
        want(C::cholesky(d, object, row, e, cholesky.data(), object, row, e, n, count) == vokStatusOk, "CholeskyDecomp");
        want(C::choleskySolve(cholesky.data(), object, row, e, b, row, e, byCholesky.data(), row, e, n, count) == vokStatusOk,
             "CholeskyBackSubst");
        want(C::qr(a, object, row, e, s, qr.data(), object, row, e, n, n, count) == vokStatusOk, "QRDecomp");
        want(C::qrSolve(qr.data(), object, row, e, s, b, row, e, byQr.data(), row, e, n, n, count) == vokStatusOk, "QRBackSubst");
        // One by one, because a call ends at a matrix that it takes for singular: that has no inverse, which counts as an
        // infinite error.
        for (int i = 0; i < count; ++i) {
            const vokStatus status = C::invert(a + i * n * n, object, row, e, s, inverse.data() + i * n * n, object, row, e, n, 1);
            want(status == vokStatusOk || status == vokStatusSingular, "Invert");
        }
        want(C::det(a, object, row, e, n, s, determinant.data(), count) == vokStatusOk, "Det");
    }

    Answer answer(int i) const {
        Answer x;
        const auto in = [this, i](const std::vector<T>& all) {
            return [base = all.data() + i * n * n, n = n](int r, int c) { return base[r * n + c]; };
        };
        // Rows stay where they were in the source.
        const int* position = pivot.data() + i * n;
        x.lu = unpackLu(n, position, [&](int r, int c) { return in(lu)(position[r], c); });
        x.cholesky = unpackCholesky(n, [&](int r, int c) { return r == c ? 1 / Wide(in(cholesky)(r, c)) : in(cholesky)(r, c); });
        x.qr = product(in(qr));
        for (int r = 0; r < n; ++r) {
            x.byLu[r] = byLu[i * n + r];
            x.byCholesky[r] = byCholesky[i * n + r];
            x.byQr[r] = byQr[i * n + r];
            for (int c = 0; c < n; ++c) x.inverse[r][c] = in(inverse)(r, c);
        }
        x.determinant = determinant[i];
        return x;
    }

private:
    // Q as a program that wants it gets it, in the type of the elements: the reflections applied to the identity, last first.
    template <class At> Factors product(At at) const {
        T q[largest][largest]{};
        for (int r = 0; r < n; ++r) q[r][r] = 1;
        for (int k = n - 2; k >= 0; --k) {
            const auto v = [&](int r) { return r == k ? T(1) : at(r, k); };
            T square = 0;
            for (int r = k; r < n; ++r) square += v(r) * v(r);
            for (int c = 0; c < n; ++c) {
                T inner = 0;
                for (int r = k; r < n; ++r) inner += v(r) * q[r][c];
                inner *= -2 / square;
                for (int r = k; r < n; ++r) q[r][c] += v(r) * inner;
            }
        }
        Factors f;
        for (int r = 0; r < n; ++r)
            for (int c = 0; c < n; ++c) {
                f.left[r][c] = q[r][c];
                f.right[r][c] = r <= c ? at(r, c) : T(0);
            }
        return f;
    }

    int n;
    std::vector<T> lu, cholesky, qr, inverse, byLu, byCholesky, byQr, determinant;
    std::vector<int32_t> pivot;
};

// LAPACK in the same precision, one call an object, matrices by columns.
template <class T> class Theirs {
public:
    explicit Theirs(const Batch<T>& batch) : batch(batch), n(batch.n) {}

    Answer answer(int i) {
        Answer x;
        const T* b = batch.right.data() + i * n;
        eliminate(byColumns(batch.general, i), b, x);
        square(byColumns(batch.definite, i), b, x);
        rotate(byColumns(batch.general, i), b, x);
        return x;
    }

private:
    using L = Lapack<T>;
    using Matrix = std::array<T, largest * largest>;
    using Vector = std::array<T, largest>;

    Matrix byColumns(const std::vector<T>& all, int i) const {
        Matrix a{};
        for (int r = 0; r < n; ++r)
            for (int c = 0; c < n; ++c) a[c * n + r] = all[(i * n + r) * n + c];
        return a;
    }
    auto in(const Matrix& a) const {
        return [&a, n = n](int r, int c) { return a[c * n + r]; };
    }
    Vector vector(const T* b) const {
        Vector x{};
        std::copy_n(b, n, x.begin());
        return x;
    }

    void eliminate(Matrix a, const T* b, Answer& x) {
        int exchanged[largest], position[largest];
        L::getrf(&n, &n, a.data(), &n, exchanged, &info);
        want(info == 0, "getrf");
        for (int k = 0; k < n; ++k) position[k] = k;
        T determinant = 1;
        for (int k = 0; k < n; ++k) {
            std::swap(position[k], position[exchanged[k] - 1]);
            determinant *= exchanged[k] == k + 1 ? in(a)(k, k) : -in(a)(k, k);
        }
        x.determinant = determinant;
        x.lu = unpackLu(n, position, in(a));
        Vector solution = vector(b);
        L::getrs("N", &n, &one, a.data(), &n, exchanged, solution.data(), &n, &info, 1);
        std::copy_n(solution.begin(), n, x.byLu.begin());
        L::getri(&n, a.data(), &n, exchanged, work, &lwork, &info);
        want(info == 0, "getri");
        for (int r = 0; r < n; ++r)
            for (int c = 0; c < n; ++c) x.inverse[r][c] = in(a)(r, c);
    }

    void square(Matrix a, const T* b, Answer& x) {
        L::potrf("L", &n, a.data(), &n, &info, 1);
        want(info == 0, "potrf");
        x.cholesky = unpackCholesky(n, in(a));
        Vector solution = vector(b);
        L::potrs("L", &n, &one, a.data(), &n, solution.data(), &n, &info, 1);
        std::copy_n(solution.begin(), n, x.byCholesky.begin());
    }

    void rotate(Matrix a, const T* b, Answer& x) {
        T tau[largest];
        L::geqrf(&n, &n, a.data(), &n, tau, work, &lwork, &info);
        Vector solution = vector(b);
        L::ormqr("L", "T", &n, &one, &n, a.data(), &n, tau, solution.data(), &n, work, &lwork, &info, 1, 1);
        L::trtrs("U", "N", "N", &n, &one, a.data(), &n, solution.data(), &n, &info, 1, 1, 1);
        want(info == 0, "trtrs");
        std::copy_n(solution.begin(), n, x.byQr.begin());
        for (int r = 0; r < n; ++r)
            for (int c = r; c < n; ++c) x.qr.right[r][c] = in(a)(r, c);
        L::orgqr(&n, &n, &n, a.data(), &n, tau, work, &lwork, &info);
        want(info == 0, "orgqr");
        for (int r = 0; r < n; ++r)
            for (int c = 0; c < n; ++c) x.qr.left[r][c] = in(a)(r, c);
    }

    static constexpr int one = 1, lwork = 512;
    const Batch<T>& batch;
    const int n;
    int info = 0;
    T work[lwork];
};

// ---- the judgement, all norms being roots of sums of squares

struct Problem {
    int n;
    double condition;
    Square general{}, definite{};
    Column right{};
    Wide determinant = 1;
};

Wide norm(const Column& x) {
    Wide sum = 0;
    for (Wide e : x) sum += e * e;
    return std::sqrt(sum);
}
Wide norm(const Square& a) {
    Wide sum = 0;
    for (const Column& row : a) sum += norm(row) * norm(row);
    return std::sqrt(sum);
}
Square multiply(const Square& a, const Square& b) {
    Square p{};
    for (int r = 0; r < largest; ++r)
        for (int c = 0; c < largest; ++c)
            for (int k = 0; k < largest; ++k) p[r][c] += a[r][k] * b[k][c];
    return p;
}
Square transposed(const Square& a) {
    Square t;
    for (int r = 0; r < largest; ++r)
        for (int c = 0; c < largest; ++c) t[c][r] = a[r][c];
    return t;
}
Square minus(Square a, const Square& b) {
    for (int r = 0; r < largest; ++r)
        for (int c = 0; c < largest; ++c) a[r][c] -= b[r][c];
    return a;
}
Square identity(int n) {
    Square e{};
    for (int i = 0; i < n; ++i) e[i][i] = 1;
    return e;
}

Wide factored(const Square& a, const Factors& f) { return norm(minus(a, multiply(f.left, f.right))) / norm(a); }
Wide solved(const Square& a, const Column& x, const Column& b) {
    Column rest = b;
    for (int r = 0; r < largest; ++r)
        for (int c = 0; c < largest; ++c) rest[r] -= a[r][c] * x[c];
    return norm(rest) / (norm(a) * norm(x) + norm(b));
}

struct Row {
    const char* name;
    Wide (*error)(const Problem&, const Answer&);
};
const Row rows[] = {
    {"LU: `PA - LU`", [](const Problem& p, const Answer& x) { return factored(p.general, x.lu); }},
    {"Cholesky: `A - LLᵀ`", [](const Problem& p, const Answer& x) { return factored(p.definite, x.cholesky); }},
    {"QR: `A - QR`", [](const Problem& p, const Answer& x) { return factored(p.general, x.qr); }},
    {"QR: `QᵀQ - I`",
     [](const Problem& p, const Answer& x) { return norm(minus(multiply(transposed(x.qr.left), x.qr.left), identity(p.n))); }},
    {"LU: `Ax - b`", [](const Problem& p, const Answer& x) { return solved(p.general, x.byLu, p.right); }},
    {"Cholesky: `Ax - b`", [](const Problem& p, const Answer& x) { return solved(p.definite, x.byCholesky, p.right); }},
    {"QR: `Ax - b`", [](const Problem& p, const Answer& x) { return solved(p.general, x.byQr, p.right); }},
    {"Inverse: `AX - I`",
     [](const Problem& p, const Answer& x) {
         return norm(minus(multiply(p.general, x.inverse), identity(p.n))) / (norm(p.general) * norm(x.inverse));
     }},
    {"Determinant",
     [](const Problem& p, const Answer& x) {
         return std::fabs(x.determinant - p.determinant) / (std::fabs(p.determinant) * Wide(p.condition));
     }},
};

// By elimination with more digits than any contender has.
Wide determinant(Square a, int n) {
    Wide product = 1;
    for (int k = 0; k < n; ++k) {
        int best = k;
        for (int i = k + 1; i < n; ++i)
            if (std::fabs(a[i][k]) > std::fabs(a[best][k])) best = i;
        if (best != k) {
            std::swap(a[best], a[k]);
            product = -product;
        }
        product *= a[k][k];
        for (int i = k + 1; i < n; ++i) {
            const Wide factor = a[i][k] / a[k][k];
            for (int j = k; j < n; ++j) a[i][j] -= factor * a[k][j];
        }
    }
    return product;
}

template <class T> Problem problem(const Batch<T>& batch, int i, double condition) {
    Problem p{.n = batch.n, .condition = condition};
    const int n = p.n;
    for (int r = 0; r < n; ++r) {
        p.right[r] = batch.right[i * n + r];
        for (int c = 0; c < n; ++c) {
            p.general[r][c] = batch.general[(i * n + r) * n + c];
            p.definite[r][c] = batch.definite[(i * n + r) * n + c];
        }
    }
    p.determinant = determinant(p.general, n);
    return p;
}

// Median and largest, of the size where they are worst.
struct Spread {
    double median = 0, most = 0;

    void join(std::vector<double>& errors) {
        for (double error : errors) want(!std::isnan(error), "a comparison with a number");
        std::nth_element(errors.begin(), errors.begin() + errors.size() / 2, errors.end());
        median = std::max(median, errors[errors.size() / 2]);
        most = std::max(most, *std::max_element(errors.begin(), errors.end()));
    }
};

using Cells = std::array<std::array<std::array<Spread, 2>, conditions.size()>, std::size(rows)>; // row, condition, contender

template <class T> Cells measure(int count) {
    Cells cells;
    for (std::size_t c = 0; c < conditions.size(); ++c)
        for (int n = smallest; n <= largest; ++n) {
            Random random(1000 * n + c);
            const Batch<T> batch = draw<T>(n, count, conditions[c], random);
            const Ours<T> ours(batch);
            Theirs<T> theirs(batch);
            std::vector<double> errors[std::size(rows)][2];
            for (int i = 0; i < count; ++i) {
                const Problem p = problem(batch, i, conditions[c]);
                const Answer answers[] = {ours.answer(i), theirs.answer(i)};
                for (std::size_t row = 0; row < std::size(rows); ++row)
                    for (int who : {0, 1})
                        errors[row][who].push_back(double(rows[row].error(p, answers[who]) / std::numeric_limits<T>::epsilon()));
            }
            for (std::size_t row = 0; row < std::size(rows); ++row)
                for (int who : {0, 1}) cells[row][c][who].join(errors[row][who]);
        }
    return cells;
}

std::string text(const Spread& s) {
    const auto number = [](double x) {
        char digits[32];
        std::snprintf(digits, sizeof digits, x < 9.995 ? "%.2f" : x < 99.95 ? "%.1f" : "%.0f", x);
        return std::string(digits);
    };
    return number(s.median) + " / " + number(s.most);
}

void print(const Cells& single, const Cells& twice) {
    std::printf("| error | type |");
    for (double condition : conditions) std::printf(" condition 1e%d |", int(std::lround(std::log10(condition))));
    std::printf("\n|---|---|");
    for (std::size_t c = 0; c < conditions.size(); ++c) std::printf("---|");
    for (std::size_t row = 0; row < std::size(rows); ++row)
        for (const auto& [type, cells] : {std::pair{"32f", &single}, std::pair{"64f", &twice}}) {
            std::printf("\n| %s | `%s` |", rows[row].name, type);
            for (const auto& [ours, theirs] : (*cells)[row]) std::printf(" %s (%s) |", text(ours).c_str(), text(theirs).c_str());
        }
    std::printf("\n");
}

} // namespace
} // namespace bench

int main(int arguments, char** argument) {
    const int count = arguments > 1 ? std::atoi(argument[1]) : 1000; // matrices a size, type and condition
    if (count < 1) {
        std::fprintf(stderr, "usage: vokm_accuracy [number of matrices]\n");
        return 2;
    }
    try {
        bench::print(bench::measure<float>(count), bench::measure<double>(count));
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "vokm_accuracy: %s\n", failure.what());
        return 1;
    }
}
