#include "same.h"

#include <algorithm>
#include <cmath>

namespace bench {

namespace {

// |A V - V diag(w)| element by element; a pair re +- i im has the real parts of its vector in one column, the imaginary
// parts in the next. The columns are scaled to unit length first, so the residual of a vector of zeros isn't zero.
void residual(Numbers& out, int n, const double* a, bool transposed, const double* v, const double* re, const double* im) {
    const auto at = [&](int r, int c) { return transposed ? a[c * n + r] : a[r * n + c]; };
    for (int j = 0; j < n; ++j) {
        const bool pair = im && im[j] != 0;
        const int k = pair ? j + 1 : j;
        double square = 0;
        for (int r = 0; r < n; ++r) square += v[r * n + j] * v[r * n + j] + (pair ? v[r * n + k] * v[r * n + k] : 0);
        const double scale = 1 / std::sqrt(square);
        for (int r = 0; r < n; ++r) {
            double x = -re[j] * v[r * n + j], y = 0;
            if (pair) x += im[j] * v[r * n + k], y = -re[j] * v[r * n + k] - im[j] * v[r * n + j];
            for (int c = 0; c < n; ++c) {
                x += at(r, c) * v[c * n + j];
                if (pair) y += at(r, c) * v[c * n + k];
            }
            out.push_back(x * scale);
            if (pair) out.push_back(y * scale);
        }
        j = k;
    }
}

} // namespace

Numbers comparable(Same same, int n, int count, const Numbers& source, const std::vector<Numbers>& results, bool ours) {
    Numbers out;
    if (same == Same::results) return results[0];
    const int nn = n * n;
    for (int i = 0; i < count; ++i) {
        const double *a = &source[i * nn], *first = &results[0][i * (same == Same::logicalRows || same == Same::sorted || same == Same::pairs ? n : nn)];
        switch (same) {
        case Same::logicalRows: // our rows stay where they were, and the pivots say where
            for (int r = 0; r < n; ++r)
                for (int c = 0; c < n; ++c) out.push_back(results[1][i * nn + (ours ? int(first[r]) : r) * n + c]);
            break;
        case Same::lowerFactor: // our diagonal is stored as its reciprocal
            for (int r = 0; r < n; ++r)
                for (int c = 0; c <= r; ++c) out.push_back(ours && r == c ? 1 / first[r * n + c] : first[r * n + c]);
            break;
        case Same::upperMagnitudes:
            for (int r = 0; r < n; ++r)
                for (int c = r; c < n; ++c) out.push_back(std::fabs(first[r * n + c]));
            break;
        case Same::sorted:
        case Same::vectors: {
            const double* w = same == Same::sorted ? first : &results[1][i * n];
            if (same == Same::vectors) residual(out, n, a, false, first, w, nullptr);
            Numbers values(w, w + n);
            std::sort(values.begin(), values.end());
            out.insert(out.end(), values.begin(), values.end());
            break;
        }
        case Same::pairs:
        case Same::vectorPairs: {
            const bool bare = same == Same::pairs;
            const double *re = &results[bare ? 0 : 1][i * n], *im = &results[bare ? 1 : 2][i * n];
            if (!bare) { // our right vectors are those of the transpose; as many zeros whatever the order of the values
                Numbers zeros;
                residual(zeros, n, a, ours, first, re, im);
                double largest = 0;
                for (double zero : zeros) largest = std::max(largest, std::isfinite(zero) ? std::fabs(zero) : HUGE_VAL);
                out.push_back(largest);
            }
            // Sums of the values' powers, which no order and no last bit of a real part can disturb.
            double sum = 0, squares = 0, magnitudes = 0;
            for (int j = 0; j < n; ++j) sum += re[j], squares += re[j] * re[j] - im[j] * im[j], magnitudes += std::hypot(re[j], im[j]);
            out.insert(out.end(), {sum, squares, magnitudes});
            break;
        }
        case Same::results: break;
        }
    }
    return out;
}

} // namespace bench
