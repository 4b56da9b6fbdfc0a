// The stand-in for the core library: how many threads to use, and how large the caches are.
#include "vokcore.h"

#include <algorithm>
#include <climits>
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

EXPORTED int32_t vokGetMaxCacheSizeB(int32_t* bytes)
{
    long largest = 0;
    for (int level : {_SC_LEVEL1_DCACHE_SIZE, _SC_LEVEL2_CACHE_SIZE, _SC_LEVEL3_CACHE_SIZE, _SC_LEVEL4_CACHE_SIZE})
        largest = std::max(largest, sysconf(level));
    *bytes = static_cast<int32_t>(std::min<long>(largest, INT32_MAX));
    return 0;
}
