// Determinant and inverse: closed forms at sizes 3 to 6, elimination at the others. Closed forms whose order of operations
// is not promised are held to a bound of their rounding error.
#include <xmmintrin.h>

#include "bounded.h"

namespace {

using namespace harness;

template <class T> T threshold(int n) { return T(int32_t(uint32_t(2) * n * n * n)) * std::numeric_limits<T>::min(); }

// The sizes without a closed form.
template <class T> struct Elimination {
    explicit Elimination(Grid<T> matrix) : w(matrix), p(w.rows), n(w.rows) { std::iota(p.begin(), p.end(), 0); }

    bool run(bool byReciprocal)
    {
        for (int k = 0; k < n - 1; ++k) {
            int best = k;
            for (int i = k + 1; i < n; ++i) {
                best = magnitude(w(p[i], k)) > magnitude(w(p[best], k)) ? i : best;
            }
            if (best != k) {
                std::swap(p[k], p[best]);
                sign = -sign;
            }
            T pivot = w(p[k], k);
            if (double(limit) > magnitude(pivot)) {
                return false;
            }
            for (int i = k + 1; i < n; ++i) {
                T factor = byReciprocal ? T(w(p[i], k) * (T(1) / pivot)) : T(w(p[i], k) / pivot);
                for (int j = k + 1; j < n; ++j) {
                    w(p[i], j) = w(p[i], j) - w(p[k], j) * factor;
                }
            }
            prod = prod * pivot;
        }
        return true;
    }
    T last() const { return w(p[n - 1], n - 1); }

    Grid<T> w;
    std::vector<int> p;
    int n;
    T limit = threshold<T>(n), prod = 1, sign = 1;
};

// Of all sets of rows, as many as there are columns: columns join from the right, rows are taken from the bottom up.
template <class V> std::vector<V> minors(const Grid<V>& a, const std::vector<int>& cols)
{
    std::vector<V> minor(size_t(1) << a.rows, V(1));
    for (int size = 1; size <= int(cols.size()); ++size) {
        for (int rows = 0; rows < int(minor.size()); ++rows) {
            if (__builtin_popcount(rows) != size) {
                continue;
            }
            V sum = 0;
            bool plus = size % 2 != 0;
            for (int r = a.rows - 1; r >= 0; --r) {
                if (rows >> r & 1) {
                    V term = a(r, cols[cols.size() - size]) * minor[rows ^ 1 << r];
                    sum = plus ? sum + term : sum - term;
                    plus = !plus;
                }
            }
            minor[rows] = sum;
        }
    }
    return minor;
}

std::vector<int> allBut(int n, int left)
{
    std::vector<int> list;
    for (int i = 0; i < n; ++i) {
        if (i != left) {
            list.push_back(i);
        }
    }
    return list;
}

template <class T> Grid<Bounded<T>> bounded(const Grid<T>& a)
{
    Grid<Bounded<T>> result(a.rows, a.cols);
    for (int r = 0; r < a.rows; ++r) {
        for (int c = 0; c < a.cols; ++c) {
            result(r, c) = a(r, c);
        }
    }
    return result;
}

struct Determinant {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        View<T> src = m.view("src"), dst = m.view("dst"), answer = m.answer("dst");
        for (int i = first; i < first + n; ++i) {
            Grid<T> a(src, i);
            if (a.rows == 3 || a.rows == 4) {
                dst.set(i, 0, a.rows == 3 ? three(a) : four(a));
            } else if (unrolled(a.rows)) {
                dst.set(i, 0, settled(byRows(bounded(a)), answer.get(i, 0)));
            } else {
                dst.set(i, 0, general(a, m.function().array));
            }
        }
        return 0;
    }

    // Rows join from the top and columns are taken from the last to the first: the minors of the matrix turned by a quarter.
    template <class V> static V byRows(const Grid<V>& a)
    {
        int n = a.rows;
        Grid<V> turned(n, n);
        for (int r = 0; r < n; ++r) {
            for (int c = 0; c < n; ++c) {
                turned(c, n - 1 - r) = a(r, c);
            }
        }
        V det = minors(turned, allBut(n, -1)).back();
        return n * (n - 1) / 2 % 2 ? V(0) - det : det;
    }

    template <class T> static T three(const Grid<T>& a)
    {
        auto minor = [&](int r, int s) { return T(a(0, r) * a(1, s) - a(1, r) * a(0, s)); };
        return (minor(0, 1) * a(2, 2) - minor(0, 2) * a(2, 1)) + minor(1, 2) * a(2, 0);
    }

    template <class T> static T four(const Grid<T>& a)
    {
        auto minor = [&](int r, int s) { return T(a(0, r) * a(1, s) - a(0, s) * a(1, r)); };
        T c3 = a(2, 2) * minor(0, 1) - a(2, 1) * minor(0, 2) + a(2, 0) * minor(1, 2);
        T c2 = a(2, 0) * minor(1, 3) - a(2, 1) * minor(0, 3) + a(2, 3) * minor(0, 1);
        T c1 = a(2, 0) * minor(2, 3) - a(2, 2) * minor(0, 3) + a(2, 3) * minor(0, 2);
        T c0 = a(2, 1) * minor(2, 3) - a(2, 2) * minor(1, 3) + a(2, 3) * minor(1, 2);
        return ((c3 * a(3, 3) - c2 * a(3, 2)) + c1 * a(3, 1)) + (0 - a(3, 0)) * c0;
    }

    // A matrix with a vanishing pivot: one alone gives 0; in an array the sign becomes 0 and the last product is formed.
    template <class T> static T general(const Grid<T>& a, bool array)
    {
        Elimination<T> e(a);
        if (!e.run(false)) {
            if (!array) {
                return 0;
            }
            e.sign = 0;
        }
        return magnitude(e.last()) > double(e.limit) ? T(e.prod * (e.last() * e.sign)) : T(0);
    }

    template <class T> static void prepareAs(Job& job, Random& random) { spoilSome<T>(job, "src", "ieezzddsn", random); }
    static void prepare(Job& job, Random& random)
    {
        job.function.isDouble ? prepareAs<double>(job, random) : prepareAs<float>(job, random);
    }
};

// Four columns at once, as the 4x4 texts in 32 bits are told.
using Four = float __attribute__((vector_size(16)));
Four adjacent(Four x) { return Four{x[1], x[0], x[3], x[2]}; }
Four halves(Four x) { return Four{x[2], x[3], x[0], x[1]}; }
Four column(const Grid<float>& a, int c) { return Four{a(0, c), a(1, c), a(2, c), a(3, c)}; }

float refinedReciprocal(float d)
{
    float r = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(d)));
    return (r + r) - d * (r * r);
}

// Row i of the inverse is m[i] / determinant, which is the result.
float cramer(const Grid<float>& a, Four (&m)[4])
{
    Four r0 = column(a, 0), r1 = halves(column(a, 1)), r2 = column(a, 2), r3 = halves(column(a, 3)), r2h = halves(r2);
    Four t1 = adjacent(r2 * r3), t2 = adjacent(r1 * r2), t3 = adjacent(halves(r1) * r3), t4 = adjacent(r0 * r1);
    Four t5 = adjacent(r0 * r3), t6 = adjacent(r2h * r0);
    Four u1 = halves(t1), u2 = halves(t2), u3 = halves(t3), u4 = halves(t4), u5 = halves(t5), u6 = halves(t6);
    m[0] = r2h * t3 + (r3 * t2 + (r1 * u1 - r1 * t1) - r3 * u2) - r2h * u3;
    Four p = r0 * m[0];
    m[1] = r3 * t6 + (r2h * u5 + (halves(u1 * r0 - r0 * t1) - r2h * t5)) - r3 * u6;
    m[2] = r1 * t5 + (r3 * u4 - (r3 * t4 + halves(u3 * r0 - r0 * t3))) - u5 * r1;
    m[3] = r1 * u6 + (r2h * t4 - halves(u2 * r0 - r0 * t2) - u4 * r2h - r1 * t6);
    return (p[0] + p[2]) + (p[1] + p[3]);
}

// Sizes 4 to 6 in 32 bits: steps of elimination on the first row, columns exchanged, down to a 4x4 rest. Of the pivot
// search's equals the highest column wins.
bool partition(Grid<float> a, int searched, double limit, Grid<Bounded<float>>& inverse)
{
    int n = a.rows, c = 0;
    if (n == 4) {
        Four m[4];
        float det = cramer(a, m), r = refinedReciprocal(det);
        for (int i = 0; i < 16; ++i) {
            inverse(i / 4, i % 4) = m[i / 4][i % 4] * r;
        }
        return !(limit > magnitude(det));
    }
    for (int j = 1; j < searched; ++j) {
        c = magnitude(a(0, j)) >= magnitude(a(0, c)) ? j : c;
    }
    float q = a(0, c), r = refinedReciprocal(q);
    Grid<float> rest(n - 1, n - 1);
    std::vector<float> l;
    for (int i = 0; i < n; ++i) {
        std::swap(a(i, 0), a(i, c));
        l.push_back(r * a(i, 0));
        for (int j = 1; j < n && i > 0; ++j) {
            rest(i - 1, j - 1) = a(i, j) - a(0, j) * l[i];
        }
    }
    Grid<Bounded<float>> s(n - 1, n - 1);
    if (limit > magnitude(q) || !partition(rest, n - 1, limit, s)) {
        return false;
    }
    const Bounded<float> none = 0;
    Bounded<float> corner;
    for (int i = 1; i < n; ++i) {
        Bounded<float> across, down;
        for (int k = 1; k < n; ++k) {
            down = down + s(i - 1, k - 1) * Bounded<float>(l[k]);
            across = across + Bounded<float>(a(0, k)) * s(k - 1, i - 1);
            inverse(i, k) = s(i - 1, k - 1);
        }
        inverse(i, 0) = none - down;
        inverse(0, i) = (none - across) * Bounded<float>(r);
        corner = corner + Bounded<float>(a(0, i)) * inverse(i, 0);
    }
    inverse(0, 0) = Bounded<float>(r) - corner * Bounded<float>(r);
    for (int j = 0; j < n; ++j) {
        std::swap(inverse(0, j), inverse(c, j));
    }
    return true;
}

template <class T> struct Inversion {
    enum Outcome { regular, singular, unclear };  // unclear: the determinant's bound holds the threshold

    explicit Inversion(const Model<T>& model)
        : m(model), src(m.view("src")), dst(m.view("dst")), answer(m.answer("dst")), n(m.size("widthHeight")),
          dense(m.kernel() == "" || m.kernel() == "_L"), single(sizeof(T) == 4),
          plainArray(m.kernel() == "" && m.function().array), limit(threshold<T>(n)), inverse(n, n)
    {
    }

    int32_t run(int first, int count)
    {
        bool pairs = inPairs(first);
        for (int i = first; i < first + count; ++i) {
            if (pairs && (i - first) % 2 == 0 && i + 1 < first + count && !(invert(i) && invert(i + 1))) {
                return -195;  // of a pair none is stored
            }
            if (!invert(i)) {
                return -195;
            }
            for (int r = 0; r < n; ++r) {
                for (int c = 0; c < n; ++c) {
                    dst.set(i, r, c, exact ? inverse(r, c).value : settled(inverse(r, c), answer.get(i, r, c)));
                }
            }
        }
        return 0;
    }

private:
    bool inPairs(int first) const
    {
        return plainArray && single && n == 4 && (src.stride1() | dst.stride1()) == 16 &&
               (src.address(first) | dst.address(first) | src.stride0() | dst.stride0()) % 16 == 0;
    }

    bool invert(int i)
    {
        Grid<T> a(src, i);
        exact = !unrolled(n) || (n == 3 && (single || !dense)) || (n == 4 && single && dense);
        if (n == 1) {
            inverse(0, 0) = T(1) / a(0, 0);
            return magnitude(a(0, 0)) > double(limit);
        }
        if (!unrolled(n)) {
            return general(a);
        }
        if (n == 3) {
            return three(a);
        }
        if constexpr (sizeof(T) == 4) {
            if (dense) {
                bool done = partition(a, n == 5 ? 4 : n, limit, inverse);
                for (int e = 0; e < (n - 4) * n && !done; ++e) {  // rows of the result that hold something of their own
                    dst.set(i, e / n, e % n, answer.get(i, e / n, e % n));
                }
                return done;
            }
        }
        Outcome outcome = laplace(bounded(a), dense && n == 4 ? 2 * double(limit) : double(limit));
        return outcome == regular || (outcome == unclear && answered(i));
    }

    bool answered(int i) const
    {
        for (int e = 0; e < n * n; ++e) {
            if (!sameBits(answer.get(i, e / n, e % n), dst.get(i, e / n, e % n))) {
                return true;
            }
        }
        return false;
    }

    bool three(const Grid<T>& a)
    {
        auto minor = [&](int r, int c) {
            int r1 = r == 0 ? 1 : 0, r2 = r == 2 ? 1 : 2, c1 = c == 0 ? 1 : 0, c2 = c == 2 ? 1 : 2;
            return T(a(r1, c1) * a(r2, c2) - a(r1, c2) * a(r2, c1));
        };
        auto cofactor = [&](int r, int c) {
            int r1 = (r + 1) % 3, r2 = (r + 2) % 3, c1 = (c + 1) % 3, c2 = (c + 2) % 3;
            return T(a(r1, c1) * a(r2, c2) - a(r1, c2) * a(r2, c1));
        };
        bool minorsOnly = !dense || (single && plainArray);
        T det;
        if (!dense) {
            det = (a(2, 0) * minor(2, 0) - a(1, 0) * minor(1, 0)) + a(0, 0) * minor(0, 0);
        } else if (minorsOnly) {
            det = (a(0, 0) * minor(0, 0) + a(2, 0) * minor(2, 0)) - a(1, 0) * minor(1, 0);
        } else if (single) {
            det = (a(1, 0) * cofactor(1, 0) + a(2, 0) * cofactor(2, 0)) + a(0, 0) * cofactor(0, 0);
        } else {
            det = (a(0, 0) * cofactor(0, 0) + a(2, 0) * cofactor(2, 0)) + a(1, 0) * cofactor(1, 0);
        }
        T r = single && !minorsOnly ? T(refinedReciprocal(float(det))) : T(1) / det;
        for (int i = 0; i < 3; ++i) {
            for (int j = 0; j < 3; ++j) {
                T entry = !minorsOnly ? cofactor(j, i) : (i + j) % 2 ? T(0 - minor(j, i)) : minor(j, i);
                inverse(i, j) = entry * r;
            }
        }
        return !(double(limit) * (dense && !single ? 2 : 1) > magnitude(det));
    }

    // At size 4 even what is multiplied with what is free: where some order may overflow, so is the result.
    bool mayOverflow(double largest) const
    {
        return !(std::pow(largest, n) * 1000 < double(std::numeric_limits<T>::max()));
    }

    static double largestOf(const Grid<Bounded<T>>& a)
    {
        double largest = 0;
        for (int r = 0; r < a.rows; ++r) {
            for (int c = 0; c < a.cols; ++c) {
                largest = std::max(largest, magnitude(a(r, c).value));
            }
        }
        return largest;
    }

    Outcome laplace(const Grid<Bounded<T>>& a, double limitOfForm)
    {
        const double largest = n == 4 ? largestOf(a) : 0;
        if (n == 4 && mayOverflow(largest)) {
            for (int e = 0; e < n * n; ++e) {
                inverse(e / n, e % n) = {0, HUGE_VAL};
            }
            return unclear;
        }
        // And any product of two elements may be lost below the smallest number.
        const double lost = 24 * largest * double(std::numeric_limits<T>::denorm_min());
        Bounded<T> det = minors(a, allBut(n, -1)).back();
        det.error += 4 * lost * largest;
        Bounded<T> r = reciprocal(det);
        for (int j = 0; j < n; ++j) {
            std::vector<Bounded<T>> minor = minors(a, allBut(n, j));
            for (int i = 0; i < n; ++i) {
                Bounded<T> entry = minor[((1 << n) - 1) ^ (1 << i)];
                entry.error += lost;
                inverse(j, i) = ((i + j) % 2 ? Bounded<T>(0) - entry : entry) * r;
            }
        }
        bool fails = limitOfForm > magnitude(det.value);
        bool surely = std::fabs(limitOfForm - magnitude(det.value)) > 2 * det.error;
        return !surely ? unclear : fails ? singular : regular;
    }

    bool general(const Grid<T>& a)
    {
        Elimination<T> whole(a);
        if (!whole.run(true)) {
            return false;
        }
        T det = whole.prod * (whole.sign * whole.last());
        if (double(limit) >= magnitude(det)) {
            return false;
        }
        T rd = T(1) / det;
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < n; ++j) {
                Grid<T> left(n - 1, n - 1);
                for (int e = 0; e < (n - 1) * (n - 1); ++e) {
                    int r = e / (n - 1), c = e % (n - 1);
                    left(r, c) = a(r + (r >= i), c + (c >= j));
                }
                Elimination<T> e(left);
                e.limit = limit;
                if (!e.run(true)) {
                    e.prod = limit;
                }
                T minor = magnitude(e.last()) > double(limit) ? T(e.prod * (e.last() * e.sign)) : limit;
                inverse(j, i) = (minor * rd) * ((i + j) % 2 ? T(-1) : T(1));
            }
        }
        return true;
    }

    const Model<T>& m;
    View<T> src, dst, answer;
    int n;
    bool dense, single, plainArray, exact = true;
    T limit;
    Grid<Bounded<T>> inverse;
};

template <class T> int32_t invert(const Model<T>& m, int first, int n) { return Inversion<T>(m).run(first, n); }

const Oracle determinant({"vokmDet_m", "vokmDet_ma"}, &Determinant::run<float>, &Determinant::run<double>, &Determinant::prepare);
const Oracle inversion({"vokmInvert_m", "vokmInvert_ma"}, &invert<float>, &invert<double>, &Determinant::prepare);

}  // namespace
