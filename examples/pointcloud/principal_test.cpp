// Principal components of clouds whose normals and surface variations are known.
#include "principal.h"

#include <cmath>
#include <cstdio>
#include <random>

static int failures = 0;

static void expect(bool good, const char* what, double seen)
{
    if (good) return;
    std::printf("%s: %g\n", what, seen);
    ++failures;
}

template <class Place> static Vectors cloudOf(int n, Place place)
{
    std::mt19937 random(3);
    std::uniform_real_distribution<float> between(-1, 1);
    Vectors points(n);
    for (int i = 0; i < n; ++i) {
        float p[3] = {between(random), between(random), between(random)};
        place(p);
        for (int axis = 0; axis < 3; ++axis) points.plane(axis)[i] = p[axis];
    }
    return points;
}

int main()
{
    // Many blocks, some of whose matrices do not converge at first: a plane, with one normal everywhere.
    Ledger ledger;
    const Vectors plane = cloudOf(80000, [](float* p) { p[2] = 0.75f * p[0] - 0.3f * p[1]; });
    const Principal flat = principalComponents(plane, ledger);
    const double length = std::sqrt(1 + 0.75 * 0.75 + 0.3 * 0.3);
    double worst = 1, variation = 0;
    for (int i = 0; i < plane.count; ++i) {
        const float* normal = flat.axes.plane(0, 2) + i;
        const int row = flat.axes.stride1() / flat.axes.stride0();
        worst = std::fmin(worst, std::fabs(0.75 * normal[0] - 0.3 * normal[row] - normal[2 * row]) / length);
        variation = std::fmax(variation, flat.variation[i]);
    }
    expect(worst > 1 - 1e-4, "plane, cosine of the farthest normal", worst);
    expect(variation < 1e-6, "plane, variation", variation);

    // A ball's normals point away from its middle; a cap of it varies with the square of its radius.
    const Vectors ball = cloudOf(4000, [](float* p) {
        const float r = std::hypot(p[0], p[1], p[2]);
        for (int axis = 0; axis < 3; ++axis) p[axis] /= r;
    });
    const Principal round = principalComponents(ball, ledger);
    double mean = 0;
    worst = 1;
    for (int i = 0; i < ball.count; ++i) {
        double cosine = 0;
        for (int axis = 0; axis < 3; ++axis) cosine += ball.plane(axis)[i] * round.axes.plane(axis, 2)[i];
        worst = std::fmin(worst, std::fabs(cosine));
        mean += round.variation[i] / ball.count;
    }
    expect(worst > 0.98, "ball, cosine of the farthest normal", worst);
    // The cap around a point: heights are even over h = 2 * neighbours / count, and vary by h*h/12; the ways along by h/2 each.
    const double cap = 2.0 * neighbours / ball.count / 12;
    expect(mean > 0.8 * cap && mean < 1.2 * cap, "ball, variation for that of the cap", mean / cap);

    // No way is special inside a cube; points in one place, or fewer than the neighbours, are no reason to fail.
    const Principal inside = principalComponents(cloudOf(20000, [](float*) {}), ledger);
    mean = 0;
    for (float one : inside.variation) mean += one / static_cast<double>(inside.variation.size());
    expect(mean > 0.15 && mean < 1.0 / 3, "cube, variation", mean);
    const Principal same = principalComponents(cloudOf(5, [](float* p) { p[0] = p[1] = p[2] = 0.5f; }), ledger);
    expect(same.variation[4] == 0 && same.radius[4] == 0, "one place, variation", same.variation[4]);
    return failures != 0;
}
