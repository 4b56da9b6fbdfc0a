// Products of matrices: every element is a sum over ascending k. Straight code starts it with the first product, general
// code from +0.0, which shows in the sign of a zero; so the square sizes with straight code are data here.
#include <algorithm>
#include <array>
#include <vector>

#include "../harness/job.h"

namespace {

using namespace harness;

struct Row {
    const char* form;
    std::array<const char*, 10> sizes;  // kernels "", _S2, _P, _L, _LS2 of 32f, then of 64f
};

const Row straightSizes[] = {
    {"mm", {"3456", "3456", "3456", "", "", "3456", "3456", "3456", "", ""}},
    {"mt", {"3456", "3456", "3456", "", "", "3456", "3456", "3456", "", ""}},
    {"tm", {"345", "3456", "3456", "", "", "3456", "3456", "3456", "", ""}},
    {"tt", {"3456", "3456", "3456", "", "", "3456", "3456", "3456", "", ""}},
    {"mam", {"3456", "3456", "3", "3456", "3", "3456", "3456", "3456", "3456", "3456"}},
    {"mat", {"356", "3", "3", "3456", "3", "3456", "3456", "3456", "3456", "3456"}},
    {"tam", {"3456", "3", "3", "3456", "3", "3456", "3456", "3456", "3456", "3456"}},
    {"tat", {"3456", "3456", "3456", "3456", "3", "3456", "3456", "3456", "3456", "3456"}},
    {"mma", {"3456", "3456", "3456", "3456", "3456", "3456", "3456", "3456", "3456", "3456"}},
    {"mta", {"3456", "3456", "3456", "", "3456", "3456", "3456", "3456", "3456", "3456"}},
    {"tma", {"3456", "3456", "3456", "3456", "3456", "3456", "3456", "3456", "3456", "3456"}},
    {"tta", {"3456", "3456", "3456", "", "3456", "3456", "3456", "3456", "", "3456"}},
    {"mama", {"3456", "345", "3456", "3456", "3456", "3456", "3456", "3456", "3456", "3456"}},
    {"mata", {"3456", "3456", "3456", "3456", "3456", "3456", "3456", "3456", "3456", "3456"}},
    {"tama", {"3456", "3456", "3456", "3456", "3456", "3456", "3456", "3456", "3456", "3456"}},
    {"tata", {"3456", "3456", "3456", "3456", "3456", "3456", "3456", "3456", "3456", "3456"}},
};

const char* sizesOf(const std::string& form, const std::string& kernel, bool isDouble)
{
    static const std::array<std::string, 5> kernels = {"", "_S2", "_P", "_L", "_LS2"};
    auto row = std::find_if(std::begin(straightSizes), std::end(straightSizes), [&](const Row& r) { return r.form == form; });
    return row->sizes[std::find(kernels.begin(), kernels.end(), kernel) - kernels.begin() + (isDouble ? 5 : 0)];
}

struct Shape3 {
    int rows, inner, cols;  // what the loops run over
    bool straight;
};

// Two kernels join the tests of the sizes by OR, so that sizes from 1 to 3 enter the 3x3 code with its fixed loops. One
// tests a height for 3 where 4 is meant: its 4x4 code serves products with three columns and writes a fourth.
template <class T> Shape3 loopsOf(const Model<T>& m, const View<T>& a, const View<T>& b)
{
    int w1 = m.size("src1Width"), h1 = m.size("src1Height"), w2 = m.size("src2Width"), h2 = m.size("src2Height");
    const std::string name =
        "own" + m.function().family + "_" + m.function().form + (sizeof(T) == 8 ? "_64f" : "_32f") + m.kernel();
    if ((name == "ownvokmMul_mm_32f_P" || name == "ownvokmMul_tt_64f_P") && (w1 | h1 | w2 | h2) == 3) {
        return {3, 3, 3, true};
    }
    if (name == "ownvokmMul_mat_32f" && w1 == 4 && h1 == 4 && h2 == 3) {
        return {4, 4, 4, true};
    }
    bool square = w1 == h1 && w1 == w2 && w1 == h2 && w1 >= 3 && w1 <= 6;
    std::string sizes = sizesOf(m.function().form, m.kernel(), sizeof(T) == 8);
    return {a.rows(), a.cols(), b.cols(), square && sizes.find(char('0' + w1)) != std::string::npos};
}

struct Product {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        View<T> a = m.view("src1"), b = m.view("src2"), dst = m.view("dst");
        Shape3 loops = loopsOf(m, a, b);
        for (int i = first; i < first + n; ++i) {
            std::vector<T> whole;
            for (int r = 0; r < loops.rows; ++r) {
                for (int c = 0; c < loops.cols; ++c) {
                    T sum = a.get(i, r, 0) * b.get(i, 0, c);
                    sum = loops.straight ? sum : T(0) + sum;
                    for (int k = 1; k < loops.inner; ++k) {
                        T product = a.get(i, r, k) * b.get(i, k, c);
                        sum = sum + product;
                    }
                    whole.push_back(sum);
                }
            }
            for (int r = 0; r < loops.rows; ++r) {
                for (int c = 0; c < loops.cols; ++c) {
                    dst.set(i, r, c, whole[r * loops.cols + c]);
                }
            }
        }
        return 0;
    }
};

std::vector<std::string> groups()
{
    std::vector<std::string> names;
    for (const Row& row : straightSizes) {
        names.push_back(std::string("vokmMul_") + row.form);
    }
    return names;
}

const Oracle products(groups(), &Product::run<float>, &Product::run<double>);

}  // namespace
