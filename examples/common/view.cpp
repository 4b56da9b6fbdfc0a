#include "view.h"

#include <algorithm>
#include <cmath>

Cameras::Cameras(
    int width, int height, float radius, const std::vector<float>& compass, const std::vector<float>& above, Ledger& ledger)
    : distance(3.5f * radius), turn(static_cast<int>(compass.size()), 4, 4), screen(turn.count, 4, 4)
{
    Matrices around(turn.count, 4, 4), tilt(turn.count, 4, 4), lens(1, 4, 4);
    const auto put = [](Matrices& to, int i, const float(&m)[4][4]) {
        for (int row = 0; row < 4; ++row)
            for (int column = 0; column < 4; ++column) to.plane(row, column)[i] = m[row][column];
    };
    constexpr float degree = 3.14159265f / 180;
    for (int i = 0; i < turn.count; ++i) {
        const float sa = std::sin(degree * compass[i]), ca = std::cos(degree * compass[i]);
        const float sb = std::sin(degree * above[i]), cb = std::cos(degree * above[i]);
        put(around, i, {{-ca, sa, 0, 0}, {-sa, -ca, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}});
        put(tilt, i, {{1, 0, 0, 0}, {0, cb, -sb, 0}, {0, sb, cb, 0}, {0, 0, 0, 1}});
    }
    const float w = static_cast<float>(width), h = static_cast<float>(height), focus = 1.5f * w;
    put(lens, 0,
        {{focus, w / 2, 0, distance * w / 2}, {0, 0.46f * h, -focus, distance * 0.46f * h}, {0, 0, 0, 1}, {0, 1, 0, distance}});
    LEDGER_CALL(ledger, turn.count, vokmMul_mama_32f, tilt.sized(), around.sized(), turn.all());
    LEDGER_CALL(ledger, turn.count, vokmMul_mma_32f, lens.sizedOne(0), turn.sized(), screen.all());
}

void View::draw(const Surface& surface, const Cameras& cameras, int camera, Ledger& ledger)
{
    const Vectors& from = surface.points;
    const std::vector<Colour>& colours = surface.colours;
    Vectors screen(from.count);
    LEDGER_CALL(ledger, from.count, vokmAffineTransform3DH_mva_32f, cameras.screen.one(camera), from.all(), screen.all());

    const float *x = screen.plane(0), *y = screen.plane(1), *z = screen.plane(2);
    for (int row = surface.margin; row + 1 < surface.rows - surface.margin; ++row)
        for (int column = surface.margin; column + 1 < surface.columns - surface.margin; ++column) {
            const int a = row * surface.columns + column, b = a + 1, c = a + surface.columns, d = c + 1;
            for (const auto& [i, j, k] : {std::array{a, b, c}, std::array{b, d, c}})
                triangle({x[i], x[j], x[k]}, {y[i], y[j], y[k]}, {z[i], z[j], z[k]}, {colours[i], colours[j], colours[k]});
        }
}

void View::triangle(const std::array<float, 3>& x, const std::array<float, 3>& y, const std::array<float, 3>& z,
    const std::array<Colour, 3>& corners)
{
    if (!(z[0] > 0 && z[1] > 0 && z[2] > 0)) return;  // not in front of us
    const auto clampTo = [](float value, int end) { return static_cast<int>(std::clamp(value, 0.0f, static_cast<float>(end))); };
    const int left = clampTo(std::min({x[0], x[1], x[2]}), image.width),
              right = clampTo(std::max({x[0], x[1], x[2]}) + 1, image.width);
    const int top = clampTo(std::min({y[0], y[1], y[2]}), image.height),
              bottom = clampTo(std::max({y[0], y[1], y[2]}) + 1, image.height);
    const float area = (x[1] - x[0]) * (y[2] - y[0]) - (x[2] - x[0]) * (y[1] - y[0]);
    if (area == 0) return;
    for (int row = top; row < bottom; ++row)
        for (int column = left; column < right; ++column) {
            const float px = static_cast<float>(column) + 0.5f, py = static_cast<float>(row) + 0.5f;
            const float v = ((px - x[0]) * (y[2] - y[0]) - (x[2] - x[0]) * (py - y[0])) / area;
            const float w = ((x[1] - x[0]) * (py - y[0]) - (px - x[0]) * (y[1] - y[0])) / area;
            const float u = 1 - v - w;
            if (!(u >= 0 && v >= 0 && w >= 0)) continue;
            const float near = u * z[0] + v * z[1] + w * z[2];
            float& seen = nearest[size_t(row) * image.width + column];
            if (near <= seen) continue;
            seen = near;
            image.at(column, row) = u * corners[0] + v * corners[1] + w * corners[2];
        }
}

namespace {

constexpr float tableZ = -0.15f;

// The four sides of the block under the terrain: one strip all around, layers of earth from the surface to the table.
void drawSides(View& view, const Terrain& terrain, const Cameras& cameras, int camera, Ledger& ledger)
{
    constexpr int layers = 40;
    std::vector<std::array<int, 2>> edge;  // a point of the terrain's edge, and the side that it is on
    for (int c = 1; c < terrain.columns - 1; ++c) edge.push_back({terrain.at(c, terrain.rows - 2), 0});
    for (int r = terrain.rows - 2; r > 0; --r) edge.push_back({terrain.at(terrain.columns - 2, r), 1});
    for (int c = terrain.columns - 2; c > 0; --c) edge.push_back({terrain.at(c, 1), 2});
    for (int r = 1; r < terrain.rows - 1; ++r) edge.push_back({terrain.at(1, r), 3});

    const Colour earth[] = {fromHex(0x8a6f55), fromHex(0x6f5a4a), fromHex(0x7d6650), fromHex(0x574940)};
    const float facing[] = {0.62f, 0.45f, 0.95f, 1.0f};  // south, east, north, west, with the sun in the north-west
    const auto columns = static_cast<int>(edge.size());
    Vectors points(columns * (layers + 1));
    std::vector<Colour> colours(points.count);
    for (int layer = 0; layer <= layers; ++layer)
        for (int column = 0; column < columns; ++column) {
            const int i = layer * columns + column;
            const auto [top, side] = edge[column];
            const float t = static_cast<float>(layer) / layers, z = terrain.points.plane(2)[top];
            points.plane(0)[i] = terrain.points.plane(0)[top];
            points.plane(1)[i] = terrain.points.plane(1)[top];
            points.plane(2)[i] = z + t * (tableZ - z);
            // Layers lie level but for a gentle swell, and it gets darker towards the table.
            const float depth = 26 * (points.plane(2)[i] + 0.15f * z - tableZ);
            const int bed = static_cast<int>(std::floor(depth));
            const Colour colour = mix(earth[bed & 3], earth[(bed + 1) & 3], std::pow(depth - static_cast<float>(bed), 6.0f));
            colours[i] = facing[side] * (1 - 0.35f * t * t) * colour;
        }
    view.draw({columns, layers + 1, 0, points, colours}, cameras, camera, ledger);
}

// A pale table with the soft shadow of the block on it, fading into the distance.
void drawTable(View& view, const Terrain& terrain, const Cameras& cameras, int camera, Ledger& ledger)
{
    constexpr int side = 400;
    constexpr float half = 9;
    const Colour table = fromHex(0xe9e6e0), distant = fromHex(0xf6f5f2);
    const float x0 = -terrain.points.plane(0)[terrain.at(1, 1)], y0 = terrain.points.plane(1)[terrain.at(1, 1)];
    Vectors points(side * side);
    std::vector<Colour> colours(points.count);
    for (int row = 0; row < side; ++row)
        for (int column = 0; column < side; ++column) {
            const int i = row * side + column;
            // Finer in the middle, where the shadow is.
            const float s = 2 * static_cast<float>(column) / (side - 1) - 1, t = 1 - 2 * static_cast<float>(row) / (side - 1);
            const float x = half * s * (0.2f + 0.8f * s * s), y = half * t * (0.2f + 0.8f * t * t);
            points.plane(0)[i] = x;
            points.plane(1)[i] = y;
            points.plane(2)[i] = tableZ;
            // Thrown to the south-east by the sun, and close around the block because it hides the sky.
            const auto outside = [](float d) { return std::max(d, 0.0f); };
            const float thrown = std::hypot(outside(std::fabs(x - 0.10f) - x0), outside(std::fabs(y + 0.10f) - y0));
            const float close = std::hypot(outside(std::fabs(x) - x0), outside(std::fabs(y) - y0));
            const float dark = 0.38f * std::exp(-thrown * thrown / 0.006f) + 0.25f * std::exp(-close / 0.12f);
            const float far = std::min(1.0f, (x * x + y * y) / 30);
            colours[i] = (1 - dark) * mix(table, distant, far);
        }
    view.draw({side, side, 0, points, colours}, cameras, camera, ledger);
}

}  // namespace

float modelRadius(const Terrain& terrain)
{
    const int corner = terrain.at(1, 1);
    return std::hypot(terrain.points.plane(0)[corner], terrain.points.plane(1)[corner]);
}

void drawModel(
    View& view, const Terrain& terrain, const std::vector<Colour>& colours, const Cameras& cameras, int camera, Ledger& ledger)
{
    std::fill(view.image.pixels.begin(), view.image.pixels.end(), fromHex(0xf6f5f2));
    drawTable(view, terrain, cameras, camera, ledger);
    drawSides(view, terrain, cameras, camera, ledger);
    view.draw({terrain.columns, terrain.rows, 1, terrain.points, colours}, cameras, camera, ledger);
}
