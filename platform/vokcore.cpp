// The stand-in for the core library: how many threads to use, and how large the caches are.
#include "vokcore.h"

#include <algorithm>
#include <climits>
#include <cpuid.h>
#include <omp.h>
#include <unistd.h>

#define EXPORTED __attribute__((visibility("default")))

EXPORTED int32_t ownGetNumThreads()
{
    // omp_get_max_threads() speaks of the next region in general. A region that would nest deeper than allowed gets
    // one thread all the same, and so does one for which the thread limit leaves no other.
    if (omp_get_active_level() >= omp_get_max_active_levels()) return 1;
    return std::max(1, std::min(omp_get_max_threads(), omp_get_thread_limit()));
}

// As the processor describes the caches of one core: of a package that has its last cache in pieces, sysconf() tells the sum.
static long largestCache()
{
    long largest = 0;
    for (unsigned leaf : {4u, 0x8000001du}) {
        unsigned a, b, c, d;
        for (unsigned level = 0; level < 8 && __get_cpuid_count(leaf, level, &a, &b, &c, &d) && a % 32 != 0; ++level) {
            const long ways = (b >> 22) + 1, partitions = (b >> 12 & 0x3ff) + 1, line = (b & 0xfff) + 1;
            largest = std::max(largest, ways * partitions * line * (long(c) + 1));
        }
    }
    for (int level : {_SC_LEVEL3_CACHE_SIZE, _SC_LEVEL2_CACHE_SIZE, _SC_LEVEL1_DCACHE_SIZE})
        if (largest <= 0) largest = sysconf(level);
    return std::clamp<long>(largest, 0, INT32_MAX);
}

EXPORTED int32_t vokGetMaxCacheSizeB(int32_t* bytes)
{
    static const long largest = largestCache();
    *bytes = static_cast<int32_t>(largest);
    return 0;
}
