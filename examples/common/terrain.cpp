#include "terrain.h"

#include "legend.h"

#include <algorithm>
#include <cmath>

namespace {

// The four weights of a cubic B-spline at the fraction t of a cell. It rounds off the steps of whole metres.
void splineWeights(double t, double (&w)[4])
{
    w[0] = (1 - t) * (1 - t) * (1 - t) / 6;
    w[1] = (3 * t * t * t - 6 * t * t + 4) / 6;
    w[3] = t * t * t / 6;
    w[2] = 1 - w[0] - w[1] - w[3];
}

struct Direction {
    float x, y, z;
};

Direction direction(float compass, float above)
{  // degrees, from north over east and from the horizon up
    const float degree = 3.14159265f / 180, level = std::cos(degree * above);
    return {level * std::sin(degree * compass), level * std::cos(degree * compass), std::sin(degree * above)};
}

}  // namespace

Terrain::Terrain(const AscGrid& grid, int detail)
    : columns((grid.columns - 1) * detail + 3), rows((grid.rows - 1) * detail + 3), points(columns * rows)
{
    const auto [low, high] = std::minmax_element(grid.heights.begin(), grid.heights.end());
    lowest = *low;
    highest = *high;
    const double cells = std::max(grid.columns, grid.rows) - 1;
    step = static_cast<float>(2 / cells / detail);
    // Whatever the units (a cellsize in degrees is common), the relief is drawn as a bit less than a fifth of the longer side.
    const double relief = double(highest) - lowest, trueScale = 2 / (cells * grid.cellsize);
    zScale = static_cast<float>(relief > 0 ? 0.37 / relief : trueScale);
    exaggeration = zScale / trueScale;

    // First along the rows of the grid, then across them: rows that are needed are those of four rows of the grid.
    std::vector<double> across(size_t(grid.rows + 4) * columns);
    double w[4];
    for (int row = -2; row < grid.rows + 2; ++row)
        for (int column = 0; column < columns; ++column) {
            const double place = double(column - 1) / detail, cell = std::floor(place);
            splineWeights(place - cell, w);
            double sum = 0;
            for (int k = 0; k < 4; ++k) sum += w[k] * (grid.heightAt(int(cell) - 1 + k, row) - lowest);
            across[size_t(row + 2) * columns + column] = sum;
        }
    for (int row = 0; row < rows; ++row) {
        const double place = double(row - 1) / detail, cell = std::floor(place);
        splineWeights(place - cell, w);
        for (int column = 0; column < columns; ++column) {
            double sum = 0;
            for (int k = 0; k < 4; ++k) sum += w[k] * across[size_t(int(cell) + 1 + k) * columns + column];
            const int i = at(column, row);
            points.plane(0)[i] = step * (static_cast<float>(column) - static_cast<float>(columns - 1) / 2);
            points.plane(1)[i] = step * (static_cast<float>(rows - 1) / 2 - static_cast<float>(row));
            points.plane(2)[i] = static_cast<float>(zScale * sum);
        }
    }
}

void normalise(float* vectors, int stride0, int stride2, int count, Ledger& ledger)
{
    std::vector<float> length(count);
    LEDGER_CALL(ledger, count, vokmL2Norm_va_32f, vectors, stride0, stride2, length.data(), 3);
    for (float& one : length) one = 1 / one;
    LEDGER_CALL(ledger, count, vokmMul_vaca_32f, vectors, stride0, stride2, length.data(), int(sizeof(float)), vectors, stride0,
        stride2, 3);
}

Vectors normals(const Terrain& terrain, Ledger& ledger)
{
    // One call for the whole grid: point i less point i - 2 and so on. At the ends of the rows that joins points of two
    // rows, which gives nonsense in the border, where nobody looks.
    const Vectors& p = terrain.points;
    const int first = terrain.columns, count = p.count - 2 * first, s0 = p.stride0(), s2 = p.stride2();
    Vectors east(p.count), north(p.count), normal(p.count);
    const float* at = p.plane(0) + first;
    float *u = east.plane(0) + first, *v = north.plane(0) + first, *n = normal.plane(0) + first;

    LEDGER_CALL(ledger, count, vokmSub_vava_32f, at + 1, s0, s2, at - 1, s0, s2, u, s0, s2, 3);
    LEDGER_CALL(ledger, count, vokmSub_vava_32f, at - first, s0, s2, at + first, s0, s2, v, s0, s2, 3);
    LEDGER_CALL(ledger, count, vokmCrossProduct_vava_32f, u, s0, s2, v, s0, s2, n, s0, s2);
    normalise(n, s0, s2, count, ledger);
    return normal;
}

// How much light each point gets from a far lamp of brightness 1, with the shadows that the terrain throws on itself.
static void lightFrom(Direction toLamp, const Terrain& terrain, const Vectors& normals, std::vector<float>& light, Ledger& ledger)
{
    const float lamp[3] = {toLamp.x, toLamp.y, toLamp.z};
    LEDGER_CALL(ledger, normals.count, vokmDotProduct_vav_32f, normals.plane(0), normals.stride0(), normals.stride2(), lamp,
        int(sizeof(float)), light.data(), 3);

    // Shadows: `edge` is the height below which a point lies in the dark. It is carried from line to line away from the
    // lamp, along rows or columns, whichever way the light goes faster, and sinks with the slope of the light.
    const bool alongY = std::fabs(toLamp.y) >= std::fabs(toLamp.x);
    const int lines = alongY ? terrain.rows : terrain.columns, places = alongY ? terrain.columns : terrain.rows;
    const int lineStep = alongY ? terrain.columns : 1, placeStep = alongY ? 1 : terrain.columns;
    const float major = alongY ? -toLamp.y : toLamp.x, minor = alongY ? toLamp.x : -toLamp.y;  // rows grow southward
    const float slant = major != 0 ? minor / std::fabs(major) : 0;
    const float drop = major != 0 ? terrain.step * toLamp.z / std::fabs(major) : 1e3f, softness = 1 / terrain.step;
    const float* height = terrain.points.plane(2);
    const auto shift = static_cast<int>(std::floor(slant));
    const float t = slant - static_cast<float>(shift);
    std::vector<float> edge(places, -1e3f), before;
    for (int k = 0; k < lines; ++k) {
        const int line = major > 0 ? lines - 1 - k : k;
        before = edge;
        for (int place = 0; place < places; ++place) {
            const int i = line * lineStep + place * placeStep, from = place + shift;
            const float shadow = from < 0 || from + 1 >= places ? -1e3f : (1 - t) * before[from] + t * before[from + 1] - drop;
            edge[place] = std::max(shadow, height[i]);
            light[i] = std::max(light[i], 0.0f) * std::clamp(1 + softness * (height[i] - shadow), 0.0f, 1.0f);
        }
    }
}

std::vector<Colour> sunAndSky(const Terrain& terrain, const Vectors& normals, Ledger& ledger)
{
    // A few lamps close together make a sun with soft shadows, many weak ones all around make a sky.
    struct Lamp {
        Direction direction;
        Colour colour;
    };
    std::vector<Lamp> lamps;
    for (int k = -2; k <= 2; ++k)
        lamps.push_back({direction(315 + 1.5f * static_cast<float>(k), 36 + static_cast<float>(k * k % 3)), fromHex(0xfff1d6)});
    const float sun = 0.70f / (5 * lamps[2].direction.z);
    for (Lamp& lamp : lamps) lamp.colour = sun * lamp.colour;
    for (int k = 0; k < 48; ++k) {
        const Direction d =
            direction(22.5f * static_cast<float>(k) + 7.5f * static_cast<float>(k / 16), 18 + 25 * static_cast<float>(k / 16));
        lamps.push_back({d, 0.016f * fromHex(0xd8e6ff)});
    }

    std::vector<Colour> light(normals.count);
    std::vector<float> one(normals.count);
    for (const Lamp& lamp : lamps) {
        lightFrom(lamp.direction, terrain, normals, one, ledger);
        for (int i = 0; i < normals.count; ++i) light[i] = light[i] + one[i] * lamp.colour;
    }
    return light;
}

Colour landColour(const Terrain& terrain, float z)
{
    static const Ramp land{
        {fromHex(0x4f7f5b), fromHex(0x8fae70), fromHex(0xd9cf97), fromHex(0xd0a56c), fromHex(0xa9775a), fromHex(0xf3eee6)}};
    const float top = terrain.zScale * (terrain.highest - terrain.lowest);
    return land.at(top > 0 ? z / top : 0);
}
