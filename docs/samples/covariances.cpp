#include <algorithm>
#include <cmath>
#include <cstdio>
#include <random>
#include <vector>
#include <vokm>

struct Cluster {
    double centre[3], covariance[3][3];
};

// The eigenvalues of one covariance with its axes in another order, which gives the iteration another course. The pointer
// layout needs no copy for that: the table tells where element (row, column) is.
vokStatus turnedAxes(const Cluster& cluster, int turn, double values[3])
{
    const double* table[9];
    double buffer[3 * 3];
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column)
            table[3 * row + column] = &cluster.covariance[(row + turn) % 3][(column + turn) % 3];
    return vokmEigenValuesSym_m_64f_P(table, 0, buffer, values, 3);
}

// values[i][0] >= values[i][1] >= values[i][2] of each cluster of the list. Status: the first that could not be mended.
vokStatus spreads(const std::vector<const Cluster*>& clusters, double (*values)[3])
{
    if (clusters.empty()) return vokStatusOk;
    const int32_t element = sizeof(double), row = 3 * element, count = static_cast<int32_t>(clusters.size());
    std::vector<const double*> list;
    for (const Cluster* cluster : clusters) list.push_back(cluster->covariance[0]);
    double buffer[3 * 3];
    vokStatus status = vokmEigenValuesSym_ma_64f_L(list.data(), 0, row, element, buffer, values[0], 3, count);
    if (status == vokStatusOk) return status;
    // Rare: a covariance failed, and those behind it may be missing. Once more, one at a time.
    vokStatus first = vokStatusOk;
    for (int32_t i = 0; i < count; ++i) {
        status = vokmEigenValuesSym_m_64f(list[i], row, element, buffer, values[i], 3);
        for (int turn = 1; turn < 3 && status == vokStatusNoConvergence; ++turn)
            status = turnedAxes(*clusters[i], turn, values[i]);
        if (first == vokStatusOk) first = status;
    }
    return first;
}

int main()
{
    std::mt19937 random(1);
    std::uniform_real_distribution<double> uniform(-1, 1);
    std::vector<Cluster> clusters(100000);
    std::vector<const Cluster*> list;
    for (Cluster& cluster : clusters) {
        for (int r = 0; r < 3; ++r)
            for (int c = r; c < 3; ++c) cluster.covariance[r][c] = cluster.covariance[c][r] = uniform(random) + (r == c ? 2 : 0);
        list.push_back(&cluster);
    }
    std::vector<double> values(3 * list.size());
    const vokStatus status = spreads(list, reinterpret_cast<double(*)[3]>(values.data()));
    int32_t failed = 0;
    double buffer[9], once[3], worst = 0;
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (vokmEigenValuesSym_m_64f(list[i]->covariance[0], 24, 8, buffer, once, 3) == vokStatusNoConvergence) ++failed;
        const auto& c = list[i]->covariance;
        const double* v = &values[3 * i];
        worst = std::max(worst, std::fabs(v[0] + v[1] + v[2] - (c[0][0] + c[1][1] + c[2][2])));
    }
    std::printf("%s %d did not converge at first, the worst trace is off by %g\n", vokmStatusText(status), failed, worst);
    return status != vokStatusOk || worst > 1e-12 || failed == 0;
}
