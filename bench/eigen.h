// What the Eigen texts share. Every file here is compiled twice, once for each flavour's shared object.
#pragma once

#include "peer.h"

#include <Eigen/Dense>

namespace flavour {

using namespace bench;
using Eigen::ColMajor;
using Eigen::Dynamic;
using Eigen::RowMajor;

void vectorRows(Add);
void matrixRows(Add);
void solveRows(Add);
void eigenRows(Add);

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

// Calls rows<T, n>(add) for both types and the sizes 3 to 6; `Rows` is a function object.
template <class Rows> void forTypesAndSizes(Add add, Rows rows) {
    auto sizes = [&](auto zero) {
        using T = decltype(zero);
        rows.template operator()<T, 3>(add);
        rows.template operator()<T, 4>(add);
        rows.template operator()<T, 5>(add);
        rows.template operator()<T, 6>(add);
    };
    sizes(0.0f);
    sizes(0.0);
}

} // namespace flavour

#define EACH(o, i) for (long i = 0, end_ = (o).count; i < end_; ++i)
