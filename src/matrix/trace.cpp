// vokmTrace: dst = the sum of d[k] = src(k, k), in the element type. Sizes 3 to 6 left to right, over strided rows with the
// last element first; other sizes ascending from 0.0, where each partial sum is stored.
#include "trace.h"

#include "../frame/fixed.h"
#include "../frame/overlap.h"
#include "../frame/sums.h"
#include "../frame/wide_pack.h"

namespace vokm {

constexpr Order traceOrder(Variant variant)
{
    return variant == Variant::S2 || variant == Variant::LS2 ? Order::lastTwoFirst : Order::chain;
}

/// 3x3 floats that follow one another: nine registers are 16 objects, and the diagonals are picked out of them. A load for each
/// element would take longer than the sums.
template <class T> struct WideTraces {
    const T* src;
    T* dst;
    template <bool past> VOKM_WIDEST_TEXT VOKM_INLINE void objects(i64 i) const
    {
        using V = WidePack<T>;
        V run[9];
#pragma GCC unroll 9
        for (int k = 0; k < 9; ++k) {
            const T* at = src + i * 9 + k * wideLanes<T>;
            if (past) fetchSource(at);
            run[k] = loadLanes<V>(at);
        }
        V d[3] = {run[0], run[0], run[0]};
        joinSources<PickElement, 9, 0, 1>(d[0], run);
        joinSources<PickElement, 9, 4, 1>(d[1], run);
        joinSources<PickElement, 9, 8, 1>(d[2], run);
        const V s = sum<Order::chain>(d);
        storeRegister<V, past>(dst + i, s);
    }
};

/// All objects, if they lie so and apart from the results; returns whether.
template <class A, class D> VOKM_INLINE bool tracesWide(const A& src, const Shaped<D>& results, i32 count)
{
    using T = typename D::element;
    if constexpr (sizeof(T) == 4 && mayBeTight<A>) {
        if (count >= wideLanes<T> && widestRegisters() && isTight<3, 3>(src) && wholesApart(count, results, Shaped<A>{src, {3, 3}})) {
            WideTraces<T> work{src.base, results.view.base};
            overObjectsWide<1>(count, work.dst, i64(count) * 40, work);
            return true;
        }
    }
    return false;
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
        using Results = StrideView<T, Code::va>;
        const Shaped<Results> results{Results(dst.base, sizeof(T), 0, sizeof(T)), {1, 1}};
        if (k == 3 && tracesWide(src, results, count)) return vokStatusOk;
        // Packs pay where the elements of neighbouring objects are neighbours; elsewhere each object has n loads in any case.
        if (count >= packLanes<T> && planar(src)) {
            const auto guard = packGuard(count, results, Shaped<A>{src, shape});
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
