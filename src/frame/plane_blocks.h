// Arrays with a plane of memory for each element, in the widest registers that the processor has. Blocks of objects go in two
// steps: the first finds out whether an object of the block fails, and what it computes on the way stays in the kernel's own
// memory; the second writes the results. A block with an object that fails is left, untouched, to the caller's way through
// packs and single objects.
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
    VOKM_INLINE PlaneBases(const PlaneBases& other) { copyPlaces(of, other.of); }
};

/// Computes the objects from 0 on for as long as there is a register full of them and none fails; returns how many are done.
/// For one object, fails(get, keep) reads element k as get(k), keeps what it wants as keep(m, x), m < M, and says whether the
/// object fails; finish(get, kept, put) finds that as kept(m) and writes element k as put(k, x). Both are without a branch, so
/// that many objects go through them side by side.
template <int M, class T, int K, class Fails, class Finish>
VOKM_INLINE i32 overPlanes(const PlaneBases<const T, K>& src, const PlaneBases<T, K>& dst, i32 count, Fails fails, Finish finish)
{
    const auto blocks = [=]() VOKM_INLINE_LAMBDA {
        using Flag = std::conditional_t<sizeof(T) == 4, std::int32_t, std::int64_t>;
        constexpr i32 lanes = 64 / sizeof(T), block = 1024 / sizeof(T);
        alignas(64) T memory[M][block];
        alignas(64) Flag failed[block];
        i32 done = 0;
        while (count - done >= lanes) {
            const i32 length = std::min(block, (count - done) / lanes * lanes);
            VOKM_INDEPENDENT for (i32 j = 0; j < length; ++j)
            {
                failed[j] = fails([&](int k) VOKM_INLINE_LAMBDA { return src.of[k][done + j]; },
                                  [&](int m, T x) VOKM_INLINE_LAMBDA { memory[m][j] = x; });
            }
            Flag any = 0;
            for (i32 j = 0; j < length; ++j) any |= failed[j];
            if (any) break;
            VOKM_INDEPENDENT for (i32 j = 0; j < length; ++j)
            {
                finish([&](int k) VOKM_INLINE_LAMBDA { return src.of[k][done + j]; },
                       [&](int m) VOKM_INLINE_LAMBDA { return memory[m][j]; },
                       [&](int k, T x) VOKM_INLINE_LAMBDA { dst.of[k][done + j] = x; });
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
VOKM_INLINE bool planesFree(i32 count, const Shaped<D>& dst, const Shaped<S>& src, const PlaneBases<const T, K>& from,
                            const PlaneBases<T, K>& to)
{
    bool same = true;
    for (int k = 0; k < K; ++k) same = same && from.of[k] == to.of[k];
    return planesApart(dst, count) && (same || wholesApart(count, dst, src));
}

}  // namespace vokm
