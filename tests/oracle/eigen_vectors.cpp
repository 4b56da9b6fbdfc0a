// Eigenvectors of general matrices. The Schur form's bits are fixed, and with them the eigenvalues'; the arithmetic of the
// back substitution is not, so it is done here with wide numbers, and once more on a Schur form with errors of rounding
// added, which shows how far a result of the element type may be off.
#include <complex>

#include "eigen_general.h"

namespace {

using namespace harness;

using Wide = long double;
using Complex = std::complex<Wide>;
using Column = std::vector<Complex>;

enum class Exit { none, quiet, failure };  // a block system too small to solve leaves the kernel: real ones with status 0

template <class T> struct Vectors {
    Vectors(Schur<T>& form, bool leftVectors, unsigned disturbance)
        : s(form), n(form.n), left(leftVectors), t(n, n), z(n, n), columns(n, Column(n)), phase(n), repeated(n)
    {
        std::mt19937 random(disturbance);
        auto error = [&] { return disturbance ? Wide(Schur<T>::eps) * (Wide(random() % 1001) / 125 - 4) : 0; };
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < n; ++j) {
                t(i, j) = Wide(s.h(i + 1, j + 1)) * (1 + error());
                z(i, j) = Wide(s.z(i + 1, j + 1)) + error();
                largest = std::max(largest, std::fabs(t(i, j)));
            }
        }
    }

    Exit run()
    {
        for (int ki = 0; ki < n; ++ki) {
            bool pair = ki < n - 1 && linked(ki + 1);
            Exit exit = vector(ki, pair);
            if (exit != Exit::none) {
                return exit;
            }
            normalise(ki, pair);
            ki += pair;
        }
        return Exit::none;
    }

    bool linked(int k) const { return magnitude(s.h(k + 1, k)) > double(Schur<T>::safmin); }  // rows k-1 and k make a block

    Schur<T>& s;
    int n;
    bool left;
    Grid<Wide> t, z;
    std::vector<Column> columns;  // a pair's vector stands in its first column
    struct Phase {
        Wide f = 1, g = 0;  // the component that is made real, before
        Wide second = 0;    // the next largest component's share of it
    };
    std::vector<Phase> phase;
    std::vector<bool> repeated;  // another eigenvalue is as good as equal: a component may be anything over nearly nothing
    Wide largest = 0;

    // How well any unit vector solves the equation of the eigenvalue at j.
    bool solvedBy(const Column& x, int j, bool pair) const
    {
        const Complex w(s.re[j], pair ? (left ? -s.im[j] : s.im[j]) : T(0));
        Column y(n);
        for (int k = 0; k < n; ++k) {
            for (int i = 0; i < n; ++i) {
                y[k] += z(i, k) * x[i];
            }
        }
        Wide worst = 0;
        for (int i = 0; i < n; ++i) {
            Complex rest = -w * y[i];
            for (int k = 0; k < n; ++k) {
                rest += (left ? t(k, i) : t(i, k)) * y[k];
            }
            worst = std::abs(rest) <= worst ? worst : std::abs(rest);
        }
        return worst <= 100 * (n + 4) * Wide(Schur<T>::eps) * largest;
    }

private:
    // Of the eigenvalue at ki, or at ki and ki+1; right vectors fill upwards, left ones downwards with T transposed.
    Exit vector(int ki, bool pair)
    {
        const int last = ki + pair;
        const T wr = s.h(ki + 1, ki + 1);
        const Wide b = pair ? t(ki, ki + 1) : 0, c = pair ? t(ki + 1, ki) : 0;
        const T wi = pair ? rootProduct(s.h(ki + 1, ki + 2), s.h(ki + 2, ki + 1)) : T(0);
        const double smin = std::max(double(Schur<T>::eps) * (magnitude(wr) + magnitude(wi)), double(s.smlnum));
        Column x(n);
        x[ki] = 1;
        if (pair && !left) {
            bool upper = std::fabs(b) >= std::fabs(c);
            x[ki] = upper ? Wide(1) : -wi / c;
            x[ki + 1] = Complex(0, upper ? wi / b : Wide(1));
        } else if (pair) {
            bool upper = std::fabs(b) >= std::fabs(c);
            x[ki] = upper ? wi / b : Wide(1);
            x[ki + 1] = Complex(0, upper ? Wide(1) : -wi / c);
        }
        const Complex w(wr, left ? -wi : wi);
        for (int j = left ? last + 1 : ki - 1; left ? j < n : j >= 0;) {
            bool two = left ? j < n - 1 && linked(j + 1) : j > 0 && linked(j);
            int from = left || !two ? j : j - 1;
            Exit exit = solve(from, two, w, smin, x, ki, last);
            if (exit != Exit::none) {
                return exit;
            }
            j += (left ? 1 : -1) * (two ? 2 : 1);
        }
        for (int i = 0; i < n; ++i) {
            for (int k = 0; k < n; ++k) {
                columns[ki][i] += z(i, k) * x[k];
            }
        }
        return Exit::none;
    }

    // The block at `from` of (T - w) x = 0, where the rest of x between it and the eigenvalue is known.
    Exit solve(int from, bool two, Complex w, double smin, Column& x, int ki, int last)
    {
        const Wide smini = std::max(smin, double(Schur<T>::safmin2));
        auto entry = [&](int i, int j) { return left ? t(j, i) : t(i, j); };
        auto right = [&](int i) {
            Complex sum = 0;
            for (int k = left ? ki : from + (two ? 2 : 1); k < (left ? from : last + 1); ++k) {
                sum -= entry(i, k) * x[k];
            }
            return sum;
        };
        auto size = [](Complex v) { return std::fabs(v.real()) + std::fabs(v.imag()); };
        auto atLeast = [&](Complex v) {
            repeated[ki] = repeated[ki] || size(v) <= 64 * Wide(Schur<T>::eps) * largest;
            return size(v) < smini ? Complex(smini) : v;
        };
        if (!two) {
            x[from] = right(from) / atLeast(entry(from, from) - w);
            return Exit::none;
        }
        Complex a[2][2], b[2] = {right(from), right(from + 1)};
        int r = 0, c = 0;
        for (int at : {0, 2, 1, 3}) {  // down the columns, as the largest is sought
            int i = at / 2, j = at % 2;
            a[i][j] = entry(from + i, from + j) - (i == j ? w : Complex(0));
            if (size(a[i][j]) > size(a[r][c])) {
                r = i;
                c = j;
            }
        }
        if (size(a[r][c]) < smini) {
            return w.imag() == 0 ? Exit::quiet : Exit::failure;
        }
        Complex factor = a[1 - r][c] / a[r][c], rest = atLeast(a[1 - r][1 - c] - factor * a[r][1 - c]);
        x[from + 1 - c] = (b[1 - r] - factor * b[r]) / rest;
        x[from + c] = (b[r] - a[r][1 - c] * x[from + 1 - c]) / a[r][c];
        return Exit::none;
    }

    void normalise(int ki, bool pair)
    {
        Column& x = columns[ki];
        Wide squares = 0;
        int k = 0;
        for (int i = 0; i < n; ++i) {
            squares += std::norm(x[i]);
            k = std::norm(x[i]) > std::norm(x[k]) ? i : k;
        }
        for (Complex& entry : x) {
            entry /= std::sqrt(squares);
        }
        if (!pair) {
            return;
        }
        phase[ki].f = x[k].real();
        phase[ki].g = x[k].imag();
        Wide length = std::abs(x[k]), f = phase[ki].f, g = phase[ki].g;
        Complex turn = std::conj(x[k]) / length;
        for (int i = 0; i < n; ++i) {
            phase[ki].second = i == k ? phase[ki].second : std::max(phase[ki].second, std::abs(x[i]) / length);
        }
        for (Complex& entry : x) {
            entry *= std::fabs(f) > std::fabs(g) && f < 0 ? -turn : turn;
        }
    }
};

template <class T> class Family {
public:
    explicit Family(const Model<T>& model) : m(model) {}

    int32_t run(int first, int count)
    {
        bool both = m.function().family == "vokmEigenValuesVectors", left = m.function().family == "vokmEigenValuesVectorsLeft";
        for (int i = first; i < first + count; ++i) {
            Schur<T> schur(Grid<T>(m.view("src"), i), true);
            int32_t status = schur.run();
            schur.storeValues(m, i);
            if (status != 0) {
                return status;
            }
            std::vector<std::pair<std::string, bool>> results = {{"dst", left}};
            if (both) {
                results = {{"dstRight", false}, {"dstLeft", true}};
            }
            std::vector<Vectors<T>> wanted;
            for (auto& [name, isLeft] : results) {
                Exit exit = wanted.emplace_back(schur, isLeft, 0).run();
                if (exit != Exit::none) {
                    return exit == Exit::quiet ? 0 : -2;
                }
            }
            for (size_t at = 0; at < results.size(); ++at) {
                settle(schur, wanted[at], i, results[at].first, ordinary(Grid<T>(m.view("src"), i)));
            }
        }
        return 0;
    }

private:
    // Whether no entry is far from 1: only then the element type's range plays no part in the vectors.
    static bool ordinary(const Grid<T>& a)
    {
        bool all = true;
        for (int at = 0; at < a.rows * a.cols; ++at) {
            T entry = a(at / a.cols, at % a.cols);
            all = all && (entry == 0 || (std::fabs(entry) < T(1e6) && std::fabs(entry) > T(1e-6)));
        }
        return all;
    }

    void settle(Schur<T>& schur, const Vectors<T>& wanted, int object, const std::string& name, bool judged)
    {
        View<T> dst = m.view(name), answer = m.answer(name);
        std::vector<Vectors<T>> others;  // made when they are needed
        for (int j = 0; j < schur.n; ++j) {
            bool pair = j < schur.n - 1 && wanted.linked(j + 1);
            Column got(schur.n);
            for (int i = 0; i < schur.n; ++i) {
                got[i] = Complex(answer.get(object, i, j), pair ? answer.get(object, i, j + 1) : T(0));
            }
            bool right = !judged || agrees(wanted, j, pair, got, 0);
            for (unsigned disturbance = 1; disturbance <= 3 && !right; ++disturbance) {
                if (others.size() < disturbance) {
                    others.emplace_back(schur, wanted.left, disturbance).run();
                }
                Wide apart = between(wanted.columns[j], others[disturbance - 1].columns[j], pair);
                right = !std::isfinite(apart) || agrees(wanted, j, pair, got, apart);
            }
            right = right || (wanted.repeated[j] && isUnit(got) && wanted.solvedBy(got, j, pair));
            for (int i = 0; i < schur.n; ++i) {
                Complex value = right ? got[i] : wanted.columns[j][i];
                dst.set(object, i, j, T(value.real()));
                if (pair) {
                    dst.set(object, i, j + 1, T(value.imag()));
                }
            }
            j += pair;
        }
    }

    static Wide distance(const Column& a, const Column& b, Complex turn = 1)
    {
        Wide largest = 0;
        for (size_t i = 0; i < a.size(); ++i) {
            Wide apart = std::abs(a[i] - b[i] * turn);
            largest = apart <= largest ? largest : apart;  // also if it is not a number
        }
        return largest;
    }

    static Complex turnBetween(const Column& a, const Column& b)
    {
        Complex inner = 0;
        for (size_t i = 0; i < a.size(); ++i) {
            inner += a[i] * std::conj(b[i]);
        }
        return inner / std::abs(inner);
    }

    static Wide between(const Column& a, const Column& b, bool pair)
    {
        return pair ? distance(a, b, turnBetween(a, b)) : distance(a, b);
    }

    static bool isUnit(const Column& x)
    {
        Wide norm = 0;
        for (const Complex& entry : x) {
            norm += std::norm(entry);
        }
        return std::fabs(norm - 1) <= 64 * Wide(Schur<T>::eps) * Wide(x.size() + 4);
    }

    // `apart` is how far errors of rounding take the vector.
    static bool agrees(const Vectors<T>& wanted, int j, bool pair, const Column& got, Wide apart)
    {
        const Column& x = wanted.columns[j];
        const Wide floor = 64 * Wide(Schur<T>::eps) * (wanted.n + 4), error = 200 * apart + floor;
        Wide doubt = 0;
        if (!isUnit(got)) {
            return false;
        }
        if (pair) {  // which component is made real, and its sign, may hang on rounding
            const auto& p = wanted.phase[j];
            doubt = std::max(p.second, 1 - std::fabs(std::fabs(p.f) - std::fabs(p.g)) / std::hypot(p.f, p.g));
        }
        bool direct = distance(x, got) <= error;
        return direct || (pair && doubt > 1 - error - 0.001L && distance(x, got, turnBetween(x, got)) <= error);
    }

    const Model<T>& m;
};

template <class T> int32_t evaluate(const Model<T>& m, int first, int n) { return Family<T>(m).run(first, n); }

const Oracle vectors({"vokmEigenValuesVectors_m", "vokmEigenValuesVectors_ma", "vokmEigenValuesVectorsRight_m",
                         "vokmEigenValuesVectorsRight_ma", "vokmEigenValuesVectorsLeft_m", "vokmEigenValuesVectorsLeft_ma"},
    &evaluate<float>, &evaluate<double>, &prepareGeneral);

}  // namespace
