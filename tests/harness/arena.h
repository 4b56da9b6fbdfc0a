// Operands in memory. One arena holds all operands of a call, in two images: `live` is handed to the library, `model` to
// the slow evaluation. Afterwards the images have to agree in every byte, so memory between and around results counts too.
#pragma once
#include <cstdint>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "forms.h"
#include "guard.h"

namespace harness {

using Random = std::mt19937_64;

// How the objects of an operand lie. `nest` names the loops from the innermost outwards: o objects, r rows, c elements of
// a row: "cro" is dense, "rco" column by column, "ocr" one plane of memory an element.
struct Pattern {
    std::string nest = "cro";
    int unit = 1;         // innermost step, in elements
    int pad = 0;          // elements added to each outer step
    int roundObject = 0;  // bytes that stride0 is rounded up to a multiple of
    int align = 0;        // bytes, address of the first element mod 64
    int shift = 0;        // objShift in elements
    char sequence = 'a';  // of tables and lists: a ascending, r reversed, s shuffled
    int steps[3] = {};    // from object to object, row to row, element to element, in place of all that if not 0: may overlap
    std::string describe() const;
};

struct Shape {
    int objects = 1, rows = 1, cols = 1;  // rows and cols as in memory
    bool transposed = false;              // the operation sees rows and columns exchanged
};

struct Operand {
    ArgRecord arg;
    Shape shape;
    int elementSize = 4;
    int64_t base = 0;  // offset of the first element in the arena
    int64_t stride0 = 0, stride1 = 0, stride2 = 0;
    int64_t shift = 0;            // bytes
    std::vector<int64_t> places;  // offsets behind a table's or list's entries
    std::vector<char*> entries, entriesBefore;
    int spareEntries = 0;                    // behind the end of a table, leading behind the last element

    bool isList() const { return arg.layout == 'L' && arg.array && arg.kind == ArgKind::object; }
    bool isTable() const { return arg.layout == 'P' && arg.kind == ArgKind::object && arg.letter != 'c'; }
    int64_t offset(int object, int row, int col) const;  // row and col as the operation sees them
    int64_t storedOffset(int object, int row, int col) const;
    int logicalRows() const { return shape.transposed ? shape.cols : shape.rows; }
    int logicalCols() const { return shape.transposed ? shape.rows : shape.cols; }
    int64_t lay(const Pattern& pattern, Random& random);  // sets strides; returns the bytes from first to last element's end
    void place(int64_t start, const Pattern& pattern, Random& random);
    void bind(char* live, Arguments& arguments);
};

class Arena {
public:
    void allocate(size_t bytes);
    char* live() const { return start[0]; }
    char* model() const { return start[1]; }
    size_t size() const { return bytes; }
    void copyToModel() { std::memcpy(model(), live(), bytes); }
    // Of the live image. Between the two only these pages may be touched; those of sources may only be read.
    void close(const std::vector<OpenPages>& allBut);
    void open();

private:
    std::unique_ptr<char[]> memory[2];
    char* start[2] = {};
    size_t bytes = 0;
};

template <class T> T load(const char* place)
{
    T value;
    std::memcpy(&value, place, sizeof value);
    return value;
}

template <class T> void store(char* place, T value) { std::memcpy(place, &value, sizeof value); }

template <class T> bool sameBits(T a, T b) { return (a != a && b != b) || std::memcmp(&a, &b, sizeof a) == 0; }

}  // namespace harness
