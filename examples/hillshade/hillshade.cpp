// Two pictures of an elevation grid: a hillshade map and a view in perspective.
//
//     hillshade GRID.asc [DIRECTORY]
//
// writes GRID-map.png and GRID-view.png into DIRECTORY (the current one by default).

#include "asc_grid.h"
#include "ledger.h"
#include "legend.h"
#include "png_image.h"
#include "program.h"
#include "terrain.h"
#include "view.h"

#include <algorithm>
#include <cmath>

namespace {

// How dark the contour lines make a point: lines keep their width however steep the ground, and every fifth is heavier.
float contourShade(const Terrain& terrain, int i, float interval)
{
    const float* z = terrain.points.plane(2);
    // A hair below the round heights: a plateau at a round height then has a line around it, and is not all line.
    const float unit = terrain.zScale * interval, place = z[i] / unit + terrain.lowest / interval + 0.03f,
                line = std::round(place);
    const float slope = std::hypot(z[i + 1] - z[i - 1], z[i + terrain.columns] - z[i - terrain.columns]) / 2;
    const float pixels = std::fabs(place - line) * unit / std::max(slope, 1e-3f * unit);
    const bool heavy = std::fmod(line, 5.0f) == 0;
    return (heavy ? 0.42f : 0.22f) * std::clamp((heavy ? 1.5f : 1.1f) - pixels, 0.0f, 1.0f);
}

void drawPictures(const std::string& input, const std::filesystem::path& directory)
{
    const AscGrid grid = readAscGrid(input);
    const Terrain terrain(grid, std::clamp(1400 / (std::max(grid.columns, grid.rows) - 1), 1, 64));
    std::printf("%s: %d x %d heights from %g to %g, drawn as %d x %d points, heights %.2g times as high\n", input.c_str(),
        grid.columns, grid.rows, terrain.lowest, terrain.highest, terrain.columns - 2, terrain.rows - 2, terrain.exaggeration);

    Ledger ledger;
    const Vectors normal = normals(terrain, ledger);
    std::vector<Colour> colours = sunAndSky(terrain, normal, ledger);
    const float interval = roundStep(terrain.highest - terrain.lowest, 12);
    const Colour ink = fromHex(0x3a2c22);
    Image map(terrain.columns - 2, terrain.rows - 2);
    for (int row = 1; row < terrain.rows - 1; ++row)
        for (int column = 1; column < terrain.columns - 1; ++column) {
            const int i = terrain.at(column, row);
            colours[i] = colours[i] * landColour(terrain, terrain.points.plane(2)[i]);
            const Colour lined = mix(colours[i], ink, contourShade(terrain, i, interval));
            map.at(column - 1, row - 1) = lined;
            colours[i] = mix(colours[i], lined, 0.6f);  // fainter in the view
        }
    constexpr int width = 1600, height = 1000, fine = 2;
    View view(fine * width, fine * height);
    const Cameras camera(fine * width, fine * height, modelRadius(terrain), {202}, {31}, ledger);
    drawModel(view, terrain, colours, camera, 0, ledger);

    ledger.print();
    const std::string stem = stemFor(input, directory);
    writePng(map, stem + "-map.png");
    writePng(shrink(view.image, fine), stem + "-view.png");
    std::printf("pictures: %s-map.png (contour lines every %g) and %s-view.png\n", stem.c_str(), interval, stem.c_str());
}

}  // namespace

int main(int argc, char** argv) { return runProgram(argc, argv, "hillshade", "GRID.asc", drawPictures); }
