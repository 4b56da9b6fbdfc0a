// Stores past the cache, for results that would only drive other data out of it.
#pragma once

#include <bit>

#include <emmintrin.h>

#include "types.h"

namespace vokm {

inline void storePastCache(float* to, float value) { _mm_stream_si32(reinterpret_cast<int*>(to), std::bit_cast<i32>(value)); }
/// Makes such stores visible in order before what follows.
inline void finishStoresPastCache() { _mm_sfence(); }

}  // namespace vokm
