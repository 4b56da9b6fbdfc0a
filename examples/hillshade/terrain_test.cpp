// What the pictures show, on terrains simple enough to know by heart.
#include "terrain.h"

#include <cmath>
#include <cstdio>

static int failures = 0;

static void near(const char* what, double seen, double expected, double tolerance)
{
    if (std::fabs(seen - expected) <= tolerance) return;
    std::printf("%s: %g, expected %g\n", what, seen, expected);
    ++failures;
}

template <class Height> static AscGrid gridOf(int columns, int rows, Height height)
{
    AscGrid grid{columns, rows, 1, 0, {}};
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) grid.heights.push_back(static_cast<float>(height(column, row)));
    return grid;
}

int main()
{
    Ledger ledger;

    // A plane that rises to the east and to the north: one normal everywhere, also at the corners, and no shadows.
    const Terrain plane(gridOf(9, 7, [](int column, int row) { return 3 * column - 2 * row; }), 5);
    const Vectors up = normals(plane, ledger);
    const double s = plane.zScale / (plane.step * 5), length = std::sqrt(1 + 13 * s * s);
    for (int i : {plane.at(1, 1), plane.at(20, 17), plane.at(plane.columns - 2, plane.rows - 2)}) {
        near("normal, east", up.plane(0)[i], -3 * s / length, 1e-4);
        near("normal, north", up.plane(1)[i], -2 * s / length, 1e-4);
        near("normal, up", up.plane(2)[i], 1 / length, 1e-4);
    }

    // Level ground gets as much light as landColour expects. A wall from south-west to north-east keeps the sun, which
    // stands in the north-west, from the ground behind it.
    const Terrain level(gridOf(5, 5, [](int, int) { return 7; }), 8);
    near("level ground", sunAndSky(level, normals(level, ledger), ledger)[level.at(17, 17)].g, 1, 0.15);
    const Terrain wall(gridOf(41, 41, [](int column, int row) { return column + row == 40 ? 10 : 0; }), 4);
    const std::vector<Colour> light = sunAndSky(wall, normals(wall, ledger), ledger);
    near("before the wall", light[wall.at(40, 40)].r > 0.7f, true, 0);
    near("behind the wall", light[wall.at(90, 90)].r < 0.5f * light[wall.at(40, 40)].r, true, 0);
    near("far behind the wall", light[wall.at(150, 150)].r > 0.7f, true, 0);
    return failures != 0;
}
