// How matrices come into the work area of the general eigenproblems: rows of the operand become columns, one object at a time
// or a pack of them, and eigenvalues of a pack go to their objects.
#pragma once

#include <tuple>

#include "hessenberg.h"
#include "values_view.h"

namespace vokm {

template <class View, class T, class N> VOKM_INLINE void copyIn(const View& src, i32 k, Square<T, N> h)
{
    const auto a = src.object(k, Shape{h.n(), h.n()});
    for (i32 r = 0; r < h.n(); ++r) {
        for (i32 c = 0; c < h.n(); ++c) h(c, r) = a(r, c);
    }
}

template <int n, class V, class View> VOKM_INLINE void copyPackIn(const View& src, i32 k, V (&tile)[n][n])
{
    if constexpr (requires { src.asDense(); }) {
        if (src.contiguous()) return load(tile, src.asDense(), k);
    }
    load(tile, src, k);
}

/// Whether the pack from an object on may be read before the first of its results is written. `results`: of each object, in
/// the shape of the operand.
template <class T, class S, class... D>
VOKM_INLINE auto generalGuard(i32 n, i32 count, const S& src, T* re, T* im, const D&... results)
{
    const Shaped<S> from{src, {n, n}};
    const auto toRe = valuesAt(re, n), toIm = valuesAt(im, n);
    const bool apart = wholesApart(count, toRe, toIm);
    const std::tuple guards{packGuard(count, toRe, from), packGuard(count, toIm, from), packGuard(count, Shaped<D>{results, {n, n}}, from)...};
    return [=](i32 k) VOKM_INLINE_LAMBDA {
        return apart && std::apply([k](const auto&... guard) { return (guard(k) && ...); }, guards);
    };
}

/// The eigenvalues of a pack: element i of a lane at i*lanes + lane.
template <class T, int n> struct PackValues {
    static constexpr int lanes = packLanes<T>;
    T re[n * lanes], im[n * lanes];

    VOKM_INLINE void copyLane(int lane, T* toRe, T* toIm) const
    {
        for (int i = 0; i < n; ++i) toRe[i] = re[i * lanes + lane], toIm[i] = im[i * lanes + lane];
    }
};

}  // namespace vokm
