// Dot products and norms. The order of each sum is written out as text: digits are terms, + is one rounded addition.
#include <array>
#include <cmath>
#include <vector>

#include "../harness/expression.h"
#include "../harness/job.h"

namespace {

using namespace harness;
using Orders = std::array<const char*, 4>;  // lengths 3 to 6

const Orders chain = {"0+1+2", "0+1+2+3", "0+1+2+3+4", "0+1+2+3+4+5"};

// -- dot products
const Orders dotStrided = {"0+1+2", "3+0+1+2", "4+0+1+2+3", "5+4+0+1+2+3"};
const Orders dotLanesDouble = {"0+1+2", "(0+2)+(1+3)", "((0+2)+(1+3))+4", "(0+(2+4))+(1+(3+5))"};
const Orders dotSingleSecond = {"0+1+2", "(0+1)+(2+3)", "0+1+2+3+4", "0+1+2+3+4+5"};

// -- norms
const Orders normStrided = {"0+1+2", "3+0+1+2", "4+0+1+2+3", "5+0+1+2+3+4"};
const Orders normOne = {"0+1+2", "(0+1)+(2+3)", "((0+1)+(2+3))+4", "((0+1)+(2+3))+(4+5)"};
const Orders normArray = {"0+1+2", "0+1+2+3", "((0+1)+(2+3))+4", "((0+2)+4)+((1+3)+5)"};
const Orders normArrayInFours = {"0+1+2", "0+1+2+3", "((0+2)+(1+3))+4", "((0+2)+4)+((1+3)+5)"};
const Orders normLanesDouble = {"(0+2)+1", "(0+2)+(1+3)", "((0+2)+4)+(1+3)", "((0+2)+4)+((1+3)+5)"};

template <class T> T inOrder(const char* order, const std::vector<T>& terms) { return sumAsWritten(order, terms); }

template <class T> T ascending(const std::vector<T>& terms, T start = 0, size_t from = 0)
{
    T sum = start;
    for (size_t j = from; j < terms.size(); ++j) {
        sum = sum + terms[j];
    }
    return sum;
}

// One long dense vector: a head up to the next 16-byte boundary, two accumulators of lanes, a tail.
template <class T> T inBlocks(const std::vector<T>& terms, uintptr_t address)
{
    constexpr size_t lanes = 16 / sizeof(T), block = 2 * lanes;
    if (address % sizeof(T) != 0) {
        return ascending(terms);
    }
    size_t head = (16 - address % 16) % 16 / sizeof(T);
    if (terms.size() < head + block) {
        return ascending(terms);
    }
    T one[lanes] = {}, two[lanes] = {};
    for (size_t j = 0; j < head; ++j) {
        one[0] = one[0] + terms[j];
    }
    size_t end = terms.size() - (terms.size() - head) % block;
    for (size_t j = head; j < end; ++j) {
        size_t k = (j - head) % block;
        T& sum = k < lanes ? one[k] : two[k - lanes];
        sum = sum + terms[j];
    }
    for (size_t k = 0; k < lanes; ++k) {
        one[k] = one[k] + two[k];
    }
    T joined = one[0] + one[1];
    if constexpr (lanes == 4) {
        T right = one[2] + one[3];
        joined = joined + right;
    }
    return ascending(terms, joined, end);
}

struct Dot {
    template <class T> static const Orders& orders(const Model<T>& m)
    {
        if (m.kernel() == "_S2" || m.kernel() == "_LS2") {
            return dotStrided;
        }
        if (m.kernel() == "_P") {
            return chain;
        }
        if (sizeof(T) == 8) {
            return dotLanesDouble;
        }
        return m.function().form == "vav" ? dotSingleSecond : chain;
    }

    template <class T> static bool alignedBlock(const Model<T>& m, int first, int n)
    {
        View<T> a = m.view("src1"), b = m.view("src2"), dst = m.view("dst");
        return sizeof(T) == 4 && m.function().form == "vava" && m.kernel() == "" && m.size("length") == 3 && n >= 5 &&
               (a.address(first) | b.address(first) | dst.address(first) | a.stride0() | b.stride0()) % 16 == 0;
    }

    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        View<T> a = m.view("src1"), b = m.view("src2"), dst = m.view("dst");
        int length = m.size("length");
        bool block = alignedBlock(m, first, n);
        for (int i = first; i < first + n; ++i) {
            std::vector<T> terms;
            for (int j = 0; j < length; ++j) {
                terms.push_back(a.get(i, j) * b.get(i, j));
            }
            T sum;
            if (length >= 3 && length <= 6) {
                bool inBlock = block && i - first < n / 4 * 4;
                sum = inOrder(inBlock ? "(0+2)+1" : orders(m)[length - 3], terms);
            } else if (m.function().form == "vv" && m.kernel() == "") {
                sum = inBlocks(terms, b.address(i));
            } else {
                sum = ascending(terms);
            }
            dst.set(i, 0, sum);
        }
        return 0;
    }
};

struct Norm {
    template <class T> static const Orders& orders(const Model<T>& m, bool inFours)
    {
        if (m.kernel() != "" && m.kernel() != "_L") {
            return normStrided;
        }
        if (sizeof(T) == 8) {
            return normLanesDouble;
        }
        return m.function().form == "v" ? normOne : inFours ? normArrayInFours : normArray;
    }

    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        View<T> src = m.view("src"), dst = m.view("dst");
        int length = m.size("length");
        for (int i = first; i < first + n; ++i) {
            std::vector<T> terms;
            for (int j = 0; j < length; ++j) {
                terms.push_back(src.get(i, j) * src.get(i, j));
            }
            bool straight = length >= 3 && length <= 6;
            T sum;
            if (straight) {
                sum = inOrder(orders(m, i - first < n / 4 * 4)[length - 3], terms);
            } else if (m.function().form == "v" && m.kernel() == "") {
                sum = inBlocks(terms, src.address(i));
            } else {
                sum = ascending(terms);
            }
            bool widened = !straight || (m.kernel() != "" && m.kernel() != "_L");
            dst.set(i, 0, widened ? T(std::sqrt(double(sum))) : T(std::sqrt(sum)));
        }
        return 0;
    }
};

const Oracle dots({"vokmDotProduct_vv", "vokmDotProduct_vav", "vokmDotProduct_vava"}, &Dot::run<float>, &Dot::run<double>);
const Oracle norms({"vokmL2Norm_v", "vokmL2Norm_va"}, &Norm::run<float>, &Norm::run<double>);

}  // namespace
