#include "principal.h"

#include "progress.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include <nanoflann.hpp>

namespace {

// What nanoflann asks of points.
struct Adaptor {
    const Vectors& points;
    size_t kdtree_get_point_count() const { return static_cast<size_t>(points.count); }
    float kdtree_get_pt(size_t i, size_t axis) const { return points.plane(static_cast<int>(axis))[i]; }
    template <class Box> bool kdtree_get_bbox(Box&) const { return false; }
};
using Tree = nanoflann::KDTreeSingleIndexAdaptor<nanoflann::L2_Simple_Adaptor<float, Adaptor>, Adaptor, 3, int>;

constexpr int block = 1 << 13, batch = 1 << 10;  // points in one go: their neighbours fit the cache, and progress is told

// The neighbours of the points from `first` on, the nearest first: a row for each, from the point on.
void findNeighbours(const Tree& tree, const Vectors& points, int first, Matrices& around, Principal& result)
{
    std::vector<int> index(around.height);
    std::vector<float> square(around.height);
    for (int i = 0; i < around.count; ++i) {
        const float at[3] = {points.plane(0)[first + i], points.plane(1)[first + i], points.plane(2)[first + i]};
        tree.knnSearch(at, index.size(), index.data(), square.data());
        for (int k = 0; k < around.height; ++k)
            for (int axis = 0; axis < 3; ++axis) around.plane(k, axis)[i] = points.plane(axis)[index[k]] - at[axis];
        // So many points share the disc that reaches as far as the last of them.
        result.radius[first + i] = 0.5f * std::sqrt(3.14159f * square.back() / static_cast<float>(index.size()));
    }
}

// Eigenvectors and eigenvalues of count matrices. About one in ten thousand does not converge, and its run ends there: the
// batch is halved until that matrix is alone, and then the axes change places, which gives the iteration another course.
void decompose(
    Matrices& covariance, int first, int count, Matrices& axes, int axesFirst, float* values, Ledger& ledger, int turn = 0)
{
    float *from[9], *to[9], buffer[9];
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column) {
            from[3 * row + column] = covariance.plane((row + turn) % 3, (column + turn) % 3) + first;
            to[3 * row + column] = axes.plane((row + turn) % 3, column) + axesFirst;
        }
    const auto objects = std::tuple(0, int(sizeof(float)));
    const vokStatus status =
        LEDGER_ATTEMPT(ledger, count, vokmEigenValuesVectorsSym_ma_32f_P, from, objects, buffer, to, objects, values, 3);
    if (status == vokStatusOk) return;
    if (status != vokStatusNoConvergence || turn == 2) throw std::runtime_error(vokmStatusText(status));
    const int half = count / 2;
    if (half > 0) decompose(covariance, first, half, axes, axesFirst, values, ledger);
    decompose(covariance, first + half, count - half, axes, axesFirst + half, values + 3 * half, ledger, half > 0 ? 0 : turn + 1);
}

// The covariances of the neighbourhoods, scaled to a trace of 1, and the unit matrix added: nothing is singular then, and each
// eigenvalue is larger by 1.
Matrices covariances(Matrices& around, Ledger& ledger)
{
    const int n = around.count, k = around.height, s0 = around.stride0(), s2 = around.stride2();
    const std::vector<float> equal(k, 1 / static_cast<float>(k));
    Vectors mean(n);
    LEDGER_CALL(ledger, n, vokmMul_tav_32f, around.sized(), equal.data(), int(sizeof(float)), k, mean.all());
    for (int row = 0; row < k; ++row) {
        float* one = around.plane(row, 0);
        LEDGER_CALL(ledger, n, vokmSub_vava_32f, one, s0, s2, mean.all(), one, s0, s2, 3);
    }
    Matrices covariance(n, 3, 3);
    LEDGER_CALL(ledger, n, vokmMul_tama_32f, around.sized(), around.sized(), covariance.all());

    std::vector<float> scale(n);
    LEDGER_CALL(ledger, n, vokmTrace_ma_32f, covariance.all(), 3, scale.data());
    for (float& one : scale) one = one > 0 ? 1 / one : 0;  // of points in one place
    // A matrix here is also a vector of nine elements a plane apart.
    const auto nine = std::tuple(covariance.plane(0, 0), covariance.stride0(), covariance.stride2());
    LEDGER_CALL(ledger, n, vokmMul_vaca_32f, nine, scale.data(), int(sizeof(float)), nine, 9);
    const float unit[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    LEDGER_CALL(ledger, n, vokmAdd_vav_32f, nine, unit, int(sizeof(float)), nine, 9);
    return covariance;
}

}  // namespace

Principal principalComponents(const Vectors& points, Ledger& ledger)
{
    const Adaptor adaptor{points};
    Tree tree(3, adaptor, nanoflann::KDTreeSingleIndexAdaptorParams(16));
    tree.buildIndex();
    Principal result(points.count);
    Progress progress("neighbours and principal components");
    for (int first = 0; first < points.count; first += block) {
        progress.at(first, points.count);
        const int n = std::min(block, points.count - first);
        Matrices around(n, std::min(neighbours, points.count), 3);
        findNeighbours(tree, points, first, around, result);
        Matrices covariance = covariances(around, ledger);
        std::vector<float> values(3 * size_t(n));
        for (int at = 0; at < n; at += batch)
            decompose(covariance, at, std::min(batch, n - at), result.axes, first + at, values.data() + 3 * size_t(at), ledger);
        for (int i = 0; i < n; ++i) {
            const float* v = values.data() + 3 * size_t(i);
            result.variation[first + i] = v[0] > 1 ? std::max(0.0f, v[2] - 1) : 0;
        }
    }
    return result;
}
