// vokmMul of a matrix with a vector, and vokmGaxpy: rows, orders of the sums, kernels' declarations, forms.
#pragma once

#include "general_products.h"
#include "vector_products.h"
#include "wide_products.h"
#include "wide_sums_of_rows.h"

namespace vokm {

/// The order of a row's sum at the sizes 3 to 6, by kernel. `rising` is what the general path does: such a kernel has no other.
/// Kernels for any stride2 and for tables have one order of their own.
struct VectorOrders {
    Order plain32, L32, plain64, L64, loose = Order::chain;
    template <class T> constexpr Order of(Variant variant) const
    {
        if (variant == Variant::plain) return sizeof(T) == 4 ? plain32 : plain64;
        if (variant == Variant::L) return sizeof(T) == 4 ? L32 : L64;
        return loose;
    }
};

namespace orders {
// clang-format off
//                              32f plain        L                64f plain        L
constexpr VectorOrders mv   {Order::chain,   Order::rising,  Order::pairwise, Order::rising};
constexpr VectorOrders tv   {Order::chain,   Order::rising,  Order::chain,    Order::rising};
constexpr VectorOrders mva  {Order::evenOdd, Order::rising,  Order::pairwise, Order::pairwise};
constexpr VectorOrders mav  {Order::evenOdd, Order::evenOdd, Order::pairwise, Order::pairwise};
constexpr VectorOrders mava {Order::evenOdd, Order::evenOdd, Order::pairwise, Order::pairwise};
constexpr VectorOrders tva  {Order::mixed,   Order::rising,  Order::chain,    Order::rising};
constexpr VectorOrders tav  {Order::mixed,   Order::mixed,   Order::chain,    Order::pairwise};
constexpr VectorOrders tava {Order::mixed,   Order::mixed,   Order::chain,    Order::rising};
constexpr VectorOrders gaxpy{Order::evenOdd, Order::evenOdd, Order::pairwise, Order::pairwise, Order::lastFirst};
// clang-format on
}  // namespace orders

inline constexpr Row rowMulMv = ProductForm<Code::m, Code::v>::row(), rowMulTv = ProductForm<Code::t, Code::v>::row(),
                     rowMulMva = ProductForm<Code::m, Code::va>::row(), rowMulTva = ProductForm<Code::t, Code::va>::row(),
                     rowMulMav = ProductForm<Code::ma, Code::v>::row(), rowMulTav = ProductForm<Code::ta, Code::v>::row(),
                     rowMulMava = ProductForm<Code::ma, Code::va>::row(), rowMulTava = ProductForm<Code::ta, Code::va>::row();

// The sizes of vokmGaxpy: src1Width, src1Height, src2Len, src3Len.
inline constexpr Mismatch gaxpyMismatch = [](const i32* s) { return s[0] != s[2] || s[1] != s[3]; };
constexpr Limits gaxpyLimits{always(5000), always(5000), always(5000)};
inline constexpr Row rowGaxpyMv{productSingleOrders, productSingleOrders, {}, nullptr, gaxpyMismatch};
inline constexpr Row rowGaxpyMva{productOrders, productOrders, gaxpyLimits,
                                 [](const Wrap* s, Wrap n) { return (s[2] + 2 * s[3]) * n; }, gaxpyMismatch};
inline constexpr Row rowGaxpyMvav{productOrders, productOrders, gaxpyLimits,
                                  [](const Wrap* s, Wrap n) { return (s[2] + s[3]) * n + s[3]; }, gaxpyMismatch};

/// Deliberate: this kernel (3x3, transposed array, plain 32f) takes two objects at a time on rows of 16 bytes when everything
/// is aligned to 16, and with an odd count one object more than there are.
template <class A, class B, class D> inline bool goesInTwos(const A& a, const B& b, const D& dst)
{
    const auto bits = reinterpret_cast<std::uintptr_t>(a.base) | reinterpret_cast<std::uintptr_t>(b.base) |
                      reinterpret_cast<std::uintptr_t>(dst.base) | std::uintptr_t(a.stride0) | std::uintptr_t(b.stride0) |
                      std::uintptr_t(dst.stride0);
    return bits % 16 == 0 && a.stride1 == 16;
}

/// Whether the leading objects may go in the widest registers: arrays of contiguous rows, but for transposed ones.
template <class A, class D> constexpr bool leadInWide = mayBeTight<D> && !(A::array && isTransposed(A::code));

template <const auto& table, Variant variant, class T, class A, class B, class C, class D>
VOKM_INLINE vokStatus matrixVectors(A a, B b, C c, D dst, const i32* sizes, i32 count)
{
    using Form = ProductForm<A::code, B::code>;
    constexpr Order order = table.template of<T>(variant);
    const i32 rows = Form::rows(sizes), inner = Form::inner(sizes);
    const auto fixed = [&](auto size) VOKM_INLINE_LAMBDA -> vokStatus {
        constexpr int n = decltype(size)::value;
        if constexpr (n == 3 && A::code == Code::ta && B::array && variant == Variant::plain && sizeof(T) == 4) {
            if (goesInTwos(a, b, dst)) count += count & 1;
        }
        if constexpr (leadInWide<A, D>) {
            const Operands<n, A, B, C, D> all{a, b, c, dst};
            i32 done;
            if constexpr (A::array) {
                done = leadingSumsOfRows<order>(all, count);
            } else {
                done = leadingProducts<order>(all, count);
            }
            if (done == count) return vokStatusOk;
            a = a.from(done), b = b.from(done), dst = dst.from(done);
            if constexpr (isAddend<C>) c = c.from(done);
            count -= done;
        }
        const Operands<n, A, B, C, D> of{a, b, c, dst};
        constexpr VectorWay way = vectorWayOf<T, n, A, D>();
        if constexpr (way == VectorWay::columns) {
            productsOfColumns<order>(of, count);
        } else if constexpr (way == VectorWay::dots) {
            productsOfDots<order>(of, count);
        } else if constexpr (way == VectorWay::tiles) {
            productsOfTiles<order>(of, count);
        } else {
            productsRowByRow<order>(of, count);
        }
        return vokStatusOk;
    };
    const auto general = [&]() VOKM_INLINE_LAMBDA -> vokStatus {
        generalVectors<T>(a, b, c, dst, rows, inner, count);
        return vokStatusOk;
    };
    if (rows != inner) return general();
    return onFixed(inner, fixed, general);
}

}  // namespace vokm

// The signature shape of a matrix, a vector and a destination.
#define VECTOR_PARAMS(L, T, c1, c2, cd, ...)                                                                         \
    VOKM_PARAM(L, c1, const T, src1), int32_t src1Width, int32_t src1Height, VOKM_PARAM(L, c2, const T, src2),       \
        int32_t src2Len, VOKM_PARAM(L, cd, T, dst)
#define VECTOR_ARGS(L, T, c1, c2, cd, ...)                                                                           \
    VOKM_VIEW(L, c1, const T, src1), VOKM_VIEW(L, c2, const T, src2), VOKM_VIEW(L, cd, T, dst),                      \
        vokm::Sizes{src1Width, src1Height, src2Len}
#define VECTOR_TYPES(D, L, T, c1, c2, cd, ...)                                                                       \
    D<VOKM_TYPE(L, c1, const T)> src1, D<VOKM_TYPE(L, c2, const T)> src2, D<VOKM_TYPE(L, cd, T)> dst, vokm::Sizes<3> sizes
#define VECTOR_NAMES(...) src1, src2, dst, sizes
#define VECTOR_KERNEL(row, T, variant, c1, c2, cd, table) \
    vokm::matrixVectors<table, variant, T>(src1, src2, vokm::NoAddend{}, dst, sizes.n, 1)

#define VECTORS_PARAMS(L, T, ...) VECTOR_PARAMS(L, T, __VA_ARGS__), int32_t count
#define VECTORS_ARGS(L, T, ...) VECTOR_ARGS(L, T, __VA_ARGS__), vokm::Count{count}
#define VECTORS_TYPES(D, L, T, ...) VECTOR_TYPES(D, L, T, __VA_ARGS__), vokm::Count count
#define VECTORS_NAMES(...) VECTOR_NAMES(__VA_ARGS__), count
#define VECTORS_KERNEL(row, T, variant, c1, c2, cd, table) \
    vokm::matrixVectors<table, variant, T>(src1, src2, vokm::NoAddend{}, dst, sizes.n, count.n)

// The same with a third vector.
#define GAXPY_PARAMS(L, T, c1, c2, c3, cd, ...)                                                                      \
    VOKM_PARAM(L, c1, const T, src1), int32_t src1Width, int32_t src1Height, VOKM_PARAM(L, c2, const T, src2),       \
        int32_t src2Len, VOKM_PARAM(L, c3, const T, src3), int32_t src3Len, VOKM_PARAM(L, cd, T, dst)
#define GAXPY_ARGS(L, T, c1, c2, c3, cd, ...)                                                                        \
    VOKM_VIEW(L, c1, const T, src1), VOKM_VIEW(L, c2, const T, src2), VOKM_VIEW(L, c3, const T, src3),               \
        VOKM_VIEW(L, cd, T, dst), vokm::Sizes{src1Width, src1Height, src2Len, src3Len}
#define GAXPY_TYPES(D, L, T, c1, c2, c3, cd, ...)                                                                    \
    D<VOKM_TYPE(L, c1, const T)> src1, D<VOKM_TYPE(L, c2, const T)> src2, D<VOKM_TYPE(L, c3, const T)> src3,         \
        D<VOKM_TYPE(L, cd, T)> dst, vokm::Sizes<4> sizes
#define GAXPY_NAMES(...) src1, src2, src3, dst, sizes
#define GAXPY_KERNEL(row, T, variant, c1, c2, c3, cd, table) \
    vokm::matrixVectors<table, variant, T>(src1, src2, src3, dst, sizes.n, 1)

#define GAXPYS_PARAMS(L, T, ...) GAXPY_PARAMS(L, T, __VA_ARGS__), int32_t count
#define GAXPYS_ARGS(L, T, ...) GAXPY_ARGS(L, T, __VA_ARGS__), vokm::Count{count}
#define GAXPYS_TYPES(D, L, T, ...) GAXPY_TYPES(D, L, T, __VA_ARGS__), vokm::Count count
#define GAXPYS_NAMES(...) GAXPY_NAMES(__VA_ARGS__), count
#define GAXPYS_KERNEL(row, T, variant, c1, c2, c3, cd, table) \
    vokm::matrixVectors<table, variant, T>(src1, src2, src3, dst, sizes.n, count.n)

#define VECTOR_MV(FORM)                                                         \
    FORM(Mul, mv, vokm::rowMulMv, VECTOR, m, v, v, vokm::orders::mv)            \
    FORM(Mul, tv, vokm::rowMulTv, VECTOR, t, v, v, vokm::orders::tv)
#define VECTOR_MVA(FORM)                                                        \
    FORM(Mul, mva, vokm::rowMulMva, VECTORS, m, va, va, vokm::orders::mva)      \
    FORM(Mul, tva, vokm::rowMulTva, VECTORS, t, va, va, vokm::orders::tva)
#define VECTOR_MAV(FORM)                                                        \
    FORM(Mul, mav, vokm::rowMulMav, VECTORS, ma, v, va, vokm::orders::mav)      \
    FORM(Mul, tav, vokm::rowMulTav, VECTORS, ta, v, va, vokm::orders::tav)
#define VECTOR_MAVA(FORM)                                                       \
    FORM(Mul, mava, vokm::rowMulMava, VECTORS, ma, va, va, vokm::orders::mava)  \
    FORM(Mul, tava, vokm::rowMulTava, VECTORS, ta, va, va, vokm::orders::tava)
#define GAXPY_MV(FORM) FORM(Gaxpy, mv, vokm::rowGaxpyMv, GAXPY, m, v, v, v, vokm::orders::gaxpy)
#define GAXPY_MVA(FORM)                                                               \
    FORM(Gaxpy, mva, vokm::rowGaxpyMva, GAXPYS, m, va, va, va, vokm::orders::gaxpy)   \
    FORM(Gaxpy, mvav, vokm::rowGaxpyMvav, GAXPYS, m, va, v, va, vokm::orders::gaxpy)

extern "C" {
VECTOR_MV(VOKM_DECLARE_SINGLE_KERNELS)
VECTOR_MVA(VOKM_DECLARE_ARRAY_KERNELS)
VECTOR_MAV(VOKM_DECLARE_ARRAY_KERNELS)
VECTOR_MAVA(VOKM_DECLARE_ARRAY_KERNELS)
VECTOR_MVA(VOKM_DECLARE_ARRAY_WRAPPERS)
VECTOR_MAV(VOKM_DECLARE_ARRAY_WRAPPERS)
VECTOR_MAVA(VOKM_DECLARE_ARRAY_WRAPPERS)
GAXPY_MV(VOKM_DECLARE_SINGLE_KERNELS)
GAXPY_MVA(VOKM_DECLARE_ARRAY_KERNELS)
GAXPY_MVA(VOKM_DECLARE_ARRAY_WRAPPERS)
}
