// Transposes of n x n objects that follow one another without a gap, as many as fill whole registers of 64 bytes: every register
// of the results takes its elements from a few registers of the objects.
#pragma once

#include <numeric>

#include "../frame/fixed.h"
#include "../frame/wide_pack.h"

namespace vokm {

/// Objects and registers of a turn.
template <class T, int n> constexpr int transposedAtOnce = std::lcm(n * n, wideLanes<T>) / (n * n);
template <class T, int n> constexpr int transposedRegisters = std::lcm(n * n, wideLanes<T>) / wideLanes<T>;

/// Register r of the results, which has N lanes, out of the K registers of the objects.
template <int n, int r, int N, int K> struct TransposedRegister {
    /// The element of the turn that goes to lane l.
    static constexpr int from(int l)
    {
        const int element = r * N + l, object = element / (n * n), within = element % (n * n);
        return object * (n * n) + within % n * n + within / n;
    }
    struct Sources {
        int count = 0, at[K]{};
    };
    static constexpr Sources sources = [] {
        Sources found;
        for (int source = 0; source < K; ++source) {
            bool taken = false;
            for (int l = 0; l < N; ++l) taken |= from(l) / N == source;
            if (taken) found.at[found.count++] = source;
        }
        return found;
    }();
    /// The first step takes the lanes of two sources, each other step those of one more.
    template <int step> struct Join {
        static constexpr int of(int l)
        {
            const int source = from(l) / N, lane = from(l) % N;
            if (source == sources.at[step]) return N + lane;
            return step <= 1 && source == sources.at[0] ? lane : l;
        }
    };
    template <class V> VOKM_INLINE static V of(const V (&objects)[K])
    {
        constexpr auto lanes = std::make_integer_sequence<int, N>{};
        V joined = objects[sources.at[0]];
        if constexpr (sources.count == 1) joinLanes<Join<0>>(joined, joined, lanes);
        unrolled<sources.count - 1>([&](auto step) VOKM_INLINE_LAMBDA {
            joinLanes<Join<decltype(step)::value + 1>>(joined, objects[sources.at[decltype(step)::value + 1]], lanes);
        });
        return joined;
    }
};

template <class T, int n> struct WideTransposes {
    const T* src;
    T* dst;
    template <bool> VOKM_INLINE void objects(i64 i) const
    {
        constexpr int N = wideLanes<T>, K = transposedRegisters<T, n>;
        const T* from = src + i * (n * n);
        T* to = dst + i * (n * n);
        WidePack<T> registers[K];
        for (int k = 0; k < K; ++k) registers[k] = loadLanes<WidePack<T>>(from + k * N);
        unrolled<K>([&](auto r) VOKM_INLINE_LAMBDA {
            constexpr int at = decltype(r)::value;
            storeLanes<WidePack<T>>(to + at * N, TransposedRegister<n, at, N, K>::of(registers));
        });
    }
};

}  // namespace vokm
