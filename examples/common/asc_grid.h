// Elevation grids in the ESRI ASCII grid format (.asc): a header of keys, then the heights row by row, north first.
#pragma once

#include <string>
#include <vector>

struct AscGrid {
    int columns = 0;
    int rows = 0;
    double cellsize = 1;
    std::vector<float> heights;  // rows * columns of them
};

// Throws std::runtime_error with one line "file:line: what is wrong" if the file is not a grid without gaps.
AscGrid readAscGrid(const std::string& path);
