// Products over planes, an element of all objects each: the text for one object as a long loop, in the widest registers.
#pragma once

#include "../frame/along.h"
#include "multiply.h"

namespace vokm {

/// The elements of a matrix of R rows as those of a vector, row after row.
template <class View, int R, int C> struct RowAfterRow {
    using element = typename View::element;
    static constexpr bool array = View::array;
    View view;
    VOKM_INLINE auto object(i32 i, Shape) const
    {
        return [object = view.object(i, Shape{R, C})](i32, i32 k) VOKM_INLINE_LAMBDA -> auto& { return object(k / C, k % C); };
    }
};
template <class View, int R, int C> using MatrixLanes = PlaneLanes<R * C, RowAfterRow<View, R, C>>;

/// Whether planes ascend without overlap.
template <int K, class S> VOKM_INLINE bool ascend(const PlaneLanes<K, S>& planes, i32 count)
{
    const Address bytes = Address(count) * sizeof(typename S::element);
    bool apart = true;
    for (int k = 1; k < K; ++k) {
        apart &= reinterpret_cast<Address>(planes.of[k]) >= reinterpret_cast<Address>(planes.of[k - 1]) + bytes;
    }
    return apart;
}
/// Whether ascending planes of results lie apart from a source's as a whole.
template <int K, int M, class S, class D>
VOKM_INLINE bool spansApart(const PlaneLanes<K, S>& src, const PlaneLanes<M, D>& dst, i32 count)
{
    if constexpr (S::array) {
        const Address bytes = Address(count) * sizeof(typename D::element);
        const auto at = [](const void* plane) VOKM_INLINE_LAMBDA { return reinterpret_cast<Address>(plane); };
        Address low = at(src.of[0]), high = low;
        for (int k = 1; k < K; ++k) low = std::min(low, at(src.of[k])), high = std::max(high, at(src.of[k]));
        return high + bytes <= at(dst.of[0]) || at(dst.of[M - 1]) + bytes <= low;
    } else {
        return true;
    }
}
/// Whether no plane of results shares memory with another plane: what is usual in few steps, else pair by pair.
template <class X, class Y, class Z> VOKM_INLINE bool separatePlanes(const X& x, const Y& y, const Z& z, i32 count)
{
    return (ascend(z, count) && spansApart(x, z, count) && spansApart(y, z, count)) ||
           (lanesApart(x, z, count) && lanesApart(y, z, count));
}

/// All objects, if no plane of results touches another plane; else false and nothing is done.
template <Order order, int n, class A, class B, class D>
VOKM_INLINE bool alongPlanes(const Operands<n, A, B, NoAddend, D>& of, i32 count)
{
    using T = typename D::element;
    constexpr Shape other = Operands<n, A, B, NoAddend, D>::other;
    const MatrixLanes<A, n, n> x({of.a});
    const MatrixLanes<B, other.rows, n> y({of.b});
    const MatrixLanes<D, other.rows, n> z({of.d});
    if (!separatePlanes(x, y, z, count)) return false;
    along(count, [x, y, z](i64 i) VOKM_INLINE_LAMBDA {
        constexpr int m = isMatrix(B::code) ? n : 1;
        T a[n][n], b[m][n], d[m][n];
        for (int k = 0; k < n * n; ++k) a[k / n][k % n] = x(k, i);
        for (int k = 0; k < m * n; ++k) b[k / n][k % n] = y(k, i);
        multiply<order>(a, b, d);
        for (int k = 0; k < m * n; ++k) z(k, i) = d[k / n][k % n];
    });
    return true;
}

}  // namespace vokm
