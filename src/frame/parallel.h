// The parallel wrappers: shares of the objects among an OpenMP team, scratch, and the merging of statuses.
#pragma once

#include <omp.h>

#include "row.h"

extern "C" std::int32_t ownGetNumThreads(void);  // the core library: how many threads to use

namespace vokm {

/// What the threads of a team share for one call.
struct Team {
    i32 threads = 0, share = 0, rest = 0;
    vokStatus status = vokStatusOk;

    void divide(i32 count)
    {
        threads = omp_get_num_threads();
        share = count / threads;
        rest = count % threads;
    }
    // The first `rest` threads take one object more; shares are contiguous and in thread order.
    i32 objects(i32 thread) const { return thread < rest ? share + 1 : share; }
    i32 start(i32 thread) const { return thread < rest ? thread * (share + 1) : rest * (share + 1) + (thread - rest) * share; }
};

/// One parallel region: each thread calls the kernel once for its share. The first failure to arrive stays.
template <auto kernel, bool merges, class... A> vokStatus region(const A&... a)
{
    Team team;
    const i32 count = countOf(a...);
    const auto work = [&](i32 thread) {
        return kernel(moved(a, team.start(thread), team.objects(thread), thread)...);
    };
#pragma omp parallel num_threads(ownGetNumThreads())
    {
#pragma omp master
        team.divide(count);
#pragma omp barrier
        const vokStatus status = work(omp_get_thread_num());
        if constexpr (merges) {
#pragma omp critical
            if (team.status == vokStatusOk) team.status = status;
        } else {
            (void)status;
        }
    }
    return team.status;
}

/// The argument for a team: scratch becomes the wrapper's own block.
template <class A> A forTeam(const A& a, [[maybe_unused]] void* block, [[maybe_unused]] i64 slab)
{
    if constexpr (requires { a.slab; }) {
        return A{static_cast<decltype(a.base)>(block), slab};
    } else {
        return a;
    }
}

template <const Row& row, class T, auto plain, auto strided, class... A> vokStatus inRegion(const A&... a)
{
    if constexpr (!SameKernel<plain, strided>::value) {
        if ((contiguous(a) && ...)) return region<plain, row.merges>(dense(a)...);
    }
    return region<strided, row.merges>(a...);
}

// g++ with the undefined-behaviour sanitizer takes no comparison of a function's address for a constant.
template <Work work> constexpr bool given = true;
template <> inline constexpr bool given<nullptr> = false;

/// A wrapper. With one kernel for any stride, `plain` and `strided` are the same function, and there is one region.
template <const Row& row, class T, auto plain, auto strided, class... A> vokStatus parallel(const A&... a)
{
    const i32 wanted = ownGetNumThreads();
    if (wanted <= 1 || countOf(a...) < wanted) return serial<plain, strided>((contiguous(a) && ...), a...);
    if constexpr (given<row.scratch>) {
        constexpr int k = (SizesIn<A>::k + ... + 0);
        const i32 slab = withSizes(
            [&](const i32* sizes) {
                Wrap wrapped[k + 1];
                for (int j = 0; j < k; ++j) wrapped[j] = sizes[j];
                return row.scratch(wrapped, static_cast<i32>(sizeof(T))).value();
            },
            a...);
        // Sized in 32 bits, then widened; the result of the allocator is not tested.
        void* const block = omp_alloc(static_cast<std::size_t>((Wrap(wanted) * slab).value()), omp_default_mem_alloc);
        const vokStatus status = inRegion<row, T, plain, strided>(forTeam(a, block, slab)...);
        omp_free(block, omp_default_mem_alloc);
        return status;
    } else {
        return inRegion<row, T, plain, strided>(a...);
    }
}

}  // namespace vokm
