// Packed eigenvalues as an operand like any other: n elements an object, one object behind the other.
#pragma once

#include "../frame/overlap.h"

namespace vokm {

template <class T> using ValuesView = StrideView<T, Code::va, true>;

template <class T> VOKM_INLINE Shaped<ValuesView<T>> valuesAt(T* base, i32 n)
{
    return {{base, n * static_cast<i32>(sizeof(T)), 0, sizeof(T)}, {1, n}};
}

}  // namespace vokm
