// Systems of one or two equations, real or complex, with complete pivoting and guards against overflow: the blocks of a
// quasi-triangular matrix with an eigenvalue taken off their diagonal.
#pragma once

#include "hessenberg.h"

namespace vokm {

/// How a kernel goes on behind a system: or leaves, with vokStatusOk or with vokStatusFailure.
enum class Leave { no, quietly, failing };

/// (a - (wr + i*wi)) x = scale * b. `parts`: 1 real, 2 complex (real and imaginary part). On entry x holds b.
template <class T, int parts> struct BlockSystem {
    using K = GeneralConstants<T>;
    T c[4];  // the block, wr taken off its diagonal, column by column; of one equation the first alone
    T wi, smallest;
    T x[2][parts];
    T scale = 1, norm = 0;  // norm: of x, the largest of its components' magnitudes

    void solveOne();
    Leave solveTwo();

private:
    struct Complex {
        T re, im;
    };
    static T size(T re, T im) { return magnitude(re) + magnitude(im); }
    static Complex quotient(Complex a, Complex b);
    void eliminateReal(int pivot);
    void eliminateComplex(int pivot);
    void shrink(T largest);
};

/// The quotient by the larger component of the divisor.
template <class T, int parts> VOKM_INLINE auto BlockSystem<T, parts>::quotient(Complex a, Complex b) -> Complex
{
    if (magnitude(b.im) < magnitude(b.re)) {
        const T e = b.im / b.re, f = b.re + b.im * e;
        return {(a.re + a.im * e) / f, (a.im - a.re * e) / f};
    }
    const T e = b.re / b.im, f = b.im + b.re * e;
    return {(a.im + a.re * e) / f, (-a.re + a.im * e) / f};
}

template <class T, int parts> VOKM_INLINE void BlockSystem<T, parts>::solveOne()
{
    Complex pivot{c[0], -wi};
    T pivotSize = parts == 2 ? size(pivot.re, pivot.im) : magnitude(pivot.re);
    if (pivotSize < smallest) {
        pivot = {smallest, 0};
        pivotSize = smallest;
    }
    const T right = parts == 2 ? size(x[0][0], x[0][parts - 1]) : magnitude(x[0][0]);
    if (pivotSize < 1 && right > 1 && right > K::solveBig * pivotSize) scale = 1 / right;
    if constexpr (parts == 2) {
        const Complex solved = quotient({scale * x[0][0], scale * x[0][1]}, pivot);
        x[0][0] = solved.re, x[0][1] = solved.im;
        norm = size(solved.re, solved.im);
    } else {
        x[0][0] = x[0][0] * scale / pivot.re;
        norm = magnitude(x[0][0]);
    }
}

/// Entry k of the system as pivoted is entry pivot ^ k: bit 0 of `pivot` exchanges the rows, bit 1 the columns.
template <class T, int parts> VOKM_INLINE Leave BlockSystem<T, parts>::solveTwo()
{
    int pivot = 0;
    T largest = 0;
    for (int k = 0; k < 4; ++k) {
        const T entry = parts == 2 && (k == 0 || k == 3) ? size(c[k], wi) : magnitude(c[k]);
        if (entry > largest) largest = entry, pivot = k;
    }
    if (largest < smallest) return parts == 2 ? Leave::failing : Leave::quietly;
    if (pivot & 1) std::swap(x[0], x[1]);
    if constexpr (parts == 2) {
        eliminateComplex(pivot);
        norm = std::max(size(x[0][0], x[0][1]), size(x[1][0], x[1][1]));
    } else {
        eliminateReal(pivot);
        norm = std::max(magnitude(x[0][0]), magnitude(x[1][0]));
    }
    if (pivot & 2) std::swap(x[0], x[1]);
    shrink(largest);
    return Leave::no;
}

template <class T, int parts> VOKM_INLINE void BlockSystem<T, parts>::eliminateReal(int pivot)
{
    const T u11 = c[pivot], u12 = c[pivot ^ 2], inverse = 1 / u11, l21 = inverse * c[pivot ^ 1];
    T u22 = c[pivot ^ 3] - u12 * l21;
    if (magnitude(u22) < smallest) u22 = smallest;
    const T b1 = x[0][0], b2 = x[1][0] - l21 * b1;
    const T bound = std::max(magnitude(b1 * (u22 * inverse)), magnitude(b2));
    if (bound > 1 && magnitude(u22) < 1 && bound >= K::solveBig * magnitude(u22)) scale = 1 / bound;
    x[1][0] = b2 * scale / u22;
    x[0][0] = scale * b1 * inverse - x[1][0] * (inverse * u12);
}

/// Of the pivoted entries either the two on the diagonal or the two off it are real. l21 = c21 / u11, s12 = u12 / u11.
template <class T, int parts> VOKM_INLINE void BlockSystem<T, parts>::eliminateComplex(int pivot)
{
    const auto entry = [&](int k) VOKM_INLINE_LAMBDA { return Complex{c[k], k == 0 || k == 3 ? -wi : T(0)}; };
    const Complex u11 = entry(pivot), c21 = entry(pivot ^ 1), u12 = entry(pivot ^ 2), c22 = entry(pivot ^ 3);
    Complex inverse, l21, s12, u22;
    if (pivot == 0 || pivot == 3) {
        if (magnitude(u11.re) > magnitude(u11.im)) {
            const T ratio = u11.im / u11.re;
            inverse.re = 1 / (u11.re * (1 + ratio * ratio));
            inverse.im = -ratio * inverse.re;
        } else {
            const T ratio = u11.re / u11.im;
            inverse.im = -1 / (u11.im * (1 + ratio * ratio));
            inverse.re = -ratio * inverse.im;
        }
        l21 = {c21.re * inverse.re, c21.re * inverse.im};
        s12 = {u12.re * inverse.re, u12.re * inverse.im};
        u22 = {c22.re - u12.re * l21.re, c22.im - u12.re * l21.im};
    } else {
        inverse = {1 / u11.re, 0};
        l21 = {c21.re * inverse.re, c21.im * inverse.re};
        s12 = {u12.re * inverse.re, u12.im * inverse.re};
        u22 = {c22.re - u12.re * l21.re + u12.im * l21.im, -u12.re * l21.im - u12.im * l21.re};
    }
    const T size22 = size(u22.re, u22.im);  // stays as it is when the pivot is replaced
    if (size22 < smallest) u22 = {smallest, 0};
    Complex b1{x[0][0], x[0][1]};
    Complex b2{x[1][0] - l21.re * b1.re + l21.im * b1.im, x[1][1] - l21.im * b1.re - l21.re * b1.im};
    const T bound = std::max(size(b1.re, b1.im) * (size22 * size(inverse.re, inverse.im)), size(b2.re, b2.im));
    if (bound > 1 && size22 < 1 && bound >= K::solveBig * size22) {
        scale = 1 / bound;
        b1 = {scale * b1.re, scale * b1.im};
        b2 = {scale * b2.re, scale * b2.im};
    }
    const Complex x2 = quotient(b2, u22);
    x[0][0] = inverse.re * b1.re - inverse.im * b1.im - s12.re * x2.re + s12.im * x2.im;
    x[0][1] = inverse.im * b1.re + inverse.re * b1.im - s12.im * x2.re - s12.re * x2.im;
    x[1][0] = x2.re, x[1][1] = x2.im;
}

/// Keeps the product of the solution and the block's largest entry from overflowing.
template <class T, int parts> VOKM_INLINE void BlockSystem<T, parts>::shrink(T largest)
{
    if (!(norm > 1 && largest > 1 && norm > K::solveBig / largest)) return;
    const T factor = largest / K::solveBig;
    for (auto& row : x) {
        for (T& component : row) component *= factor;
    }
    norm *= factor;
    scale *= factor;
}

}  // namespace vokm
