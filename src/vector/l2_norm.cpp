// vokmL2Norm: the root of the sum of p[j] = src[j]*src[j], summed in the element type, without scaling against overflow.
#include "l2_norm.h"

#include "reduction.h"

namespace vokm {

constexpr Orders36 normStrided = alike(Order::lastFirst), normDense64 = alike(Order::evenOdd);

constexpr SumRow normV{{{Order::chain, Order::pairwise, Order::pairwise, Order::pairwise}}, normDense64, normStrided, normStrided};
// Deliberate: in the leading whole blocks of four objects a vector of 5 sums in another order than behind them.
constexpr SumRow normVa{{{Order::chain, Order::chain, Order::pairwise, Order::evenOdd}}, normDense64, normStrided, normStrided,
                        5, Order::evenOddTail};
constexpr SumRow normVa64{normVa.dense32, normDense64, normStrided, normStrided};

template <const SumRow& row, Variant variant, class A, class T>
VOKM_INLINE vokStatus normsOf(const A& src, const Packed<T>& dst, i32 n, i32 count, i32 block)
{
    constexpr bool dense = variant == Variant::plain || variant == Variant::L;
    const auto finish = [](auto s) VOKM_INLINE_LAMBDA {
        if constexpr (dense) {
            return root(s);
        } else {
            return rootInDouble(s);
        }
    };
    return reduce<row, variant, T>(Squares<A>{src}, dst, n, count, block, finish, [](T s) { return rootInDouble(s); },
                                   [](const auto& terms, i32 i, i32 length) {
                                       if constexpr (!A::array && variant == Variant::plain) {
                                           return longSum<T>(terms, length);
                                       } else {
                                           return risingSum<T>(terms, i, length);
                                       }
                                   });
}

/// The sums alone, at the lengths with an order of their own.
template <Variant variant, class A, class T> VOKM_INLINE void sumsOf(const A& src, const Packed<T>& dst, i32 n, i32 count)
{
    const auto same = [](auto s) VOKM_INLINE_LAMBDA { return s; };
    reduce<normVa64, variant, T>(Squares<A>{src}, dst, n, count, 0, same, same, [](const auto& terms, i32 i, i32 length) {
        return risingSum<T>(terms, i, length);
    });
}

template <Variant variant, class A, class T> VOKM_INLINE vokStatus norm(const A& src, const Packed<T>& dst, const Sizes<1>& sizes)
{
    return normsOf<normV, variant>(src, dst, sizes[0], 1, 0);
}

template <Variant variant, class A, class T>
VOKM_INLINE vokStatus norms(const A& src, const Packed<T>& dst, const Sizes<1>& sizes, Count count)
{
    if constexpr (sizeof(T) == 4 && (variant == Variant::plain || variant == Variant::L)) {
        return normsOf<normVa, variant>(src, dst, sizes[0], count.n, count.n & ~3);
    } else {
        if constexpr (variant == Variant::plain) {
            constexpr Order ofThree = normVa64.order<double>(variant, 3);
            if (sizes[0] == 3 && threesWide<ofThree, true>(src, src, dst.base, count.n)) return vokStatusOk;
            // Roots wait for one another in narrow registers, so they are taken behind the sums, a block in the cache at a time.
            if (wideRegisters() && sizes[0] >= 3 && sizes[0] <= 6 && count.n >= 64 && apartFrom(src, sizes[0], count.n, dst.base)) {
                for (i32 start = 0; start < count.n; start += 512) {
                    const i32 n = std::min(512, count.n - start);
                    sumsOf<variant>(src.from(start), dst.from(start), sizes[0], n);
                    along(n, [d = dst.base + start](i64 i) VOKM_INLINE_LAMBDA { d[i] = root(d[i]); });
                }
                return vokStatusOk;
            }
        }
        return normsOf<normVa64, variant>(src, dst, sizes[0], count.n, 0);
    }
}

}  // namespace vokm

extern "C" {
NORM_FORMS_SINGLE(VOKM_SINGLE_KERNELS)
NORM_FORMS_ARRAY(VOKM_ARRAY_KERNELS)
NORM_FORMS_SINGLE(VOKM_SINGLE_EXPORTS)
NORM_FORMS_ARRAY(VOKM_ARRAY_EXPORTS)
}
