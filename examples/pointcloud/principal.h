// Principal components of the neighbourhood of every point of a cloud: how the surface lies there, and how bent it is.
#pragma once

#include "arrays.h"
#include "ledger.h"

#include <vector>

constexpr int neighbours = 40;

struct Principal {
    explicit Principal(int n) : axes(n, 3, 3), variation(n), radius(n) {}

    Matrices axes;                 // columns: two tangents and the normal, each a unit long; the normal's sign is open
    std::vector<float> variation;  // the least eigenvalue over the sum of all three: 0 on a plane, 1/3 where no way is special
    std::vector<float> radius;     // half the distance of the points around
};

Principal principalComponents(const Vectors& points, Ledger& ledger);
