#include "quadric.h"

#include "arrays.h"
#include "progress.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int side = 2 * reach + 1, terms = 6;  // of w = c0 + c1 u + c2 v + c3 uu/2 + c4 uv + c5 vv/2
constexpr int most = 1 << 19;                   // points in one go: they need 900 bytes each

// Lengths are in cells of the grid.
struct Fits {
    explicit Fits(int n) : frame(n, 3, 3), design(n, neighbours, terms), values(n, neighbours), qr(n, terms), cholesky(n, terms)
    {
    }

    Matrices frame;   // rows: two tangents and the normal
    Matrices design;  // a row for each neighbour
    Vectors values, qr, cholesky;
};

// Tangent frames: the normal, the way to the east along the surface, and what stands upright on both.
void setFrames(Fits& fits, const Vectors& normal, int first, Ledger& ledger)
{
    const int n = fits.frame.count, s0 = fits.frame.stride0(), s2 = fits.frame.stride2();
    float *east = fits.frame.plane(0, 0), *north = fits.frame.plane(1, 0), *up = fits.frame.plane(2, 0);
    for (int k = 0; k < 3; ++k) std::copy_n(normal.plane(k) + first, n, fits.frame.plane(2, k));
    const float south[3] = {0, -1, 0};
    LEDGER_CALL(ledger, n, vokmCrossProduct_vav_32f, up, s0, s2, south, int(sizeof(float)), east, s0, s2);
    normalise(east, s0, s2, n, ledger);
    LEDGER_CALL(ledger, n, vokmCrossProduct_vava_32f, up, s0, s2, east, s0, s2, north, s0, s2);
}

// A row of the design for each neighbour, in the frame of the point in the middle. What lies farther weighs less.
void setDesign(Fits& fits, const Vectors& points, int first, int rowStep, int columnStep, Ledger& ledger)
{
    const int n = fits.frame.count, s0 = points.stride0(), s2 = points.stride2();
    Vectors difference(n), local(n);
    std::vector<float> distance(n);
    const float* middle = points.plane(0) + first;
    for (int k = 0; k < neighbours; ++k) {
        const float* other = middle + (k / side - reach) * rowStep + (k % side - reach) * columnStep;
        LEDGER_CALL(ledger, n, vokmSub_vava_32f, other, s0, s2, middle, s0, s2, difference.all(), 3);
        LEDGER_CALL(ledger, n, vokmL2Norm_va_32f, difference.all(), distance.data(), 3);
        LEDGER_CALL(ledger, n, vokmMul_mava_32f, fits.frame.sized(), difference.sized(), local.all());
        float* row[terms];
        for (int term = 0; term < terms; ++term) row[term] = fits.design.plane(k, term);
        for (int i = 0; i < n; ++i) {
            const float u = local.plane(0)[i], v = local.plane(1)[i], w = local.plane(2)[i];
            const float weight = 1 / (1 + 0.25f * distance[i] * distance[i]);
            row[0][i] = weight;
            row[1][i] = weight * u;
            row[2][i] = weight * v;
            row[3][i] = weight * u * u / 2;
            row[4][i] = weight * u * v;
            row[5][i] = weight * v * v / 2;
            fits.values.plane(k)[i] = weight * w;
        }
    }
}

// Both solutions. The decompositions take the place of what they decompose.
void solve(Fits& fits, Ledger& ledger)
{
    const int n = fits.design.count;
    Matrices normal(n, terms, terms);
    Vectors right(n, terms);
    LEDGER_CALL(ledger, n, vokmMul_tama_32f, fits.design.sized(), fits.design.sized(), normal.all());
    LEDGER_CALL(ledger, n, vokmMul_tava_32f, fits.design.sized(), fits.values.sized(), right.all());
    LEDGER_CALL(ledger, n, vokmCholeskyDecomp_ma_32f, normal.all(), normal.all(), terms);
    LEDGER_CALL(ledger, n, vokmCholeskyBackSubst_mava_32f, normal.all(), right.all(), fits.cholesky.all(), terms);

    float buffer[neighbours];
    LEDGER_CALL(ledger, n, vokmQRDecomp_ma_32f, fits.design.all(), buffer, fits.design.all(), terms, neighbours);
    LEDGER_CALL(
        ledger, n, vokmQRBackSubst_mava_32f, fits.design.all(), buffer, fits.values.all(), fits.qr.all(), terms, neighbours);
}

std::vector<Shape> shapes(const Fits& fits, const Vectors& coefficients, Ledger& ledger)
{
    const int n = coefficients.count;
    Vectors local(n), normal(n);
    std::vector<Shape> all(n);
    for (int i = 0; i < n; ++i) {
        float c[terms];
        for (int term = 0; term < terms; ++term) c[term] = coefficients.plane(term)[i];
        const float e = 1 + c[1] * c[1], f = c[1] * c[2], g = 1 + c[2] * c[2], square = e + g - 1, length = std::sqrt(square);
        all[i].curvature = -(e * c[5] - 2 * f * c[4] + g * c[3]) / (2 * square * length);
        local.plane(0)[i] = -c[1] / length;
        local.plane(1)[i] = -c[2] / length;
        local.plane(2)[i] = 1 / length;
    }
    LEDGER_CALL(ledger, n, vokmMul_tava_32f, fits.frame.sized(), local.sized(), normal.all());
    constexpr float degree = 3.14159265f / 180;
    for (int i = 0; i < n; ++i)
        all[i].slope = std::atan2(std::hypot(normal.plane(0)[i], normal.plane(1)[i]), normal.plane(2)[i]) / degree;
    return all;
}

}  // namespace

Shapes fitQuadrics(Terrain terrain, double cellsize, int detail, Ledger& ledger)
{
    // The same in cells of the grid, at its true height.
    Matrices scale(1, 3, 3);
    scale.plane(0, 0)[0] = scale.plane(1, 1)[0] = 1 / (terrain.step * static_cast<float>(detail));
    scale.plane(2, 2)[0] = 1 / static_cast<float>(terrain.zScale * cellsize);
    Vectors points(terrain.points.count);
    LEDGER_CALL(ledger, points.count, vokmMul_mva_32f, scale.sizedOne(0), terrain.points.sized(), points.all());
    terrain.points = points;
    const Vectors normal = normals(terrain, ledger);

    Shapes result{std::vector<Shape>(points.count)};
    const int margin = marginOf(detail), whole = terrain.rows - 2 * margin, band = std::clamp(most / terrain.columns, 1, whole);
    Progress progress("fitting");
    for (int done = 0; done < whole; done += band) {
        progress.at(done, whole);
        // Rows go with their margins, so that the points of a band follow one another; nobody looks at what those get.
        const int first = terrain.at(margin, margin + done);
        const int n = terrain.columns * std::min(band, whole - done) - 2 * margin;
        Fits fits(n);
        setFrames(fits, normal, first, ledger);
        setDesign(fits, points, first, detail * terrain.columns, detail, ledger);
        solve(fits, ledger);
        const std::vector<Shape> one = shapes(fits, fits.qr, ledger), other = shapes(fits, fits.cholesky, ledger);
        std::copy(one.begin(), one.end(), result.at.begin() + first);
        Shape& worst = result.difference;
        for (int i = 0; i < n; ++i) {
            const int column = (first + i) % terrain.columns;
            if (column < margin || column >= terrain.columns - margin) continue;
            ++result.fitted;
            worst.slope = std::max(worst.slope, std::fabs(one[i].slope - other[i].slope));
            worst.curvature = std::max(worst.curvature, std::fabs(one[i].curvature - other[i].curvature));
        }
    }
    return result;
}
