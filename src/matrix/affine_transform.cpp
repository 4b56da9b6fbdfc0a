// vokmAffineTransform3DH: each point (x, y, z, 1) times a 4x4 matrix, divided by the fourth coordinate.
//
//   contiguous   t(r) = (a(r,0)*x + a(r,1)*y) + (a(r,2)*z + a(r,3))
//   any stride   t(r) = ((a(r,0)*x + a(r,3)) + a(r,1)*y) + a(r,2)*z
//   dst[j]       t(j) * inv, inv = 1/t(3): one division, three products
#include "affine_transform.h"

#include <cfloat>

#include "../frame/fixed.h"
#include "../frame/overlap.h"
#include "../frame/wide_pack.h"

namespace vokm {

template <Variant variant, class V, class H> VOKM_INLINE V coordinate(const H& a, int r, const V (&p)[1][3])
{
    const auto at = [&](int c) VOKM_INLINE_LAMBDA { return a.template at<V>(r, c); };
    if constexpr (variant == Variant::plain) return (at(0) * p[0][0] + at(1) * p[0][1]) + (at(2) * p[0][2] + at(3));
    return ((at(0) * p[0][0] + at(3)) + at(1) * p[0][1]) + at(2) * p[0][2];
}

/// Points without gaps between them, in the widest packs. A point with a bad w is set lane by lane.
template <Variant variant, class A> struct WideTransform {
    using V = WidePack<float>;
    struct {
        V value[4][4];
        template <class> VOKM_INLINE V at(int r, int c) const { return value[r][c]; }
    } a;
    WideRuns<3, A> points;
    float* to;
    decltype(V{} > V{}) bad{};

    template <bool past> VOKM_WIDEST_TEXT VOKM_INLINE void objects(i64 i)
    {
        V p[1][3], d[3];
        points.template load<past>(p[0], i);
        const V w = coordinate<variant>(a, 3, p);
        const auto regular = (w > FLT_MIN) | (w < -FLT_MIN);
        const V inv = 1.0f / w;
        const V t[3] = {coordinate<variant>(a, 0, p), coordinate<variant>(a, 1, p), coordinate<variant>(a, 2, p)};
        for (int j = 0; j < 3; ++j) d[j] = regular ? t[j] * inv : FLT_MAX - V{};
        bad |= ~regular;
        storeWide<3, past>(d, to + i * 3);
    }
    vokStatus status() const
    {
        int any = 0;
        for (int lane = 0; lane < lanesIn<V>; ++lane) any |= bad[lane];
        return any ? vokStatusDivideByZero : vokStatusOk;
    }
};

template <Variant variant, class M, class A, class D> VOKM_INLINE vokStatus transform(M src1, A src2, D dst, i32 count)
{
    using T = float;
    if constexpr (variant == Variant::plain) {
        if (widestRegisters() && count >= wideLanes<T> && packedObjects<3>(src2) && packedObjects<3>(dst) &&
            wholesApart(count, Shaped<D>{dst, {1, 3}}, Shaped<A>{src2, {1, 3}})) {
            WideTransform<variant, A> work{{}, WideRuns<3, A>(src2), dst.base};
            const auto matrix = src1.object(0, {4, 4});
            for (int k = 0; k < 16; ++k) work.a.value[k / 4][k % 4] = splat<WidePack<T>>(matrix(k / 4, k % 4));
            overObjectsWide<3>(count, dst.base, i64(count) * 24, work);
            return work.status();
        }
    }
    const Held<T, 4, 4, M> a(src1, count >= packLanes<T>);
    vokStatus status = vokStatusOk;
    // Returns whether every w was large enough; if not, nothing is stored.
    const auto regular = [&]<class V>(const V(&p)[1][3], i32 i) VOKM_INLINE_LAMBDA {
        V d[1][3];
        const V w = coordinate<variant>(a, 3, p);
        if (!all(magnitude(w) > splat<V>(FLT_MIN))) return false;
        const V inv = splat<V>(1.0f) / w;
        for (int j = 0; j < 3; ++j) d[0][j] = coordinate<variant>(a, j, p) * inv;
        store(d, dst, i);
        return true;
    };
    const auto one = [&](const T(&p)[1][3], i32 i) VOKM_INLINE_LAMBDA {
        if (regular(p, i)) return;
        const T largest[1][3] = {{FLT_MAX, FLT_MAX, FLT_MAX}};
        store(largest, dst, i);
        status = vokStatusDivideByZero;
    };
    const auto guard = lazyGuard<T>(
        count, [&]() VOKM_INLINE_LAMBDA { return packGuard(count, Shaped<D>{dst, {1, 3}}, Shaped<A>{src2, {1, 3}}); });
    i32 i = 0;
    for (; guard(i) && i + packLanes<T> <= count; i += packLanes<T>) {
        Pack<T> p[1][3];
        load(p, src2, i);
        if (regular(p, i)) continue;
        for (int k = 0; k < packLanes<T>; ++k) {
            const T single[1][3] = {{p[0][0][k], p[0][1][k], p[0][2][k]}};
            one(single, i + k);
        }
    }
    // One by one. The contiguous kernel reads the next point before it writes the current one, which a caller sees whose
    // results lie on the points that follow.
    T p[1][3], next[1][3];
    if (i < count) load(next, src2, i);
    for (; i < count; ++i) {
        for (int j = 0; j < 3; ++j) p[0][j] = next[0][j];
        if (variant == Variant::plain && i + 1 < count) load(next, src2, i + 1);
        one(p, i);
        if (variant != Variant::plain && i + 1 < count) load(next, src2, i + 1);
    }
    return status;
}

}  // namespace vokm

extern "C" {
AFFINE_FORM(VOKM_DEFINE_TWO)
AFFINE_FORM(VOKM_EXPORT_ARRAY)
}
