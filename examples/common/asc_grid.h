// Elevation grids in the ESRI ASCII grid format (.asc): a header of keys, then the heights row by row, north first.
#pragma once

#include <string>
#include <vector>

struct AscGrid {
    int columns = 0;
    int rows = 0;
    double cellsize = 1;
    int cellsizeLine = 0;        // of the file
    std::vector<float> heights;  // rows * columns of them

    // A height, also outside of the grid: there the surface goes on as it would seen through the edge, turned upside down.
    double heightAt(int column, int row) const;
    AscGrid widened(int cells) const;  // on all four sides
};

// Throws std::runtime_error with one line "file:line: what is wrong" if the file is not a grid without gaps.
AscGrid readAscGrid(const std::string& path);
