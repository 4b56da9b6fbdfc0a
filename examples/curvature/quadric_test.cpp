// Slopes and curvatures of surfaces that have the same ones everywhere, or nearly so.
#include "quadric.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

static int failures = 0;

// The surface of these heights, in cells, has this slope and this curvature in its middle.
template <class Height> static void expect(const char* what, float slope, float curvature, Height height)
{
    constexpr int columns = 31, rows = 25, detail = 3;
    constexpr float cellsize = 20;
    AscGrid grid{columns, rows, cellsize, 0, {}};
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            grid.heights.push_back(100 + cellsize * static_cast<float>(height(column - columns / 2, row - rows / 2)));
    Ledger ledger;
    const Terrain terrain(grid, detail);
    const Shapes shapes = fitQuadrics(terrain, cellsize, detail, ledger);
    const Shape seen = shapes.at[terrain.at(1 + detail * (columns / 2), 1 + detail * (rows / 2))];
    const bool close =
        std::fabs(seen.slope - slope) < 0.05f && std::fabs(seen.curvature - curvature) < 0.002f + 0.02f * std::fabs(curvature);
    if (close && shapes.difference.slope < 0.01f && shapes.difference.curvature < 1e-4f) return;
    std::printf("%s: slope %g, curvature %g, expected %g and %g; differences %g and %g\n", what, seen.slope, seen.curvature,
        slope, curvature, shapes.difference.slope, shapes.difference.curvature);
    ++failures;
}

int main()
{
    const float degree = 3.14159265f / 180;
    expect("level", 0, 0, [](int, int) { return 0; });
    expect("slant", std::atan(0.5f) / degree, 0, [](int x, int y) { return 0.3 * x - 0.4 * y; });
    expect("saddle", 0, 0, [](int x, int y) { return 0.05 * x * y; });
    expect("bowl", 0, -1.0f / 40, [](int x, int y) { return (x * x + y * y) / 80.0; });
    expect("trough", 0, -0.5f / 40, [](int x, int) { return x * x / 80.0; });
    // A ball's curvature is that of its radius also where it is steep.
    expect("ball", std::asin(20 / 40.0f) / degree, 1.0f / 40,
        [](int x, int y) { return std::sqrt(1600.0 - (x + 20) * (x + 20) - y * y); });
    return failures != 0;
}
