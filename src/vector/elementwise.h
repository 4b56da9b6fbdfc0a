// Element-wise operations, for vectors and matrices alike: dst(r, c) = op(a(r, c), b(r, c)), one rounding or two per element,
// so that no path of a form differs in a bit. What can be seen of the paths is when memory is read: at the sizes with a path
// an object is read whole before it is written and a single operand is held over the walk (or read anew, where the row says
// so); elsewhere element follows element, and everything is read anew.
#pragma once

#include <numeric>

#include "../frame/fixed.h"
#include "../frame/overlap.h"

namespace vokm {

/// A scalar for every lane, spread before the loops.
template <class T> struct Spread {
    T one;
    Pack<T> all;
    VOKM_INLINE Spread(T x) : one(x), all(splat<Pack<T>>(x)) {}
    template <class V> VOKM_INLINE V as() const
    {
        if constexpr (isPack<V>) {
            return all;
        } else {
            return one;
        }
    }
};

struct Plus {
    template <class V> VOKM_INLINE V operator()(V a, V b) const { return a + b; }
};
struct Minus {
    template <class V> VOKM_INLINE V operator()(V a, V b) const { return a - b; }
};
struct MinusFrom {  // the operand that stands first in the argument list is subtracted from the second
    template <class V> VOKM_INLINE V operator()(V a, V b) const { return b - a; }
};
struct Times {
    template <class V> VOKM_INLINE V operator()(V a, V b) const { return a * b; }
};
template <class T> struct ScaleAdd {
    Spread<T> val;
    template <class V> VOKM_INLINE V operator()(V a, V b) const { return a * val.template as<V>() + b; }
};
template <class T> struct Combine {
    Spread<T> val1, val2;
    template <class V> VOKM_INLINE V operator()(V a, V b) const { return a * val1.template as<V>() + b * val2.template as<V>(); }
};

/// The sizes with a path, by kernel; of these, `anew` those that read a single operand for each object again.
struct Paths {
    struct Kernel {
        SizeSet sizes, anew = generalOnly;
    };
    Kernel plain, S2, P, L, LS2;
    constexpr const Kernel& of(Variant variant) const
    {
        switch (variant) {
        case Variant::plain: return plain;
        case Variant::S2: return S2;
        case Variant::P: return P;
        case Variant::L: return L;
        default: return LS2;
        }
    }
};

/// Whether the objects of an operand are one run of memory, in the order of their elements. Constants by value are.
template <class View> inline bool oneRun(const View& view, Shape shape)
{
    using T = typename View::element;
    constexpr i32 E = sizeof(T);
    if constexpr (View::code == Code::c) {
        return true;
    } else if constexpr (View::dense && View::code != Code::ca && !isTransposed(View::code) && requires { view.base; }) {
        return (!isMatrix(View::code) || view.stride1 == shape.cols * E) && (!View::array || view.stride0 == shape.elements() * E);
    } else {
        return false;
    }
}

template <class V, class View> VOKM_INLINE V fromRun(const View& view, i64 j)
{
    if constexpr (View::code == Code::c) {
        return splat<V>(view.value);
    } else {
        return loadLanes<V>(view.base + j);
    }
}

/// As separate() of overlap.h, for a destination that is one run of `bytes`; a source that is an array is a run as well.
template <class D, class S> VOKM_INLINE bool runApart(const D& dst, const S& src, i64 bytes, i32 count, Shape shape)
{
    if constexpr (S::code == Code::c) {
        return true;
    } else if constexpr (S::array && requires { dst.base == src.base; }) {
        const auto distance = static_cast<i64>(reinterpret_cast<Address>(dst.base) - reinterpret_cast<Address>(src.base));
        return distance == 0 || distance >= bytes || distance <= -bytes;
    } else {
        return separate(count, Shaped<D>{dst, shape}, Shaped<S>{src, shape});
    }
}

/// Arrays (and constants) that are one run each: one long vector.
template <class T, class Op, class A, class B, class D>
inline void longRun(Op op, A a, B b, D dst, i64 elements)
{
    constexpr i64 N = packLanes<T>, step = 4 * N;
    i64 j = 0;
    for (; j + step <= elements; j += step) {
        for (i64 k = 0; k < step; k += N) {
            storeLanes(dst.base + j + k, op(fromRun<Pack<T>>(a, j + k), fromRun<Pack<T>>(b, j + k)));
        }
    }
    for (; j < elements; ++j) dst.base[j] = op(fromRun<T>(a, j), fromRun<T>(b, j));
}

/// The elements of a single operand, repeated until they fill whole registers, beside the runs of the arrays.
template <class T, int R, int C, class View> struct Pattern {
    static constexpr int K = R * C, length = std::lcm(K, packLanes<T>);
    T repeated[length];
    explicit Pattern(const View& view)
    {
        T tile[R][C];
        load(tile, view, 0);
        for (int j = 0; j < length; ++j) repeated[j] = (&tile[0][0])[j % K];
    }
    template <class V> VOKM_INLINE V at(const View&, i64, int k) const { return loadLanes<V>(repeated + k); }
};
template <class View> struct RunAlong {
    explicit RunAlong(const View&) {}
    template <class V> VOKM_INLINE V at(const View& view, i64 j, int k) const { return fromRun<V>(view, j + k); }
};
template <class View> constexpr bool isSingleOperand = !View::array && View::code != Code::c;

template <class T, int R, int C, class Op, class A, class B, class D>
inline void patternRun(Op op, A a, B b, D dst, i32 count)
{
    using OfA = std::conditional_t<isSingleOperand<A>, Pattern<T, R, C, A>, RunAlong<A>>;
    using OfB = std::conditional_t<isSingleOperand<B>, Pattern<T, R, C, B>, RunAlong<B>>;
    constexpr int N = packLanes<T>, step = std::lcm(R * C, N);
    const OfA ofA(a);
    const OfB ofB(b);
    const i64 elements = i64(count) * (R * C);
    i64 j = 0;
    for (; j + step <= elements; j += step) {
        for (int k = 0; k < step; k += N) {
            storeLanes(dst.base + j + k, op(ofA.template at<Pack<T>>(a, j, k), ofB.template at<Pack<T>>(b, j, k)));
        }
    }
    for (int k = 0; j + k < elements; ++k) dst.base[j + k] = op(ofA.template at<T>(a, j, k), ofB.template at<T>(b, j, k));
}

template <const Paths& paths, Variant variant, class T, class Op, class A, class B, class D>
VOKM_INLINE vokStatus elementwise(Op op, A a, B b, D dst, Shape shape, i32 count)
{
    const auto apart = [&]() VOKM_INLINE_LAMBDA {
        return separate(count, Shaped<D>{dst, shape}, Shaped<A>{a, shape}) &&
               separate(count, Shaped<D>{dst, shape}, Shaped<B>{b, shape});
    };
    const auto general = [&]() VOKM_INLINE_LAMBDA -> vokStatus {
        if constexpr (!isSingleOperand<A> && !isSingleOperand<B>) {
            if (oneRun(a, shape) && oneRun(b, shape) && oneRun(dst, shape) && apart()) {
                if constexpr (requires { dst.base; }) longRun<T>(op, a, b, dst, i64(count) * shape.elements());
                return vokStatusOk;
            }
        }
        for (i32 i = 0; i < count; ++i) {
            const auto x = a.object(i, shape);
            const auto y = b.object(i, shape);
            const auto d = dst.object(i, shape);
            for (i32 r = 0; r < shape.rows; ++r) {
                for (i32 c = 0; c < shape.cols; ++c) {
                    d(r, c) = op(T(x(r, c)), T(y(r, c)));
                    // Overlap by any number of bytes is read and written one element at a time.
                    if constexpr (!isList<D>) asm volatile("" ::: "memory");
                }
            }
        }
        return vokStatusOk;
    };
    const auto fixed = [&](auto size) VOKM_INLINE_LAMBDA -> vokStatus {
        constexpr int C = decltype(size)::value, R = isMatrix(D::code) ? C : 1;
        constexpr bool hasPath = paths.of(variant).sizes.has(C), anew = paths.of(variant).anew.has(C);
        if constexpr (D::array && D::dense) {
            const bool runs = (isSingleOperand<A> || oneRun(a, shape)) && (isSingleOperand<B> || oneRun(b, shape)) &&
                              oneRun(dst, shape) && count > 1;
            const i64 bytes = i64(count) * (R * C) * i64(sizeof(T));
            if (runs && runApart(dst, a, bytes, count, shape) && runApart(dst, b, bytes, count, shape)) {
                if constexpr (requires { dst.base; } && A::code != Code::ca && B::code != Code::ca &&
                              !(isTransposed(A::code) && A::array) && !(isTransposed(B::code) && B::array)) {
                    if constexpr (isSingleOperand<A> || isSingleOperand<B>) {
                        patternRun<T, R, C>(op, a, b, dst, count);
                    } else {
                        longRun<T>(op, a, b, dst, i64(count) * (R * C));
                    }
                    return vokStatusOk;
                }
            }
        }
        const auto pinA = pinned<R, C>(a);
        const auto pinB = pinned<R, C>(b);
        const auto pinD = pinned<R, C>(dst);
        const auto work = [&](auto as, const auto& heldA, const auto& heldB, i32 i) VOKM_INLINE_LAMBDA {
            using V = typename decltype(as)::type;
            V x[R][C], y[R][C], z[R][C];
            loadOrHeld(x, pinA, heldA, i);
            loadOrHeld(y, pinB, heldB, i);
            for (int r = 0; r < R; ++r) {
                for (int c = 0; c < C; ++c) z[r][c] = op(x[r][c], y[r][c]);
            }
            store(z, pinD, i);
        };
        if (planar(dst) && (!A::array || planar(a)) && (!B::array || planar(b)) && count >= packLanes<T> &&
            apart() && resultsApartIfArray(Shaped<D>{dst, shape})) {
            const HeldIfSingle<T, R, C, A> heldA(a, true);
            const HeldIfSingle<T, R, C, B> heldB(b, true);
            walk<T>(count, true, [&](auto as, i32 i) VOKM_INLINE_LAMBDA { work(as, heldA, heldB, i); });
        } else if constexpr (!hasPath) {
            return general();
        } else if constexpr (anew) {
            for (i32 i = 0; i < count; ++i) {
                work(As<T>{}, HeldIfSingle<T, R, C, A>(a, false), HeldIfSingle<T, R, C, B>(b, false), i);
            }
        } else {
            const HeldIfSingle<T, R, C, A> heldA(a, false);
            const HeldIfSingle<T, R, C, B> heldB(b, false);
            for (i32 i = 0; i < count; ++i) work(As<T>{}, heldA, heldB, i);
        }
        return vokStatusOk;
    };
    if (isMatrix(D::code) && shape.rows != shape.cols) return general();
    return onFixed(shape.cols, fixed, general);
}

}  // namespace vokm

// The signature shape of two operands and a destination of vectors; c1, n1 are code and name of the first in the list.
#define PAIR_PARAMS(L, T, c1, n1, c2, n2, cd, ...) \
    VOKM_PARAM(L, c1, const T, n1), VOKM_PARAM(L, c2, const T, n2), VOKM_PARAM(L, cd, T, dst), int32_t length
#define PAIR_ARGS(L, T, c1, n1, c2, n2, cd, ...) \
    VOKM_VIEW(L, c1, const T, n1), VOKM_VIEW(L, c2, const T, n2), VOKM_VIEW(L, cd, T, dst), vokm::Sizes{length}
#define PAIR_TYPES(D, L, T, c1, n1, c2, n2, cd, ...)                                                                \
    D<VOKM_TYPE(L, c1, const T)> n1, D<VOKM_TYPE(L, c2, const T)> n2, D<VOKM_TYPE(L, cd, T)> dst, vokm::Sizes<1> sizes
#define PAIR_NAMES(c1, n1, c2, n2, cd, ...) n1, n2, dst, sizes
#define PAIR_KERNEL(row, T, variant, c1, n1, c2, n2, cd, paths, op) \
    vokm::elementwise<paths, variant, T>(op, n1, n2, dst, vokm::Shape{1, sizes[0]}, 1)

#define PAIRS_PARAMS(L, T, ...) PAIR_PARAMS(L, T, __VA_ARGS__), int32_t count
#define PAIRS_ARGS(L, T, ...) PAIR_ARGS(L, T, __VA_ARGS__), vokm::Count{count}
#define PAIRS_TYPES(D, L, T, ...) PAIR_TYPES(D, L, T, __VA_ARGS__), vokm::Count count
#define PAIRS_NAMES(...) PAIR_NAMES(__VA_ARGS__), count
#define PAIRS_KERNEL(row, T, variant, c1, n1, c2, n2, cd, paths, op) \
    vokm::elementwise<paths, variant, T>(op, n1, n2, dst, vokm::Shape{1, sizes[0]}, count.n)
