// vokmCrossProduct: dst = src1 x src2, two products and a difference per element, in the element type.
#include "cross_product.h"

#include "../frame/along.h"
#include "../frame/fixed.h"
#include "../frame/overlap.h"
#include "../frame/wide_pack.h"

namespace vokm {

template <class V> VOKM_INLINE void cross(const V (&a)[1][3], const V (&b)[1][3], V (&d)[1][3])
{
    d[0][0] = a[0][1] * b[0][2] - a[0][2] * b[0][1];
    d[0][1] = a[0][2] * b[0][0] - a[0][0] * b[0][2];
    d[0][2] = a[0][0] * b[0][1] - a[0][1] * b[0][0];
}

/// Dense arrays without gaps, in the widest packs.
template <class T, class A, class B> struct WideCrosses {
    WideRuns<3, A> x;
    WideRuns<3, B> y;
    T* to;
    template <bool past> VOKM_INLINE void objects(i64 i) const
    {
        WidePack<T> a[1][3]{}, b[1][3]{}, d[1][3];
        x.template load<past>(a[0], i);
        y.template load<past>(b[0], i);
        cross(a, b, d);
        storeWide<3, past>(d[0], to + i * 3);
    }
};

template <class T, class A, class B, class D> VOKM_INLINE vokStatus crossProducts(A src1, B src2, D dst, i32 count)
{
    constexpr Shape three{1, 3};
    if constexpr (mayBePlanar<D>) {
        if (count >= 32 && planar(dst) && (!A::array || planar(src1)) && (!B::array || planar(src2))) {
            const PlaneLanes<3, A> x(src1);
            const PlaneLanes<3, B> y(src2);
            const PlaneLanes<3, D> to(dst);
            if (lanesApart(x, to, count) && lanesApart(y, to, count)) {
                along(count, [x, y, to](i64 i) VOKM_INLINE_LAMBDA {
                    const T a[1][3] = {{x(0, i), x(1, i), x(2, i)}}, b[1][3] = {{y(0, i), y(1, i), y(2, i)}};
                    T d[1][3];
                    cross(a, b, d);
                    for (int k = 0; k < 3; ++k) to(k, i) = d[0][k];
                });
                return vokStatusOk;
            }
        }
    }
    if constexpr (D::array && D::dense && requires { dst.stride0; }) {
        if (widestRegisters() && count >= wideLanes<T> && packedObjects<3>(dst) && (!A::array || packedObjects<3>(src1)) &&
            (!B::array || packedObjects<3>(src2)) && wholesApart(count, Shaped<D>{dst, three}, Shaped<A>{src1, three}) &&
            wholesApart(count, Shaped<D>{dst, three}, Shaped<B>{src2, three})) {
            WideCrosses<T, A, B> work{WideRuns<3, A>(src1), WideRuns<3, B>(src2), dst.base};
            overObjectsWide<3>(count, dst.base, i64(count) * (3 * i64(sizeof(T)) * (1 + A::array + B::array)), work);
            return vokStatusOk;
        }
    }
    const bool packs = count >= packLanes<T>;
    const HeldIfSingle<T, 1, 3, A> held1(src1, packs);
    const HeldIfSingle<T, 1, 3, B> held2(src2, packs);
    const auto a1 = pinned<1, 3>(src1);
    const auto a2 = pinned<1, 3>(src2);
    const auto to = pinned<1, 3>(dst);
    const auto work = [&](auto as, i32 i) VOKM_INLINE_LAMBDA {
        typename decltype(as)::type a[1][3], b[1][3], d[1][3];
        loadOrHeld(a, a1, held1, i);
        loadOrHeld(b, a2, held2, i);
        cross(a, b, d);
        store(d, to, i);
    };
    if constexpr (D::array) {
        const auto guard = lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA {
            return packGuard(count, Shaped<D>{dst, three}, Shaped<A>{src1, three}, Shaped<B>{src2, three});
        });
        walkGuarded<T>(count, guard, work);
    } else {
        work(As<T>{}, 0);
    }
    return vokStatusOk;
}

}  // namespace vokm

extern "C" {
CROSS_FORMS_SINGLE(VOKM_SINGLE_KERNELS)
CROSS_FORMS_ARRAY(VOKM_ARRAY_KERNELS)
CROSS_FORM_VVA(VOKM_ARRAY_KERNELS)
CROSS_FORMS_SINGLE(VOKM_SINGLE_EXPORTS)
CROSS_FORMS_ARRAY(VOKM_ARRAY_EXPORTS)
CROSS_FORM_VVA(VOKM_ARRAY_EXPORTS_BUT_64f_P)
}
