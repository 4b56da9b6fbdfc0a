// Clouds of points in files: PLY (ascii and binary little endian) and XYZ.
#pragma once

#include <array>
#include <string>
#include <vector>

using Point = std::array<double, 3>;

// A file that begins with the word "ply" is one; any other has a point in each line: x y z, whatever follows, with blanks,
// commas or semicolons between, and comments behind # or //. Throws std::runtime_error with one line "file:line: what is wrong".
std::vector<Point> readCloud(const std::string& path);
