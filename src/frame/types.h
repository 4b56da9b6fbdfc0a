// The words of the library: integer types, layouts, operand codes, wrapping work values.
#pragma once

#include <cstddef>
#include <cstdint>

#include <vokm>

namespace vokm {

using i32 = std::int32_t;
using i64 = std::int64_t;

/// Where the objects of an array operand lie: strides, a table of element pointers, a list of object pointers.
enum class Layout { S, P, L };

/// The kernels of a form, by what they serve.
enum class Variant { plain, S2, P, L, LS2 };

/// Operand codes: vector, matrix, transposed matrix, constant; with `a` behind the letter an array of them.
enum class Code { v, va, m, ma, t, ta, c, ca };

constexpr bool isArray(Code code) { return code == Code::va || code == Code::ma || code == Code::ta || code == Code::ca; }
constexpr bool isTransposed(Code code) { return code == Code::t || code == Code::ta; }
constexpr bool isMatrix(Code code) { return code == Code::m || code == Code::ma || isTransposed(code); }

/// Logical size of one object: a vector is one row, a transposed operand counts as the operation sees it.
struct Shape {
    i32 rows, cols;
    constexpr i32 elements() const { return rows * cols; }
};

/// A size argument or work value: 32-bit arithmetic that wraps, so that huge jobs come out as the documented number.
struct Wrap {
    std::uint32_t bits;
    constexpr Wrap() : bits(0) {}
    constexpr Wrap(i32 value) : bits(static_cast<std::uint32_t>(value)) {}
    constexpr i32 value() const { return static_cast<i32>(bits); }
    friend constexpr Wrap operator+(Wrap a, Wrap b) { return Wrap(static_cast<i32>(a.bits + b.bits)); }
    friend constexpr Wrap operator*(Wrap a, Wrap b) { return Wrap(static_cast<i32>(a.bits * b.bits)); }
};

// Stores of whole registers may alias anything, so a view that lives in memory would be read again behind each of them. What
// stands between a kernel's own copy of a view and its loads and stores is therefore always inlined.
#define VOKM_INLINE [[gnu::always_inline]] inline
#define VOKM_INLINE_LAMBDA __attribute__((always_inline))

/// Moves a pointer by a distance in bytes.
template <class T> VOKM_INLINE T* byBytes(T* pointer, i64 bytes)
{
    return reinterpret_cast<T*>(reinterpret_cast<std::uintptr_t>(pointer) + static_cast<std::uintptr_t>(bytes));
}

}  // namespace vokm
