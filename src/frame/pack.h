// Packs: vectors that hold one element of several objects, an object to a lane, and tiles, the elements of one object (or of
// one pack of objects) in registers. A family writes its arithmetic once over a value type V, which is float or double for
// one object and a pack otherwise; every lane does exactly the scalar operations in the scalar order.
//
// The only places that know the processor's registers are the helpers here.
#pragma once

#include <cmath>
#include <cstring>
#include <utility>

#include <emmintrin.h>

#include "views.h"

namespace vokm {

template <class T, int N> struct LanesOf {
    typedef T type __attribute__((vector_size(N * sizeof(T))));
};
template <class T> struct LanesOf<T, 1> {
    using type = T;
};
template <class T> constexpr int packLanes = 16 / sizeof(T);
template <class T> using Pack = typename LanesOf<T, packLanes<T>>::type;

template <class V> constexpr bool isPack = !std::is_floating_point_v<V>;
template <class V> struct ElementOf {
    using type = std::decay_t<decltype(std::declval<V>()[0])>;
};
template <> struct ElementOf<float> {
    using type = float;
};
template <> struct ElementOf<double> {
    using type = double;
};
template <class V> using Element = typename ElementOf<V>::type;
template <class V> constexpr int lanesIn = sizeof(V) / sizeof(Element<V>);

template <class V> VOKM_INLINE V loadLanes(const Element<V>* from)
{
    V v{};
    std::memcpy(&v, from, sizeof v);
    return v;
}
template <class V> VOKM_INLINE void storeLanes(Element<V>* to, V v) { std::memcpy(to, &v, sizeof v); }

template <class V> VOKM_INLINE V splat(Element<V> x)
{
    if constexpr (isPack<V>) {
        // As one initialiser: lane by lane, g++ makes a chain of inserts of it.
        return [&]<int... k>(std::integer_sequence<int, k...>) VOKM_INLINE_LAMBDA {
            return V{(static_cast<void>(k), x)...};
        }(std::make_integer_sequence<int, lanesIn<V>>{});
    } else {
        return x;
    }
}

/// The pack whose lanes are of(0), of(1), ...
template <class V, class Of> VOKM_INLINE V fromLanes(Of of)
{
    if constexpr (lanesIn<V> == 4) {
        return V{of(0), of(1), of(2), of(3)};
    } else {
        return V{of(0), of(1)};
    }
}

/// The square root, correctly rounded in the type of each lane.
inline float root(float x) { return std::sqrt(x); }
inline double root(double x) { return std::sqrt(x); }
inline Pack<float> root(Pack<float> x) { return Pack<float>(_mm_sqrt_ps(__m128(x))); }
inline Pack<double> root(Pack<double> x) { return Pack<double>(_mm_sqrt_pd(__m128d(x))); }

/// The magnitude: the sign bit cleared.
inline float magnitude(float x) { return std::fabs(x); }
inline double magnitude(double x) { return std::fabs(x); }
inline Pack<float> magnitude(Pack<float> x) { return Pack<float>(_mm_andnot_ps(_mm_set1_ps(-0.0f), __m128(x))); }
inline Pack<double> magnitude(Pack<double> x) { return Pack<double>(_mm_andnot_pd(_mm_set1_pd(-0.0), __m128d(x))); }

/// The greater of two: x > y ? x : y, so y if either is NaN.
inline float larger(float x, float y) { return x > y ? x : y; }
inline double larger(double x, double y) { return x > y ? x : y; }
inline Pack<float> larger(Pack<float> x, Pack<float> y) { return Pack<float>(_mm_max_ps(__m128(x), __m128(y))); }
inline Pack<double> larger(Pack<double> x, Pack<double> y) { return Pack<double>(_mm_max_pd(__m128d(x), __m128d(y))); }

/// The processor's estimate of 1/x, of about 12 bits; the same bits for one value as for a pack.
inline float reciprocalEstimate(float x) { return _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(x))); }
inline Pack<float> reciprocalEstimate(Pack<float> x) { return Pack<float>(_mm_rcp_ps(__m128(x))); }

/// The root of a 32-bit sum taken in 64 bits and rounded back: with more than twice the bits in between, rounding twice gives
/// what rounding once gives, so that this is the root in 32 bits.
template <class V> VOKM_INLINE V rootInDouble(V x) { return root(x); }

/// 1 / sqrt(x), both taken in 64 bits and rounded once.
inline float inverseRootInDouble(float x) { return static_cast<float>(1 / std::sqrt(static_cast<double>(x))); }
inline double inverseRootInDouble(double x) { return 1 / std::sqrt(x); }
inline Pack<double> inverseRootInDouble(Pack<double> x) { return 1.0 / root(x); }
inline Pack<float> inverseRootInDouble(Pack<float> x)
{
    const __m128 v = __m128(x);
    const Pack<double> low(_mm_cvtps_pd(v)), high(_mm_cvtps_pd(_mm_movehl_ps(v, v)));
    return Pack<float>(_mm_movelh_ps(_mm_cvtpd_ps(__m128d(1.0 / root(low))), _mm_cvtpd_ps(__m128d(1.0 / root(high)))));
}

/// x > y and x <= y lane by lane, as masks that are combined freely: g++ 12 joins two comparisons of doubles written with the
/// operators into one that it cannot expand for SSE3. Neither holds for not-a-number.
inline bool above(float x, float y) { return x > y; }
inline bool above(double x, double y) { return x > y; }
inline bool atMost(float x, float y) { return x <= y; }
inline bool atMost(double x, double y) { return x <= y; }
inline auto above(Pack<float> x, Pack<float> y) { return decltype(x > y)(_mm_cmpgt_ps(__m128(x), __m128(y))); }
inline auto above(Pack<double> x, Pack<double> y) { return decltype(x > y)(_mm_cmpgt_pd(__m128d(x), __m128d(y))); }
inline auto atMost(Pack<float> x, Pack<float> y) { return decltype(x > y)(_mm_cmple_ps(__m128(x), __m128(y))); }
inline auto atMost(Pack<double> x, Pack<double> y) { return decltype(x > y)(_mm_cmple_pd(__m128d(x), __m128d(y))); }

/// Whether a lane-wise condition holds in every lane, or in any.
inline bool all(bool condition) { return condition; }
inline bool any(bool condition) { return condition; }
template <class M> inline int lanesSet(M mask) { return _mm_movemask_epi8((__m128i)mask); }
template <class M>
    requires(sizeof(M) == 16)
inline bool all(M mask)
{
    return lanesSet(mask) == 0xffff;
}
template <class M>
    requires(sizeof(M) == 16)
inline bool any(M mask)
{
    return lanesSet(mask) != 0;
}

/// Two elements at any address, in the lower half of a register.
inline __m128 loadTwo(const float* from)
{
    double both;
    std::memcpy(&both, from, sizeof both);
    return _mm_castpd_ps(_mm_set_sd(both));
}

// Runs: elements that follow one another in memory, per object. A Fetch answers for them:
//   four(lane, k)       a whole register from element k of that lane's object on
//   pairs(a, b, k)      elements k, k+1 of two objects side by side (32f only)
//   one(lane, k)        one element
template <class T> struct Fetch {
    const T* at[packLanes<T>];
    VOKM_INLINE Pack<T> four(int lane, int k) const { return loadLanes<Pack<T>>(at[lane] + k); }
    VOKM_INLINE Pack<float> pairs(int a, int b, int k) const
    {
        return Pack<float>(_mm_loadh_pi(loadTwo(at[a] + k), reinterpret_cast<const __m64*>(at[b] + k)));
    }
    VOKM_INLINE T one(int lane, int k) const { return at[lane][k]; }
};

/// The products of two runs, formed before they are turned into lanes: half the shuffles.
template <class T> struct FetchProducts {
    Fetch<T> a, b;
    VOKM_INLINE Pack<T> four(int lane, int k) const { return a.four(lane, k) * b.four(lane, k); }
    VOKM_INLINE Pack<float> pairs(int i, int j, int k) const { return a.pairs(i, j, k) * b.pairs(i, j, k); }
    VOKM_INLINE T one(int lane, int k) const { return a.one(lane, k) * b.one(lane, k); }
};

/// K elements of each object of a pack into K lanes vectors. `packed`: the objects follow one another without a gap.
template <int K, class Source> VOKM_INLINE void turnRuns(Pack<float>* to, const Source& from, bool packed)
{
    int k = 0;
    if constexpr (K == 3) {
        if (packed) {
            const auto a = from.four(0, 0), b = from.four(0, 4), c = from.four(0, 8);
            const auto t = __builtin_shufflevector(b, c, 2, 3, 5, 6), u = __builtin_shufflevector(a, b, 1, 2, 4, 5);
            to[0] = __builtin_shufflevector(a, t, 0, 3, 4, 6);
            to[1] = __builtin_shufflevector(u, t, 0, 2, 5, 7);
            to[2] = __builtin_shufflevector(u, c, 1, 3, 4, 7);
            return;
        }
    }
    for (; k + 4 <= K; k += 4) {
        const auto a = from.four(0, k), b = from.four(1, k), c = from.four(2, k), d = from.four(3, k);
        const auto ab = __builtin_shufflevector(a, b, 0, 4, 1, 5), cd = __builtin_shufflevector(c, d, 0, 4, 1, 5);
        const auto AB = __builtin_shufflevector(a, b, 2, 6, 3, 7), CD = __builtin_shufflevector(c, d, 2, 6, 3, 7);
        to[k] = __builtin_shufflevector(ab, cd, 0, 1, 4, 5);
        to[k + 1] = __builtin_shufflevector(ab, cd, 2, 3, 6, 7);
        to[k + 2] = __builtin_shufflevector(AB, CD, 0, 1, 4, 5);
        to[k + 3] = __builtin_shufflevector(AB, CD, 2, 3, 6, 7);
    }
    if constexpr (K % 4 >= 2) {
        const auto ab = from.pairs(0, 1, k), cd = from.pairs(2, 3, k);
        to[k] = __builtin_shufflevector(ab, cd, 0, 2, 4, 6);
        to[k + 1] = __builtin_shufflevector(ab, cd, 1, 3, 5, 7);
        k += 2;
    }
    if constexpr (K % 2 == 1) to[k] = Pack<float>{from.one(0, k), from.one(1, k), from.one(2, k), from.one(3, k)};
}

template <int K, class Source> VOKM_INLINE void turnRuns(Pack<double>* to, const Source& from, bool packed)
{
    int k = 0;
    if constexpr (K == 3) {
        if (packed) {
            const auto a = from.four(0, 0), b = from.four(0, 2), c = from.four(0, 4);
            to[0] = __builtin_shufflevector(a, b, 0, 3);
            to[1] = __builtin_shufflevector(a, c, 1, 2);
            to[2] = __builtin_shufflevector(b, c, 0, 3);
            return;
        }
    }
    for (; k + 2 <= K; k += 2) {
        auto a = from.four(0, k), b = from.four(1, k);
        // Each register in one load of 16 bytes: g++ would load the halves one by one, and loads are what a 3x3 waits for.
        if constexpr (K == 9) asm("" : "+x"(a), "+x"(b));
        to[k] = __builtin_shufflevector(a, b, 0, 2);
        to[k + 1] = __builtin_shufflevector(a, b, 1, 3);
    }
    if constexpr (K % 2 == 1) to[k] = Pack<double>{from.one(0, k), from.one(1, k)};
}

/// The lower half of a register to one place, the upper to another.
VOKM_INLINE void storeHalves(float* low, float* high, Pack<float> v)
{
    _mm_storel_pi(reinterpret_cast<__m64*>(low), __m128(v));
    _mm_storeh_pi(reinterpret_cast<__m64*>(high), __m128(v));
}

/// The way back: K lane vectors into the runs of a pack's objects, the objects in ascending order within each block.
template <int K> VOKM_INLINE void turnBack(float* const* at, const Pack<float>* from, bool packed)
{
    int k = 0;
    if constexpr (K == 3) {
        if (packed) {
            const auto p = __builtin_shufflevector(from[0], from[1], 0, 2, 4, 6);
            const auto q = __builtin_shufflevector(from[1], from[2], 1, 3, 5, 7);
            const auto r = __builtin_shufflevector(from[2], from[0], 0, 2, 5, 7);
            storeLanes(at[0], __builtin_shufflevector(p, r, 0, 2, 4, 6));
            storeLanes(at[0] + 4, __builtin_shufflevector(q, p, 0, 2, 5, 7));
            storeLanes(at[0] + 8, __builtin_shufflevector(r, q, 1, 3, 5, 7));
            return;
        }
    }
    for (; k + 4 <= K; k += 4) {
        const auto ab = __builtin_shufflevector(from[k], from[k + 1], 0, 4, 1, 5);
        const auto cd = __builtin_shufflevector(from[k + 2], from[k + 3], 0, 4, 1, 5);
        const auto AB = __builtin_shufflevector(from[k], from[k + 1], 2, 6, 3, 7);
        const auto CD = __builtin_shufflevector(from[k + 2], from[k + 3], 2, 6, 3, 7);
        storeLanes(at[0] + k, __builtin_shufflevector(ab, cd, 0, 1, 4, 5));
        storeLanes(at[1] + k, __builtin_shufflevector(ab, cd, 2, 3, 6, 7));
        storeLanes(at[2] + k, __builtin_shufflevector(AB, CD, 0, 1, 4, 5));
        storeLanes(at[3] + k, __builtin_shufflevector(AB, CD, 2, 3, 6, 7));
    }
    if constexpr (K % 4 >= 2) {
        storeHalves(at[0] + k, at[1] + k, __builtin_shufflevector(from[k], from[k + 1], 0, 4, 1, 5));
        storeHalves(at[2] + k, at[3] + k, __builtin_shufflevector(from[k], from[k + 1], 2, 6, 3, 7));
        k += 2;
    }
    if constexpr (K % 2 == 1) {
        for (int lane = 0; lane < 4; ++lane) at[lane][k] = from[k][lane];
    }
}

template <int K> VOKM_INLINE void turnBack(double* const* at, const Pack<double>* from, bool)
{
    int k = 0;
    for (; k + 2 <= K; k += 2) {
        storeLanes(at[0] + k, __builtin_shufflevector(from[k], from[k + 1], 0, 2));
        storeLanes(at[1] + k, __builtin_shufflevector(from[k], from[k + 1], 1, 3));
    }
    if constexpr (K % 2 == 1) {
        at[0][k] = from[k][0];
        at[1][k] = from[k][1];
    }
}

/// A pointer table read once: the element pointers of R x C objects, behind the shift, in the kernel's own memory.
template <class T, Code theCode, int R, int C> struct Planes {
    using element = T;
    static constexpr Code code = theCode;
    static constexpr bool array = isArray(code), dense = false;
    T* at[R * C];
    i32 stride0;

    VOKM_INLINE explicit Planes(const TableView<T, theCode>& view) : stride0(view.stride0)
    {
        for (int k = 0; k < R * C; ++k) at[k] = byBytes(view.table[k], view.shift);
    }
    VOKM_INLINE auto object(i32 i, Shape shape) const
    {
        constexpr bool transposed = isTransposed(theCode);
        return TableObject<T, transposed>{at, array ? i64(i) * stride0 : 0, transposed ? shape.rows : shape.cols};
    }
};

/// Dense R x C objects that follow one another without a gap: every distance a constant.
template <class T, Code theCode, int R, int C> struct TightView {
    using element = T;
    static constexpr Code code = theCode;
    static constexpr bool array = true, dense = true;
    static constexpr i32 stride0 = R * C * sizeof(T), stride1 = C * sizeof(T), stride2 = sizeof(T);
    T* base;

    VOKM_INLINE auto object(i32 i, Shape) const
    {
        return stridedObject<T, theCode, true>(byBytes(base, i64(i) * stride0), stride1, stride2);
    }
};
/// Whether an operand is an array of such objects, and then its view as one.
template <int R, int C, class View> VOKM_INLINE bool isTight(const View&) { return false; }
template <int R, int C, class T, Code code>
    requires(isArray(code) && code != Code::ca)
VOKM_INLINE bool isTight(const StrideView<T, code, true>& view)
{
    using Tight = TightView<T, code, R, C>;
    return view.stride0 == Tight::stride0 && (R == 1 || view.stride1 == Tight::stride1);
}
template <class View> constexpr bool mayBeTight = false;
template <class T, Code code>
constexpr bool mayBeTight<StrideView<T, code, true>> = isArray(code) && code != Code::ca;
template <int R, int C, class T, Code code> VOKM_INLINE auto asTight(const StrideView<T, code, true>& view)
{
    return TightView<T, code, R, C>{view.base};
}

/// The view as a walk over R x C objects uses it.
template <int R, int C, class View> VOKM_INLINE auto pinned(const View& view) { return view; }
template <int R, int C, class T, Code code> VOKM_INLINE auto pinned(const TableView<T, code>& view)
{
    return Planes<T, code, R, C>(view);
}
template <int R, int C, class View> using Pinned = decltype(pinned<R, C>(std::declval<View>()));

/// Whether the same element of neighbouring objects is neighbouring in memory: one plane per element. With contiguous rows
/// that would be windows that slide over one run; they are loaded as any dense objects.
template <class View> constexpr bool mayBePlanar = View::array && !View::dense && requires(View view) { view.stride0; };
template <class View> VOKM_INLINE bool planar(const View& view)
{
    if constexpr (mayBePlanar<View>) {
        return view.stride0 == static_cast<i32>(sizeof(typename View::element));
    } else {
        return false;
    }
}

/// Place by place: g++ copies a longer array by a string instruction, which takes as long as a short loop over the planes.
template <class Place, int K> VOKM_INLINE void copyPlaces(Place (&to)[K], const Place (&from)[K])
{
    unrolled<K>([&](auto k) VOKM_INLINE_LAMBDA { to[decltype(k)::value] = from[decltype(k)::value]; });
}

/// The K elements of object i of planes, by value for a loop over the objects; of a single operand, its one object.
template <int K, class View> struct PlaneLanes {
    using T = std::remove_const_t<typename View::element>;
    std::conditional_t<View::array, typename View::element*, T> of[K];
    VOKM_INLINE explicit PlaneLanes(const View& view)
    {
        for (int k = 0; k < K; ++k) {
            auto& element = view.object(0, Shape{1, K})(0, k);
            if constexpr (View::array) {
                of[k] = &element;
            } else {
                of[k] = element;
            }
        }
    }
    VOKM_INLINE PlaneLanes(const PlaneLanes& other) { copyPlaces(of, other.of); }
    VOKM_INLINE auto& operator()(int k, i64 i) const
    {
        if constexpr (View::array) {
            return of[k][i];
        } else {
            return of[k];
        }
    }
};

template <class T, Unit unit> VOKM_INLINE auto behind(StridedObject<T, unit> object, i64 bytes)
{
    object.base = byBytes(object.base, bytes);
    return object;
}
template <class T, bool transposed> VOKM_INLINE auto behind(TableObject<T, transposed> object, i64 bytes)
{
    object.shift += bytes;
    return object;
}
/// An operand that is known to be planar.
template <class View> struct PlanarView {
    using element = typename View::element;
    static constexpr Code code = View::code;
    static constexpr bool array = true, dense = false;
    static constexpr i32 stride0 = sizeof(element);
    View view;
    VOKM_INLINE auto object(i32 i, Shape shape) const { return behind(view.object(0, shape), i64(i) * stride0); }
};
template <class View> constexpr bool isPlanarView = false;
template <class View> constexpr bool isPlanarView<PlanarView<View>> = true;

/// Whether no plane of `count` results touches a plane of a source, or another one of the results. Single operands are read
/// before the loop.
template <int K, int M, class S, class D>
VOKM_INLINE bool lanesApart(const PlaneLanes<K, S>& src, const PlaneLanes<M, D>& dst, i32 count)
{
    using Address = std::uintptr_t;
    const Address bytes = Address(count) * sizeof(typename D::element);
    const auto apart = [bytes](const void* a, const void* b) VOKM_INLINE_LAMBDA {
        return reinterpret_cast<Address>(a) - reinterpret_cast<Address>(b) + bytes - 1 > 2 * bytes - 2;
    };
    bool all = true;
    for (int m = 0; m < M; ++m) {
        if constexpr (S::array) {
            for (int k = 0; k < K; ++k) all &= apart(dst.of[m], src.of[k]);
        }
        for (int other = 0; other < m; ++other) all &= apart(dst.of[m], dst.of[other]);
    }
    return all;
}

/// Whether the objects of K elements follow one another without a gap.
template <int K, class View> VOKM_INLINE bool packedObjects(const View& view)
{
    if constexpr (requires { view.stride0; }) {
        return view.stride0 == K * static_cast<i32>(sizeof(typename View::element));
    } else {
        return false;
    }
}

/// The first elements of a pack's objects, stored shape R x C.
template <int R, int C, class View, class T> VOKM_INLINE void firstElements(T** at, const View& view, i32 i)
{
    constexpr Shape logical = isTransposed(View::code) ? Shape{C, R} : Shape{R, C};
    at[0] = &view.object(i, logical)(0, 0);
    for (int lane = 1; lane < packLanes<std::remove_const_t<T>>; ++lane) {
        if constexpr (requires { view.stride0; }) {
            at[lane] = byBytes(at[lane - 1], view.stride0);
        } else {
            at[lane] = &view.object(i + lane, logical)(0, 0);
        }
    }
}

/// Calls whole(first elements of the lanes' objects) for a pack of dense objects whose rows follow one another, else
/// byRow(row's first elements, row) for each row.
template <int R, int C, class View, class Whole, class ByRow>
VOKM_INLINE void overRuns(const View& view, i32 i, Whole whole, ByRow byRow)
{
    using T = typename View::element;
    constexpr int N = packLanes<std::remove_const_t<T>>;
    T* at[N];
    firstElements<R, C>(at, view, i);
    if (R == 1 || view.stride1 == C * static_cast<i32>(sizeof(T))) return whole(at);
    for (int r = 0; r < R; ++r) {
        byRow(at, r);
        for (int lane = 0; lane < N; ++lane) at[lane] = byBytes(at[lane], view.stride1);
    }
}

template <int R, int C, class T, class View> VOKM_INLINE void loadStored(Pack<T> (&tile)[R][C], const View& view, i32 i)
{
    const auto fetch = [](auto* const* at) VOKM_INLINE_LAMBDA {
        Fetch<T> from;
        for (int lane = 0; lane < packLanes<T>; ++lane) from.at[lane] = at[lane];
        return from;
    };
    overRuns<R, C>(
        view, i, [&](auto* const* at) VOKM_INLINE_LAMBDA { turnRuns<R * C>(&tile[0][0], fetch(at), packedObjects<R * C>(view)); },
        [&](auto* const* at, int r) VOKM_INLINE_LAMBDA { turnRuns<C>(tile[r], fetch(at), false); });
}

/// Element (r, c) of the objects of a pack, lane by lane.
template <class V, class View> VOKM_INLINE V gather(const View& view, i32 i, Shape shape, int r, int c)
{
    return fromLanes<V>([&](int lane) VOKM_INLINE_LAMBDA { return view.object(i + lane, shape)(r, c); });
}

/// Loads object i, or the pack of objects from i on; a single operand goes to every lane.
template <class V, int R, int C, class View> VOKM_INLINE void load(V (&tile)[R][C], const View& view, i32 i)
{
    constexpr Shape shape{R, C};
    if constexpr (!isPack<V> || !View::array) {
        const auto object = view.object(i, shape);
        for (int r = 0; r < R; ++r) {
            for (int c = 0; c < C; ++c) tile[r][c] = splat<V>(object(r, c));
        }
    } else if constexpr (View::code == Code::ca) {
        const V value = gather<V>(view, i, shape, 0, 0);
        for (int r = 0; r < R; ++r) {
            for (int c = 0; c < C; ++c) tile[r][c] = value;
        }
    } else if (planar(view)) {
        const auto object = view.object(i, shape);
        for (int r = 0; r < R; ++r) {
            for (int c = 0; c < C; ++c) tile[r][c] = loadLanes<V>(&object(r, c));
        }
    } else if constexpr (View::dense) {
        if constexpr (isTransposed(View::code)) {
            V stored[C][R];
            loadStored<C, R, Element<V>>(stored, view, i);
            for (int r = 0; r < R; ++r) {
                for (int c = 0; c < C; ++c) tile[r][c] = stored[c][r];
            }
        } else {
            loadStored<R, C, Element<V>>(tile, view, i);
        }
    } else {
        for (int r = 0; r < R; ++r) {
            for (int c = 0; c < C; ++c) tile[r][c] = gather<V>(view, i, shape, r, c);
        }
    }
}

/// Stores object i, or the pack of objects from i on.
template <class V, int R, int C, class View> VOKM_INLINE void store(const V (&tile)[R][C], const View& view, i32 i)
{
    constexpr Shape shape{R, C};
    if constexpr (!isPack<V>) {
        const auto object = view.object(i, shape);
        for (int r = 0; r < R; ++r) {
            for (int c = 0; c < C; ++c) object(r, c) = tile[r][c];
        }
    } else if (planar(view)) {
        const auto object = view.object(i, shape);
        for (int r = 0; r < R; ++r) {
            for (int c = 0; c < C; ++c) storeLanes(&object(r, c), tile[r][c]);
        }
    } else if constexpr (View::dense) {
        overRuns<R, C>(
            view, i, [&](auto* const* at) VOKM_INLINE_LAMBDA { turnBack<R * C>(at, &tile[0][0], packedObjects<R * C>(view)); },
            [&](auto* const* at, int r) VOKM_INLINE_LAMBDA { turnBack<C>(at, tile[r], false); });
    } else {
        for (int lane = 0; lane < lanesIn<V>; ++lane) {
            const auto object = view.object(i + lane, shape);
            for (int r = 0; r < R; ++r) {
                for (int c = 0; c < C; ++c) object(r, c) = tile[r][c][lane];
            }
        }
    }
}

template <int n, class A, class B> VOKM_INLINE auto fetchProducts(const A& a, const B& b, i32 i)
{
    FetchProducts<std::remove_const_t<typename A::element>> from;
    firstElements<1, n>(from.a.at, a, i);
    firstElements<1, n>(from.b.at, b, i);
    return from;
}

/// The products of the elements of two vectors, for object i or the pack from i on.
template <class V, int n, class A, class B> VOKM_INLINE void loadProducts(V (&products)[n], const A& a, const B& b, i32 i)
{
    using T = Element<V>;
    if constexpr (isPack<V> && A::array && B::array && A::dense && B::dense) {
        if (!planar(a) && !planar(b)) {
            const FetchProducts<T> from = fetchProducts<n>(a, b, i);
            return turnRuns<n>(products, from, packedObjects<n>(a) && packedObjects<n>(b));
        }
    }
    V x[1][n], y[1][n];
    load(x, a, i);
    load(y, b, i);
    for (int j = 0; j < n; ++j) products[j] = x[0][j] * y[0][j];
}

/// Names the value type of a pass over the objects.
template <class V> struct As {
    using type = V;
};

/// Walks the objects in ascending order: body(As<V>, i) for packs as long as there are whole ones (if wanted), then one by one.
template <class T, class Body> VOKM_INLINE void walk(i32 count, bool packs, Body body)
{
    i32 i = 0;
    if (packs) {
        for (; i + packLanes<T> <= count; i += packLanes<T>) body(As<Pack<T>>{}, i);
    }
    for (; i < count; ++i) body(As<T>{}, i);
}

}  // namespace vokm
