// What the Eigen texts share. Each is compiled once for each flavour's shared object, element type and size, for which CMake
// sets BENCH_TYPE and BENCH_SIZE: all in one would take many minutes and gigabytes.
#pragma once

#include "peer.h"

#include <Eigen/Dense>

namespace flavour {

using namespace bench;
using Eigen::ColMajor;
using Eigen::Dynamic;
using Eigen::RowMajor;

template <class T, int n> void vectorRows(Add);
template <class T, int n> void matrixRows(Add);
template <class T, int n> void solveRows(Add);
template <class T, int n> void eigenRows(Add);

template <class T> constexpr char code = sizeof(T) == 4 ? 'f' : 'd';

// The alignment that every object of an array has whose first object is well aligned.
constexpr int alignment(int bytes) {
    const int natural = bytes & -bytes;
    return natural < 16 ? 0 : natural < EIGEN_MAX_ALIGN_BYTES ? natural : EIGEN_MAX_ALIGN_BYTES;
}

template <class T, int rows, int columns, int order> using Matrix = Eigen::Matrix<T, rows, columns, columns == 1 ? 0 : order>;

template <class T, int rows, int columns = 1, int order = ColMajor> auto get(const void* base, long i = 0) {
    return Eigen::Map<const Matrix<T, rows, columns, order>, alignment(rows * columns * sizeof(T))>(
        static_cast<const T*>(base) + i * rows * columns);
}
template <class T, int rows, int columns = 1, int order = ColMajor> auto put(void* base, long i = 0) {
    return Eigen::Map<Matrix<T, rows, columns, order>, alignment(rows * columns * sizeof(T))>(
        static_cast<T*>(base) + i * rows * columns);
}

// The whole array as one vector, and as the columns of one matrix.
template <class T> auto run(const void* base, long length) {
    return Eigen::Map<const Eigen::Array<T, Dynamic, 1>, Eigen::AlignedMax>(static_cast<const T*>(base), length);
}
template <class T> auto run(void* base, long length) {
    return Eigen::Map<Eigen::Array<T, Dynamic, 1>, Eigen::AlignedMax>(static_cast<T*>(base), length);
}
template <class T, int n> auto table(const void* base, long columns, long rows = n) {
    return Eigen::Map<const Eigen::Matrix<T, n, Dynamic>, Eigen::AlignedMax>(static_cast<const T*>(base), rows, columns);
}
template <class T, int n> auto table(void* base, long columns, long rows = n) {
    return Eigen::Map<Eigen::Matrix<T, n, Dynamic>, Eigen::AlignedMax>(static_cast<T*>(base), rows, columns);
}

} // namespace flavour

#define EACH(o, i) for (long i = 0, end_ = (o).count; i < end_; ++i)
