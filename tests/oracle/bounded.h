// Arithmetic with a running bound of its rounding error, for texts whose order of operations is free: a result is right if
// it lies within the bound.
#pragma once
#include "grid.h"

namespace harness {

template <class T> struct Bounded {
    Bounded(T v = 0, double e = 0) : value(v), error(e) {}
    // A result of one rounded operation on operands whose errors add up to `e`. Near overflow another order may overflow.
    static Bounded rounded(T v, double e)
    {
        using Limits = std::numeric_limits<T>;
        bool safe = magnitude(v) < double(Limits::max()) / 64;
        return {v, safe ? e + magnitude(v) * double(Limits::epsilon()) + double(Limits::denorm_min()) : HUGE_VAL};
    }
    bool allows(T other) const
    {
        return !std::isfinite(value) || !std::isfinite(error) || std::fabs(double(other) - double(value)) <= 2 * error;
    }
    T value;
    double error;
};

template <class T> Bounded<T> operator+(Bounded<T> a, Bounded<T> b)
{
    return Bounded<T>::rounded(a.value + b.value, a.error + b.error);
}
template <class T> Bounded<T> operator-(Bounded<T> a, Bounded<T> b)
{
    return Bounded<T>::rounded(a.value - b.value, a.error + b.error);
}
template <class T> Bounded<T> operator*(Bounded<T> a, Bounded<T> b)
{
    double error = magnitude(a.value) * b.error + magnitude(b.value) * a.error + a.error * b.error;
    return Bounded<T>::rounded(a.value * b.value, error);
}
template <class T> Bounded<T> reciprocal(Bounded<T> a)
{
    double least = magnitude(a.value) - a.error;
    T r = T(1) / a.value;
    return Bounded<T>::rounded(r, least > 0 ? magnitude(r) * a.error / least : HUGE_VAL);
}

// The library's own answer where it is within the bound, else the evaluation's.
template <class T> T settled(const Bounded<T>& wanted, T answer) { return wanted.allows(answer) ? answer : wanted.value; }

}  // namespace harness
