#include "view.h"

#include <algorithm>
#include <array>
#include <cmath>

View::View(int width, int height, double compass, double above, double radius)
    : image(width, height), nearest(size_t(width) * height)
{
    constexpr double degree = 3.14159265358979 / 180;
    const double a = degree * compass, b = degree * above, distance = 3.5 * radius, focus = 1.5 * width;
    const double forward[3] = {-std::sin(a) * std::cos(b), -std::cos(a) * std::cos(b), -std::sin(b)};
    const double right[3] = {-std::cos(a), std::sin(a), 0};
    const double up[3] = {right[1] * forward[2], -right[0] * forward[2], right[0] * forward[1] - right[1] * forward[0]};
    // Rows that give w * column, w * row, 1 and w, the distance along the view: after the division by w a point's third
    // coordinate is 1/w, which is linear on the screen and grows towards us.
    for (int k = 0; k < 3; ++k) {
        matrix[0][k] = static_cast<float>(focus * right[k] + 0.5 * width * forward[k]);
        matrix[1][k] = static_cast<float>(-focus * up[k] + 0.46 * height * forward[k]);
        matrix[2][k] = 0;
        matrix[3][k] = static_cast<float>(forward[k]);
    }
    matrix[0][3] = static_cast<float>(0.5 * width * distance);
    matrix[1][3] = static_cast<float>(0.46 * height * distance);
    matrix[2][3] = 1;
    matrix[3][3] = static_cast<float>(distance);
}

void View::draw(const Surface& surface, Ledger& ledger)
{
    const Vectors& from = surface.points;
    Vectors screen(from.count);
    LEDGER_CALL(ledger, from.count, vokmAffineTransform3DH_mva_32f, matrix[0], int(sizeof matrix[0]), int(sizeof(float)),
        from.plane(0), from.stride0(), from.stride2(), screen.plane(0), screen.stride0(), screen.stride2());

    const float *x = screen.plane(0), *y = screen.plane(1), *z = screen.plane(2);
    for (int row = surface.margin; row + 1 < surface.rows - surface.margin; ++row)
        for (int column = surface.margin; column + 1 < surface.columns - surface.margin; ++column) {
            const int a = row * surface.columns + column, b = a + 1, c = a + surface.columns, d = c + 1;
            for (const auto& [i, j, k] : {std::array{a, b, c}, std::array{b, d, c}})
                if (z[i] > 0 && z[j] > 0 && z[k] > 0)  // in front of us
                    triangle({x[i], x[j], x[k]}, {y[i], y[j], y[k]}, {z[i], z[j], z[k]},
                        {&surface.colours[i], &surface.colours[j], &surface.colours[k]});
        }
}

void View::triangle(const float (&x)[3], const float (&y)[3], const float (&z)[3], const Colour* const (&corners)[3])
{
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
            image.at(column, row) = u * *corners[0] + v * *corners[1] + w * *corners[2];
        }
}

namespace {

constexpr float tableZ = -0.15f;

// The four sides of the block under the terrain: one strip all around, layers of earth from the surface to the table.
void drawSides(View& view, const Terrain& terrain, Ledger& ledger)
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
    view.draw({columns, layers + 1, 0, points, colours}, ledger);
}

// A pale table with the soft shadow of the block on it, fading into the distance.
void drawTable(View& view, const Terrain& terrain, Ledger& ledger)
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
    view.draw({side, side, 0, points, colours}, ledger);
}

}  // namespace

Image modelView(const Terrain& terrain, const std::vector<Colour>& colours, int width, int height, double compass, double above,
    Ledger& ledger)
{
    constexpr int fine = 2;
    const float x = terrain.points.plane(0)[terrain.at(1, 1)], y = terrain.points.plane(1)[terrain.at(1, 1)];
    View view(fine * width, fine * height, compass, above, std::hypot(x, y));
    std::fill(view.image.pixels.begin(), view.image.pixels.end(), fromHex(0xf6f5f2));
    drawTable(view, terrain, ledger);
    drawSides(view, terrain, ledger);
    view.draw({terrain.columns, terrain.rows, 1, terrain.points, colours}, ledger);
    return shrink(view.image, fine);
}
