// Stores past the cache, for results that would only drive other data out of it: the line of a result need not be read from
// memory before it is overwritten.
#pragma once

#include <bit>

#include <emmintrin.h>

#include "pack.h"

namespace vokm {

inline void storePastCache(float* to, float value) { _mm_stream_si32(reinterpret_cast<int*>(to), std::bit_cast<i32>(value)); }
/// One register, to a multiple of its size. As text, since the intrinsics for wide ones ask for the target of their caller
/// before they are inlined into it.
template <class V> VOKM_INLINE void storePastCache(Element<V>* to, V v)
{
#ifdef __clang__
    __builtin_nontemporal_store(v, reinterpret_cast<V*>(to));
#else
    if constexpr (sizeof v == 16) {
        asm("movntps %1, %0" : "=m"(*reinterpret_cast<V*>(to)) : "x"(v));
    } else {
        asm("vmovntps %1, %0" : "=m"(*reinterpret_cast<V*>(to)) : "v"(v));
    }
#endif
}
/// Makes such stores visible in order before what follows.
inline void finishStoresPastCache() { _mm_sfence(); }

/// Whether a job of so many bytes in all is stored past the cache. A figure that suits most processors: what they have is asked
/// for by transposes alone.
constexpr bool worthPastCache(i64 bytes) { return bytes > 24 << 20; }

/// How far a loop that stores past the cache asks for its sources ahead: what the processor guesses is not far enough there.
constexpr int fetchAhead = 2048;
template <class T> VOKM_INLINE void fetchSource(const T* at)
{
    __builtin_prefetch(reinterpret_cast<const void*>(reinterpret_cast<std::uintptr_t>(at) + fetchAhead));
}

}  // namespace vokm
