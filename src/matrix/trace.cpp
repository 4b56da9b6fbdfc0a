// vokmTrace: dst = the sum of d[k] = src(k, k), in the element type. Sizes 3 to 6 left to right, over strided rows with the
// last element first; other sizes ascending from 0.0, where each partial sum is stored.
#include "trace.h"

#include "../frame/fixed.h"
#include "../frame/overlap.h"
#include "../frame/sums.h"

namespace vokm {

constexpr Order traceOrder(Variant variant)
{
    return variant == Variant::S2 || variant == Variant::LS2 ? Order::lastTwoFirst : Order::chain;
}

template <Variant variant, class A, class T> VOKM_INLINE vokStatus traces(A src, Packed<T> dst, i32 n, i32 count)
{
    const auto fixed = [&](auto size) VOKM_INLINE_LAMBDA -> vokStatus {
        constexpr int k = decltype(size)::value;
        constexpr Shape shape{k, k};
        const auto body = [&](auto as, i32 i) VOKM_INLINE_LAMBDA {
            using V = typename decltype(as)::type;
            const auto object = src.object(i, shape);
            V d[k];
            for (int j = 0; j < k; ++j) {
                if constexpr (isPack<V>) {
                    d[j] = loadLanes<V>(&object(j, j));
                } else {
                    d[j] = object(j, j);
                }
            }
            storeLanes(dst.base + i, sum<traceOrder(variant)>(d));
        };
        // Packs pay where the elements of neighbouring objects are neighbours; elsewhere each object has n loads in any case.
        if (count >= packLanes<T> && planar(src)) {
            const StrideView<T, Code::va> results(dst.base, sizeof(T), 0, sizeof(T));
            const auto guard =
                packGuard(count, Shaped<StrideView<T, Code::va>>{results, {1, 1}}, Shaped<A>{src, shape});
            walkGuarded<T>(count, guard, body);
        } else {
            // Several objects a turn: the sums are so short that the loop itself would take its share.
#pragma GCC unroll 4
            for (i32 i = 0; i < count; ++i) body(As<T>{}, i);
        }
        return vokStatusOk;
    };
    const auto general = [&]() VOKM_INLINE_LAMBDA -> vokStatus {
        for (i32 i = 0; i < count; ++i) {
            const auto object = src.object(i, Shape{n, n});
            T s = 0;
            for (i32 k = 0; k < n; ++k) dst.base[i] = s = s + object(k, k);
        }
        return vokStatusOk;
    };
    return onFixed(n, fixed, general);
}

}  // namespace vokm

extern "C" {
TRACE_FORMS_SINGLE(VOKM_SINGLE_KERNELS)
TRACE_FORMS_ARRAY(VOKM_ARRAY_KERNELS)
TRACE_FORMS_SINGLE(VOKM_SINGLE_EXPORTS)
TRACE_FORMS_ARRAY(VOKM_ARRAY_EXPORTS)
}
