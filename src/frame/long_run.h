// Long runs of results: dst[j] = op(x(j), y(j)), whole registers as wide as the processor has them, aligned by the results. Each
// element is computed by itself, so neither the width nor the alignment can be seen in the results. Sources lie apart from the
// results or exactly on them.
#pragma once

#include <numeric>

#include "along.h"
#include "fixed.h"
#include "stream.h"

namespace vokm {

// The sources. `period` is the number of registers after which their elements repeat, lanes(j, k) the register of the elements
// from j on, the k-th of a turn.

/// The elements of an array, one behind the other.
template <class T> struct Run {
    static constexpr bool array = true;
    template <class V> static constexpr int period = 1;
    const T* base;
    template <class V> VOKM_INLINE Run from(i64) const { return *this; }
    template <class V> VOKM_INLINE V lanes(i64 j, int) const { return loadLanes<V>(base + j); }
    VOKM_INLINE T one(i64 j) const { return base[j]; }
    VOKM_INLINE void fetch(i64 j) const { fetchSource(base + j); }
};

/// Registers that are held over the walk.
template <class V, int count> struct HeldRegisters {
    V at[count];
    template <class> VOKM_INLINE V lanes(i64, int k) const { return at[k % count]; }
    VOKM_INLINE void fetch(i64) const {}
};

/// A constant.
template <class T> struct Everywhere {
    static constexpr bool array = false;
    template <class V> static constexpr int period = 1;
    T value;
    template <class V> VOKM_INLINE HeldRegisters<V, 1> from(i64) const { return {{splat<V>(value)}}; }
    VOKM_INLINE T one(i64) const { return value; }
};

/// The K elements of a single operand, again and again.
template <class T, int K> struct Repeated {
    static constexpr bool array = false;
    template <class V> static constexpr int period = std::lcm(K, lanesIn<V>) / lanesIn<V>;
    T element[K];
    template <class V> VOKM_INLINE auto from(i64 start) const
    {
        constexpr int elements = period<V> * lanesIn<V>;
        T twice[2 * K], line[elements];
        std::memcpy(twice, element, sizeof element);
        std::memcpy(twice + K, element, sizeof element);
        for (int j = 0; j < elements; j += K) std::memcpy(line + j, twice + start % K, sizeof element);
        HeldRegisters<V, period<V>> registers;
        for (int k = 0; k < period<V>; ++k) registers.at[k] = loadLanes<V>(line + k * lanesIn<V>);
        return registers;
    }
    VOKM_INLINE T one(i64 j) const { return element[j % K]; }
};

/// Elements up to the first multiple of `bytes`; of addresses that never meet one, none.
template <class T> VOKM_INLINE i64 upToBoundary(const T* at, int bytes)
{
    const auto beyond = static_cast<i64>(reinterpret_cast<std::uintptr_t>(at) % static_cast<unsigned>(bytes));
    return beyond == 0 || beyond % i64(sizeof(T)) != 0 ? 0 : (bytes - beyond) / i64(sizeof(T));
}

/// A turn is a multiple of all periods, and some registers long, lest the loop itself takes longer than its stores.
template <class V, class X, class Y>
constexpr int registersInTurn = std::lcm(X::template period<V>, Y::template period<V>) *
                                std::max(1, 4 / std::lcm(X::template period<V>, Y::template period<V>));

template <class V, bool past, class Op, class X, class Y, class T> VOKM_INLINE void registersAlong(Op op, X x, Y y, T* dst, i64 n)
{
    constexpr int N = lanesIn<V>, turn = registersInTurn<V, X, Y>;
    constexpr i64 alignFrom = 4096 / sizeof(T);  // a short run is done before it would gain
    i64 j = 0;
    const auto scalars = [&](i64 end) VOKM_INLINE_LAMBDA {
        for (; j < end; ++j) {
            dst[j] = op(x.one(j), y.one(j));
            asm volatile("" ::: "memory");  // a few: not worth the compiler's own vectorised loop
        }
    };
    if (past || n >= alignFrom) scalars(upToBoundary(dst, sizeof(V)));
    const auto xs = x.template from<V>(j);
    const auto ys = y.template from<V>(j);
    const auto result = [&](i64 at, int k) VOKM_INLINE_LAMBDA {
        const V r = op(xs.template lanes<V>(at, k), ys.template lanes<V>(at, k));
        if constexpr (past) {
            if (k * sizeof(V) % 64 == 0) {  // once a line
                xs.fetch(at);
                ys.fetch(at);
            }
        }
        storeRegister<V, past>(dst + at, r);
    };
    for (; j + turn * N <= n; j += turn * N) {
        unrolled<turn>([&](auto k) VOKM_INLINE_LAMBDA { result(j + decltype(k)::value * N, decltype(k)::value); });
    }
    unrolled<turn - 1>([&](auto k) VOKM_INLINE_LAMBDA {
        if (j + N > n) return;
        result(j, decltype(k)::value);
        j += N;
    });
    if constexpr (past) finishStoresPastCache();
    scalars(n);
}

template <bool past, class Op, class X, class Y, class T>
[[gnu::target("avx2"), VOKM_OUT_OF_LINE]] void longRunWide(Op op, X x, Y y, T* dst, i64 n)
{
    registersAlong<typename LanesOf<T, 32 / sizeof(T)>::type, past>(op, x, y, dst, n);
}
template <bool past, class Op, class X, class Y, class T>
[[gnu::target(VOKM_WIDEST), VOKM_OUT_OF_LINE]] void longRunWidest(Op op, X x, Y y, T* dst, i64 n)
{
    registersAlong<typename LanesOf<T, 64 / sizeof(T)>::type, past>(op, x, y, dst, n);
}
template <class Op, class X, class Y, class T> [[gnu::noinline]] void longRunNarrow(Op op, X x, Y y, T* dst, i64 n)
{
    registersAlong<Pack<T>, false>(op, x, y, dst, n);
}

/// dst[j] = op(x(j), y(j)) for j = 0 .. n-1. Past the cache only what is not written where it was read.
template <class Op, class X, class Y, class T> inline void longRun(Op op, X x, Y y, T* dst, i64 n)
{
    const auto onIt = [&](const auto& source) VOKM_INLINE_LAMBDA {
        if constexpr (requires { source.base; }) return source.base == dst;
        return false;
    };
    const bool past = reinterpret_cast<std::uintptr_t>(dst) % sizeof(T) == 0 && !onIt(x) && !onIt(y) &&
                      worthPastCache(n * i64(sizeof(T)) * (1 + X::array + Y::array));
    const auto run = [&](auto store) VOKM_INLINE_LAMBDA {
        constexpr bool pastCache = decltype(store)::value;
        constexpr int turn = registersInTurn<Pack<T>, X, Y>;
        const i64 registers = n / packLanes<T>;
        if (registers >= 16 + 4 * turn && widestRegisters()) return longRunWidest<pastCache>(op, x, y, dst, n);
        if (registers >= 8 + 2 * turn && wideRegisters()) return longRunWide<pastCache>(op, x, y, dst, n);
        longRunNarrow(op, x, y, dst, n);
    };
    past ? run(std::true_type{}) : run(std::false_type{});
}

}  // namespace vokm
