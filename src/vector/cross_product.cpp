// vokmCrossProduct: dst = src1 x src2, two products and a difference per element, in the element type.
#include "cross_product.h"

#include "../frame/fixed.h"
#include "../frame/overlap.h"

namespace vokm {

template <class V> inline void cross(const V (&a)[1][3], const V (&b)[1][3], V (&d)[1][3])
{
    d[0][0] = a[0][1] * b[0][2] - a[0][2] * b[0][1];
    d[0][1] = a[0][2] * b[0][0] - a[0][0] * b[0][2];
    d[0][2] = a[0][0] * b[0][1] - a[0][1] * b[0][0];
}

template <class T, class A, class B, class D> vokStatus crossProducts(const A& src1, const B& src2, const D& dst, i32 count)
{
    constexpr Shape three{1, 3};
    const bool packs = count >= packLanes<T>;
    const HeldIfSingle<T, 1, 3, A> held1(src1, packs);
    const HeldIfSingle<T, 1, 3, B> held2(src2, packs);
    const auto work = [&](auto as, i32 i) {
        typename decltype(as)::type a[1][3], b[1][3], d[1][3];
        loadOrHeld(a, src1, held1, i);
        loadOrHeld(b, src2, held2, i);
        cross(a, b, d);
        store(d, dst, i);
    };
    if constexpr (D::array) {
        walkGuarded<T>(count, packGuard(count, Shaped<D>{dst, three}, Shaped<A>{src1, three}, Shaped<B>{src2, three}), work);
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
