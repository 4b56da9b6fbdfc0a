// Slope and curvature of an elevation grid: a quadric through the neighbourhood of every point, by least squares.
//
//     curvature GRID.asc [DIRECTORY]
//
// writes GRID-curvature.png into DIRECTORY (the current one by default). Each fit is solved twice, by QR decomposition and
// by Cholesky decomposition of the normal equations, and the largest difference is told.

#include "asc_grid.h"
#include "ledger.h"
#include "legend.h"
#include "png_image.h"
#include "program.h"
#include "quadric.h"
#include "terrain.h"

#include <algorithm>
#include <cmath>

namespace {

void drawPicture(const std::string& input, const std::filesystem::path& directory)
{
    const AscGrid grid = readAscGrid(input);
    const int detail = std::clamp(690 / (std::max(grid.columns, grid.rows) - 1), 1, 64), margin = marginOf(detail);
    const Terrain terrain(grid.widened(reach), detail);
    if (terrain.exaggeration < 0.02)
        throw std::runtime_error(input + ":" + std::to_string(grid.cellsizeLine) +
                                 ": all slopes would be upright: \"cellsize\" has to be in the unit of the heights");

    Ledger ledger;
    const Shapes result = fitQuadrics(terrain, grid.cellsize, detail, ledger);
    const std::vector<Colour> light = sunAndSky(terrain, normals(terrain, ledger), ledger);

    const int width = terrain.columns - 2 * margin, height = terrain.rows - 2 * margin;
    const auto cell = static_cast<float>(grid.cellsize);
    std::vector<float> slopes, curvatures;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const Shape& shape = result.at[terrain.at(x + margin, y + margin)];
            slopes.push_back(shape.slope);
            curvatures.push_back(std::fabs(shape.curvature) / cell);
        }
    const float steepest = scaleEnd(slopes, 8), sharpest = scaleEnd(curvatures, 8);

    const Ramp steep{
        {fromHex(0xf7f3d0), fromHex(0xf3d27a), fromHex(0xe8964a), fromHex(0xc94a45), fromHex(0x7d2663), fromHex(0x35154b)}};
    const Ramp bend{{fromHex(0x123f73), fromHex(0x3f87b8), fromHex(0xa9cfdf), fromHex(0xf4f2ec), fromHex(0xf0bf97),
        fromHex(0xcf6b3f), fromHex(0x7d2417)}};
    constexpr int gap = 28;
    Image picture(2 * width + 3 * gap, height + legendHeight + 3 * gap, fromHex(0xfbfaf7));
    const int right = 2 * gap + width, below = height + 2 * gap;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const int i = terrain.at(x + margin, y + margin);
            const float shade = 0.45f + 0.55f * std::min(light[i].g, 1.15f);
            picture.at(gap + x, gap + y) = shade * steep.at(result.at[i].slope / steepest);
            picture.at(right + x, gap + y) = shade * bend.at(0.5f + 0.5f * result.at[i].curvature / cell / sharpest);
        }
    drawLegend(picture, steep, "slope in degrees", 0, steepest, gap, below, width);
    drawLegend(
        picture, bend, "mean curvature - 1 / radius: hollows blue and summits red", -sharpest, sharpest, right, below, width);

    std::printf("%s: %d quadrics through %d neighbours each\n", input.c_str(), result.fitted, neighbours);
    ledger.print();
    std::printf("largest difference between QR and Cholesky: %.2g degrees of slope, %.2g of curvature (of up to %g and %g)\n",
        result.difference.slope, result.difference.curvature / cell, steepest, sharpest);
    const std::string path = stemFor(input, directory) + "-curvature.png";
    writePng(picture, path);
    std::printf("pictures: %s\n", path.c_str());
}

}  // namespace

int main(int argc, char** argv) { return runProgram(argc, argv, "curvature", "GRID.asc", drawPicture); }
