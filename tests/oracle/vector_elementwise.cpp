// Each result element is one or two roundings, so only the reading of overlapping operands tells the kernels apart: objects
// and elements ascend, and a single vector is read once before the first object where the kernel has straight code.
#include <vector>

#include "../harness/job.h"

namespace {

using namespace harness;

template <class T> class Source {
public:
    Source(const Model<T>& m, const std::string& name, bool readOnce, int first) : view(m.view(name))
    {
        if (readOnce && !m.function().arg(name).array) {
            for (int c = 0; c < view.cols(); ++c) {
                kept.push_back(view.get(first, c));
            }
        }
    }
    T get(int i, int j) const { return kept.empty() ? view.get(i, j) : kept[j]; }

private:
    View<T> view;
    std::vector<T> kept;
};

template <class T, class Combine> int32_t walk(const Model<T>& m, int first, int n, bool straight, Combine combine)
{
    View<T> dst = m.view("dst");
    int length = dst.cols();
    for (int i = first; i < first + n; ++i) {
        std::vector<T> whole(length);
        for (int j = 0; j < length; ++j) {
            whole[j] = combine(i, j);
            if (!straight) {
                dst.set(i, j, whole[j]);
            }
        }
        for (int j = 0; straight && j < length; ++j) {
            dst.set(i, j, whole[j]);
        }
    }
    return 0;
}

bool smallLength(int length) { return length >= 3 && length <= 6; }

template <class T> T apply(const std::string& family, T a, T b)
{
    return family == "vokmAdd" ? a + b : family == "vokmSub" ? a - b : a * b;
}

struct Pair {  // Add and Sub of two vectors
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        bool straight = smallLength(m.size("length")) && (m.kernel() == "" || m.kernel() == "_S2" || m.kernel() == "_L");
        Source<T> a(m, "src1", straight, first), b(m, "src2", straight, first);
        return walk(m, first, n, straight, [&](int i, int j) { return apply(m.function().family, a.get(i, j), b.get(i, j)); });
    }
};

struct WithConstant {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        const Function& f = m.function();
        Source<T> src(m, "src", false, first);
        bool byValue = f.arg("val").kind == ArgKind::real, constantFirst = f.form[0] == 'c';
        return walk(m, first, n, false, [&](int i, int j) {
            T val = byValue ? m.real("val") : m.view("val").get(i, 0), x = src.get(i, j);
            return constantFirst ? apply(f.family, val, x) : apply(f.family, x, val);
        });
    }
};

struct Saxpy {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        bool straight = smallLength(m.size("length"));
        Source<T> a(m, "src1", straight, first), b(m, "src2", straight, first);
        T val = m.real("val");
        return walk(m, first, n, straight, [&](int i, int j) {
            T product = a.get(i, j) * val;
            return T(product + b.get(i, j));
        });
    }
};

struct LComb {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        bool straight = smallLength(m.size("length"));
        Source<T> a(m, "src1", straight, first), b(m, "src2", straight, first);
        T val1 = m.real("val1"), val2 = m.real("val2");
        return walk(m, first, n, straight, [&](int i, int j) {
            T one = a.get(i, j) * val1, two = b.get(i, j) * val2;
            return T(one + two);
        });
    }
};

struct Cross {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        Source<T> a(m, "src1", true, first), b(m, "src2", true, first);
        return walk(m, first, n, true, [&](int i, int j) {
            int k = (j + 1) % 3, l = (j + 2) % 3;
            T one = a.get(i, k) * b.get(i, l), two = a.get(i, l) * b.get(i, k);
            return T(one - two);
        });
    }
};

const Oracle pairs({"vokmAdd_vv", "vokmAdd_vav", "vokmAdd_vava", "vokmSub_vv", "vokmSub_vav", "vokmSub_vva", "vokmSub_vava"},
    &Pair::run<float>, &Pair::run<double>);
const Oracle constants(
    {"vokmAdd_vc", "vokmAdd_vac", "vokmAdd_vca", "vokmAdd_vaca", "vokmSub_vc", "vokmSub_vac", "vokmSub_vca", "vokmSub_vaca",
        "vokmSub_cv", "vokmSub_cva", "vokmSub_cav", "vokmSub_cava", "vokmMul_vc", "vokmMul_vac", "vokmMul_vca", "vokmMul_vaca"},
    &WithConstant::run<float>, &WithConstant::run<double>);
const Oracle saxpy({"vokmSaxpy_vv", "vokmSaxpy_vav", "vokmSaxpy_vva", "vokmSaxpy_vava"}, &Saxpy::run<float>, &Saxpy::run<double>);
const Oracle combinations({"vokmLComb_vv", "vokmLComb_vav", "vokmLComb_vava"}, &LComb::run<float>, &LComb::run<double>);
const Oracle cross({"vokmCrossProduct_vv", "vokmCrossProduct_vav", "vokmCrossProduct_vva", "vokmCrossProduct_vava"},
    &Cross::run<float>, &Cross::run<double>);

}  // namespace
