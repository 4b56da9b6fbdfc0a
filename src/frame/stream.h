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
/// One register, past the cache or not.
template <class V, bool past> VOKM_INLINE void storeRegister(Element<V>* to, V v)
{
    if constexpr (past) {
        storePastCache<V>(to, v);
    } else {
        storeLanes<V>(to, v);
    }
}
/// Makes such stores visible in order before what follows.
inline void finishStoresPastCache() { _mm_sfence(); }

/// Whether a job of so many bytes in all is stored past the cache. A figure that suits most processors: what they have is asked
/// for by transposes alone.
constexpr bool worthPastCache(i64 bytes) { return bytes > 24 << 20; }

/// Asks for a source `ahead` bytes before it is read. A loop that stores past the cache needs it a little beyond what the
/// processor guesses.
template <int ahead = 2048, class T> VOKM_INLINE void fetchSource(const T* at)
{
    __builtin_prefetch(reinterpret_cast<const void*>(reinterpret_cast<std::uintptr_t>(at) + ahead));
}

}  // namespace vokm
