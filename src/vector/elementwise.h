// Element-wise operations, for vectors and matrices alike: dst(r, c) = op(a(r, c), b(r, c)), one rounding or two per element,
// so that no path of a form differs in a bit. What can be seen of the paths is when memory is read: at the sizes with a path
// an object is read whole before it is written and a single operand is held over the walk (or read anew, where the row says
// so); elsewhere element follows element, and everything is read anew. A transposed operand is never read ahead of the rows
// that are written: where it shares memory with the result, element follows element too.
#pragma once

#include "../frame/long_run.h"
#include "../frame/overlap.h"

namespace vokm {

struct Plus {
    template <class T> VOKM_INLINE T operator()(T a, T b) const { return a + b; }
};
struct Minus {
    template <class T> VOKM_INLINE T operator()(T a, T b) const { return a - b; }
};
struct MinusFrom {  // the operand that stands first in the argument list is subtracted from the second
    template <class T> VOKM_INLINE T operator()(T a, T b) const { return b - a; }
};
struct Times {
    template <class T> VOKM_INLINE T operator()(T a, T b) const { return a * b; }
};
template <class T> struct ScaleAdd {
    T val;
    template <class V> VOKM_INLINE V operator()(V a, V b) const { return a * val + b; }
};
template <class T> struct Combine {
    T val1, val2;
    template <class V> VOKM_INLINE V operator()(V a, V b) const { return a * val1 + b * val2; }
};

/// The sizes with a path, by kernel; of these, `anew` those that read a single operand for each object again, and `ahead` those
/// that load the next object before they store the current one.
struct Paths {
    struct Kernel {
        SizeSet sizes, anew = generalOnly, ahead = generalOnly;
    };
    Kernel plain, S2, P, L, LS2;
    template <class T> constexpr const Kernel& of(Variant variant) const
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

/// As separate() of overlap.h, for a destination that is one run of `bytes`; a source that is an array is a run as well, a
/// single one has contiguous rows.
template <class D, class S> VOKM_INLINE bool runApart(const D& dst, const S& src, i64 bytes, Shape shape)
{
    if constexpr (S::code == Code::c) {
        return true;
    } else {
        const auto distance = static_cast<i64>(reinterpret_cast<Address>(dst.base) - reinterpret_cast<Address>(src.base));
        if constexpr (S::array) return distance == 0 || distance >= bytes || distance <= -bytes;
        const Shape stored = isTransposed(S::code) ? Shape{shape.cols, shape.rows} : shape;
        return distance <= -bytes || distance >= i64(stored.rows - 1) * src.stride1 + i64(stored.cols) * i64(sizeof(*src.base));
    }
}

template <class View> constexpr bool isSingleOperand = !View::array && View::code != Code::c;

/// An operand as a source of a long run: an array that is one run, a constant, or the elements of a single operand over and over.
template <class T, int R, int C, class View> VOKM_INLINE auto alongRun(const View& view)
{
    if constexpr (View::code == Code::c) {
        return Everywhere<T>{view.value};
    } else if constexpr (View::array || R == 0) {
        return Run<T>{view.base};
    } else {
        Repeated<T, R * C> repeated;
        const auto object = view.object(0, Shape{R, C});
        for (int k = 0; k < R * C; ++k) repeated.element[k] = object(k / C, k % C);
        return repeated;
    }
}

/// The same element of all objects, where neighbouring objects are neighbours in memory; of a single operand, its one element.
template <class T, class View> VOKM_INLINE auto ofPlane(const View& view, Shape shape, i32 r, i32 c)
{
    if constexpr (!View::array) {
        return [value = T(view.object(0, shape)(r, c))](i64) VOKM_INLINE_LAMBDA { return value; };
    } else if constexpr (View::code == Code::ca) {
        return [at = view.base](i64 i) VOKM_INLINE_LAMBDA { return at[i]; };
    } else {
        return [at = &view.object(0, shape)(r, c)](i64 i) VOKM_INLINE_LAMBDA { return at[i]; };
    }
}

/// One plane per element, each a long vector over the objects.
template <class T, class Op, class A, class B, class D>
inline void planeByPlane(Op op, A a, B b, D dst, Shape shape, i32 count)
{
    for (i32 r = 0; r < shape.rows; ++r) {
        for (i32 c = 0; c < shape.cols; ++c) {
            along(count, [op, x = ofPlane<T>(a, shape, r, c), y = ofPlane<T>(b, shape, r, c),
                          d = &dst.object(0, shape)(r, c)](i64 i) VOKM_INLINE_LAMBDA { d[i] = op(x(i), y(i)); });
        }
    }
}

/// One object, element after element: each is read just before its result is written.
template <class T, class Op, class X, class Y, class D>
VOKM_INLINE void eachElement(Op op, const X& x, const Y& y, const D& d, Shape shape)
{
    for (i32 r = 0; r < shape.rows; ++r) {
        for (i32 c = 0; c < shape.cols; ++c) {
            d(r, c) = op(T(x(r, c)), T(y(r, c)));
            asm volatile("" ::: "memory");  // overlap by any number of bytes: no vectorised loop behind our back
        }
    }
}

/// A single operand over the walk as an object of its own: the held values, or the operand itself if it is read anew.
template <bool anew, class View, class H> VOKM_INLINE auto objectOrHeld(const View& view, const H& held, i32 i, Shape shape)
{
    if constexpr (isSingleOperand<View> && !anew) {
        return [&held](i32 r, i32 c) { return held.one[r][c]; };
    } else {
        return view.object(i, shape);
    }
}

/// Whether object i of a transposed operand shares no byte with object i of the result, so that reading it whole cannot be seen.
template <bool anew, class D, class S> VOKM_INLINE bool wholeReadable(i32 i, const Shaped<D>& dst, const Shaped<S>& src)
{
    if constexpr (!isTransposed(S::code) || (isSingleOperand<S> && !anew)) {
        return true;
    } else if constexpr (requires { src.view.table; }) {
        return false;
    } else {
        return dst.extent(i).disjoint(src.extent(i));
    }
}

template <class View> constexpr bool turnedArray = isTransposed(View::code) && View::array;

/// Objects of a size with straight code, one after another: each is read as a whole, computed and stored, or goes element by
/// element where a transposed operand shares memory with its result. A single operand is read once or, `anew`, for each object;
/// `ahead` reads the next object before the results of this one are stored.
template <bool anew, bool ahead, class T, int R, int C, class Op, class A, class B, class D>
VOKM_INLINE void objectByObject(Op op, A a, B b, D dst, i32 count)
{
    using HeldA = HeldIfSingle<T, R, C, A>;
    using HeldB = HeldIfSingle<T, R, C, B>;
    constexpr Shape shape{R, C};
    struct Tile {
        T at[R][C];
    };
    const auto work = [&](const HeldA& heldA, const HeldB& heldB, i32 i) VOKM_INLINE_LAMBDA {
        Tile x, y, z;
        loadOrHeld(x.at, a, heldA, i);
        loadOrHeld(y.at, b, heldB, i);
        for (int r = 0; r < R; ++r) {
            for (int c = 0; c < C; ++c) z.at[r][c] = op(x.at[r][c], y.at[r][c]);
        }
        return z;
    };
    const auto finish = [&](const HeldA& heldA, const HeldB& heldB, i32 i) VOKM_INLINE_LAMBDA {
        if (wholeReadable<anew>(i, Shaped<D>{dst, shape}, Shaped<A>{a, shape}) &&
            wholeReadable<anew>(i, Shaped<D>{dst, shape}, Shaped<B>{b, shape})) {
            store(work(heldA, heldB, i).at, dst, i);
        } else {
            eachElement<T>(op, objectOrHeld<anew>(a, heldA, i, shape), objectOrHeld<anew>(b, heldB, i, shape),
                           dst.object(i, shape), shape);
        }
    };
    if constexpr (anew) {
        for (i32 i = 0; i < count; ++i) finish(HeldA(a, false), HeldB(b, false), i);
    } else {
        const HeldA heldA(a, false);
        const HeldB heldB(b, false);
        if constexpr (ahead && !turnedArray<A> && !turnedArray<B>) {
            if (count < 1) return;
            Tile done = work(heldA, heldB, 0);
            for (i32 i = 1; i < count; ++i) {
                const Tile next = work(heldA, heldB, i);
                store(done.at, dst, i - 1);
                done = next;
            }
            store(done.at, dst, count - 1);
        } else {
            for (i32 i = 0; i < count; ++i) finish(heldA, heldB, i);
        }
    }
}

template <const auto& paths, Variant variant, class T, class Op, class A, class B, class D>
VOKM_INLINE vokStatus elementwise(Op op, A a, B b, D dst, Shape shape, i32 count)
{
    const auto apart = [&]() VOKM_INLINE_LAMBDA {
        return separate(count, Shaped<D>{dst, shape}, Shaped<A>{a, shape}) &&
               separate(count, Shaped<D>{dst, shape}, Shaped<B>{b, shape});
    };
    if constexpr (requires { dst.stride0; } && D::array) {
        if (planar(dst) && (!A::array || planar(a)) && (!B::array || planar(b)) && count >= packLanes<T> &&
            planesApart(Shaped<D>{dst, shape}, count) && apart()) {
            planeByPlane<T>(op, a, b, dst, shape, count);
            return vokStatusOk;
        }
    }
    const auto general = [&]() VOKM_INLINE_LAMBDA -> vokStatus {
        if constexpr (D::dense && !isSingleOperand<A> && !isSingleOperand<B> && requires { dst.base; }) {
            if (oneRun(a, shape) && oneRun(b, shape) && oneRun(dst, shape) && apart()) {
                longRun(op, alongRun<T, 0, 0>(a), alongRun<T, 0, 0>(b), dst.base, i64(count) * shape.elements());
                return vokStatusOk;
            }
        }
        for (i32 i = 0; i < count; ++i) {
            eachElement<T>(op, a.object(i, shape), b.object(i, shape), dst.object(i, shape), shape);
        }
        return vokStatusOk;
    };
    const auto fixed = [&](auto size) VOKM_INLINE_LAMBDA -> vokStatus {
        constexpr int C = decltype(size)::value, R = isMatrix(D::code) ? C : 1;
        constexpr Paths::Kernel kernel = paths.template of<T>(variant);
        constexpr bool hasPath = kernel.sizes.has(C), anew = !D::array || kernel.anew.has(C);
        if constexpr (D::array && D::dense && requires { dst.base; } && A::code != Code::ca && B::code != Code::ca &&
                      !turnedArray<A> && !turnedArray<B>) {
            const bool runs = (isSingleOperand<A> || oneRun(a, shape)) && (isSingleOperand<B> || oneRun(b, shape)) &&
                              oneRun(dst, shape) && count > 1;
            const i64 bytes = i64(count) * (R * C) * i64(sizeof(T));
            if (runs && runApart(dst, a, bytes, shape) && runApart(dst, b, bytes, shape)) {
                longRun(op, alongRun<T, R, C>(a), alongRun<T, R, C>(b), dst.base, i64(count) * (R * C));
                return vokStatusOk;
            }
        }
        if constexpr (hasPath) {
            objectByObject<anew, kernel.ahead.has(C), T, R, C>(op, a, b, dst, count);
            return vokStatusOk;
        } else {
            return general();
        }
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
