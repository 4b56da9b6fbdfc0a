#include "asc_grid.h"

#include "word_reader.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace {

// More than this is refused before anything is allocated: the pictures keep some twenty numbers for each cell.
constexpr double maxCells = 1 << 24, maxSide = 20000;

struct Key {
    double value;
    int line;
};

}  // namespace

double AscGrid::heightAt(int column, int row) const
{
    const int c = std::clamp(column, 0, columns - 1), r = std::clamp(row, 0, rows - 1);
    const double height = heights[size_t(r) * columns + c];
    return c == column && r == row ? height : 2 * height - heightAt(2 * c - column, 2 * r - row);
}

AscGrid AscGrid::widened(int cells) const
{
    AscGrid wide{columns + 2 * cells, rows + 2 * cells, cellsize, cellsizeLine, {}};
    for (int row = -cells; row < rows + cells; ++row)
        for (int column = -cells; column < columns + cells; ++column)
            wide.heights.push_back(static_cast<float>(heightAt(column, row)));
    return wide;
}

AscGrid readAscGrid(const std::string& path)
{
    WordReader in(path);
    std::map<std::string, Key> keys;
    while (!in.word.empty() && std::isalpha(static_cast<unsigned char>(in.word[0]))) {
        std::string key;
        for (char c : in.word) key += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        const bool known = key == "ncols" || key == "nrows" || key == "cellsize" || key == "nodata_value" || key == "xllcorner" ||
                           key == "xllcenter" || key == "yllcorner" || key == "yllcenter";
        if (!known) in.fail(in.quoted() + " is no key of an .asc header");
        if (keys.count(key)) in.fail("a second \"" + key + "\"");
        const int line = in.line;
        in.next();
        if (in.line != line) in.fail("\"" + key + "\" has no value", line);
        keys[key] = {in.number([&] { return "the value of \"" + key + "\""; }), line};
    }

    auto require = [&](const char* key) {
        auto found = keys.find(key);
        if (found == keys.end()) in.fail("the header has no \"" + std::string(key) + "\"");
        return found->second;
    };
    auto requireSize = [&](const char* key) {
        const Key size = require(key);
        if (size.value != std::floor(size.value)) in.fail("\"" + std::string(key) + "\" must be a whole number", size.line);
        if (size.value < 2) in.fail("\"" + std::string(key) + "\" must be at least 2", size.line);
        if (size.value > maxSide) in.fail("\"" + std::string(key) + "\" is too large: at most 20000 can be drawn", size.line);
        return size;
    };
    const Key columns = requireSize("ncols"), rows = requireSize("nrows"), cellsize = require("cellsize");
    if (columns.value * rows.value > maxCells) in.fail("the grid is too large: at most 16777216 cells can be drawn", rows.line);
    if (!(cellsize.value > 0)) in.fail("\"cellsize\" must be above 0", cellsize.line);

    AscGrid grid{static_cast<int>(columns.value), static_cast<int>(rows.value), cellsize.value, cellsize.line, {}};
    const auto noData = keys.find("nodata_value");
    for (int row = 1; row <= grid.rows; ++row)
        for (int column = 1; column <= grid.columns; ++column) {
            const auto place = [&] { return "row " + std::to_string(row) + ", column " + std::to_string(column); };
            const int line = in.line;
            const double height = in.number(place);
            if (noData != keys.end() && height == noData->second.value)
                in.fail(place() + " is a no-data cell: fill the gaps first", line);
            grid.heights.push_back(static_cast<float>(height));
        }
    if (!in.word.empty()) in.fail(in.quoted() + " stands behind the last of " + std::to_string(grid.heights.size()) + " heights");
    return grid;
}
