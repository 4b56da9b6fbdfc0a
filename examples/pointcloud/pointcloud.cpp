// Normals and surface variation of a cloud of points, by principal components of the points around each.
//
//     pointcloud FILE [DIRECTORY]
//
// takes a PLY or XYZ file, or the points of an elevation grid (.asc), and writes FILE-variation.png into DIRECTORY (the current
// one by default). z points up.

#include "arrays.h"
#include "asc_grid.h"
#include "cloud_file.h"
#include "ledger.h"
#include "legend.h"
#include "png_image.h"
#include "program.h"
#include "principal.h"
#include "terrain.h"
#include "view.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int width = 1500, height = 840, fine = 2;

// The points around the middle of the cloud, within a ball of radius 1.
Vectors centred(const std::vector<Point>& cloud)
{
    Point low = cloud[0], high = cloud[0];
    for (const Point& p : cloud)
        for (int a = 0; a < 3; ++a) {
            low[a] = std::min(low[a], p[a]);
            high[a] = std::max(high[a], p[a]);
        }
    const double half = std::hypot(high[0] - low[0], high[1] - low[1], high[2] - low[2]) / 2;
    Vectors points(static_cast<int>(cloud.size()));
    for (int i = 0; i < points.count; ++i)
        for (int a = 0; a < 3; ++a) points.plane(a)[i] = static_cast<float>((cloud[i][a] - (low[a] + high[a]) / 2) / half);
    return points;
}

// The surface through an elevation grid, at its true height, as points.
std::vector<Point> terrainCloud(const AscGrid& grid)
{
    const Terrain terrain(grid, std::clamp(350 / (std::max(grid.columns, grid.rows) - 1), 1, 64));
    std::vector<Point> cloud;
    for (int row = 1; row < terrain.rows - 1; ++row)
        for (int column = 1; column < terrain.columns - 1; ++column) {
            const int i = terrain.at(column, row);
            const Vectors& p = terrain.points;
            cloud.push_back({p.plane(0)[i], p.plane(1)[i], p.plane(2)[i] / terrain.exaggeration});
        }
    return cloud;
}

std::vector<Point> readPoints(const std::string& input)
{
    return std::filesystem::path(input).extension() == ".asc" ? terrainCloud(readAscGrid(input)) : readCloud(input);
}

// A camera from the south-west. Its distance, and the place of the points, become such that they fill its picture.
Cameras cameraFor(Vectors& points, Ledger& ledger)
{
    constexpr float w = fine * width, h = fine * height;
    float radius = 1;
    for (int round = 0;; ++round) {
        Cameras camera(fine * width, fine * height, radius, {202}, {31}, ledger);
        if (round == 8) return camera;
        Vectors screen(points.count);
        LEDGER_CALL(ledger, points.count, vokmAffineTransform3DH_mva_32f, camera.screen.one(0), points.all(), screen.all());
        const auto [left, right] = std::minmax_element(screen.plane(0), screen.plane(1));
        const auto [top, bottom] = std::minmax_element(screen.plane(1), screen.plane(2));
        const float aside = (*left + *right) / w - 1, below = (*top + *bottom) / h - 0.92f, scale = camera.distance / 3;
        float move[3];  // half the picture's width is a third of the distance away
        for (int a = 0; a < 3; ++a)
            move[a] = scale * (below * h / w * camera.turn.plane(2, a)[0] - aside * camera.turn.plane(0, a)[0]);
        LEDGER_CALL(ledger, points.count, vokmAdd_vav_32f, points.all(), move, int(sizeof(float)), points.all(), 3);
        radius *= std::max((*right - *left) / (0.9f * w), (*bottom - *top) / (0.8f * h));
    }
}

// How much light falls on each point from behind us, above and to the left. Normals are turned towards us.
std::vector<float> lightOn(const Vectors& points, const Principal& principal, const Cameras& camera, Ledger& ledger)
{
    const int n = points.count;
    const auto normal = principal.axes.column(2);
    float eye[3], lamp[3];
    for (int a = 0; a < 3; ++a) {
        const float right = camera.turn.plane(0, a)[0], ahead = camera.turn.plane(1, a)[0], up = camera.turn.plane(2, a)[0];
        eye[a] = -camera.distance * ahead;
        lamp[a] = -0.56f * right - 0.48f * ahead + 0.68f * up;
    }
    Vectors towards(n);
    std::vector<float> facing(n), light(n);
    LEDGER_CALL(ledger, n, vokmSub_vva_32f, eye, int(sizeof(float)), points.all(), towards.all(), 3);
    LEDGER_CALL(ledger, n, vokmDotProduct_vava_32f, normal, towards.all(), facing.data(), 3);
    LEDGER_CALL(ledger, n, vokmDotProduct_vav_32f, normal, lamp, int(sizeof(float)), light.data(), 3);
    for (int i = 0; i < n; ++i) light[i] = 0.42f + 0.72f * std::max(0.0f, facing[i] < 0 ? -light[i] : light[i]);
    return light;
}

// Each point is a hexagon in its tangent plane, large enough to leave no holes. Its rim lies farther from us than it is, so
// that of several hexagons the one with the nearest middle is seen.
void drawPoints(View& view, const Vectors& points, const Principal& principal, const std::vector<Colour>& colours,
    const Cameras& camera, Ledger& ledger)
{
    const int n = points.count, s0 = sizeof(float);
    constexpr int corners = 6;
    constexpr float size = 3.4f;
    std::vector<Vectors> seen(corners + 1, Vectors(n));
    std::vector<float> along(n), across(n);
    Vectors one(n), other(n);
    for (int k = 0; k < corners; ++k) {
        const float angle = 2 * 3.14159265f * static_cast<float>(k) / corners;
        for (int i = 0; i < n; ++i) along[i] = size * principal.radius[i] * std::cos(angle);
        for (int i = 0; i < n; ++i) across[i] = size * principal.radius[i] * std::sin(angle);
        LEDGER_CALL(ledger, n, vokmMul_vaca_32f, principal.axes.column(0), along.data(), s0, one.all(), 3);
        LEDGER_CALL(ledger, n, vokmMul_vaca_32f, principal.axes.column(1), across.data(), s0, other.all(), 3);
        LEDGER_CALL(ledger, n, vokmAdd_vava_32f, one.all(), other.all(), one.all(), 3);
        LEDGER_CALL(ledger, n, vokmAdd_vava_32f, one.all(), points.all(), one.all(), 3);
        LEDGER_CALL(ledger, n, vokmAffineTransform3DH_mva_32f, camera.screen.one(0), one.all(), seen[k].all());
        for (int i = 0; i < n; ++i) seen[k].plane(2)[i] *= 1 - size * principal.radius[i] / camera.distance;
    }
    LEDGER_CALL(ledger, n, vokmAffineTransform3DH_mva_32f, camera.screen.one(0), points.all(), seen[corners].all());
    for (int i = 0; i < n; ++i)
        for (int k = 0; k < corners; ++k) {
            const auto plane = [&](int axis) {
                return std::array{seen[corners].plane(axis)[i], seen[k].plane(axis)[i], seen[(k + 1) % corners].plane(axis)[i]};
            };
            view.triangle(plane(0), plane(1), plane(2), {colours[i], colours[i], colours[i]});
        }
}

void drawPicture(const std::string& input, const std::filesystem::path& directory)
{
    Vectors points = centred(readPoints(input));
    Ledger ledger;
    const Principal principal = principalComponents(points, ledger);
    const Cameras camera = cameraFor(points, ledger);
    const std::vector<float> light = lightOn(points, principal, camera, ledger);

    const float most = scaleEnd(principal.variation, 6);
    const Ramp bent{
        {fromHex(0xb9cbc4), fromHex(0xe9dfae), fromHex(0xf0b35a), fromHex(0xdb5a3c), fromHex(0x96285c), fromHex(0x43155a)}};
    std::vector<Colour> colours(points.count);
    for (int i = 0; i < points.count; ++i) colours[i] = light[i] * bent.at(principal.variation[i] / most);
    View view(fine * width, fine * height);
    std::fill(view.image.pixels.begin(), view.image.pixels.end(), fromHex(0xf6f5f2));
    drawPoints(view, points, principal, colours, camera, ledger);
    Image picture = shrink(view.image, fine);
    drawLegend(picture, bent, "surface variation", 0, most, 40, height - legendHeight - 24, 420);

    std::printf("%s: %d points with %d neighbours each\n", input.c_str(), points.count, std::min(neighbours, points.count));
    ledger.print();
    const std::string path = stemFor(input, directory) + "-variation.png";
    writePng(picture, path);
    std::printf("pictures: %s\n", path.c_str());
}

}  // namespace

int main(int argc, char** argv) { return runProgram(argc, argv, "pointcloud", "FILE", drawPicture); }
