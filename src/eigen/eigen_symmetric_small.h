// Symmetric matrices [a b; b d] of size 2 in closed form. Neither values nor vectors are sorted: the value of largest
// magnitude is first.
#pragma once

#include <cmath>

#include "../frame/pack.h"
#include "eigen_symmetric.h"

namespace vokm {

template <class T> struct SymmetricPair {
    T first, second;
    T disc;
    bool negative;  // the trace is
};

/// The values; false if the matrix is singular.
template <SymmetricRules rules, class T> inline bool valuesOfTwo(T a, T b, T d, SymmetricPair<T>& pair)
{
    constexpr T eps = powerOfTwo<T>(rules.eps), half = T(0.5);
    const T det = a * d - b * b;
    if (magnitude(det) <= powerOfTwo<T>(rules.determinant)) return false;
    const T disc = root((a - d) * (a - d) + (2 * b) * (2 * b)), trace = a + d;
    pair.disc = disc;
    pair.negative = trace < -eps;
    if (trace > eps || pair.negative) {
        pair.first = half * (pair.negative ? trace - disc : trace + disc);
        pair.second = det / pair.first;
    } else {
        pair.first = half * disc;
        pair.second = -half * disc;
    }
    return true;
}

/// A unit vector (cs, sn) of the second value; the root and the quotient in 64 bits, each result rounded before it is used.
template <SymmetricRules rules, class T, class Object>
inline void vectorsOfTwo(T a, T b, T d, const SymmetricPair<T>& pair, const Object& v)
{
    constexpr T eps = powerOfTwo<T>(rules.eps);
    const auto inverseRoot = [](T x) { return static_cast<T>(1.0 / root(1.0 + static_cast<double>(x * x))); };
    const T df = a - d, tb = 2 * b;
    const bool below = df < -eps;
    const T cs = below ? df - pair.disc : df + pair.disc;
    T cs1 = 1, sn1 = 0;
    if (magnitude(cs) > magnitude(tb)) {
        const T ct = -tb / cs;
        sn1 = inverseRoot(ct);
        cs1 = ct * sn1;
    } else if (!(magnitude(tb) <= eps)) {
        const T tn = -cs / tb;
        cs1 = inverseRoot(tn);
        sn1 = tn * cs1;
    }
    if (pair.negative == below) {
        const T old = cs1;
        cs1 = -sn1;
        sn1 = old;
    }
    v(0, 0) = cs1;
    v(1, 0) = sn1;
    v(0, 1) = -sn1;
    v(1, 1) = cs1;
}

}  // namespace vokm
