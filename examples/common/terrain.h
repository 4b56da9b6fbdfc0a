// A terrain as arrays of 3-element vectors, and what the library works out for all of them at once.
#pragma once

#include "arrays.h"
#include "asc_grid.h"
#include "ledger.h"
#include "png_image.h"

#include <vector>

// The surface through the heights, `detail` points for each cell of the grid. x runs east from -1 to 1, y north, z up.
// A border of one point lies all around, so that every point inside has four neighbours; it is not meant to be drawn.
struct Terrain {
    Terrain(const AscGrid& grid, int detail);
    int at(int column, int row) const { return row * columns + column; }

    int columns, rows;      // with the border
    float step;             // from one point to the next, both ways
    float lowest, highest;  // of the heights in the file, in its unit
    float zScale;           // z = zScale * (height - lowest)
    double exaggeration;    // of the heights against the lengths
    Vectors points;
};

// Makes each of an array of 3-element vectors a unit long.
void normalise(float* vectors, int stride0, int stride2, int count, Ledger& ledger);

// The unit normal of each point inside the border, from the differences of its neighbours.
Vectors normals(const Terrain& terrain, Ledger& ledger);

// The light that falls on each point from a low sun in the north-west and from the whole sky, with the shadows that the
// terrain throws on itself. A level plain gets about 1.
std::vector<Colour> sunAndSky(const Terrain& terrain, const Vectors& normals, Ledger& ledger);

// The colour of the land at a height: green below, then sand and rock, pale on top.
Colour landColour(const Terrain& terrain, float z);
