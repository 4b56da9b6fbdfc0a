// A matrix in memory of the evaluation's own, and sources that factorisations stumble over.
#pragma once
#include <cmath>
#include <limits>
#include <numeric>
#include <string>
#include <vector>

#include "../harness/job.h"

namespace harness {

template <class T> class Grid {
public:
    Grid(int rowCount, int colCount) : rows(rowCount), cols(colCount), cells(size_t(rowCount) * colCount) {}
    Grid(const View<T>& view, int object) : Grid(view.rows(), view.cols())
    {
        for (int r = 0; r < rows; ++r) {
            for (int c = 0; c < cols; ++c) {
                (*this)(r, c) = view.get(object, r, c);
            }
        }
    }
    T& operator()(int r, int c) { return cells[size_t(r) * cols + c]; }
    const T& operator()(int r, int c) const { return cells[size_t(r) * cols + c]; }
    void storeRow(const View<T>& view, int object, int r) const
    {
        for (int c = 0; c < cols; ++c) {
            view.set(object, r, c, (*this)(r, c));
        }
    }
    void store(const View<T>& view, int object) const
    {
        for (int r = 0; r < rows; ++r) {
            storeRow(view, object, r);
        }
    }
    int rows, cols;

private:
    std::vector<T> cells;
};

// The sizes with a text of their own.
inline bool unrolled(int n) { return n >= 3 && n <= 6; }

template <class T> double magnitude(T value) { return std::fabs(double(value)); }

// An operand of a job that is being prepared.
template <class T> class Source {
public:
    Source(Job& described, const std::string& operandName)
        : job(described), name(operandName), operand(described.operands.at(operandName)), objects(operand.shape.objects),
          rows(operand.logicalRows()), cols(operand.logicalCols())
    {
    }
    T get(int i, int r, int c) const { return load<T>(job.arena.live() + operand.offset(i, r, c)); }
    void put(int i, int r, int c, T value) { job.put<T>(name, i, r, c, value); }
    template <class Value> void fill(int i, Value value)
    {
        for (int r = 0; r < rows; ++r) {
            for (int c = 0; c < cols; ++c) {
                put(i, r, c, value(r, c));
            }
        }
    }
    // How an object becomes awkward: i small integers, e two equal rows, z a column of zeros, d a diagonal of 1 with an entry
    // at the edge of what counts as zero, s far from 1, n one entry that is not finite. For eigenproblems: u a multiple of the
    // identity, t three diagonals of small integers, c a companion matrix, r rotations along the diagonal, j a Jordan block.
    void spoil(int i, char how, Random& random);

    Job& job;
    std::string name;
    const Operand& operand;
    int objects, rows, cols;
};

template <class T> T edgeValue(int n, Random& random)
{
    using Limits = std::numeric_limits<T>;
    const T cube = T(2 * n * n * n), eps = Limits::epsilon(), eps32 = T(1.1920928955078125e-07), min = Limits::min();
    const T pool[] = {eps, 2 * eps, eps / 2, std::nextafter(eps, T(1)), min, 2 * min, 4 * min, std::nextafter(2 * min, T(0)),
        cube * min, std::nextafter(cube * min, T(1)), std::nextafter(cube * min, T(0)), 2 * cube * min, T(0), -T(0),
        Limits::denorm_min(), eps32, T(1e-8), std::sqrt(eps), -eps};
    return pool[random() % (sizeof pool / sizeof pool[0])];
}

template <class T> void Source<T>::spoil(int i, char how, Random& random)
{
    int row = int(random() % rows), col = int(random() % cols), other = int(random() % rows);
    T edge = edgeValue<T>(cols, random), power = std::ldexp(T(1), int(random() % 200) - 100);
    T odd = random() % 2 ? std::numeric_limits<T>::quiet_NaN() : std::numeric_limits<T>::infinity();
    switch (how) {
    case 'i': fill(i, [&](int, int) { return T(int(random() % 5) - 2); }); break;
    case 'e': fill(i, [&](int r, int c) { return get(i, r == row ? other : r, c); }); break;
    case 'z': fill(i, [&](int r, int c) { return c == col ? T(0) : get(i, r, c); }); break;
    case 'd': fill(i, [&](int r, int c) { return r != c ? T(0) : c == col ? edge : T(1); }); break;
    case 's': fill(i, [&](int r, int c) { return get(i, r, c) * power; }); break;
    case 'n': put(i, row, col, odd); break;
    case 'u': fill(i, [&](int r, int c) { return r != c ? T(0) : col ? T(col) : T(0.001); }); break;
    case 't': fill(i, [&](int r, int c) { return std::abs(r - c) > 1 ? T(0) : T(int(random() % 7) - 3); }); break;
    case 'c': fill(i, [&](int r, int c) { return r == c + 1 ? T(1) : c < cols - 1 ? T(0) : T(int(random() % 9) - 4); }); break;
    case 'r': fill(i, [&](int r, int c) { return r / 2 != c / 2 ? T(0) : r == c ? T(0) : T(r < c ? -col - 1 : col + 1); }); break;
    case 'j': fill(i, [&](int r, int c) { return r == c ? T(col) : r + 1 == c ? T(1) : T(0); }); break;
    }
}

// In half of all jobs some objects are spoiled, in one of the ways given.
template <class T> void spoilSome(Job& job, const std::string& name, const std::string& ways, Random& random)
{
    if (random() % 2) {
        return;
    }
    Source<T> source(job, name);
    for (int i = 0; i < source.objects; ++i) {
        if (random() % (source.objects > 50 ? 100 : 3) == 0) {
            source.spoil(i, ways[random() % ways.size()], random);
        }
    }
}

}  // namespace harness
