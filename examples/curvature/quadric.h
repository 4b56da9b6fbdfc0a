// A quadric through the neighbourhood of every point of a terrain, and its shape.
#pragma once

#include "ledger.h"
#include "terrain.h"

#include <vector>

// The window that is fitted: 5 x 5 neighbours, a cell of the grid apart.
constexpr int reach = 2, neighbours = (2 * reach + 1) * (2 * reach + 1);

struct Shape {
    float slope;      // degrees
    float curvature;  // the mean of the two principal curvatures in 1 / cell of the grid; a summit has a positive one
};

struct Shapes {
    std::vector<Shape> at;      // of each point inside the margin
    Shape difference = {0, 0};  // the largest between the two ways of solving: QR and Cholesky
    int fitted = 0;
};

// `terrain` of `detail` points a cell has a margin all around: the window, and the border that normals() leaves out.
constexpr int marginOf(int detail) { return reach * detail + 1; }
Shapes fitQuadrics(Terrain terrain, double cellsize, int detail, Ledger& ledger);
