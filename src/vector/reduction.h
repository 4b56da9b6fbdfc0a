// Reductions of a vector to a number: the sum of products of two vectors, or the root of the sum of squares of one.
//
// The order of each sum is data (Orders below): it differs between kernels, and with it the last bit.
#pragma once

#include "../frame/fixed.h"
#include "../frame/overlap.h"
#include "../frame/stream.h"
#include "../frame/sums.h"
#include "wide_sums.h"

namespace vokm {

/// The orders at lengths 3 to 6.
struct Orders36 {
    Order at[4];
    constexpr Order of(int n) const { return at[n - 3]; }
};
constexpr Orders36 alike(Order order) { return {{order, order, order, order}}; }

/// Which kernel sums in which order at lengths 3 to 6. At one length the objects of a leading block can have an order of their
/// own; how far the block reaches is the kernel's to say.
struct SumRow {
    Orders36 dense32, dense64, strided, pointers;
    int blockLength = 0;
    Order blockOrder = Order::chain;

    template <class T> constexpr Order order(Variant variant, int n) const
    {
        if (variant == Variant::P) return pointers.of(n);
        if (variant == Variant::S2 || variant == Variant::LS2) return strided.of(n);
        return (sizeof(T) == 4 ? dense32 : dense64).of(n);
    }
};

/// The sums of a pack of two objects whose order keeps even and odd terms apart: formed across each object's own registers,
/// so that only the two partial sums of an object are turned into lanes. The terms are the products of two dense arrays.
template <Order order, int n, class A, class B> VOKM_INLINE Pack<double> foldedSum(const A& a, const B& b, i32 i)
{
    const auto from = fetchProducts<n>(a, b, i);
    Pack<double> partial[2];
    for (int lane = 0; lane < 2; ++lane) {
        if constexpr (n == 6 && order == Order::evenOddInner) {
            partial[lane] = from.four(lane, 0) + (from.four(lane, 2) + from.four(lane, 4));
        } else {
            partial[lane] = from.four(lane, 0) + from.four(lane, 2);
            if constexpr (n == 6) partial[lane] = partial[lane] + from.four(lane, 4);
        }
    }
    const Pack<double> even = __builtin_shufflevector(partial[0], partial[1], 0, 2);
    const Pack<double> odd = __builtin_shufflevector(partial[0], partial[1], 1, 3);
    if constexpr (n != 5) return even + odd;
    const Pack<double> last{from.one(0, 4), from.one(1, 4)};
    return order == Order::evenOddTail ? (even + odd) + last : (even + last) + odd;
}
template <Order order, int n> constexpr bool folds = n > 3 &&
                                                     (order == Order::evenOdd || (order == Order::evenOddTail && n == 5) ||
                                                         (order == Order::evenOddInner && n == 6));

/// Asks for the objects of a dense array two pages ahead of a pack's: what the processor guesses ends with a page, and nearer
/// the two would be in each other's way.
template <int n, class A> VOKM_INLINE void fetchObjects(const A& a, i32 i)
{
    if constexpr (A::array && A::dense) {
        const auto* const at = &a.object(i, Shape{1, n})(0, 0);
        fetchSource<8192>(at);
        if constexpr (n > 4) fetchSource<8192 + 64>(at);
    }
}

/// The terms of a dot product.
template <class A, class B> struct Products {
    static constexpr bool folds = A::array && B::array && A::dense && B::dense;
    static constexpr bool mayBePlanes = mayBePlanar<A> && (!B::array || mayBePlanar<B>);
    A a;
    B b;
    /// Sums of leading objects in wide registers, where no result lies on a source; returns how many.
    template <Order order, int n> VOKM_INLINE i32 leading(double* dst, i32 count) const
    {
        constexpr bool strides = requires {
            a.stride0;
            b.stride0;
        };
        if constexpr (folds && strides && n == 3) {
            if (threesWide<order, false>(a, b, dst, count)) return count;
        }
        if constexpr (folds && strides && sumsWide<order, n>) {
            if (wideRegisters() && count >= 8 && apartFrom(a, n, count, dst) && apartFrom(b, n, count, dst)) {
                return wideSums<order, n>(a, b, dst, count);
            }
        }
        return 0;
    }
    Products from(i32 start) const { return {a.from(start), b.from(start)}; }
    /// Whether all arrays have a plane for each element, apart from the results.
    template <int n, class D> VOKM_INLINE bool planes(const D& dst, i32 count) const
    {
        return planar(a) && (!B::array || planar(b)) && lanesApart(PlaneLanes<n, A>(a), dst, count) &&
               lanesApart(PlaneLanes<n, B>(b), dst, count);
    }
    template <int n> VOKM_INLINE auto alongPlanes() const
    {
        return [x = PlaneLanes<n, A>(a), y = PlaneLanes<n, B>(b)](int k, i64 i) VOKM_INLINE_LAMBDA { return x(k, i) * y(k, i); };
    }
    template <class V, int n, class H> VOKM_INLINE void fixedTerms(V (&p)[n], const H& held, i32 i) const
    {
        if constexpr (B::array) {
            loadProducts(p, a, b, i);
        } else {
            V x[1][n];
            load(x, a, i);
            for (int j = 0; j < n; ++j) p[j] = x[0][j] * held.template at<V>(0, j);
        }
    }
    auto term(i32 i, i32 n) const
    {
        return [x = a.object(i, Shape{1, n}), y = b.object(i, Shape{1, n})](i32 j) { return x(0, j) * y(0, j); };
    }
    template <class T, int n> VOKM_INLINE auto held(bool packs) const { return HeldIfSingle<T, 1, n, B>(b, packs); }
    template <class D> VOKM_INLINE auto guard(i32 count, const D& dst, i32 n) const
    {
        return packGuard(count, Shaped<D>{dst, {1, 1}}, Shaped<A>{a, {1, n}}, Shaped<B>{b, {1, n}});
    }
    template <Order order, int n> VOKM_INLINE auto folded(As<Pack<double>>, i32 i) const { return foldedSum<order, n>(a, b, i); }
    template <int n> VOKM_INLINE auto pin() const
    {
        return Products<Pinned<1, n, A>, Pinned<1, n, B>>{pinned<1, n>(a), pinned<1, n>(b)};
    }
    template <int n> VOKM_INLINE void fetch(i32 i) const
    {
        fetchObjects<n>(a, i);
        fetchObjects<n>(b, i);
    }
    const auto& lead() const { return b; }  // the operand whose alignment decides the head of a long sum
};

/// The terms of a norm.
template <class A> struct Squares {
    static constexpr bool folds = A::array && A::dense, mayBePlanes = mayBePlanar<A>;
    A a;
    template <class V, int n, class H> VOKM_INLINE void fixedTerms(V (&p)[n], const H&, i32 i) const { loadProducts(p, a, a, i); }
    auto term(i32 i, i32 n) const
    {
        return [x = a.object(i, Shape{1, n})](i32 j) { return x(0, j) * x(0, j); };
    }
    template <class T, int n> VOKM_INLINE auto held(bool packs) const { return NothingHeld(a, packs); }
    template <class D> VOKM_INLINE auto guard(i32 count, const D& dst, i32 n) const
    {
        return packGuard(count, Shaped<D>{dst, {1, 1}}, Shaped<A>{a, {1, n}});
    }
    template <int n, class D> VOKM_INLINE bool planes(const D& dst, i32 count) const
    {
        return planar(a) && lanesApart(PlaneLanes<n, A>(a), dst, count);
    }
    template <int n> VOKM_INLINE auto alongPlanes() const
    {
        return [x = PlaneLanes<n, A>(a)](int k, i64 i) VOKM_INLINE_LAMBDA { return x(k, i) * x(k, i); };
    }
    template <Order order, int n> VOKM_INLINE auto folded(As<Pack<double>>, i32 i) const { return foldedSum<order, n>(a, a, i); }
    template <int n> VOKM_INLINE auto pin() const { return Squares<Pinned<1, n, A>>{pinned<1, n>(a)}; }
    template <int n> VOKM_INLINE void fetch(i32 i) const { fetchObjects<n>(a, i); }
    const auto& lead() const { return a; }
};

/// One ascending sum from 0.0.
template <class T, class Terms> inline T risingSum(const Terms& terms, i32 i, i32 n)
{
    const auto p = terms.term(i, n);
    T s = 0;
    for (i32 j = 0; j < n; ++j) s = s + p(j);
    return s;
}

/// The sum of one long vector with contiguous elements, p[j] = term j, in two accumulators A and B of N = 16 bytes: a head up
/// to the first 16-byte boundary of the leading operand goes to lane 0 of A, then blocks of 2N, N terms to A and N to B;
/// the lanes of A + B are joined pairwise, and the rest follows in ascending order. Short or badly aligned: ascending from 0.
template <class T, class Terms> inline T longSum(const Terms& terms, i32 n)
{
    constexpr i32 N = packLanes<T>, block = 2 * N;
    const auto p = terms.term(0, n);
    auto address = reinterpret_cast<std::uintptr_t>(&terms.lead().object(0, Shape{1, n})(0, 0));
    asm("" : "+r"(address));  // a reference lets compilers take for granted what is asked here
    const i32 head = static_cast<i32>((16 - address % 16) % 16 / sizeof(T));
    if (address % sizeof(T) != 0 || n < head + block) return risingSum<T>(terms, 0, n);
    const auto lanes = [&](i32 j) {
        Pack<T> v{};
        for (i32 k = 0; k < N; ++k) v[k] = p(j + k);
        return v;
    };
    Pack<T> first{}, second{};
    for (i32 j = 0; j < head; ++j) first[0] = first[0] + p(j);
    const i32 end = n - (n - head) % block;
    for (i32 j = head; j < end; j += block) {
        first = first + lanes(j);
        second = second + lanes(j + N);
    }
    first = first + second;
    T s;
    if constexpr (N == 4) {
        s = (first[0] + first[1]) + (first[2] + first[3]);
    } else {
        s = first[0] + first[1];
    }
    for (i32 j = end; j < n; ++j) s = s + p(j);
    return s;
}

/// The reductions of `count` vectors of length n. `finish` turns the sum at a fixed length into the result, `finishOther` the
/// sum at any other; `block` is the number of leading objects that sum in the row's block order at its block length.
template <const SumRow& row, Variant variant, class T, class Terms, class Finish, class FinishOther, class Other>
VOKM_INLINE vokStatus reduce(
    Terms terms, Packed<T> dst, i32 n, i32 count, i32 block, Finish finish, FinishOther finishOther, Other other)
{
    const auto fixed = [&](auto length) VOKM_INLINE_LAMBDA -> vokStatus {
        constexpr int k = decltype(length)::value;
        constexpr Order order = row.order<T>(variant, k);
        if constexpr (sizeof(T) == 8 && requires { terms.template leading<order, k>(dst.base, count); }) {
            if (const i32 done = terms.template leading<order, k>(dst.base, count)) {
                terms = terms.from(done);
                dst = dst.from(done);
                count -= done;
            }
        }
        const StrideView<T, Code::va> results(dst.base, sizeof(T), 0, sizeof(T));
        if constexpr (Terms::mayBePlanes) {
            if (count >= 32 && terms.template planes<k>(PlaneLanes<1, StrideView<T, Code::va>>(results), count)) {
                along(count, [d = dst.base, term = terms.template alongPlanes<k>(), finish](i64 i) VOKM_INLINE_LAMBDA {
                    T p[decltype(length)::value];
                    for (int j = 0; j < decltype(length)::value; ++j) p[j] = term(j, i);
                    d[i] = finish(sum<order>(p));
                });
                return vokStatusOk;
            }
        }
        const auto guard = lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA { return terms.guard(count, results, k); });
        const auto held = terms.template held<T, k>(count >= packLanes<T>);
        const auto pins = terms.template pin<k>();
        walkGuarded<T>(count, guard, [&](auto as, i32 i) VOKM_INLINE_LAMBDA {
            using V = typename decltype(as)::type;
            if constexpr (isPack<V>) terms.template fetch<k>(i);
            if constexpr (isPack<V> && sizeof(T) == 8 && folds<order, k> && Terms::folds) {
                return storeLanes(dst.base + i, finish(pins.template folded<order, k>(as, i)));
            }
            V p[k];
            pins.fixedTerms(p, held, i);
            V s;
            if constexpr (k == row.blockLength) {
                s = i < block ? sum<row.blockOrder>(p) : sum<order>(p);
            } else {
                s = sum<order>(p);
            }
            storeLanes(dst.base + i, finish(s));
        });
        return vokStatusOk;
    };
    const auto general = [&]() VOKM_INLINE_LAMBDA -> vokStatus {
        for (i32 i = 0; i < count; ++i) dst.base[i] = finishOther(other(terms, i, n));
        return vokStatusOk;
    };
    return onFixed(n, fixed, general);
}

}  // namespace vokm
