// vokmDotProduct: dst = the sum of p[j] = src1[j]*src2[j], all in the element type.
#include "dot_product.h"

#include "reduction.h"

namespace vokm {

constexpr Orders36 dotDense64{{Order::chain, Order::evenOdd, Order::evenOddTail, Order::evenOddInner}};
constexpr Orders36 dotStrided{{Order::chain, Order::lastFirst, Order::lastFirst, Order::lastTwoFirst}};

constexpr SumRow dotVv{alike(Order::chain), dotDense64, dotStrided, alike(Order::chain)};
constexpr SumRow dotVav{{{Order::chain, Order::pairwise, Order::chain, Order::chain}}, dotDense64, dotStrided,
                        alike(Order::chain)};
// Deliberate: in this kernel the first objects of an array can differ in the last bit from the last ones.
constexpr SumRow dotVava32Plain{alike(Order::chain), dotDense64, dotStrided, alike(Order::chain), 3, Order::evenOdd};

template <Variant variant, class A, class B, class T>
VOKM_INLINE vokStatus dotProduct(const A& src1, const B& src2, const Packed<T>& dst, const Sizes<1>& sizes, Count)
{
    const auto same = [](auto s) VOKM_INLINE_LAMBDA { return s; };
    return reduce<dotVv, variant, T>(Products<A, B>{src1, src2}, dst, sizes[0], 1, 0, same, same,
                                     [](const auto& terms, i32 i, i32 n) {
                                         return variant == Variant::plain ? longSum<T>(terms, n) : risingSum<T>(terms, i, n);
                                     });
}

/// The leading objects that a kernel takes four at a time when all of these addresses and distances are multiples of 16.
template <class A, class B, class T> i32 alignedBlock(const A& src1, const B& src2, const T* dst, i32 count)
{
    const auto bits = reinterpret_cast<std::uintptr_t>(src1.base) | reinterpret_cast<std::uintptr_t>(src2.base) |
                      reinterpret_cast<std::uintptr_t>(dst) | std::uintptr_t(src1.stride0) | std::uintptr_t(src2.stride0);
    return count >= 5 && bits % 16 == 0 ? count & ~3 : 0;
}

template <Variant variant, class A, class B, class T>
VOKM_INLINE vokStatus dotProducts(const A& src1, const B& src2, const Packed<T>& dst, const Sizes<1>& sizes, Count count)
{
    const auto same = [](auto s) VOKM_INLINE_LAMBDA { return s; };
    const auto run = [&]<const SumRow& row>(i32 block) VOKM_INLINE_LAMBDA {
        return reduce<row, variant, T>(Products<A, B>{src1, src2}, dst, sizes[0], count.n, block, same, same,
                                       [](const auto& terms, i32 i, i32 n) { return risingSum<T>(terms, i, n); });
    };
    if constexpr (!B::array) {
        return run.template operator()<dotVav>(0);
    } else if constexpr (variant == Variant::plain && sizeof(T) == 4) {
        return run.template operator()<dotVava32Plain>(alignedBlock(src1, src2, dst.base, count.n));
    } else {
        return run.template operator()<dotVv>(0);
    }
}

}  // namespace vokm

extern "C" {
DOT_FORMS_SINGLE(VOKM_SINGLE_KERNELS)
DOT_FORMS_ARRAY(VOKM_ARRAY_KERNELS)
DOT_FORMS_SINGLE(VOKM_SINGLE_EXPORTS)
DOT_FORMS_ARRAY(VOKM_ARRAY_EXPORTS)
}
