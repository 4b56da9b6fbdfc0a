// LU decomposition and back substitution: the small sizes and the others are two texts with results of their own.
#include <algorithm>

#include "grid.h"

namespace {

using namespace harness;

struct LUDecomp {
    template <class T> static bool vanishes(T pivot, int n)
    {
        using Limits = std::numeric_limits<T>;
        return unrolled(n) ? 2 * double(Limits::min()) > magnitude(pivot) : double(Limits::epsilon()) >= magnitude(pivot);
    }

    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        View<T> src = m.view("src"), dst = m.view("dst");
        View<int32_t> pivot = m.indices("pivot");
        for (int i = first; i < first + n; ++i) {
            Grid<T> w(src, i);
            std::vector<int> p(w.rows);
            std::iota(p.begin(), p.end(), 0);
            bool regular = eliminate(w, p, [&](int row) { w.storeRow(dst, i, row); });
            for (int k = 0; k < w.rows; ++k) {
                pivot.set(i, k, p[k]);
            }
            if (!unrolled(w.rows)) {
                w.store(dst, i);
            }
            if (!regular) {
                return -195;
            }
        }
        return 0;
    }

    template <class T, class Store> static bool eliminate(Grid<T>& w, std::vector<int>& p, Store storeRow)
    {
        int n = w.rows;
        for (int k = 0; k < n; ++k) {
            int best = k;
            for (int i = k + 1; i < n; ++i) {
                best = magnitude(w(p[i], k)) > magnitude(w(p[best], k)) ? i : best;
            }
            bool fails = vanishes(w(p[best], k), n);
            if (!fails || unrolled(n)) {
                std::swap(p[k], p[best]);
            }
            if (fails) {
                return false;
            }
            if (unrolled(n)) {
                storeRow(p[k]);
            }
            T r = T(1) / w(p[k], k);
            for (int i = k + 1; i < n; ++i) {
                w(p[i], k) = w(p[i], k) * r;
                for (int j = k + 1; j < n; ++j) {
                    T product = w(p[i], k) * w(p[k], j);
                    w(p[i], j) = w(p[i], j) - product;
                }
            }
        }
        return true;
    }

    template <class T> static void prepareAs(Job& job, Random& random) { spoilSome<T>(job, "src", "ieezzddsn", random); }
    static void prepare(Job& job, Random& random)
    {
        job.function.isDouble ? prepareAs<double>(job, random) : prepareAs<float>(job, random);
    }
};

struct LUBackSubst {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        View<T> src = m.view("src"), b = m.view("src2"), dst = m.view("dst");
        View<int32_t> pivot = m.indices("pivot");
        int size = m.size("widthHeight");
        for (int i = first; i < first + n; ++i) {
            int matrix = m.function().form == "mva" ? 0 : i;
            auto p = [&](int k) { return pivot.get(matrix, k); };
            auto a = [&](int r, int c) { return src.get(matrix, p(r), c); };
            auto right = [&](int r) { return b.get(i, p(r)); };
            if (unrolled(size)) {
                straight<T>(size, a, right, dst, i);
            } else {
                general<T>(size, a, right, dst, i);
            }
        }
        return 0;
    }

    // One product after the other is subtracted: forward column 0 comes last, backward the columns descend.
    template <class T, class Factor, class Right> static void straight(int n, Factor a, Right b, View<T> dst, int object)
    {
        std::vector<T> y;
        for (int i = 0; i < n; ++i) {
            T t = b(i);
            for (int j = 1; j < i; ++j) {
                t = t - a(i, j) * y[j];
            }
            y.push_back(i > 0 ? T(t - a(i, 0) * y[0]) : t);
        }
        for (int i = n - 1; i >= 0; --i) {
            for (int j = n - 1; j > i; --j) {
                y[i] = y[i] - a(i, j) * y[j];
            }
            y[i] = y[i] * (T(1) / a(i, i));
        }
        for (int i = 0; i < n; ++i) {
            dst.set(object, i, y[i]);
        }
    }

    // The sum is formed from 0 and subtracted once; the result is the working memory.
    template <class T, class Factor, class Right> static void general(int n, Factor a, Right b, View<T> dst, int object)
    {
        auto sum = [&](int i, int from, int to) {
            T s = 0;
            for (int j = from; j < to; ++j) {
                s = s + a(i, j) * dst.get(object, j);
            }
            return s;
        };
        dst.set(object, 0, b(0));
        for (int i = 1; i < n; ++i) {
            dst.set(object, i, b(i) - sum(i, 0, i));
        }
        dst.set(object, n - 1, dst.get(object, n - 1) / a(n - 1, n - 1));
        for (int i = n - 2; i >= 0; --i) {
            dst.set(object, i, (dst.get(object, i) - sum(i, i + 1, n)) / a(i, i));
        }
    }

    // Any matrix serves as a factor; pivots have to be permutations.
    static void prepare(Job& job, Random& random)
    {
        int n = job.operands.at("pivot").shape.cols;
        std::vector<int32_t> p(n);
        std::iota(p.begin(), p.end(), 0);
        for (int i = 0; i < job.operands.at("pivot").shape.objects; ++i) {
            std::shuffle(p.begin(), p.end(), random);
            for (int k = 0; k < n; ++k) {
                job.put<int32_t>("pivot", i, 0, k, p[k]);
            }
        }
    }
};

const Oracle decomp({"vokmLUDecomp_m", "vokmLUDecomp_ma"}, &LUDecomp::run<float>, &LUDecomp::run<double>, &LUDecomp::prepare);
const Oracle backSubst({"vokmLUBackSubst_mv", "vokmLUBackSubst_mva", "vokmLUBackSubst_mava"}, &LUBackSubst::run<float>,
    &LUBackSubst::run<double>, &LUBackSubst::prepare);

}  // namespace
