// Rows: what is particular to a form, as data, and the two things that read it: the checks and the choice of the wrapper.
#pragma once

#include <string_view>
#include <utility>

#include "views.h"

namespace vokm {

/// The steps of checking in each layout, a letter a step:
///   N  no pointer argument is null                  C  count is at least 1
///   Z  each size is at least 1                      M  sizes that have to agree do
///   S  each stride is a positive multiple of the element size (without stride0 where the order has an s)
///   s  stride0 likewise, only for more than one object
///   O  each objShift is a multiple of the element size, not negative
///   r  as S, but the first operand is left out
///   o, x  as O and S for the sources alone          p, y  as O and S for the destinations alone
struct Orders {
    const char *S, *P, *L;
};

/// A limit by element type and contiguity: at[0] for 32f, at[1] for 64f; first contiguous rows, then any stride2.
struct Limit {
    i32 at[2][2];
};
constexpr Limit always(i32 limit) { return {{{limit, limit}, {limit, limit}}}; }
constexpr Limit byRows(i32 contiguous, i32 strided) { return {{{contiguous, strided}, {contiguous, strided}}}; }
constexpr Limit byType(i32 of32f, i32 of64f) { return {{{of32f, of32f}, {of64f, of64f}}}; }

enum class Compare { above, atLeast };

struct Limits {
    Limit S, P, L;
    Compare compare = Compare::above;
};

using Work = Wrap (*)(const Wrap* sizes, Wrap count);
using Mismatch = bool (*)(const i32* sizes);

struct Row {
    Orders of32f, of64f;
    Limits limits{};
    Work work = nullptr;          // none: the form has no wrapper
    Mismatch mismatch = nullptr;  // step M
    Work scratch = nullptr;       // bytes for one thread of a team, 32-bit like the work value; sizes, then element size
    bool merges = false;          // the wrapper merges the threads' statuses

    template <class T> constexpr std::string_view order(Layout layout) const
    {
        const Orders& orders = sizeof(T) == 4 ? of32f : of64f;
        return layout == Layout::S ? orders.S : layout == Layout::P ? orders.P : orders.L;
    }
    template <class T> constexpr i32 limit(Layout layout, bool contiguous) const
    {
        const Limit& of = layout == Layout::S ? limits.S : layout == Layout::P ? limits.P : limits.L;
        return of.at[sizeof(T) == 4 ? 0 : 1][contiguous ? 0 : 1];
    }
};

template <class A> bool isNull(const A& a)
{
    if constexpr (requires { a.null(); }) {
        return a.null();
    } else {
        return false;
    }
}

template <class A> constexpr bool isOperand = requires(const A& a) { a.badInner(); };
template <class A, bool = isOperand<A>> constexpr bool isDestination = false;
template <class A> constexpr bool isDestination<A, true> = !std::is_const_v<typename A::element>;

enum class Side { all, sources, destinations };
template <class A, Side side> constexpr bool onSide =
    isOperand<A> && (side == Side::all || isDestination<A> == (side == Side::destinations));

template <Side side, bool withStride0, class A> bool strideFault(const A& a)
{
    if constexpr (onSide<A, side>) {
        return a.badInner() || (withStride0 && a.badStride0());
    } else {
        return false;
    }
}

template <class A> bool stride0Fault(const A& a)
{
    if constexpr (isOperand<A>) {
        return a.badStride0();
    } else {
        return false;
    }
}

template <Side side, class A> bool shiftFault(const A& a)
{
    if constexpr (onSide<A, side>) {
        return a.badShift();
    } else {
        return false;
    }
}

template <int k> inline bool sizeFault(const Sizes<k>& sizes)
{
    for (const i32 n : sizes.n) {
        if (n < 1) return true;
    }
    return false;
}
template <class A> inline bool sizeFault(const A&) { return false; }

template <class... A> inline i32 countOf(const A&... a)
{
    i32 count = 1;
    const auto take = [&](const auto& x) {
        if constexpr (std::is_same_v<std::decay_t<decltype(x)>, Count>) count = x.n;
    };
    (take(a), ...);
    return count;
}

template <class A> struct SizesIn {
    static constexpr int k = 0;
};
template <int n> struct SizesIn<Sizes<n>> {
    static constexpr int k = n;
};

/// Calls use(const i32* sizes) with the size arguments among `a` (a null pointer if there are none).
template <class Use, class... A> inline auto withSizes(Use use, const A&... a)
{
    const i32* sizes = nullptr;
    const auto take = [&](const auto& x) {
        if constexpr (SizesIn<std::decay_t<decltype(x)>>::k > 0) sizes = x.n;
    };
    (take(a), ...);
    return use(sizes);
}

template <class... A> inline i32 workValue(Work work, const A&... a)
{
    constexpr int k = (SizesIn<A>::k + ... + 0);
    return withSizes(
        [&](const i32* sizes) {
            Wrap wrapped[k + 1];
            for (int j = 0; j < k; ++j) wrapped[j] = sizes[j];
            return work(wrapped, countOf(a...)).value();
        },
        a...);
}

template <char letter, bool withStride0, const Row& row, class... A> inline vokStatus step(const A&... a)
{
    static_assert(std::string_view("NCZMSsOroxpy").find(letter) != std::string_view::npos);
    if constexpr (letter == 'N') return (isNull(a) || ...) ? vokStatusNullPointer : vokStatusOk;
    if constexpr (letter == 'C') return countOf(a...) < 1 ? vokStatusBadCount : vokStatusOk;
    if constexpr (letter == 'Z') return (sizeFault(a) || ...) ? vokStatusBadSize : vokStatusOk;
    if constexpr (letter == 'M') return withSizes(row.mismatch, a...) ? vokStatusSizeMismatch : vokStatusOk;
    if constexpr (letter == 'S') return (strideFault<Side::all, withStride0>(a) || ...) ? vokStatusBadStride : vokStatusOk;
    if constexpr (letter == 'x') return (strideFault<Side::sources, true>(a) || ...) ? vokStatusBadStride : vokStatusOk;
    if constexpr (letter == 'y') return (strideFault<Side::destinations, true>(a) || ...) ? vokStatusBadStride : vokStatusOk;
    if constexpr (letter == 's') return countOf(a...) > 1 && (stride0Fault(a) || ...) ? vokStatusBadStride : vokStatusOk;
    if constexpr (letter == 'O') return (shiftFault<Side::all>(a) || ...) ? vokStatusBadObjShift : vokStatusOk;
    if constexpr (letter == 'o') return (shiftFault<Side::sources>(a) || ...) ? vokStatusBadObjShift : vokStatusOk;
    if constexpr (letter == 'p') return (shiftFault<Side::destinations>(a) || ...) ? vokStatusBadObjShift : vokStatusOk;
    if constexpr (letter == 'r') {
        return [](const auto&, const auto&... rest) {
            return (strideFault<Side::all, true>(rest) || ...) ? vokStatusBadStride : vokStatusOk;
        }(a...);
    }
}

/// Runs the steps of the row's order; the first fault decides.
template <const Row& row, Layout layout, class T, class... A> inline vokStatus check(const A&... a)
{
    constexpr std::string_view order = row.template order<T>(layout);
    constexpr bool withStride0 = order.find('s') == std::string_view::npos;
    return [&]<std::size_t... k>(std::index_sequence<k...>) {
        vokStatus status = vokStatusOk;
        (void)(((status = step<order[k], withStride0, row>(a...)) != vokStatusOk) || ...);
        return status;
    }(std::make_index_sequence<order.size()>());
}

/// Whether the job is large enough for the wrapper.
template <const Row& row, Layout layout, class T, class... A> inline bool large(bool rowsContiguous, const A&... a)
{
    const i32 work = workValue(row.work, a...), limit = row.template limit<T>(layout, rowsContiguous);
    return row.limits.compare == Compare::atLeast ? work >= limit : work > limit;
}

template <auto one, auto other> struct SameKernel : std::false_type {};
template <auto kernel> struct SameKernel<kernel, kernel> : std::true_type {};

/// The kernel for these arguments: `plain` for contiguous rows, `strided` for any. One name for both: one kernel serves all.
template <auto plain, auto strided, class... A> inline vokStatus serial(bool rowsContiguous, const A&... a)
{
    if constexpr (SameKernel<plain, strided>::value) {
        return strided(a...);
    } else {
        return rowsContiguous ? plain(dense(a)...) : strided(a...);
    }
}

/// An exported function with an array operand: checks, then the wrapper or one of its kernels.
template <const Row& row, Layout layout, class T, auto plain, auto strided, auto wrapper, class... A>
inline vokStatus enterArray(const A&... a)
{
    if (const vokStatus status = check<row, layout, T>(a...)) return status;
    const bool rowsContiguous = (contiguous(a) && ...);
    if (large<row, layout, T>(rowsContiguous, a...)) return wrapper(a...);
    return serial<plain, strided>(rowsContiguous, a...);
}

/// An exported function without an array operand: checks, then one of its kernels.
template <const Row& row, Layout layout, class T, auto plain, auto strided, class... A>
inline vokStatus enterSingle(const A&... a)
{
    if (const vokStatus status = check<row, layout, T>(a...)) return status;
    return serial<plain, strided>((contiguous(a) && ...), a...);
}

}  // namespace vokm
