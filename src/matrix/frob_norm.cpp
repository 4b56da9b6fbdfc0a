// vokmFrobNorm: the root of the sum of q(r, c) = src(r, c)^2, squared and summed in the element type, without scaling. No
// square is a negative zero, so a start of 0.0 shows in no sum and is left out.
#include "frob_norm.h"

#include "../frame/fixed.h"
#include "../frame/overlap.h"
#include "../frame/sums.h"

namespace vokm {

/// The orders of the sum.
enum class Squares {
    rowByRow,         // one running sum
    inPairs,          // (q0 + q1) + (q2 + q3) + ... in the order of the table, a last odd one alone
    rowSums,          // each row left to right, then the row sums
    lastColumnFirst,  // one running sum, in each row the last element first
    columns,          // each column pairwise from the top, then the columns: even ones, odd ones, of five the last
};

/// Which kernel sums in which order. Where nothing is promised (contiguous rows of six, or of a matrix that is not square),
/// the choice is ours.
template <class T> constexpr Squares squaresOrder(Variant variant, bool array, Shape shape)
{
    const bool square = shape.rows == shape.cols, threes = square && shape.rows == 3, f32 = sizeof(T) == 4;
    if (variant == Variant::P) return array && threes ? Squares::rowByRow : Squares::inPairs;
    if (variant == Variant::plain) {
        return (array || f32) && square && allFixed.has(shape.rows) ? Squares::columns : Squares::rowByRow;
    }
    if (threes) return Squares::rowByRow;
    if (shape.cols == 4) return !f32 && variant == Variant::LS2 ? Squares::lastColumnFirst : Squares::rowSums;
    return shape.cols == 5 || shape.cols == 6 ? Squares::lastColumnFirst : Squares::rowByRow;
}

template <int n, class V> VOKM_INLINE V sumColumns(const V (&q)[n][n])
{
    V columns[n];
    for (int c = 0; c < n; ++c) {
        V down[n];
        for (int r = 0; r < n; ++r) down[r] = q[r][c];
        columns[c] = sum<Order::pairwise>(down);
    }
    return sum<n == 5 ? Order::evenOddTail : Order::evenOdd>(columns);
}

/// The other orders, over any shape; q(r, c) is the square.
template <class V, class Q> VOKM_INLINE V sumSquares(Squares order, Shape shape, Q q)
{
    V s{};
    if (order == Squares::inPairs) {
        V first{};
        bool open = false;
        for (i32 r = 0; r < shape.rows; ++r) {
            for (i32 c = 0; c < shape.cols; ++c, open = !open) {
                if (open) {
                    s = s + (first + q(r, c));
                } else {
                    first = q(r, c);
                }
            }
        }
        return open ? s + first : s;
    }
    for (i32 r = 0; r < shape.rows; ++r) {
        const bool last = order == Squares::lastColumnFirst;
        V row = order == Squares::rowSums ? V{} : s;
        if (last) row = row + q(r, shape.cols - 1);
        for (i32 c = 0; c < shape.cols - last; ++c) row = row + q(r, c);
        s = order == Squares::rowSums ? s + row : row;
    }
    return s;
}

/// The root: in the element type behind contiguous rows of the stride layout, elsewhere in 64f.
template <Variant variant, class V> VOKM_INLINE V norm(V s)
{
    if constexpr (variant == Variant::plain) return root(s);
    return rootInDouble(s);
}

template <Variant variant, class A, class T> VOKM_INLINE vokStatus frobNorms(A src, Packed<T> dst, Shape shape, i32 count)
{
    const auto fixed = [&](auto size) VOKM_INLINE_LAMBDA -> vokStatus {
        constexpr int n = decltype(size)::value;
        constexpr Shape square{n, n};
        constexpr Squares order = squaresOrder<T>(variant, A::array, square);
        using Results = StrideView<T, Code::va>;
        const Results results(dst.base, sizeof(T), 0, sizeof(T));
        const auto guard = lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA {
            return packGuard(count, Shaped<Results>{results, {1, 1}}, Shaped<A>{src, square});
        });
        const auto pins = pinned<n, n>(src);
        walkGuarded<T>(count, guard, [&](auto as, i32 i) VOKM_INLINE_LAMBDA {
            using V = typename decltype(as)::type;
            V q[n][n];
            load(q, pins, i);
            for (int r = 0; r < n; ++r) {
                for (int c = 0; c < n; ++c) q[r][c] = q[r][c] * q[r][c];
            }
            V s;
            if constexpr (order == Squares::columns) {
                s = sumColumns(q);
            } else {
                s = sumSquares<V>(order, square, [&](i32 r, i32 c) VOKM_INLINE_LAMBDA { return q[r][c]; });
            }
            storeLanes(dst.base + i, norm<variant>(s));
        });
        return vokStatusOk;
    };
    const auto general = [&]() VOKM_INLINE_LAMBDA -> vokStatus {
        const Squares order = squaresOrder<T>(variant, A::array, shape);
        for (i32 i = 0; i < count; ++i) {
            const auto object = src.object(i, shape);
            dst.base[i] = norm<variant>(sumSquares<T>(order, shape, [&](i32 r, i32 c) VOKM_INLINE_LAMBDA {
                const T x = object(r, c);
                return x * x;
            }));
        }
        return vokStatusOk;
    };
    if (shape.rows != shape.cols) return general();
    return onFixed(shape.cols, fixed, general);
}

}  // namespace vokm

extern "C" {
FROB_STAMP_SINGLE(VOKM_DEFINE_ONE)
FROB_FORMS_ARRAY(VOKM_ARRAY_KERNELS)
FROB_STAMP_SINGLE(VOKM_EXPORT_SINGLE)
FROB_FORMS_ARRAY(VOKM_ARRAY_EXPORTS)
}
