// QR decomposition by reflections, and its back substitution, where kernels differ in the order of the dot products.
#include <array>

#include "grid.h"

namespace {

using namespace harness;

int reflections(int height, int width) { return width == height ? width - 1 : width; }

struct QRDecomp {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        View<T> src = m.view("src"), dst = m.view("dst");
        for (int i = first; i < first + n; ++i) {
            Grid<T> a(src, i);
            bool done = factor(a);
            a.store(dst, i);
            if (!done) {
                return -10;
            }
        }
        return 0;
    }

    template <class T> static bool factor(Grid<T>& a)
    {
        for (int k = 0; k < reflections(a.rows, a.cols); ++k) {
            T s = 0;
            for (int i = k; i < a.rows; ++i) {
                s = s + a(i, k) * a(i, k);
            }
            if (double(std::numeric_limits<T>::epsilon()) > magnitude(s)) {
                return false;
            }
            T norm = T(std::sqrt(double(s)));
            norm = a(k, k) > 0 ? norm : 0 - norm;
            T r = T(1) / (a(k, k) + norm);
            std::vector<T> v(a.rows, T(1));
            T q = 1;
            for (int i = k + 1; i < a.rows; ++i) {
                v[i] = a(i, k) * r;
                q = q + v[i] * v[i];
            }
            T beta = T(-2) / q;
            for (int j = k; j < a.cols; ++j) {
                T t = a(k, j);
                for (int i = k + 1; i < a.rows; ++i) {
                    t = t + a(i, j) * v[i];
                }
                t = t * beta;
                for (int i = k; i < a.rows; ++i) {
                    a(i, j) = a(i, j) + v[i] * t;
                }
            }
            for (int i = k + 1; i < a.rows; ++i) {
                a(i, k) = v[i];
            }
        }
        return true;
    }

    template <class T> static void prepareAs(Job& job, Random& random)
    {
        Source<T> src(job, "src");
        for (int i = 0; i < src.objects && random() % 4 == 0; ++i) {  // columns whose head is 0 or whose rest is
            int col = int(random() % src.cols);
            src.fill(i, [&](int r, int c) { return c == col && (random() % 2 || r > c) ? T(0) : src.get(i, r, c); });
        }
        spoilSome<T>(job, "src", "iezzdsn", random);
    }
    static void prepare(Job& job, Random& random)
    {
        job.function.isDouble ? prepareAs<double>(job, random) : prepareAs<float>(job, random);
    }
};

// Rows of a step's dot product, the one before the head first. Step 0 by its rows at sizes 3 to 6, other steps by a rule.
struct Orders {
    std::array<const char*, 4> stepZero;
    bool ascending[4];
};
const Orders bottomFirst = {{"12", "312", "4123", "51234"}, {true, false, false, false}};
const Orders bottomFirstStrided = {{"12", "312", "4312", "51234"}, {true, false, false, false}};
const Orders ascending = {{"12", "123", "1234", "12345"}, {true, true, true, true}};
const Orders ascendingStrided = {{"12", "123", "3412", "51234"}, {true, true, true, true}};

struct QRBackSubst {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        View<T> src = m.view("src"), b = m.view("src2"), dst = m.view("dst");
        int width = m.size("width"), height = m.size("height");
        bool strided = m.kernel() == "_S2" || m.kernel() == "_LS2", shared = m.function().form == "mva";
        const Orders& orders = shared ? strided ? ascendingStrided : ascending : strided ? bottomFirstStrided : bottomFirst;
        for (int i = first; i < first + n; ++i) {
            Grid<T> a(src, i);
            std::vector<T> y;
            for (int r = 0; r < height; ++r) {
                y.push_back(b.get(i, r));
            }
            std::vector<T> x = width == height && unrolled(width) ? straight(a, y, orders) : general(a, y);
            for (int c = 0; c < width; ++c) {
                dst.set(i, c, x[c]);
            }
        }
        return 0;
    }

    template <class T> static std::vector<T> general(const Grid<T>& a, std::vector<T> y)
    {
        for (int k = 0; k < reflections(a.rows, a.cols); ++k) {
            T q = 1, t = y[k];
            for (int i = k + 1; i < a.rows; ++i) {
                t = t + y[i] * a(i, k);
                q = q + a(i, k) * a(i, k);
            }
            t = t * (T(-2) / q);
            y[k] = y[k] + t;
            for (int i = k + 1; i < a.rows; ++i) {
                y[i] = y[i] + a(i, k) * t;
            }
        }
        for (int i = a.cols - 1; i >= 0; --i) {
            T s = 0;
            for (int j = i + 1; j < a.cols; ++j) {
                s = s + a(i, j) * y[j];
            }
            y[i] = (y[i] - s) / a(i, i);
        }
        return y;
    }

    static std::vector<int> rowsOf(const Orders& orders, int n, int k)
    {
        std::vector<int> rows;
        if (k == 0) {
            for (const char* row = orders.stepZero[n - 3]; *row; ++row) {
                rows.push_back(*row - '0');
            }
        } else {
            for (int i = k + 1; i < n; ++i) {
                rows.push_back(orders.ascending[n - 3] ? i : i == k + 1 ? n - 1 : i - 1);
            }
        }
        return rows;
    }

    template <class T> static std::vector<T> straight(const Grid<T>& a, std::vector<T> y, const Orders& orders)
    {
        int n = a.rows;
        for (int k = 0; k < n - 1; ++k) {
            auto weighted = [&](const Orders& order, auto product, T head) {  // the head stands second
                std::vector<int> rows = rowsOf(order, n, k);
                T sum = product(rows[0]) + head;
                for (size_t at = 1; at < rows.size(); ++at) {
                    sum = sum + product(rows[at]);
                }
                return sum;
            };
            T t = weighted(
                orders, [&](int i) { return T(y[i] * a(i, k)); }, y[k]);
            T q = weighted(
                bottomFirst, [&](int i) { return T(a(i, k) * a(i, k)); }, T(1));
            t = t * (T(-2) / q);
            y[k] = y[k] + t;
            for (int i = k + 1; i < n; ++i) {
                y[i] = y[i] + a(i, k) * t;
            }
        }
        y[n - 1] = y[n - 1] / a(n - 1, n - 1);
        for (int i = n - 2; i > 0; --i) {
            for (int j = n - 1; j > i; --j) {
                y[i] = y[i] - a(i, j) * y[j];
            }
            y[i] = y[i] / a(i, i);
        }
        T sum = a(0, n - 1) * y[n - 1];
        for (int j = n - 2; j > 0; --j) {
            sum = sum + a(0, j) * y[j];
        }
        y[0] = (y[0] - sum) / a(0, 0);
        return y;
    }
};

const Oracle decomp({"vokmQRDecomp_m", "vokmQRDecomp_ma"}, &QRDecomp::run<float>, &QRDecomp::run<double>, &QRDecomp::prepare);
const Oracle backSubst(
    {"vokmQRBackSubst_mv", "vokmQRBackSubst_mva", "vokmQRBackSubst_mava"}, &QRBackSubst::run<float>, &QRBackSubst::run<double>);

}  // namespace
