// Properties of the direct solvers that no order of operations decides: equations solved, objects of an array alike and
// independent, failures that leave memory alone, promised overlaps.
#include <cmath>
#include <limits>
#include <random>

#include <vokm>

#include "harness/dense.h"
#include "harness/groups.h"
#include "harness/patterns.h"
#include "harness/promises.h"

using namespace harness;

namespace {

template <class T> class Solvers : public testing::Test {
protected:
    using Sizes = std::map<std::string, int32_t>;
    static constexpr double eps = double(std::numeric_limits<T>::epsilon());

    // Symmetric and diagonally dominant, so that every solver takes it.
    void fillDefinite(T* a, int n)
    {
        for (int r = 0; r < n; ++r) {
            for (int c = 0; c < r; ++c) {
                a[r * n + c] = a[c * n + r] = T(uniform(random));
            }
            a[r * n + r] = T(n + uniform(random));
        }
    }

    void expectSolved(const T* a, const T* x, const T* b, int n, const std::string& what)
    {
        for (int r = 0; r < n; ++r) {
            double rest = double(b[r]);
            for (int c = 0; c < n; ++c) {
                rest -= double(a[r * n + c]) * double(x[c]);
            }
            EXPECT_LE(std::fabs(rest), 40 * n * eps) << what << " n " << n << " row " << r;
        }
    }

    // Applies the reflection along a random direction to the rows, or to the columns.
    static void reflect(double* a, int n, const std::vector<double>& v, int step, int across)
    {
        double square = 0;
        for (double x : v) {
            square += x * x;
        }
        for (int j = 0; j < n; ++j) {
            double inner = 0;
            for (int i = 0; i < n; ++i) {
                inner += v[i] * a[i * step + j * across];
            }
            for (int i = 0; i < n; ++i) {
                a[i * step + j * across] -= 2 * inner / square * v[i];
            }
        }
    }

    // Singular values from the root of the condition down to its inverse, so that no pivot comes near an absolute threshold.
    void fillConditioned(T* to, int n, double condition, bool symmetric)
    {
        std::vector<double> a(n * n), left(n), right(n);
        for (int i = 0; i < n; ++i) {
            a[i * n + i] = 1.25 * std::pow(condition, n > 1 ? 0.5 - double(i) / (n - 1) : 0);
        }
        for (int turn = 0; turn < 3; ++turn) {
            for (int i = 0; i < n; ++i) {
                left[i] = uniform(random);
                right[i] = uniform(random);
            }
            reflect(a.data(), n, left, n, 1);
            reflect(a.data(), n, symmetric ? left : right, 1, n);
        }
        for (int r = 0; r < n; ++r) {
            for (int c = 0; c < n; ++c) {
                to[r * n + c] = T(symmetric ? a[std::max(r, c) * n + std::min(r, c)] : a[r * n + c]);
            }
        }
    }

    // |b - Ax| over |A| |x| + |b|, in norms that are roots of sums of squares.
    static double backwardError(const T* a, const T* x, const T* b, int n)
    {
        long double rests = 0, as = 0, xs = 0, bs = 0;
        for (int r = 0; r < n; ++r) {
            long double rest = b[r];
            for (int c = 0; c < n; ++c) {
                const long double element = a[r * n + c];
                rest -= element * x[c];
                as += element * element;
            }
            rests += rest * rest;
            xs += static_cast<long double>(x[r]) * x[r];
            bs += static_cast<long double>(b[r]) * b[r];
        }
        return double(std::sqrt(rests) / (std::sqrt(as) * std::sqrt(xs) + std::sqrt(bs)));
    }

    std::mt19937 random{1};
    std::uniform_real_distribution<double> uniform{-1, 1};
};

using Types = testing::Types<float, double>;
TYPED_TEST_SUITE(Solvers, Types);

// Decomposition and back substitution of a family, one object with one right side.
TYPED_TEST(Solvers, EquationsAreSolved)
{
    using T = TypeParam;
    for (const char* family : {"vokmLU", "vokmCholesky", "vokmQR"}) {
        std::string decomp = named<T>(family + std::string("Decomp_m")), subst = named<T>(family + std::string("BackSubst_mv"));
        if (!isDeclared(decomp)) {
            continue;
        }
        for (int n = 1; n <= 12; ++n) {
            Dense<T> factor(decomp, {{"widthHeight", n}, {"width", n}, {"height", n}});
            Dense<T> solve(subst, {{"widthHeight", n}, {"width", n}, {"height", n}});
            this->fillDefinite(factor["src"].data(), n);
            ASSERT_EQ(factor.run(), 0);
            solve["src"] = factor["dst"];
            solve.indices = factor.indices;
            for (T& b : solve["src2"]) {
                b = T(this->uniform(this->random));
            }
            ASSERT_EQ(solve.run(), 0);
            this->expectSolved(factor["src"].data(), solve["dst"].data(), solve["src2"].data(), n, family);
        }
    }
}

// The backward error does not grow with the condition: singular values in a geometric series between random reflections.
TYPED_TEST(Solvers, EquationsAreSolvedAtAnyCondition)
{
    using T = TypeParam;
    for (const char* family : {"vokmLU", "vokmCholesky", "vokmQR"}) {
        const std::string decomp = named<T>(family + std::string("Decomp_ma")), subst = named<T>(family + std::string("BackSubst_mava"));
        const bool symmetric = family == std::string("vokmCholesky");
        for (int n = 1; n <= 12 && isDeclared(decomp); ++n) {
            for (double condition : {1., 1e2, 1e4, 1e6}) {
                // A definite matrix whose rounded elements may make it indefinite need not have a factor.
                if (symmetric && n * condition * this->eps > 0.1) {
                    continue;
                }
                constexpr int count = 20;
                Dense<T> factor(decomp, {{"widthHeight", n}, {"width", n}, {"height", n}, {"count", count}});
                Dense<T> solve(subst, {{"widthHeight", n}, {"width", n}, {"height", n}, {"count", count}});
                for (int i = 0; i < count; ++i) {
                    this->fillConditioned(factor.object("src", i), n, condition, symmetric);
                }
                ASSERT_EQ(factor.run(), 0) << decomp << " n " << n << " condition " << condition;
                solve["src"] = factor["dst"];
                solve.indices = factor.indices;
                for (T& b : solve["src2"]) {
                    b = T(this->uniform(this->random));
                }
                ASSERT_EQ(solve.run(), 0);
                for (int i = 0; i < count; ++i) {
                    EXPECT_LE(this->backwardError(factor.object("src", i), solve.object("dst", i), solve.object("src2", i), n),
                        10 * n * this->eps)
                        << decomp << " n " << n << " condition " << condition << " object " << i;
                }
            }
        }
    }
}

// The residual of an overdetermined system is orthogonal to the columns.
TYPED_TEST(Solvers, LeastSquares)
{
    using T = TypeParam;
    for (auto [width, height] : {std::pair{1, 2}, {3, 5}, {4, 9}, {6, 7}}) {
        if (!isDeclared(named<T>("vokmQRDecomp_m"))) {
            GTEST_SKIP();
        }
        Dense<T> factor(named<T>("vokmQRDecomp_m"), {{"width", width}, {"height", height}});
        Dense<T> solve(named<T>("vokmQRBackSubst_mv"), {{"width", width}, {"height", height}});
        for (auto* list : {&factor["src"], &solve["src2"]}) {
            for (T& value : *list) {
                value = T(this->uniform(this->random));
            }
        }
        ASSERT_EQ(factor.run(), 0);
        solve["src"] = factor["dst"];
        ASSERT_EQ(solve.run(), 0);
        for (int k = 0; k < width; ++k) {
            double inner = 0;
            for (int r = 0; r < height; ++r) {
                double rest = double(solve["src2"][r]);
                for (int c = 0; c < width; ++c) {
                    rest -= double(factor["src"][r * width + c]) * double(solve["dst"][c]);
                }
                inner += rest * double(factor["src"][r * width + k]);
            }
            EXPECT_LE(std::fabs(inner), 400 * this->eps) << width << " columns, column " << k;
        }
    }
}

TYPED_TEST(Solvers, InverseAndDeterminant)
{
    using T = TypeParam;
    for (int n = 1; n <= 9 && isDeclared(named<T>("vokmInvert_m")); ++n) {
        for (const char* form : {"_m", "_ma"}) {
            Dense<T> inverse(named<T>("vokmInvert" + std::string(form)), {{"widthHeight", n}, {"count", 1}});
            this->fillDefinite(inverse["src"].data(), n);
            std::vector<T>& a = inverse["src"];
            a[n - 1] = T(0.75);  // and not symmetric any more
            ASSERT_EQ(inverse.run(), 0);
            for (int c = 0; c < n; ++c) {
                std::vector<T> column(n), unit(n);
                unit[c] = 1;
                for (int r = 0; r < n; ++r) {
                    column[r] = inverse["dst"][r * n + c];
                }
                this->expectSolved(a.data(), column.data(), unit.data(), n, inverse.function.name);
            }
            Dense<T> det(named<T>("vokmDet" + std::string(form)), {{"widthHeight", n}, {"count", 1}});
            Dense<T> back(det.function.name, {{"widthHeight", n}, {"count", 1}});
            det["src"] = a;
            back["src"] = inverse["dst"];
            ASSERT_EQ(det.run() | back.run(), 0);
            EXPECT_NEAR(double(det["dst"][0]) * double(back["dst"][0]), 1, 60 * n * this->eps) << det.function.name << " " << n;
        }
    }
}

struct Failure {
    const char* group;
    int32_t status;
    bool atSizeOne;
};
const Failure failures[] = {{"vokmLUDecomp_ma", -195, true}, {"vokmInvert_ma", -195, true}, {"vokmCholeskyDecomp_ma", -179, true},
    {"vokmQRDecomp_ma", -10, false}, {"vokmEigenValuesSym_ma", -195, false}, {"vokmEigenValuesVectorsSym_ma", -195, false}};

// However many objects are done at once, a failing one ends the run where it stands.
TYPED_TEST(Solvers, ObjectsBehindAFailureAreUntouched)
{
    using T = TypeParam;
    for (const Failure& failure : failures) {
        const std::string name = named<T>(failure.group);
        for (int n = failure.atSizeOne ? 1 : 2; n <= 8 && isDeclared(name); ++n) {
            for (int bad = 0; bad < 9; ++bad) {
                constexpr int count = 9;
                Dense<T> job(name, {{"widthHeight", n}, {"width", n}, {"height", n}, {"count", count}});
                for (int i = 0; i < count; ++i) {
                    this->fillDefinite(job.object("src", i), n);
                }
                std::fill_n(job.object("src", bad), n * n, T(0));
                Dense<T> good = job;
                ASSERT_EQ(job.run(), failure.status) << name << " n " << n << " bad " << bad;
                for (int i = 0; i < count; ++i) {
                    ASSERT_EQ(i == bad || good.run(i, 1) == 0, true);
                }
                // Aligned 4x4 inverses go by twos: of a pair with a failing one none is stored.
                bool byTwos = sizeof(T) == 4 && n == 4 && job.function.family == "vokmInvert";
                for (auto& [operand, values] : job.elements) {
                    int size = job.size(operand), complete = byTwos ? bad / 2 * 2 : bad;
                    for (int at = 0; at < size * count && operand != "src"; ++at) {
                        T wanted = at / size < complete ? good[operand][at] : T(job.untouched);
                        ASSERT_TRUE(at / size == bad || sameBits(values[at], wanted))
                            << name << " n " << n << " bad " << bad << " " << operand << " " << at;
                    }
                }
            }
        }
    }
}

// Objects done side by side get the bits that each gets alone.
TYPED_TEST(Solvers, ObjectsOfAnArrayAreAsIfAlone)
{
    using T = TypeParam;
    for (const char* group :
        {"vokmLUDecomp_ma", "vokmLUBackSubst_mva", "vokmLUBackSubst_mava", "vokmDet_ma", "vokmInvert_ma", "vokmCholeskyDecomp_ma",
            "vokmCholeskyBackSubst_mva", "vokmCholeskyBackSubst_mava", "vokmQRDecomp_ma", "vokmQRBackSubst_mva",
            "vokmQRBackSubst_mava", "vokmEigenValuesSym_ma", "vokmEigenValuesVectorsSym_ma", "vokmEigenValues_ma",
            "vokmEigenValuesVectors_ma", "vokmEigenValuesVectorsRight_ma", "vokmEigenValuesVectorsLeft_ma"}) {
        const std::string name = named<T>(group);
        for (int n = 1; n <= 8 && isDeclared(name); ++n) {
            constexpr int count = 13;
            int width = group == std::string("vokmQRDecomp_ma") ? (n + 1) / 2 : n;
            Dense<T> job(name, {{"widthHeight", n}, {"width", width}, {"height", n}, {"count", count}});
            for (const char* source : {"src", "src2"}) {
                for (size_t at = 0; job.elements.count(source) && at < job[source].size(); ++at) {
                    job[source][at] = T(this->uniform(this->random) + (at % (n * n) % (n + 1) == 0 ? n : 0));
                }
            }
            for (size_t at = 0; job.indices.count("pivot") && at < job.pivots().size(); ++at) {
                job.pivots()[at] = int32_t((at + at / n) % n);
            }
            Dense<T> alone = job;
            int32_t status = job.run();
            for (int i = 0; i < count; ++i) {
                status |= alone.run(i, 1);
            }
            ASSERT_EQ(status, 0) << name << " n " << n;
            EXPECT_EQ(job.indices, alone.indices) << name << " n " << n;
            for (auto& [operand, values] : job.elements) {
                for (size_t at = 0; at < values.size() && operand != "buffer"; ++at) {
                    ASSERT_TRUE(sameBits(values[at], alone[operand][at])) << name << " n " << n << " " << operand << " " << at;
                }
            }
        }
    }
}

// A plane of memory for each element of n x n matrices.
template <class T> struct Planes {
    int n, count;
    std::vector<T> values;

    Planes(int size, int objects) : n(size), count(objects), values(size_t(size) * size * objects) {}
    T& at(int i, int r, int c) { return values[(size_t(r) * n + c) * count + i]; }
    std::vector<T*> table()
    {
        std::vector<T*> elements;
        for (int k = 0; k < n * n; ++k) {
            elements.push_back(&values[size_t(k) * count]);
        }
        return elements;
    }
};

// The objects of planes from `first` on, through strides or tables; `dst` may be `src`.
template <class T> int32_t runPlanes(const std::string& name, bool tables, Planes<T>& src, Planes<T>& dst, int first, int count)
{
    constexpr int E = sizeof(T);
    std::vector<T*> from = src.table(), to = dst.table();
    std::vector<T> buffer(64);
    Arguments arguments;
    arguments.pointers["src"] = tables ? static_cast<void*>(from.data()) : &src.values[first];
    arguments.pointers["dst"] = tables ? static_cast<void*>(to.data()) : &dst.values[first];
    arguments.pointers["buffer"] = buffer.data();
    arguments.integers = {{"widthHeight", src.n}, {"count", count}};
    for (const char* operand : {"src", "dst"}) {
        arguments.integers[operand + std::string("ObjShift")] = first * E;
        arguments.integers[operand + std::string("Stride0")] = E;
        arguments.integers[operand + std::string("Stride1")] = src.n * src.count * E;
        arguments.integers[operand + std::string("Stride2")] = src.count * E;
    }
    return call(name + (tables ? "_P" : ""), arguments);
}

// Planes go in blocks: the bits, the first failure and what it leaves are those of one object after the other, in place too.
TYPED_TEST(Solvers, PlanesAreAsIfOneByOne)
{
    using T = TypeParam;
    constexpr int count = 600;
    for (const char* group : {"vokmCholeskyDecomp_ma", "vokmInvert_ma"}) {
        for (int kind = 0; kind < 4 * 4; ++kind) {
            const int n = 3 + kind % 4;
            const bool tables = kind & 4, inPlace = kind & 8;
            for (int bad : {-1, 0, 15, 77, 256, 383, 599}) {
                Planes<T> src(n, count), dst(n, count), wanted(n, count);
                for (int i = 0; i < count; ++i) {
                    std::vector<T> a(n * n);
                    this->fillDefinite(a.data(), n);
                    for (int k = 0; k < n * n; ++k) {
                        src.at(i, k / n, k % n) = i == bad ? T(k == 0) : a[k];
                        dst.at(i, k / n, k % n) = wanted.at(i, k / n, k % n) = T(77);
                    }
                }
                src.at(400, 0, 0) = std::numeric_limits<T>::quiet_NaN();
                if (inPlace) {
                    dst = wanted = src;
                }
                int32_t status = 0;
                for (int i = 0; i < count && status == 0; ++i) {
                    status = runPlanes(named<T>(group), tables, src, wanted, i, 1);
                }
                ASSERT_EQ(status != 0, bad >= 0);
                ASSERT_EQ(runPlanes(named<T>(group), tables, inPlace ? dst : src, dst, 0, count), status);
                for (size_t at = 0; at < dst.values.size(); ++at) {
                    ASSERT_TRUE(sameBits(dst.values[at], wanted.values[at]))
                        << group << " n " << n << " tables " << tables << " in place " << inPlace << " bad " << bad << " at " << at;
                }
            }
        }
    }
}

TEST(SolversInPlace, WhereItIsPromised)
{
    for (const InPlace& promise : solversInPlace) {
        for (const Function* function : functionsOf(promise.group)) {
            for (int draw = 0; draw < 200; ++draw) {
                JobPlan plan;
                plan.seed = seedOf(*function, draw);
                Random random(plan.seed);
                plan.sizes = equalSizes(*function, promise.from + draw % (promise.to - promise.from + 1), 1 + int(random() % 9));
                plan.gap = 8192;
                drawPatterns(plan, *function, drawStyle(random), random);
                Pattern& shared = plan.patterns[promise.source];
                shared.sequence = 'a';
                plan.patterns["dst"] = shared;
                plan.overlay["dst"] = {promise.source, 0};
                ASSERT_EQ(Job(*function, plan).check(), "");
            }
        }
    }
}

// A row that a pivot names beyond n is the caller's affair: tables with more rows than n give what strides give.
TEST(SolversOfTables, PivotsAreUsedAsTheyAre)
{
    constexpr int n = 3, rows = 5, count = 9;
    std::vector<float> a(count * rows * n), b(count * rows), byStride(count * n), byTable(count * n);
    std::mt19937 random(3);
    for (float& x : a) x = float(random() % 19 + 1);
    for (float& x : b) x = float(random() % 19 + 1);
    std::vector<const float*> ta, tb;
    std::vector<float*> td;
    for (int e = 0; e < rows * n; ++e) ta.push_back(&a[e]);
    for (int e = 0; e < rows; ++e) tb.push_back(&b[e]);
    for (int e = 0; e < n; ++e) td.push_back(&byTable[e]);
    std::vector<int32_t> pivot;
    for (int i = 0; i < count; ++i) pivot.insert(pivot.end(), {0, 4, 3});
    constexpr int oneA = rows * n * 4, oneB = rows * 4, oneD = n * 4;
    const auto same = [&] { return std::equal(byStride.begin(), byStride.end(), byTable.begin(), sameBits<float>); };

    vokmLUBackSubst_mva_32f(a.data(), n * 4, 4, pivot.data(), b.data(), oneB, 4, byStride.data(), oneD, 4, n, count);
    vokmLUBackSubst_mva_32f_P(ta.data(), 0, pivot.data(), tb.data(), 0, oneB, td.data(), 0, oneD, n, count);
    EXPECT_TRUE(same());
    vokmLUBackSubst_mava_32f(a.data(), oneA, n * 4, 4, pivot.data(), b.data(), oneB, 4, byStride.data(), oneD, 4, n, count);
    vokmLUBackSubst_mava_32f_P(ta.data(), 0, oneA, pivot.data(), tb.data(), 0, oneB, td.data(), 0, oneD, n, count);
    EXPECT_TRUE(same());
}

}  // namespace
