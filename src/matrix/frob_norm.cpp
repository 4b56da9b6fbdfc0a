// vokmFrobNorm: the root of the sum of q(r, c) = src(r, c)^2, squared and summed in the element type, without scaling. No
// square is a negative zero, so a start of 0.0 shows in no sum and is left out.
#include "frob_norm.h"

#include "../frame/fixed.h"
#include "../frame/overlap.h"
#include "../frame/row_registers.h"
#include "../frame/sums.h"
#include "../vector/wide_sums.h"

namespace vokm {

/// The orders of the sum.
enum class Squares {
    rowByRow,         // one running sum
    inPairs,          // (q0 + q1) + (q2 + q3) + ... in the order of the table, a last odd one alone
    rowSums,          // each row left to right, then the row sums
    lastColumnFirst,  // one running sum, in each row the last element first
    columns,          // each column pairwise from the top, then the columns: even ones, odd ones, of five the last
    lanes,            // the rows joined to one run in 16-byte registers: down each lane, even and odd ones apart, then the lanes
};

/// Which kernel sums in which order. Where nothing is promised (contiguous rows of six, or of a matrix that is not square),
/// the choice is ours.
template <class T> constexpr Squares squaresOrder(Variant variant, bool array, Shape shape)
{
    const bool square = shape.rows == shape.cols, threes = square && shape.rows == 3, f32 = sizeof(T) == 4;
    if (variant == Variant::P) return array && threes ? Squares::rowByRow : Squares::inPairs;
    if (variant == Variant::plain) {
        if ((!array && !f32) || !square || !allFixed.has(shape.rows)) return Squares::rowByRow;
        return shape.rows == 6 ? Squares::lanes : Squares::columns;
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

/// The same for a pack of dense objects: down the columns in each object's own registers, so that only one row of sums an
/// object is turned into lanes. A column that would have a register of its own goes down in the lanes of the objects.
template <int n, class A> VOKM_INLINE auto sumColumnsOfPack(const A& src, i32 i)
{
    using T = std::remove_const_t<typename A::element>;
    using V = Pack<T>;
    constexpr int N = packLanes<T>, size = (n + N - 2) / N, inRows = n % N == 1 ? n - 1 : n;
    constexpr int K = inRows % 4 == 3 ? inRows + 1 : inRows;  // four are turned faster than three
    constexpr Shape square{n, n};
    TurnedRegisters<T, size> sums;
    for (int lane = 0; lane < N; ++lane) {
        const auto object = src.object(i + lane, square);
        RowRegisters<T, inRows> rows[n];
        for (int r = 0; r < n; ++r) rows[r].load(&object(r, 0));
        for (int j = 0; j < size; ++j) {
            V down[n];
            for (int r = 0; r < n; ++r) down[r] = rows[r].at[j] * rows[r].at[j];
            sums.at[lane][j] = sum<Order::pairwise>(down);
        }
    }
    V turned[K], columns[n];
    turnRuns<K>(turned, sums, false);
    for (int c = 0; c < inRows; ++c) columns[c] = turned[c];
    if constexpr (inRows < n) {
        V down[n];
        for (int r = 0; r < n; ++r) down[r] = gather<V>(src, i, square, r, n - 1);
        for (int r = 0; r < n; ++r) down[r] = down[r] * down[r];
        columns[n - 1] = sum<Order::pairwise>(down);
    }
    return sum<n == 5 ? Order::evenOddTail : Order::evenOdd>(columns);
}

/// The sums down the lanes to their sum, where a lane is a register of objects or a lane of a register.
template <class V, int N> VOKM_INLINE V sumLanes(const V (&lanes)[N])
{
    return N == 2 ? lanes[0] + lanes[1] : (lanes[0] + lanes[2 % N]) + (lanes[1] + lanes[3 % N]);
}
/// Down a lane of k registers: the even ones as a chain, plus the odd ones as a chain.
template <int k, class Term> VOKM_INLINE auto sumDown(Term term)
{
    auto even = term(Fixed<0>{}), odd = term(Fixed<1>{});
    unrolled<k - 2>([&](auto j) VOKM_INLINE_LAMBDA {
        constexpr int at = decltype(j)::value + 2;
        (at % 2 == 0 ? even : odd) += term(Fixed<at>{});
    });
    return even + odd;
}
template <int n, class V> VOKM_INLINE V sumJoinedRows(const V (&q)[n][n])
{
    constexpr int N = packLanes<Element<V>>;
    V lanes[N];
    for (int lane = 0; lane < N; ++lane) {
        lanes[lane] = sumDown<n * n / N>([&](auto j) VOKM_INLINE_LAMBDA {
            const int at = decltype(j)::value * N + lane;
            return q[at / n][at % n];
        });
    }
    return sumLanes(lanes);
}
/// Register j of the joined rows; n is even, so a register holds at most the ends of two rows.
template <int n, class T, class Object> VOKM_INLINE Pack<T> joinedRows(const Object& object, int j)
{
    constexpr int N = packLanes<T>;
    const int r = j * N / n, c = j * N % n;
    if constexpr (N == 4) {
        if (c + N > n && object.rowStep != n * i64(sizeof(T))) {
            const Fetch<T> ends{{&object(r, c), &object(r + 1, 0)}};
            return ends.pairs(0, 1, 0);
        }
    }
    return loadLanes<Pack<T>>(&object(r, c));
}
template <int n, class A> VOKM_INLINE auto sumJoinedRowsOfPack(const A& src, i32 i)
{
    using T = std::remove_const_t<typename A::element>;
    constexpr int N = packLanes<T>;
    TurnedRegisters<T, 1> sums;
    for (int lane = 0; lane < N; ++lane) {
        const auto object = src.object(i + lane, Shape{n, n});
        sums.at[lane][0] = sumDown<n * n / N>([&](auto j) VOKM_INLINE_LAMBDA {
            const Pack<T> x = joinedRows<n, T>(object, decltype(j)::value);
            return x * x;
        });
    }
    Pack<T> lanes[N];
    turnRuns<N>(lanes, sums, false);
    return sumLanes(lanes);
}

/// The same sums of 64f matrices whose rows follow one another, in registers of 32 bytes: the even ones of the narrow registers
/// are their lower halves. Four objects a turn, as long as there are four; returns how many objects are done.
template <class A> [[gnu::target("avx2"), gnu::noinline]] i32 wideSquares(A src, double* dst, i32 count)
{
    using Quad = typename LanesOf<double, 4>::type;
    const double* x = src.base;
    i32 i = 0;
    for (; i + 4 <= count; i += 4) {
        Quad down[4];
        for (int k = 0; k < 4; ++k, x = byBytes(x, src.stride0)) {
            Quad q;
            std::memcpy(&q, x, sizeof q);
            down[k] = q * q;
            for (int j = 1; j < 9; ++j) {
                std::memcpy(&q, x + 4 * j, sizeof q);
                down[k] += q * q;
            }
        }
        const Quad ab = __builtin_shufflevector(down[0], down[1], 0, 1, 4, 5) + __builtin_shufflevector(down[0], down[1], 2, 3, 6, 7);
        const Quad cd = __builtin_shufflevector(down[2], down[3], 0, 1, 4, 5) + __builtin_shufflevector(down[2], down[3], 2, 3, 6, 7);
        // The lanes hold objects 0, 2, 1, 3.
        const Quad s = __builtin_shufflevector(ab, cd, 0, 4, 2, 6) + __builtin_shufflevector(ab, cd, 1, 5, 3, 7);
        const Quad inOrder = __builtin_shufflevector(s, s, 0, 2, 1, 3);
        std::memcpy(dst + i, &inOrder, sizeof inOrder);
    }
    return i;
}
/// Roots behind the sums, a block in the cache at a time; returns how many norms are done.
template <class A> VOKM_INLINE i32 wideNorms(const A& src, double* dst, i32 count)
{
    i32 done = 0;
    for (i32 n = 1; n > 0; done += n) {
        n = wideSquares(src.from(done), dst + done, std::min(512, count - done));
        along(n, [d = dst + done](i64 i) VOKM_INLINE_LAMBDA { d[i] = root(d[i]); });
    }
    return done;
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

/// The sum of object i, or of the pack of objects from i on.
template <Squares order, class V, int n, class A> VOKM_INLINE V sumOf(const A& src, i32 i)
{
    if constexpr (isPack<V> && A::dense && order == Squares::columns) {
        return sumColumnsOfPack<n>(src, i);
    } else if constexpr (isPack<V> && A::dense && order == Squares::lanes) {
        return sumJoinedRowsOfPack<n>(src, i);
    } else {
        V q[n][n];
        load(q, src, i);
        for (int r = 0; r < n; ++r) {
            for (int c = 0; c < n; ++c) q[r][c] = q[r][c] * q[r][c];
        }
        if constexpr (order == Squares::columns) return sumColumns(q);
        if constexpr (order == Squares::lanes) return sumJoinedRows(q);
        return sumSquares<V>(order, Shape{n, n}, [&](i32 r, i32 c) VOKM_INLINE_LAMBDA { return q[r][c]; });
    }
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
        if constexpr (A::array && sizeof(T) == 8 && requires { src.base; }) {
            if (order == Squares::lanes && wideRegisters() && count >= 16 && src.stride1 == n * 8 && apartFrom(src, n * n, count, dst.base)) {
                const i32 done = wideNorms(src, dst.base, count);
                src = src.from(done), dst = dst.from(done);
                count -= done;
            }
        }
        using Results = StrideView<T, Code::va>;
        const Results results(dst.base, sizeof(T), 0, sizeof(T));
        const auto guard = lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA {
            return packGuard(count, Shaped<Results>{results, {1, 1}}, Shaped<A>{src, square});
        });
        const auto run = [&](const auto& these) VOKM_INLINE_LAMBDA {
            walkGuarded<T>(count, guard, [&](auto as, i32 i) VOKM_INLINE_LAMBDA {
                using V = typename decltype(as)::type;
                storeLanes(dst.base + i, norm<variant>(sumOf<order, V, n>(these, i)));
            });
        };
        if constexpr (mayBeTight<A>) {
            if (isTight<n, n>(src)) {
                run(asTight<n, n>(src));
                return vokStatusOk;
            }
        }
        run(pinned<n, n>(src));
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
