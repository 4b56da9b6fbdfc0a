// Pictures in perspective: cameras around a model, surfaces and loose triangles, and a depth buffer.
#pragma once

#include "ledger.h"
#include "png_image.h"
#include "terrain.h"

#include <array>
#include <vector>

// A surface: columns x rows of points, of which a margin all around is left out, and their colours.
struct Surface {
    int columns, rows, margin;
    const Vectors& points;
    const std::vector<Colour>& colours;
};

// Cameras that look at the middle of a model of this radius from points of the compass and heights above the horizon, both
// in degrees. `turn` takes the world to the camera (x right, y ahead, z up) around the middle; `screen` takes it to
// w * column, w * row, 1 and w, the distance ahead: after the division by w a point's third coordinate is 1/w, which is
// linear on the screen and grows towards us.
struct Cameras {
    Cameras(
        int width, int height, float radius, const std::vector<float>& compass, const std::vector<float>& above, Ledger& ledger);

    float distance;  // from the middle
    Matrices turn, screen;
};

class View {
public:
    View(int width, int height) : image(width, height), nearest(size_t(width) * height) {}
    void draw(const Surface& surface, const Cameras& cameras, int camera, Ledger& ledger);
    // A triangle whose corners are on the screen already.
    void triangle(const std::array<float, 3>& x, const std::array<float, 3>& y, const std::array<float, 3>& z,
        const std::array<Colour, 3>& corners);

    Image image;

private:
    std::vector<float> nearest;  // 1 / distance for each pixel
};

// The terrain as a model on a table.
float modelRadius(const Terrain& terrain);
void drawModel(
    View& view, const Terrain& terrain, const std::vector<Colour>& colours, const Cameras& cameras, int camera, Ledger& ledger);
