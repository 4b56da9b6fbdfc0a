// Arrays of vectors and matrices with a plane of memory for each element: neighbours in a plane belong to neighbouring
// objects, the arrangement that the library is fastest with.
#pragma once

#include <cstddef>
#include <tuple>
#include <vector>

// `count` vectors. all() is what a call takes for an array of them: pointer, stride0, stride2; sized() adds the length.
struct Vectors {
    explicit Vectors(int n, int len = 3) : count(n), length(len), elements(std::size_t(len) * n) {}
    float* plane(int element) { return elements.data() + std::size_t(element) * count; }
    const float* plane(int element) const { return elements.data() + std::size_t(element) * count; }
    int stride0() const { return sizeof(float); }
    int stride2() const { return static_cast<int>(sizeof(float)) * count; }
    auto all() { return std::tuple(elements.data(), stride0(), stride2()); }
    auto all() const { return std::tuple(elements.data(), stride0(), stride2()); }
    auto sized() const { return std::tuple_cat(all(), std::tuple(length)); }

    int count, length;
    std::vector<float> elements;
};

// `count` matrices. all() is pointer, stride0, stride1, stride2; one(i) a single matrix, without stride0; sized() and
// sizedOne(i) add width and height. column(c) is an array of vectors.
struct Matrices {
    Matrices(int n, int rows, int columns) : count(n), height(rows), width(columns), elements(std::size_t(n) * rows * columns) {}
    float* plane(int row, int column) { return elements.data() + (std::size_t(row) * width + column) * count; }
    const float* plane(int row, int column) const { return elements.data() + (std::size_t(row) * width + column) * count; }
    int stride0() const { return sizeof(float); }
    int stride1() const { return stride2() * width; }
    int stride2() const { return static_cast<int>(sizeof(float)) * count; }
    auto all() { return std::tuple(elements.data(), stride0(), stride1(), stride2()); }
    auto all() const { return std::tuple(elements.data(), stride0(), stride1(), stride2()); }
    auto sized() const { return std::tuple_cat(all(), std::tuple(width, height)); }
    auto one(int i) const { return std::tuple(elements.data() + i, stride1(), stride2()); }
    auto column(int c) const { return std::tuple(plane(0, c), stride0(), stride1()); }
    auto sizedOne(int i) const { return std::tuple_cat(one(i), std::tuple(width, height)); }

    int count, height, width;
    std::vector<float> elements;
};
