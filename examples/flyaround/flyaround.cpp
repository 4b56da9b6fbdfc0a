// A camera flies around an elevation grid with a forest on it: an animated picture and a contact sheet.
//
//     flyaround GRID.asc [DIRECTORY]
//
// writes GRID-flyaround.png (animated) and GRID-frames.png into DIRECTORY (the current one by default).

#include "arrays.h"
#include "asc_grid.h"
#include "ledger.h"
#include "png_image.h"
#include "program.h"
#include "progress.h"
#include "terrain.h"
#include "view.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace {

constexpr int frames = 48, width = 560, height = 380, fine = 2, millisecondsEach = 90;
constexpr int sheetColumns = 4, sheetFrames = 12, gap = 6;

// A tree: two cones, the lower one wider, as rings of sides triangles. A unit high.
struct Tree {
    static constexpr int sides = 9, cones = 2;
    struct Corner {
        float place[4], normal[3];
        Colour colour;
    };
    std::vector<Corner> corners;  // of each cone: its tip for every side, then its rim

    Tree()
    {
        const float rim[cones] = {0.12f, 0.42f}, tip[cones] = {0.70f, 1.0f}, radius[cones] = {0.30f, 0.23f};
        const Colour dark = fromHex(0x23492f), bright = fromHex(0x6f9a52);
        for (int cone = 0; cone < cones; ++cone)
            for (float end : {0.0f, 1.0f})
                for (int side = 0; side < sides; ++side) {
                    const float angle = 2 * 3.14159265f * (static_cast<float>(side) + 0.5f * (1 - end)) / sides;
                    const float c = std::cos(angle), s = std::sin(angle), rise = tip[cone] - rim[cone], r = radius[cone];
                    const float slant = std::hypot(rise, r), z = rim[cone] + (1 - end) * rise;
                    corners.push_back({{end * r * c, end * r * s, z, 1}, {c * rise / slant, s * rise / slant, r / slant},
                        mix(dark, bright, z)});
                }
    }
};

// A forest: for each tree its place on the terrain (4x4) and how it is turned (3x3), for all frames alike.
struct Forest {
    explicit Forest(int n) : toWorld(n, 4, 4), turn(n, 3, 3), tint(n) {}

    Matrices toWorld, turn;
    std::vector<float> tint;
};

// Trees stand on the lower and gentler slopes, in clearings and thickets, and not at the very edge.
std::vector<int> treePlaces(const Terrain& terrain, const Vectors& normal, std::mt19937& random)
{
    std::vector<int> places;
    const float* z = terrain.points.plane(2);
    const float top = terrain.zScale * (terrain.highest - terrain.lowest);
    const int spacing = std::max(1, static_cast<int>(0.014f / terrain.step));
    for (int row = 1 + spacing; row < terrain.rows - 1 - spacing; row += spacing)
        for (int column = 1 + spacing; column < terrain.columns - 1 - spacing; column += spacing) {
            const int i = terrain.at(column + static_cast<int>(random() % spacing) - spacing / 2,
                row + static_cast<int>(random() % spacing) - spacing / 2);
            const float x = terrain.points.plane(0)[i], y = terrain.points.plane(1)[i];
            const float thicket = std::sin(9 * x + 3 * y) + std::sin(11 * y - 5 * x + 1) + std::sin(17 * x * y + 2);
            const float high = top > 0 ? z[i] / top : 0;
            const float chance = 0.55f + 0.35f * thicket - 2.4f * high - 3 * std::max(0.0f, 0.8f - normal.plane(2)[i]);
            if (static_cast<float>(random() % 1000) < 1000 * chance) places.push_back(i);
        }
    return places;
}

Forest plant(const Terrain& terrain, const std::vector<int>& places, std::mt19937& random, Ledger& ledger)
{
    const auto n = static_cast<int>(places.size());
    Forest forest(n);
    Matrices stand(n, 4, 4), grow(n, 4, 4);
    const auto between = [&](float low, float high) { return low + (high - low) * static_cast<float>(random() % 1000) / 1000; };
    for (int i = 0; i < n; ++i) {
        const float angle = between(0, 6.28f), tall = between(0.024f, 0.046f), wide = tall * between(0.8f, 1.1f);
        const float c = std::cos(angle), s = std::sin(angle);
        for (int k = 0; k < 4; ++k) stand.plane(k, k)[i] = 1;
        for (int k = 0; k < 3; ++k) stand.plane(k, 3)[i] = terrain.points.plane(k)[places[i]];
        for (int k = 0; k < 3; ++k) grow.plane(k, k)[i] = k < 2 ? wide * c : tall;
        grow.plane(0, 1)[i] = -wide * s;
        grow.plane(1, 0)[i] = wide * s;
        grow.plane(3, 3)[i] = 1;
        forest.turn.plane(0, 0)[i] = forest.turn.plane(1, 1)[i] = c;
        forest.turn.plane(0, 1)[i] = -s;
        forest.turn.plane(1, 0)[i] = s;
        forest.turn.plane(2, 2)[i] = 1;
        forest.tint[i] = between(0.8f, 1.15f);
    }
    LEDGER_CALL(ledger, n, vokmMul_mama_32f, stand.sized(), grow.sized(), forest.toWorld.all());
    return forest;
}

// The soft shadow of each tree on the ground, to the south-east.
void shade(std::vector<Colour>& ground, const Terrain& terrain, const std::vector<int>& places)
{
    const int reach = static_cast<int>(0.03f / terrain.step);
    std::vector<float> light(ground.size(), 1);
    for (int place : places)
        for (int dy = -reach; dy <= reach; ++dy)
            for (int dx = -reach; dx <= reach; ++dx) {
                const int column = place % terrain.columns + dx, row = place / terrain.columns + dy;
                if (column < 0 || column >= terrain.columns || row < 0 || row >= terrain.rows) continue;
                const float x = terrain.step * static_cast<float>(dx) - 0.008f,
                            y = terrain.step * static_cast<float>(dy) - 0.008f;
                float& spot = light[terrain.at(column, row)];
                spot = std::min(spot, 1 - 0.55f * std::exp(-(x * x + y * y - x * y) / 0.00009f));
            }
    for (size_t i = 0; i < ground.size(); ++i) ground[i] = light[i] * ground[i];
}

// All trees as one camera sees them: every tree's matrices composed with the camera's, and then each corner of the mesh
// taken through those of all trees at once.
void drawForest(View& view, const Forest& forest, const Tree& tree, const Cameras& cameras, int camera, Ledger& ledger)
{
    const int n = forest.turn.count;
    Matrices toScreen(n, 4, 4), toCamera(n, 3, 3);
    LEDGER_CALL(ledger, n, vokmMul_mma_32f, cameras.screen.sizedOne(camera), forest.toWorld.sized(), toScreen.all());
    const auto turn = std::tuple_cat(cameras.turn.one(camera), std::tuple(3, 3));  // without its last row and column
    LEDGER_CALL(ledger, n, vokmMul_mma_32f, turn, forest.turn.sized(), toCamera.all());

    // The sun of sunAndSky, north-west and 36 degrees high, as this camera sees it.
    Vectors sun(1), sunSeen(1);
    sun.elements = {-0.572f, 0.572f, 0.588f};
    LEDGER_CALL(ledger, 1, vokmMul_mva_32f, turn, sun.sized(), sunSeen.all());

    std::vector<Vectors> places;
    std::vector<std::vector<Colour>> colours;
    Vectors place(n, 4), normal(n);
    std::vector<float> scale(n), light(n);
    for (const Tree::Corner& corner : tree.corners) {
        LEDGER_CALL(ledger, n, vokmMul_mav_32f, toScreen.sized(), corner.place, int(sizeof(float)), 4, place.all());
        for (int i = 0; i < n; ++i) scale[i] = 1 / place.plane(3)[i];
        places.emplace_back(n);
        LEDGER_CALL(ledger, n, vokmMul_vaca_32f, place.all(), scale.data(), int(sizeof(float)), places.back().all(), 3);
        LEDGER_CALL(ledger, n, vokmMul_mav_32f, toCamera.sized(), corner.normal, int(sizeof(float)), 3, normal.all());
        LEDGER_CALL(ledger, n, vokmDotProduct_vav_32f, normal.all(), sunSeen.plane(0), sunSeen.stride2(), light.data(), 3);
        colours.emplace_back(n);
        for (int i = 0; i < n; ++i) {
            // Needles at a slant let light through: the outline of a tree is brighter than its middle.
            const float outline = 1 + normal.plane(1)[i];
            const float bright = forest.tint[i] * (0.45f + 0.8f * std::max(light[i], 0.0f) + 0.12f * outline);
            colours.back()[i] = bright * corner.colour;
        }
    }
    constexpr int sides = Tree::sides;
    for (int i = 0; i < n; ++i)
        for (int cone = 0; cone < Tree::cones; ++cone)
            for (int side = 0; side < sides; ++side) {
                const int tip = 2 * cone * sides + side, a = tip + sides, b = tip + (side + 1 < sides ? sides + 1 : 1);
                const auto plane = [&](int k) {
                    return std::array{places[tip].plane(k)[i], places[a].plane(k)[i], places[b].plane(k)[i]};
                };
                view.triangle(plane(0), plane(1), plane(2), {colours[tip][i], colours[a][i], colours[b][i]});
            }
}

Image contactSheet(const std::vector<Image>& pictures)
{
    constexpr int rows = sheetFrames / sheetColumns;
    Image sheet(sheetColumns * (width + gap) + gap, rows * (height + gap) + gap, fromHex(0xffffff));
    for (int k = 0; k < sheetFrames; ++k) {
        const Image& frame = pictures[static_cast<size_t>(k) * frames / sheetFrames];
        const int left = gap + k % sheetColumns * (width + gap), top = gap + k / sheetColumns * (height + gap);
        for (int y = 0; y < height; ++y) std::copy_n(&frame.at(0, y), width, &sheet.at(left, top + y));
    }
    return sheet;
}

void drawPictures(const std::string& input, const std::filesystem::path& directory)
{
    const AscGrid grid = readAscGrid(input);
    const Terrain terrain(grid, std::clamp(700 / (std::max(grid.columns, grid.rows) - 1), 1, 64));
    Ledger ledger;
    const Vectors normal = normals(terrain, ledger);
    std::vector<Colour> ground = sunAndSky(terrain, normal, ledger);
    for (int i = 0; i < terrain.points.count; ++i) ground[i] = ground[i] * landColour(terrain, terrain.points.plane(2)[i]);

    std::mt19937 random(1);
    const std::vector<int> places = treePlaces(terrain, normal, random);
    const Forest forest = plant(terrain, places, random, ledger);
    shade(ground, terrain, places);
    std::printf("%s: %d points and %zu trees of %d corners in %d frames\n", input.c_str(), terrain.points.count, places.size(),
        2 * Tree::cones * Tree::sides, frames);

    // Once around, higher behind the hill than before it.
    std::vector<float> compass, above;
    for (int k = 0; k < frames; ++k) {
        compass.push_back(202 + 360.0f * static_cast<float>(k) / frames);
        above.push_back(27 - 7 * std::cos(2 * 3.14159265f * static_cast<float>(k) / frames));
    }
    const Cameras cameras(fine * width, fine * height, modelRadius(terrain), compass, above, ledger);
    const Tree tree;
    std::vector<Image> pictures;
    Progress progress("flying around");
    for (int k = 0; k < frames; ++k) {
        progress.at(k, frames);
        View view(fine * width, fine * height);
        drawModel(view, terrain, ground, cameras, k, ledger);
        if (forest.turn.count > 0) drawForest(view, forest, tree, cameras, k, ledger);
        pictures.push_back(shrink(view.image, fine));
    }

    ledger.print();
    const std::string stem = stemFor(input, directory);
    writePng(contactSheet(pictures), stem + "-frames.png");
    writeAnimation(pictures, millisecondsEach, stem + "-flyaround.png");
    std::printf("pictures: %s-flyaround.png (animated, %d frames) and %s-frames.png\n", stem.c_str(), frames, stem.c_str());
}

}  // namespace

int main(int argc, char** argv) { return runProgram(argc, argv, "flyaround", "GRID.asc", drawPictures); }
