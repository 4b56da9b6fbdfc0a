// Pictures in perspective: surfaces of points that the library turns, and a depth buffer.
#pragma once

#include "ledger.h"
#include "png_image.h"
#include "terrain.h"

#include <vector>

// A surface: columns x rows of points, of which a margin all around is left out, and their colours.
struct Surface {
    int columns, rows, margin;
    const Vectors& points;
    const std::vector<Colour>& colours;
};

// Looks at the middle of the terrain from a point of the compass and a height above the horizon, both in degrees.
class View {
public:
    View(int width, int height, double compass, double above, double radius);
    void draw(const Surface& surface, Ledger& ledger);

    Image image;

private:
    void triangle(const float (&x)[3], const float (&y)[3], const float (&z)[3], const Colour* const (&corners)[3]);

    float matrix[4][4];
    std::vector<float> nearest;  // 1 / distance for each pixel
};

// The terrain as a model on a table, seen from there.
Image modelView(const Terrain& terrain, const std::vector<Colour>& colours, int width, int height, double compass, double above,
    Ledger& ledger);
