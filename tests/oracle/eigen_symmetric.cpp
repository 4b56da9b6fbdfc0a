// Symmetric eigenproblems: reflections to tridiagonal form, then one of two iterations, as they are told step by step. The
// early exits, the fixed elements that they clear and the tests of the product are part of the results.
#include "grid.h"

namespace {

using namespace harness;

template <class T> T root(T value) { return T(std::sqrt(double(value))); }

template <class T> struct Symmetric {
    Symmetric(const Model<T>& model, int i)
        : m(model), n(m.size("widthHeight")), object(i), vectors(m.function().family == "vokmEigenValuesVectorsSym"),
          out(m.view(vectors ? "dstValues" : "dst")), a(m.view("src"), i), v(n, n)
    {
        for (int k = 0; k < n; ++k) {
            values.push_back(out.get(i, k));
            v(k, k) = 1;
        }
        bool listed = vectors && single && m.kernel() == "_L";
        reductionEps = listed ? T(std::numeric_limits<double>::epsilon()) : eps;
    }

    int32_t run()
    {
        int32_t status = n == 1 ? one() : n == 2 ? two() : many();
        if (n == 2 && status != 0) {
            return status;  // nothing is stored
        }
        for (int k = 0; k < n; ++k) {
            out.set(object, k, values[k]);
        }
        if (vectors) {
            v.store(m.view("dstVectors"), object);
        }
        return status;
    }

private:
    int32_t one()
    {
        values[0] = a(0, 0);
        return 0;
    }

    int32_t two()
    {
        T p = a(0, 0), b = a(0, 1), d = a(1, 1), det = p * d - b * b;
        bool lenient = !vectors && single && m.function().array && m.kernel() == "";
        if (magnitude(det) <= (lenient ? std::numeric_limits<double>::epsilon() : double(eps))) {
            return -195;
        }
        T disc = root(T((p - d) * (p - d) + (2 * b) * (2 * b))), t = p + d;
        bool ordered = t > eps || t < -eps;
        values[0] = T(0.5) * (t > eps ? t + disc : t < -eps ? t - disc : disc);
        values[1] = ordered ? T(det / values[0]) : T(T(-0.5) * disc);
        T df = p - d, tb = 2 * b, cs = df < -eps ? df - disc : df + disc, c = 1, s = 0;
        if (magnitude(cs) > magnitude(tb)) {
            T ct = -tb / cs;
            s = T(1.0 / std::sqrt(1.0 + double(T(ct * ct))));
            c = ct * s;
        } else if (!(magnitude(tb) <= double(eps))) {
            T tn = -cs / tb;
            c = T(1.0 / std::sqrt(1.0 + double(T(tn * tn))));
            s = tn * c;
        }
        if ((t < -eps) == (df < -eps)) {
            std::swap(c, s);
            c = -c;
        }
        v(0, 0) = c;
        v(1, 0) = s;
        v(0, 1) = -s;
        v(1, 1) = c;
        return 0;
    }

    int32_t many()
    {
        reduce();
        bool converged = magnitude(a(n - 1, n - 1)) > magnitude(a(0, 0)) ? leftwards() : rightwards();
        if (!converged) {
            return -205;
        }
        if (!vectors) {
            if (magnitude(product) <= double(eps)) {
                return -195;
            }
            sort();
            return 0;
        }
        bool array = m.function().array, wide = array || !single, sortFirst = !array && !(single && m.kernel() == "_S2");
        double wideProduct = 1;
        product = 1;
        for (int i = 0; i < n; ++i) {
            values[i] = d(i);
            wideProduct = wideProduct * double(d(i));
            product = product * d(i);
        }
        if (sortFirst) {
            sort();
        }
        double threshold = array ? double(std::numeric_limits<float>::epsilon()) : double(eps);
        if (std::fabs(wide ? wideProduct : double(product)) <= threshold) {
            return -195;
        }
        if (!sortFirst) {
            sort();
        }
        return 0;
    }

    T& d(int i) { return a(i, i); }
    T& e(int i) { return a(i + 1, i); }

    void reduce()
    {
        std::vector<T>& u = values;
        for (int k = 0; k < n - 2; ++k) {
            T sigma = 0, x = a(k + 1, k), h, tiny = reductionEps;
            for (int i = k + 1; i < n; ++i) {
                sigma = sigma + a(i, k) * a(i, k);
            }
            T alpha = root(sigma);
            if (vectors && magnitude(T(alpha - x)) <= double(tiny)) {
                continue;
            }
            for (int i = k + 2; i < n; ++i) {
                u[i] = a(i, k);
            }
            if (x > tiny) {
                u[k + 1] = x + alpha;
                h = 2 * (sigma + alpha * x);
            } else if (magnitude(x) <= double(tiny)) {
                u[k + 1] = alpha;
                h = sigma + sigma;
            } else {
                u[k + 1] = x - alpha;
                h = 2 * (sigma - alpha * x);
            }
            if (h <= tiny) {
                continue;
            }
            reflect(k, u, 2 / h);
        }
    }

    // From the left column by column, then from the right row by row, each with the matrix taken as full.
    void reflect(int k, const std::vector<T>& u, T beta)
    {
        for (int j = k; j < n; ++j) {
            T s = 0;
            for (int i = k + 1; i < n; ++i) {
                s = s + a(i, j) * u[i];
            }
            s = s * beta;
            for (int i = k + 1; i < n; ++i) {
                a(i, j) = a(i, j) - u[i] * s;
            }
        }
        auto fromTheRight = [&](Grid<T>& matrix, int firstRow) {
            for (int r = firstRow; r < n; ++r) {
                T s = 0;
                for (int j = k + 1; j < n; ++j) {
                    s = s + matrix(r, j) * u[j];
                }
                s = s * beta;
                for (int j = k + 1; j < n; ++j) {
                    matrix(r, j) = matrix(r, j) - u[j] * s;
                }
            }
        };
        fromTheRight(a, k);
        if (k > 0) {
            fromTheRight(v, 1);
            return;
        }
        for (int i = 1; i < n; ++i) {
            v(i, i) = 1 - (beta * u[i]) * u[i];
            for (int j = i + 1; j < n; ++j) {
                v(i, j) = v(j, i) = ((-beta) * u[i]) * u[j];
            }
        }
    }

    bool small(T value) const { return magnitude(value) <= double(eps); }

    T shift(T g, T difference, T next, bool wideSum)
    {
        T square = g * g, r = wideSum ? T(std::sqrt(double(square) + 1.0)) : root(T(square + 1));
        return g > eps ? T(difference + next / (g + r)) : T(difference + next / (g - r));
    }

    void rotate(int i, T c, T s, bool up)  // columns i and i+1
    {
        for (int r = 0; r < n; ++r) {
            T p1 = v(r, i), p2 = v(r, i + 1);
            v(r, i) = up ? c * p1 - s * p2 : c * p1 + s * p2;
            v(r, i + 1) = up ? s * p1 + c * p2 : c * p2 - s * p1;
        }
    }

    bool leftwards()
    {
        bool wideSum = single && !vectors && !m.function().array && m.kernel() == "";
        for (int l = 0; l < n; ++l) {
            for (int counter = 0;; ++counter) {
                int end = l, i;
                while (end < n - 1 && magnitude(T(T(0.5) * e(end))) > double(eps)) {
                    ++end;
                }
                if (end == l) {
                    break;
                }
                if (counter == 30) {
                    return false;
                }
                T g = shift((d(l + 1) - d(l)) / (2 * e(l)), d(end) - d(l), e(l), wideSum), r = 0, s = 1, c = 1, p = 0;
                for (i = end - 1; i >= l; --i) {
                    T f = s * e(i), b = c * e(i);
                    r = root(T(f * f + g * g));
                    if (i != end - 1) {
                        e(i + 1) = r;
                    }
                    if (small(r)) {
                        d(i + 1) = d(i + 1) - p;
                        e(end - 1) = 0;
                        break;
                    }
                    s = f / r;
                    c = g / r;
                    rotate(i, c, s, true);
                    g = d(i + 1) - p;
                    r = (d(i) - g) * s + (c + c) * b;
                    p = s * r;
                    d(i + 1) = g + p;
                    g = c * r - b;
                }
                if (i < l && !(small(r) && l > 0)) {
                    d(l) = d(l) - p;
                    e(l) = g;
                }
            }
        }
        for (int i = 0; i < n; ++i) {
            record(i);
        }
        return true;
    }

    void record(int i)
    {
        if (!vectors) {
            values[i] = d(i);
            product = product * d(i);
        }
    }

    bool rightwards()
    {
        for (int l = n - 1; l > 0; --l) {
            for (int counter = 0;; ++counter) {
                int start = l, i;
                for (; start > 0; --start) {
                    if (magnitude(T(T(0.5) * e(start - 1))) <= double(eps)) {
                        record(start);
                        break;
                    }
                }
                if (start == l) {
                    break;
                }
                if (counter == 30) {
                    return false;
                }
                T g = shift((d(l - 1) - d(l)) / (2 * e(l - 1)), d(start) - d(l), e(l - 1), false), r = 0, s = 1, c = 1, p = 0;
                for (i = start; i < l; ++i) {
                    T f = s * e(i), b = c * e(i);
                    r = root(T(f * f + g * g));
                    if (i != start) {
                        e(i - 1) = r;
                    }
                    if (small(r)) {
                        d(i) = d(i) - p;
                        e(start) = 0;
                        break;
                    }
                    s = f / r;
                    c = g / r;
                    rotate(i, c, s, false);
                    g = d(i) - p;
                    r = (d(i + 1) - g) * s + (c + c) * b;
                    p = s * r;
                    d(i) = g + p;
                    g = c * r - b;
                }
                if (i == l && magnitude(r) > double(eps)) {
                    d(l) = d(l) - p;
                    e(l - 1) = g;
                }
            }
        }
        record(0);
        return true;
    }

    void sort()
    {
        for (int i = 0; i < n - 1; ++i) {
            int largest = i + 1;
            for (int j = i + 2; j < n; ++j) {
                largest = values[j] > values[largest] ? j : largest;
            }
            if (values[largest] > values[i]) {
                std::swap(values[i], values[largest]);
                for (int r = 0; r < n; ++r) {
                    std::swap(v(r, i), v(r, largest));
                }
            }
        }
    }

    const Model<T>& m;
    int n, object;
    bool vectors;
    View<T> out;
    Grid<T> a, v;
    std::vector<T> values;  // the results; during the reduction the reflector
    static constexpr bool single = sizeof(T) == 4;
    static constexpr T eps = std::numeric_limits<T>::epsilon();
    T reductionEps = eps, product = 1;
};

template <class T> int32_t evaluate(const Model<T>& m, int first, int n)
{
    for (int i = first; i < first + n; ++i) {
        if (int32_t status = Symmetric<T>(m, i).run()) {
            return status;
        }
    }
    return 0;
}

template <class T> void prepareAs(Job& job, Random& random)
{
    spoilSome<T>(job, "src", "iiezdsnut", random);
    Source<T> src(job, "src");
    for (int i = 0; i < src.objects && random() % 8; ++i) {
        src.fill(i, [&](int r, int c) { return src.get(i, std::max(r, c), std::min(r, c)); });
    }
}

void prepare(Job& job, Random& random) { job.function.isDouble ? prepareAs<double>(job, random) : prepareAs<float>(job, random); }

const Oracle symmetric(
    {"vokmEigenValuesSym_m", "vokmEigenValuesSym_ma", "vokmEigenValuesVectorsSym_m", "vokmEigenValuesVectorsSym_ma"},
    &evaluate<float>, &evaluate<double>, &prepare);

}  // namespace
