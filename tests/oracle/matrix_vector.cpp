// Matrix times vector, and the same plus a vector. Each row is one sum of products, and kernels differ in its order.
#include <array>

#include "../harness/expression.h"
#include "../harness/job.h"

namespace {

using namespace harness;

using Orders = std::array<const char*, 4>;  // sizes 3 to 6; digits are products

const Orders chain = {"0+1+2", "0+1+2+3", "0+1+2+3+4", "0+1+2+3+4+5"};
const Orders pairwise = {"0+1+2", "(0+1)+(2+3)", "((0+1)+(2+3))+4", "((0+1)+(2+3))+(4+5)"};
const Orders mixed = {"0+1+2", "(0+1)+(2+3)", "((0+1)+4)+(2+3)", "((0+1)+(2+3))+(4+5)"};
const Orders evenOdd = {"0+1+2", "(0+2)+(1+3)", "((0+1)+4)+(2+3)", "((0+2)+4)+((1+3)+5)"};
const char* const evenOddLastOfFive = "((0+2)+4)+(1+3)";  // row 4 at size 5
const Orders lastFirst = {"0+1+2", "0+3+1+2", "0+4+1+2+3", "0+5+1+2+3+4"};
const Orders* const general = nullptr;  // from 0.0 at every size

struct Row {
    const char* form;
    const Orders *dense32, *list32, *dense64, *list64;
};

const Row products[] = {
    {"mv", &chain, nullptr, &pairwise, nullptr},
    {"tv", &chain, nullptr, &chain, nullptr},
    {"mva", &evenOdd, general, &pairwise, &pairwise},
    {"mav", &evenOdd, &evenOdd, &pairwise, &pairwise},
    {"mava", &evenOdd, &evenOdd, &pairwise, &pairwise},
    {"tva", &mixed, general, &chain, general},
    {"tav", &mixed, &mixed, &chain, &pairwise},
    {"tava", &mixed, &mixed, &chain, general},
};

template <class T> const Orders* ordersOf(const Model<T>& m)
{
    bool plain = m.kernel() == "", list = m.kernel() == "_L", single = sizeof(T) == 4, gaxpy = m.function().family == "vokmGaxpy";
    if (!plain && !list) {
        return gaxpy ? &lastFirst : &chain;
    }
    if (gaxpy) {
        return single ? &evenOdd : &pairwise;
    }
    for (const Row& row : products) {
        if (row.form == m.function().form) {
            return plain ? (single ? row.dense32 : row.dense64) : (single ? row.list32 : row.list64);
        }
    }
    throw std::runtime_error("no orders for " + m.function().name);
}

// The dense 3x3 kernel for arrays of both, on rows of 16 bytes, goes in twos up to the count itself: with an odd count it
// computes and stores one object more.
template <class T> bool goesInTwos(const Model<T>& m, int first)
{
    if (sizeof(T) != 4 || m.function().form != "tava" || m.kernel() != "") {
        return false;
    }
    View<T> a = m.view("src1"), b = m.view("src2"), dst = m.view("dst");
    return a.rows() == 3 && a.cols() == 3 && a.stride1() == 16 &&
           (a.address(first) | b.address(first) | dst.address(first) | a.stride0() | b.stride0() | dst.stride0()) % 16 == 0;
}

struct MatrixVector {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        bool gaxpy = m.function().family == "vokmGaxpy";
        View<T> a = m.view("src1"), b = m.view("src2"), c = m.view(gaxpy ? "src3" : "src2"), dst = m.view("dst");
        const Orders* orders = ordersOf(m);
        int size = a.rows();
        bool straight = orders && a.cols() == size && size >= 3 && size <= 6;
        int last = first + n + (goesInTwos(m, first) ? n % 2 : 0);
        for (int i = first; i < last; ++i) {
            for (int r = 0; r < a.rows(); ++r) {
                std::vector<T> terms;
                for (int k = 0; k < a.cols(); ++k) {
                    terms.push_back(a.get(i, r, k) * b.get(i, k));
                }
                T sum = 0;
                if (straight) {
                    const char* order = orders == &evenOdd && size == 5 && r == 4 ? evenOddLastOfFive : (*orders)[size - 3];
                    sum = sumAsWritten(order, terms);
                } else {
                    for (T term : terms) {
                        sum = sum + term;
                    }
                }
                dst.set(i, r, gaxpy ? T(sum + c.get(i, r)) : sum);
            }
        }
        return 0;
    }
};

const Oracle matrixVector({"vokmMul_mv", "vokmMul_tv", "vokmMul_mva", "vokmMul_mav", "vokmMul_mava", "vokmMul_tva", "vokmMul_tav",
                              "vokmMul_tava", "vokmGaxpy_mv", "vokmGaxpy_mva", "vokmGaxpy_mvav"},
    &MatrixVector::run<float>, &MatrixVector::run<double>);

}  // namespace
