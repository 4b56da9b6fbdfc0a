// Cholesky decomposition, with reciprocals on the diagonal, and its back substitution.
#include <array>

#include "grid.h"

namespace {

using namespace harness;

struct CholeskyDecomp {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        View<T> src = m.view("src"), dst = m.view("dst");
        for (int i = first; i < first + n; ++i) {
            if (!factor(src, dst, i, m.size("widthHeight"), m.kernel() == "_P")) {
                return -179;
            }
        }
        return 0;
    }

    template <class T> static bool factor(View<T> src, View<T> dst, int object, int n, bool table)
    {
        bool rowAfterTest = table && unrolled(n);
        const T threshold = table && n == 3 ? T(1.1920928955078125e-07) : T(0);
        Grid<T> l(n, n);
        for (int i = 0; i < n; ++i) {
            auto less = [&](int j) {  // a(i,j) less the products of what stands left of it
                T t = src.get(object, i, j);
                for (int k = 0; k < j; ++k) {
                    t = t - l(i, k) * l(j, k);
                }
                return t;
            };
            auto storeLeft = [&] {
                for (int j = 0; j < i; ++j) {
                    dst.set(object, i, j, l(i, j));
                }
            };
            for (int j = 0; j < i; ++j) {
                l(i, j) = less(j) * l(j, j);
            }
            T t = less(i);
            if (!rowAfterTest) {
                storeLeft();
            }
            if (threshold >= t) {
                return false;
            }
            storeLeft();
            double root = std::sqrt(double(t));
            l(i, i) = table && !unrolled(n) ? T(1) / T(root) : T(1.0 / root);
            dst.set(object, i, i, l(i, i));
        }
        return true;
    }

    // Mostly positive definite, some with a pivot at the edge or below it; what stands above the diagonal is arbitrary.
    template <class T> static void prepareAs(Job& job, Random& random)
    {
        Source<T> src(job, "src");
        if (job.plan.values != Values::ordinary && random() % 2) {
            return;
        }
        for (int i = 0; i < src.objects; ++i) {
            for (int r = 0; r < src.rows; ++r) {
                T sum = 1;
                for (int c = 0; c < src.cols; ++c) {
                    sum += std::fabs(r > c ? src.get(i, r, c) : r < c ? src.get(i, c, r) : T(0));
                }
                src.put(i, r, r, sum);
            }
            if (random() % (src.objects > 50 ? 100 : 8) == 0) {
                int row = int(random() % src.rows);
                if (random() % 2) {
                    src.put(i, row, row, -src.get(i, row, row));
                } else {
                    src.spoil(i, 'd', random);
                }
            }
        }
        spoilSome<T>(job, "src", "ids", random);
    }
    static void prepare(Job& job, Random& random)
    {
        job.function.isDouble ? prepareAs<double>(job, random) : prepareAs<float>(job, random);
    }
};

// The one kernel whose products go in another order on the way back: rows from n-2 up to 0, columns in their order.
const std::array<std::vector<const char*>, 3> ownOrders = {
    {{"3", "23", "213"}, {"4", "34", "234", "2134"}, {"5", "54", "534", "5234", "52134"}}};

struct CholeskyBackSubst {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        View<T> a = m.view("src"), b = m.view("src2"), dst = m.view("dst");
        int size = m.size("widthHeight");
        bool ownOrder = m.function().form == "mv" && m.kernel() == "" && sizeof(T) == 4 && size >= 4 && size <= 6;
        for (int i = first; i < first + n; ++i) {
            std::vector<T> y;
            for (int r = 0; r < size; ++r) {
                T t = b.get(i, r);
                for (int j = 0; j < r; ++j) {
                    t = t - a.get(i, r, j) * y[j];
                }
                y.push_back(t * a.get(i, r, r));
            }
            y[size - 1] = y[size - 1] * a.get(i, size - 1, size - 1);
            for (int r = size - 2; r >= 0; --r) {
                T t = y[r];
                for (int at = 0; at < size - 1 - r; ++at) {
                    int j = ownOrder ? ownOrders[size - 4][size - 2 - r][at] - '0' : size - 1 - at;
                    t = t - a.get(i, j, r) * y[j];
                }
                y[r] = t * a.get(i, r, r);
            }
            for (int r = 0; r < size; ++r) {
                dst.set(i, r, y[r]);
            }
        }
        return 0;
    }
};

const Oracle decomp({"vokmCholeskyDecomp_m", "vokmCholeskyDecomp_ma"}, &CholeskyDecomp::run<float>, &CholeskyDecomp::run<double>,
    &CholeskyDecomp::prepare);
const Oracle backSubst({"vokmCholeskyBackSubst_mv", "vokmCholeskyBackSubst_mva", "vokmCholeskyBackSubst_mava"},
    &CholeskyBackSubst::run<float>, &CholeskyBackSubst::run<double>);

}  // namespace
