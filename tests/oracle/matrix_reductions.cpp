// Trace and Frobenius norm. Orders are written out as text where they fit one; digits are terms.
#include <array>
#include <cmath>
#include <limits>
#include <vector>

#include "../harness/expression.h"
#include "../harness/job.h"

namespace {

using namespace harness;

struct Trace {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        static const std::array<const char*, 4> chain = {"0+1+2", "0+1+2+3", "0+1+2+3+4", "0+1+2+3+4+5"};
        static const std::array<const char*, 4> strided = {"0+1+2", "0+3+1+2", "0+4+1+2+3", "4+5+0+1+2+3"};
        View<T> src = m.view("src"), dst = m.view("dst");
        int size = m.size("widthHeight");
        bool anyStride = m.kernel() == "_S2" || m.kernel() == "_LS2";
        for (int i = first; i < first + n; ++i) {
            T sum = 0;
            if (size >= 3 && size <= 6) {
                std::vector<T> terms;
                for (int k = 0; k < size; ++k) {
                    terms.push_back(src.get(i, k, k));
                }
                const char* order = (anyStride ? strided : chain)[size - 3];
                dst.set(i, 0, sumAsWritten(order, terms));
                continue;
            }
            for (int k = 0; k < size; ++k) {  // each partial sum is stored, and seen where the result lies on the diagonal
                sum = sum + src.get(i, k, k);
                dst.set(i, 0, sum);
            }
        }
        return 0;
    }
};

template <class T> T ascending(const std::vector<T>& terms, size_t from, size_t to, T start = 0)
{
    for (size_t j = from; j < to; ++j) {
        start = start + terms[j];
    }
    return start;
}

struct FrobNorm {
    enum Order { chain, pairs, rowSums, lastColumnFirst, lanes, any };

    template <class T> static Order orderOf(const Model<T>& m, int height, int width)
    {
        bool array = m.function().array, single = sizeof(T) == 4;
        const std::string& kernel = m.kernel();
        bool threes = width == 3 && height == 3;
        if (kernel == "_P") {
            return array && threes ? chain : pairs;
        }
        if (kernel == "") {
            return !array && !single ? chain : width == 4 && height == 4 ? lanes : any;
        }
        if (threes) {
            return chain;
        }
        if (width == 4) {
            return !single && kernel == "_LS2" ? lastColumnFirst : rowSums;
        }
        return width == 5 || width == 6 ? lastColumnFirst : any;
    }

    template <class T> static T sumOf(Order order, const std::vector<T>& q, size_t width)
    {
        T sum = 0;
        switch (order) {
        case pairs:
            for (size_t j = 0; j + 1 < q.size(); j += 2) {
                T pair = q[j] + q[j + 1];
                sum = sum + pair;
            }
            return q.size() % 2 ? sum + q.back() : sum;
        case rowSums:
            for (size_t j = 0; j < q.size(); j += width) {
                sum = sum + ascending(q, j + 1, j + width, q[j]);
            }
            return sum;
        case lastColumnFirst:
            for (size_t j = 0; j < q.size(); j += width) {
                sum = ascending(q, j, j + width - 1, T(sum + q[j + width - 1]));
            }
            return sum;
        case lanes: {
            std::vector<T> down;
            for (size_t c = 0; c < 4; ++c) {
                const char* order4 = "(0+1)+(2+3)";
                down.push_back(sumAsWritten(order4, std::vector<T>{q[c], q[4 + c], q[8 + c], q[12 + c]}));
            }
            const char* across = "(0+2)+(1+3)";
            return sumAsWritten(across, down);
        }
        default: return ascending(q, 0, q.size());
        }
    }

    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        View<T> src = m.view("src"), dst = m.view("dst");
        Order order = orderOf(m, src.rows(), src.cols());
        for (int i = first; i < first + n; ++i) {
            std::vector<T> squares;
            long double exact = 0;
            for (int r = 0; r < src.rows(); ++r) {
                for (int c = 0; c < src.cols(); ++c) {
                    squares.push_back(src.get(i, r, c) * src.get(i, r, c));
                    exact += squares.back();
                }
            }
            T norm = std::sqrt(sumOf(order, squares, src.cols()));
            if (order == any) {  // all squares, summed somehow: what the library says stands if it is close enough
                T said = m.answer("dst").get(i, 0);
                long double allowed = (squares.size() + 2) * std::sqrt(exact) * std::numeric_limits<T>::epsilon() / 2;
                norm = std::isfinite(norm) && std::fabs(said - std::sqrt(exact)) <= allowed ? said : norm;
            }
            dst.set(i, 0, norm);
        }
        return 0;
    }
};

const Oracle trace({"vokmTrace_m", "vokmTrace_ma"}, &Trace::run<float>, &Trace::run<double>);
const Oracle frobNorm({"vokmFrobNorm_m", "vokmFrobNorm_ma"}, &FrobNorm::run<float>, &FrobNorm::run<double>);

}  // namespace
