// Long loops over elements that lie side by side, in the widest registers that the processor has. Every element is computed
// by itself, so the width cannot be seen in the results.
#pragma once

#include "types.h"

// The caller has made sure that no element is read behind a store to it by another step of the loop.
#ifdef __clang__
#define VOKM_INDEPENDENT _Pragma("clang loop vectorize(assume_safety)")
#define VOKM_OUT_OF_LINE gnu::noinline
#else
#define VOKM_INDEPENDENT _Pragma("GCC ivdep")
#define VOKM_OUT_OF_LINE gnu::noipa
#endif

namespace vokm {

// Asked anew each time, a test of one word: the library has no state.
VOKM_INLINE bool wideRegisters() { return __builtin_cpu_supports("avx2"); }
VOKM_INLINE bool widestRegisters() { return __builtin_cpu_supports("avx512f"); }

// VOKM_WIDEST_TEXT stands before what is inlined into functions of the widest registers: g++ takes comparisons and intrinsics
// apart for the target of the text that they stand in, while clang++ takes a call between texts of different targets for one
// of different ABIs.
#ifdef __clang__
#define VOKM_WIDEST "avx512f"
#define VOKM_WIDEST_TEXT
#else
#define VOKM_WIDEST "avx512f,prefer-vector-width=512"
#define VOKM_WIDEST_TEXT [[gnu::target(VOKM_WIDEST)]]
#endif

// The step comes by address and is copied here, field by field: a copy as a whole would wait for the stores of its fields.
template <class Step> [[gnu::noinline]] void alongNarrow(i64 n, const Step* given)
{
    const Step step(*given);
    VOKM_INDEPENDENT for (i64 j = 0; j < n; ++j) step(j);
}
template <class Step> [[gnu::target("avx2"), VOKM_OUT_OF_LINE]] void alongWide(i64 n, const Step* given)
{
    const Step step(*given);
    VOKM_INDEPENDENT for (i64 j = 0; j < n; ++j) step(j);
}
template <class Step> [[gnu::target(VOKM_WIDEST), VOKM_OUT_OF_LINE]] void alongWidest(i64 n, const Step* given)
{
    const Step step(*given);
    VOKM_INDEPENDENT for (i64 j = 0; j < n; ++j) step(j);
}

/// step(j) for j = 0 .. n-1, several at a time. `step` is always inlined, holds what it needs by value, and its steps are
/// independent of one another.
template <class Step> VOKM_INLINE void along(i64 n, const Step& step)
{
    if (n >= 64 && widestRegisters()) return alongWidest(n, &step);
    if (n >= 32 && wideRegisters()) return alongWide(n, &step);
    alongNarrow(n, &step);
}

}  // namespace vokm
