// Properties of the eigenproblems that no order of operations decides, and the results that are known beforehand.
#include <cmath>
#include <complex>
#include <limits>
#include <random>

#include <vokm>

#include "harness/dense.h"
#include "harness/groups.h"

using namespace harness;

namespace {

using Values = std::vector<double>;

template <class T> class Eigenproblems : public testing::Test {
protected:
    static constexpr double eps = double(std::numeric_limits<T>::epsilon());

    Dense<T> job(const std::string& family, int n, const Values& source = {})
    {
        Dense<T> made(named<T>(family + "_m"), {{"widthHeight", n}});
        for (int at = 0; at < n * n; ++at) {
            made["src"][at] = T(source.empty() ? uniform(random) : source[at]);
        }
        return made;
    }

    // Q diag Q^T with eigenvalues 1, 2, ... n, from a random product of reflections.
    Values separated(int n)
    {
        Values a(n * n), v(n);
        for (int k = 0; k < n; ++k) {
            a[k * n + k] = k + 1;
        }
        for (int pass = 0; pass < 3; ++pass) {
            double squares = 0;
            for (double& x : v) {
                x = uniform(random);
                squares += x * x;
            }
            for (bool rows : {true, false}) {
                for (int j = 0; j < n; ++j) {
                    auto at = [&](int i) -> double& { return rows ? a[i * n + j] : a[j * n + i]; };
                    double dot = 0;
                    for (int i = 0; i < n; ++i) {
                        dot += at(i) * v[i];
                    }
                    for (int i = 0; i < n; ++i) {
                        at(i) -= 2 * dot / squares * v[i];
                    }
                }
            }
        }
        return a;
    }

    std::mt19937 random{7};
    std::uniform_real_distribution<double> uniform{-1, 1};
};

using Types = testing::Types<float, double>;
TYPED_TEST_SUITE(Eigenproblems, Types);

TYPED_TEST(Eigenproblems, SymmetricWithSeparatedValues)
{
    const char* families[] = {"vokmEigenValuesSym", "vokmEigenValuesVectorsSym"};
    for (int n = 1; n <= 9 && n > 0; ++n) {
        Values a = this->separated(n);
        for (int r = 0; r < n * n; ++r) {
            a[r] = double(TypeParam(a[r / n < r % n ? r % n * n + r / n : r]));
        }
        auto values = this->job(families[0], n, a), vectors = this->job(families[1], n, a);
        ASSERT_EQ(values.run() | vectors.run(), 0);
        const double tolerance = 60 * n * this->eps;
        for (int j = 0; j < n; ++j) {
            EXPECT_NEAR(double(values["dst"][j]), n - j, tolerance);
            EXPECT_NEAR(double(vectors["dstValues"][j]), n - j, tolerance);
            for (int r = 0; r < n; ++r) {
                double image = 0, inner = 0;
                for (int c = 0; c < n; ++c) {
                    image += a[r * n + c] * double(vectors["dstVectors"][c * n + j]);
                    inner += double(vectors["dstVectors"][c * n + r]) * double(vectors["dstVectors"][c * n + j]);
                }
                EXPECT_NEAR(image, (n - j) * double(vectors["dstVectors"][r * n + j]), tolerance * n) << n << " " << r << j;
                EXPECT_NEAR(inner, r == j, tolerance);
            }
        }
    }
}

// A diagonal matrix is only sorted, and its vectors are the unit vectors; the direction of the iteration does not show.
TYPED_TEST(Eigenproblems, SymmetricKnownResults)
{
    for (const Values& diagonal : {Values{3, 1, 2}, Values{1, 3, 2}, Values{1, 2, 3}}) {
        Values a(9);
        for (int k = 0; k < 3; ++k) {
            a[4 * k] = diagonal[k];
        }
        auto values = this->job("vokmEigenValuesSym", 3, a), vectors = this->job("vokmEigenValuesVectorsSym", 3, a);
        ASSERT_EQ(values.run() | vectors.run(), 0);
        for (int j = 0; j < 3; ++j) {
            EXPECT_EQ(values["dst"][j], 3 - j);
            for (int r = 0; r < 3; ++r) {
                EXPECT_EQ(vectors["dstVectors"][r * 3 + j], TypeParam(diagonal[r] == 3 - j));
            }
        }
    }
    auto negativeTrace = this->job("vokmEigenValuesSym", 2, {2, 1, 1, -3}),
         identity = this->job("vokmEigenValuesVectorsSym", 2, {1, 0, 0, 1});
    ASSERT_EQ(negativeTrace.run() | identity.run(), 0);
    EXPECT_LT(negativeTrace["dst"][0], negativeTrace["dst"][1]);  // two values are not sorted
    EXPECT_EQ(identity["dstVectors"], (std::vector<TypeParam>{0, -1, 1, 0}));
    auto zero = this->job("vokmEigenValuesSym", 2, {0, 0, 0, 0});
    EXPECT_EQ(zero.run(), -195);
    EXPECT_EQ(zero["dst"][0], zero.untouched);
}

// Right vectors are those of the transposed operand, left ones those of the operand; the families agree to the bit.
TYPED_TEST(Eigenproblems, GeneralVectorsSolveTheirEquation)
{
    using T = TypeParam;
    using Complex = std::complex<double>;
    for (int draw = 0; draw < 300; ++draw) {
        int n = 1 + draw % 9;
        auto both = this->job("vokmEigenValuesVectors", n);
        Values a(both["src"].begin(), both["src"].end());
        auto right = this->job("vokmEigenValuesVectorsRight", n, a), left = this->job("vokmEigenValuesVectorsLeft", n, a);
        ASSERT_EQ(both.run() | right.run() | left.run(), 0);
        EXPECT_TRUE(both["dstRight"] == right["dst"] && both["dstLeft"] == left["dst"]) << "n " << n;
        EXPECT_TRUE(both["dstRe"] == right["dstRe"] && both["dstIm"] == left["dstIm"]);
        for (int j = 0; j < n; ++j) {
            T im = both["dstIm"][j];
            Complex w(both["dstRe"][j], im);
            int re = im < 0 ? j - 1 : j;
            auto component = [&](const char* operand, int r) {
                T second = im == 0 ? T(0) : both[operand][r * n + re + 1];
                return Complex(both[operand][r * n + re], im < 0 ? -second : second);
            };
            for (int r = 0; r < n; ++r) {
                Complex x = -w * component("dstRight", r), y = -w * std::conj(component("dstLeft", r));
                for (int c = 0; c < n; ++c) {
                    x += a[c * n + r] * component("dstRight", c);
                    y += a[r * n + c] * std::conj(component("dstLeft", c));
                }
                EXPECT_LE(std::abs(x), 100 * n * this->eps) << "right, n " << n << " draw " << draw;
                EXPECT_LE(std::abs(y), 100 * n * this->eps) << "left, n " << n << " draw " << draw;
            }
        }
    }
}

struct Known {
    int n;
    Values a, re, im;
};

TYPED_TEST(Eigenproblems, GeneralKnownResults)
{
    const double root6 = double(TypeParam(std::sqrt(6.0)));
    const Known known[] = {{1, {0}, {0}, {0}}, {2, {0, -1, 1, 0}, {0, 0}, {1, -1}},
        {2, {1, 2, 3, 1}, {1, 1}, {root6, -root6}},  // taken for a pair, although its values are real
        {2, {1, 2, 0, 3}, {3, 1}, {0, 0}}, {3, {1, 0, 0, 0, 3, 0, 0, 0, 2}, {1, 3, 2}, {0, 0, 0}},
        {2, {0, 0, 0, 0}, {0, 0}, {0, 0}}};
    for (const Known& one : known) {
        for (const char* family : {"vokmEigenValues", "vokmEigenValuesVectors"}) {
            auto job = this->job(family, one.n, one.a);
            ASSERT_EQ(job.run(), 0);
            for (int j = 0; j < one.n; ++j) {
                EXPECT_NEAR(double(job["dstRe"][j]), one.re[j], 0) << family << one.n;
                EXPECT_NEAR(double(job["dstIm"][j]), one.im[j], 4 * this->eps) << family << one.n;
            }
        }
    }
}

// Nothing converges on a not-a-number, but every call ends, and what was not found stays unwritten.
TYPED_TEST(Eigenproblems, NotANumberEnds)
{
    for (const char* family : {"vokmEigenValues", "vokmEigenValuesVectors", "vokmEigenValuesSym", "vokmEigenValuesVectorsSym"}) {
        for (int n = 1; n <= 7; ++n) {
            Values a(n * n, std::numeric_limits<double>::quiet_NaN());
            auto job = this->job(family, n, a);
            int32_t status = job.run();
            EXPECT_TRUE(status == 0 || status == -205) << family << " " << n << ": " << status;
            for (const char* vectors : {"dstRight", "dstLeft"}) {
                if (status != 0 && job.elements.count(vectors)) {
                    EXPECT_EQ(job[vectors], std::vector<TypeParam>(n * n, job.untouched));
                }
            }
        }
    }
}

TEST(EigenBuffers, SizesAreTruncated)
{
    int32_t size = 0;
    Arguments arguments;
    arguments.integers = {{"widthHeight", 40000}};
    arguments.pointers = {{"bufSize", &size}};
    ASSERT_EQ(call("vokmEigenValuesVectorsGetBufSize_64f", arguments), 0);
    EXPECT_EQ(size, int32_t(uint32_t((3 * 40000ull + 5) * 40000 * 8)));
}

// A result that lands on the source of a later object is read as that source, by arrays as by one call an object.
TEST(EigenOverlap, ObjectsAreFinishedInTurn)
{
    constexpr int n = 4, count = 7, size = n * n, strides[] = {size * 8, n * 8, 8};
    std::mt19937 random(6);
    std::vector<double> elements(3 * count * size), buffer(200), elsewhere(count * size);
    for (double& x : elements) x = std::uniform_real_distribution<>(-1, 1)(random);
    const auto values = [&](double* src, int step, double* dst, int number) {
        return vokmEigenValues_ma_64f(src, step * 8, strides[1], strides[2], dst, &elsewhere[0], n, number, &buffer[0]);
    };
    const auto vectors = [&](double* src, double* dst, int number) {
        return vokmEigenValuesVectorsLeft_ma_64f(src, strides[0], strides[1], strides[2], dst, strides[0], strides[1],
            strides[2], &elsewhere[0], &elsewhere[count * n], n, number, &buffer[0]);
    };
    for (int distance = 0; distance <= 2 * size; ++distance) {
        std::vector<double> whole, inTurn;
        for (int step : {size, n}) {  // n: each object begins with the second row of the one before
            whole = inTurn = elements;
            ASSERT_EQ(values(&whole[0], step, &whole[distance], count), 0);
            for (int k = 0; k < count; ++k) values(&inTurn[k * step], step, &inTurn[k * n + distance], 1);
            EXPECT_EQ(whole, inTurn) << "values, " << distance << " step " << step;
        }
        whole = inTurn = elements;
        ASSERT_EQ(vectors(&whole[0], &whole[distance], count), 0);
        for (int k = 0; k < count; ++k) vectors(&inTurn[k * size], &inTurn[k * size + distance], 1);
        EXPECT_EQ(whole, inTurn) << "vectors, " << distance;
    }
}

}  // namespace
