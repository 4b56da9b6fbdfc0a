// Arrays with a plane of memory for each element, in the widest registers that the processor has. A block of objects is
// computed into the kernel's own memory, and goes to its planes only if none of its objects fails: a block with one that does
// is left to the caller's way through packs and single objects, and the caller's memory as that way has to find it.
#pragma once

#include "along.h"
#include "overlap.h"

namespace vokm {

template <class Body> [[gnu::target("avx2"), VOKM_OUT_OF_LINE]] i32 inWideRegisters(Body body) { return body(); }
template <class Body> [[gnu::target(VOKM_WIDEST), VOKM_OUT_OF_LINE]] i32 inWidestRegisters(Body body) { return body(); }

/// The planes of K elements of an array's objects. at(k) names the element of object 0.
template <class T, int K> struct PlaneBases {
    T* of[K];
    template <class At> VOKM_INLINE explicit PlaneBases(At at)
    {
        for (int k = 0; k < K; ++k) of[k] = &at(k);
    }
};

/// Computes the objects from 0 on for as long as there is a register full of them and none fails; returns how many are done.
/// fails(get, put) works on one object: it reads element k as get(k), writes it as put(k, x), and says whether the object fails.
/// It does so without a branch, so that many objects go through it side by side.
template <class T, int K, class Fails>
VOKM_INLINE i32 overPlanes(const PlaneBases<const T, K>& src, const PlaneBases<T, K>& dst, i32 count, Fails fails)
{
    const auto blocks = [=]() VOKM_INLINE_LAMBDA {
        using Flag = std::conditional_t<sizeof(T) == 4, std::int32_t, std::int64_t>;
        constexpr i32 lanes = 64 / sizeof(T), block = 1024 / sizeof(T);
        alignas(64) T results[K][block];
        alignas(64) Flag failed[block];
        i32 done = 0;
        while (count - done >= lanes) {
            const i32 length = std::min(block, (count - done) / lanes * lanes);
            VOKM_INDEPENDENT for (i32 j = 0; j < length; ++j)
            {
                failed[j] = fails([&](int k) VOKM_INLINE_LAMBDA { return src.of[k][done + j]; },
                                  [&](int k, T x) VOKM_INLINE_LAMBDA { results[k][j] = x; });
            }
            Flag any = 0;
            for (i32 j = 0; j < length; ++j) any |= failed[j];
            if (any) break;
            for (int k = 0; k < K; ++k) {
                T* const to = dst.of[k] + done;
                VOKM_INDEPENDENT for (i32 j = 0; j < length; ++j) to[j] = results[k][j];
            }
            done += length;
        }
        return done;
    };
    if (widestRegisters()) return inWidestRegisters(blocks);
    if (wideRegisters()) return inWideRegisters(blocks);
    return 0;
}

/// Whether blocks of planes may be taken: the results lie apart from one another, and from the sources or exactly on them.
template <class S, class D, class T, int K>
VOKM_INLINE bool planesFree(i32 count, const Shaped<D>& dst, const Shaped<S>& src, const PlaneBases<const T, K>& from, const PlaneBases<T, K>& to)
{
    bool same = true;
    for (int k = 0; k < K; ++k) same = same && from.of[k] == to.of[k];
    return planesApart(dst, count) && (same || wholesApart(count, dst, src));
}

}  // namespace vokm
