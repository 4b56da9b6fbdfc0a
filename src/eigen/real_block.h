// The 2x2 block at which the double-shift iteration ends: its standard form, equal diagonal elements with off-diagonal ones
// of opposite sign for a complex pair, upper triangular for two real eigenvalues.
#pragma once

#include "hessenberg.h"

namespace vokm {

/// A block [[a, b], [c, d]] and the rotation (cs, sn) that brought it to its form.
template <class T> struct RealBlock {
    T a, b, c, d, cs, sn;

    void standardise();
    bool complex() const { return !isZero(c); }
    T imaginary() const { return productOfRoots(magnitude(b), magnitude(c)); }
    void rotate(T& p, T& q) const
    {
        const T turned = cs * p + sn * q;
        q = cs * q - sn * p;
        p = turned;
    }

private:
    void separateReal(T larger, T smaller, T z);
    void equalDiagonal(T p, T temp);
    void separateAlike(T p, T temp);
    void turn();
};

template <class T> VOKM_INLINE T signOf(T x) { return x < 0 ? T(-1) : T(1); }

template <class T> VOKM_INLINE void RealBlock<T>::standardise()
{
    if (isZero(c)) {
        cs = 1, sn = 0;
    } else if (isZero(b)) {
        std::swap(a, d);
        b = -c, c = 0;
        cs = 0, sn = 1;
    } else if (isZero(a - d)) {
        // Taken for a complex pair also where b and c agree in sign; then the rotation of the block before stays.
        if (signOf(b) != signOf(c)) cs = 1, sn = 0;
    } else {
        const T temp = a - d, p = T(0.5) * temp;
        const T larger = std::max(magnitude(b), magnitude(c));
        const T smaller = std::min(magnitude(b), magnitude(c)) * (signOf(b) * signOf(c));
        const T scale = std::max(magnitude(p), larger);
        const T z = (p / scale) * p + (larger / scale) * smaller;
        if (z >= GeneralConstants<T>::realTol) {
            const T roots = productOfRoots(scale, z);
            separateReal(larger, smaller, p > 0 ? p + roots : p - roots);
        } else {
            equalDiagonal(p, temp);
        }
    }
}

template <class T> VOKM_INLINE void RealBlock<T>::separateReal(T larger, T smaller, T z)
{
    using K = GeneralConstants<T>;
    T tau = hypotenuse(magnitude(c), magnitude(z));
    if (tau < K::safmin) tau = K::safmin2;
    cs = z / tau, sn = c / tau;
    a = d + z;
    d = d - (larger / z) * smaller;
    b = b - c, c = 0;
}

/// Complex, or real and nearly equal: a rotation makes the diagonal elements equal.
template <class T> VOKM_INLINE void RealBlock<T>::equalDiagonal(T p, T temp)
{
    using K = GeneralConstants<T>;
    const T sigma = b + c;
    T tau = hypotenuse(magnitude(sigma), magnitude(temp));
    if (tau < K::safmin) tau = K::safmin2;
    cs = root(T(0.5) * (1 + magnitude(sigma) / tau));
    sn = p / (tau * cs);
    if (sigma >= 0) sn = -sn;
    turn();
    const T middle = T(0.5) * (a + d);
    a = d = middle;
    if (isZero(b) || isZero(c)) {
        b = -c, c = 0;
        const T old = cs;
        cs = -sn, sn = old;
    } else if (signOf(b) == signOf(c)) {
        separateAlike(p, middle);
    }
}

/// From the left with the rotation, from the right with its transpose.
template <class T> VOKM_INLINE void RealBlock<T>::turn()
{
    const T aa = a * cs + b * sn, bb = -a * sn + b * cs;
    const T cc = c * cs + d * sn, dd = -c * sn + d * cs;
    a = aa * cs + cc * sn, b = bb * cs + dd * sn;
    c = -aa * sn + cc * cs, d = -bb * sn + dd * cs;
}

/// Off-diagonal elements of one sign behind the rotation. Deliberate: the distance of the two eigenvalues is taken from p,
/// the half difference of the diagonal before it, not from the roots of b and c.
template <class T> VOKM_INLINE void RealBlock<T>::separateAlike(T p, T middle)
{
    const T sab = root(magnitude(b)), sac = root(magnitude(c)), t = 1 / root(magnitude(b + c));
    const T q = c >= 0 ? p : -p;
    a = middle + q, d = middle - q;
    b = b - c, c = 0;
    const T cs1 = sab * t, sn1 = sac * t, old = cs;
    cs = cs * cs1 - sn * sn1;
    sn = old * sn1 + sn * cs1;
}

}  // namespace vokm
