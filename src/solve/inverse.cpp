// vokmInvert. Which method serves which size, element type and kernel stands in `methodsOf` below; the methods differ in the
// last bits, in their thresholds and in what a failure leaves behind.
#include "inverse.h"

#include "../frame/fixed.h"
#include "../frame/plane_blocks.h"
#include "inverse_bordered.h"
#include "scratch_elimination.h"

namespace vokm {

/// A method for packs and single objects that works on a tile: nothing is stored unless it succeeds.
template <class Tiled, int n> struct OnTile : Tiled {
    template <class S, class D> VOKM_INLINE static vokStatus one(const S& src, const D& dst)
    {
        using T = std::decay_t<decltype(dst(0, 0))>;
        T a[n][n];
        for (int r = 0; r < n; ++r) {
            for (int c = 0; c < n; ++c) a[r][c] = src(r, c);
        }
        if (!Tiled::invert(a)) return vokStatusSingular;
        for (int r = 0; r < n; ++r) {
            for (int c = 0; c < n; ++c) dst(r, c) = a[r][c];
        }
        return vokStatusOk;
    }
};

/// Columns of the four rows from `first` on, for one object with dense rows.
template <int first, int n, class S> VOKM_INLINE void loadColumns(Pack<float> (&column)[n], const S& src)
{
    Fetch<float> rows;
    for (int i = 0; i < 4; ++i) rows.at[i] = &src(first + i, 0);
    turnRuns<n>(column, rows, false);
}

/// 32f, dense rows, size 4: Cramer's rule.
struct ByCramer {
    template <class V> VOKM_INLINE static bool invert(V (&a)[4][4])
    {
        Quad<V> column[4], row[4];
        for (int c = 0; c < 4; ++c) column[c] = {{a[0][c], a[1][c], a[2][c], a[3][c]}};
        if (!cramer(column, splat<V>(sizeThreshold<float>(4)), row)) return false;
        for (int r = 0; r < 4; ++r) {
            for (int c = 0; c < 4; ++c) a[r][c] = row[r].lane[c];
        }
        return true;
    }
    /// One object in registers: its columns, then the rows of its inverse.
    template <class S> VOKM_INLINE static bool rows(const S& src, Pack<float> (&row)[4])
    {
        Pack<float> column[4];
        loadColumns<0>(column, src);
        return cramer(column, sizeThreshold<float>(4), row);
    }
    template <class D> VOKM_INLINE static void store(const Pack<float> (&row)[4], const D& dst)
    {
        for (int r = 0; r < 4; ++r) storeLanes(&dst(r, 0), row[r]);
    }
    template <class S, class D> VOKM_INLINE static vokStatus one(const S& src, const D& dst)
    {
        Pack<float> row[4];
        if (!rows(src, row)) return vokStatusSingular;
        store(row, dst);
        return vokStatusOk;
    }
    /// Two objects: both are tested before either is stored.
    template <class S, class D> VOKM_INLINE static vokStatus two(const S& src, const S& nextSrc, const D& dst, const D& nextDst)
    {
        Pack<float> row[4], nextRow[4];
        if (!rows(src, row) || !rows(nextSrc, nextRow)) return vokStatusSingular;
        store(row, dst);
        store(nextRow, nextDst);
        return vokStatusOk;
    }
};

/// 32f, dense rows, size 5 (h = 1) and 6 (h = 2): one and two elimination steps, then Cramer's rule.
template <int h> struct ByBorders {
    static constexpr int n = 4 + h;

    struct InRegisters {
        template <class Search, class V> VOKM_INLINE void exchanged(const Search& search, V (&top)[h][n], int s) const
        {
            VOKM_UNROLL for (int t = s; t < h; ++t) search.exchange([&](int c) VOKM_INLINE_LAMBDA -> V& { return top[t][c]; });
        }
    };
    template <class V> [[gnu::noinline]] static bool invert(V (&a)[n][n])
    {
        Bordered<Quad<V>, h> m;
        VOKM_UNROLL for (int c = 0; c < n; ++c)
        {
            VOKM_UNROLL for (int t = 0; t < h; ++t) m.top[t][c] = a[t][c];
            m.column[c] = {{a[h][c], a[h + 1][c], a[h + 2][c], a[h + 3][c]}};
        }
        if (!m.invert(InRegisters())) return false;
        VOKM_UNROLL for (int i = 0; i < n; ++i)
        {
            VOKM_UNROLL for (int t = 0; t < h; ++t) a[i][t] = m.inverse[i].head[t];
            VOKM_UNROLL for (int k = 0; k < 4; ++k) a[i][h + k] = m.inverse[i].tail.lane[k];
        }
        return true;
    }

    /// One object keeps its first rows in dst while it works, which shows when it fails. Deliberate: at size 6 row 1 of the
    /// source is read while it is written to dst with its columns exchanged, so in place an element is lost.
    template <class S, class D> struct InDestination {
        S src;
        D dst;
        template <class Search> void exchanged(const Search& search, float (&top)[h][n], int s) const
        {
            std::swap(top[s][s], top[s][search.won]);
            for (int c = 0; c < n; ++c) dst(s, c) = top[s][c];
            if (h == 1 || s == 1) return;
            for (int c = 0; c < n; ++c) dst(1, c) = top[h - 1][c] = src(1, c == 0 ? search.won : c == search.won ? 0 : c);
        }
    };
    template <class S, class D> VOKM_INLINE static vokStatus one(const S& src, const D& dst)
    {
        Bordered<Pack<float>, h> m;
        loadColumns<h>(m.column, src);
        for (int c = 0; c < n; ++c) dst(0, c) = m.top[0][c] = src(0, c);
        if (!m.invert(InDestination<S, D>{src, dst})) return vokStatusSingular;
        for (int i = 0; i < n; ++i) {
            for (int t = 0; t < h; ++t) dst(i, t) = m.inverse[i].head[t];
            storeLanes(&dst(i, h), m.inverse[i].tail);
        }
        return vokStatusOk;
    }
};

/// The methods of a kernel for sizes 3 to 6.
template <class Of3, class Of4, class Of5, class Of6> struct Methods {
    template <int n>
    using of = std::conditional_t<n == 3, Of3, std::conditional_t<n == 4, Of4, std::conditional_t<n == 5, Of5, Of6>>>;
};

// clang-format off
//                                  size 3                                     size 4                      size 5                     size 6
using OneDense32   = Methods<OnTile<ByAdjugate<Adjugate::estimate>, 3>, ByCramer,                 ByBorders<1>,             ByBorders<2>>;
using ArrayDense32 = Methods<OnTile<ByAdjugate<Adjugate::array32>, 3>,  ByCramer,                 ByBorders<1>,             ByBorders<2>>;
using Dense64      = Methods<OnTile<ByAdjugate<Adjugate::dense64>, 3>,  OnTile<ByHalves<2>, 4>,   OnTile<ByLaplace, 5>,   OnTile<ByLaplace, 6>>;
using AnyStride    = Methods<OnTile<ByAdjugate<Adjugate::any>, 3>,      OnTile<ByHalves<>, 4>,    OnTile<ByLaplace, 5>,   OnTile<ByLaplace, 6>>;
// clang-format on

/// 32f: one matrix with dense rows, and lists of them, take OneDense32, arrays of them in the stride layout ArrayDense32 (their
/// 4x4 also in pairs); 64f with dense rows takes Dense64; any stride2 and pointer tables take AnyStride in both types.
template <class T, Variant variant, bool array>
using MethodsOf = std::conditional_t<variant != Variant::plain && variant != Variant::L, AnyStride,
    std::conditional_t<sizeof(T) == 8, Dense64, std::conditional_t<array && variant == Variant::plain, ArrayDense32, OneDense32>>>;

}  // namespace vokm

// The routines of one size for dense rows under their documented names.
#define INVERT_SIZE(ty, T, suffix, Method)                                                                                 \
    extern "C" VOKM_NAMED ownvokmInvert_m_##ty##suffix(vokm::DenseObject<const T> src, vokm::DenseObject<T> dst)           \
    {                                                                                                                      \
        return vokm::Method::one(src, dst);                                                                                \
    }                                                                                                                      \
    namespace vokm {                                                                                                       \
    inline vokStatus named(Method, DenseObject<const T> src, DenseObject<T> dst) { return ownvokmInvert_m_##ty##suffix(src, dst); } \
    }
INVERT_SIZE(32f, float, _3x3, OneDense32::of<3>)
INVERT_SIZE(32f, float, _4x4, OneDense32::of<4>)
INVERT_SIZE(32f, float, _5x5, OneDense32::of<5>)
INVERT_SIZE(32f, float, _6x6, OneDense32::of<6>)
INVERT_SIZE(64f, double, _3x3, Dense64::of<3>)
INVERT_SIZE(64f, double, _4x4, Dense64::of<4>)
INVERT_SIZE(64f, double, _5x5_PX, Dense64::of<5>)
INVERT_SIZE(64f, double, _6x6_PX, Dense64::of<6>)
extern "C" VOKM_NAMED ownvokmInvert_m_32f_4x4_loop2(vokm::DenseObject<const float> src, vokm::DenseObject<const float> nextSrc,
                                                    vokm::DenseObject<float> dst, vokm::DenseObject<float> nextDst)
{
    return vokm::ByCramer::two(src, nextSrc, dst, nextDst);
}

namespace vokm {

template <class Method, class S, class D> [[gnu::noinline]] vokStatus unnamed(S src, D dst) { return Method::one(src, dst); }

/// One object, by a function of its own: pack loops leave it out of line.
template <class Method, class S, class D> VOKM_INLINE vokStatus invertOne(const S& src, const D& dst)
{
    if constexpr (requires { named(Method(), src, dst); }) {
        return named(Method(), src, dst);
    } else {
        return unnamed<Method>(src, dst);
    }
}

/// Whether a 4x4 array goes in pairs: everything aligned to 16, and rows of 16 bytes.
template <class S, class D> bool inPairs(const S& src, const D& dst)
{
    const auto bits = reinterpret_cast<std::uintptr_t>(src.base) | reinterpret_cast<std::uintptr_t>(dst.base) |
                      std::uintptr_t(src.stride0) | std::uintptr_t(dst.stride0);
    return bits % 16 == 0 && (src.stride1 | dst.stride1) == 16;
}

/// The leading objects of arrays with a plane for each element; returns how many are done.
template <class Method, int n, class T, class S, class D> [[gnu::noinline]] i32 invertPlanes(S src, D dst, i32 count)
{
    constexpr Shape shape{n, n};
    const auto elements = [=](const auto& view) VOKM_INLINE_LAMBDA {
        return [object = view.object(0, shape)](int k) VOKM_INLINE_LAMBDA -> auto& { return object(k / n, k % n); };
    };
    const PlaneBases<const T, n * n> from(elements(src));
    const PlaneBases<T, n * n> to(elements(dst));
    if (!planesFree(count, Shaped<D>{dst, shape}, Shaped<S>{src, shape}, from, to)) return 0;
    const auto load = [](T (&a)[n][n], auto get) VOKM_INLINE_LAMBDA {
        unrolled<n * n>([&](auto k) VOKM_INLINE_LAMBDA { a[k.value / n][k.value % n] = get(k.value); });
    };
    const auto singular = [=](auto get, auto keep) VOKM_INLINE_LAMBDA {
        T a[n][n];
        load(a, get);
        const T det = Method::determinant(a);
        keep(0, det);
        return Method::singular(det);
    };
    const auto divide = [=](auto get, auto kept, auto put) VOKM_INLINE_LAMBDA {
        T a[n][n];
        load(a, get);
        Method::divide(a, kept(0));
        unrolled<n * n>([&](auto k) VOKM_INLINE_LAMBDA { put(k.value, a[k.value / n][k.value % n]); });
    };
    return overPlanes<1>(from, to, count, singular, divide);
}

template <class Method, int n, bool pairs, class T, class S, class D> [[gnu::noinline]] vokStatus invertFixed(S src, D dst, i32 count)
{
    constexpr Shape shape{n, n};
    i32 done = 0;
    if constexpr (mayBePlanar<S> && mayBePlanar<D> && n == 3) {  // the method of this size has its two steps
        if (planar(src) && planar(dst)) done = invertPlanes<Method, n, T>(src, dst, count);
        if (done == count) return vokStatusOk;
    }
    const auto guard = lazyGuard<T>(count, [&]() VOKM_INLINE_LAMBDA { return packGuard(count, Shaped<D>{dst, shape}, Shaped<S>{src, shape}); });
    const auto safe = [&](i32 i) VOKM_INLINE_LAMBDA {
        if constexpr (std::is_same_v<Method, ByBorders<2>>) return guard(i) && objectsApart(i, Shaped<D>{dst, shape}, Shaped<S>{src, shape});
        return guard(i);
    };
    const auto run = [&](auto from, auto to) VOKM_INLINE_LAMBDA {
        const auto pack = [&](i32 i) VOKM_INLINE_LAMBDA {
            Pack<T> a[n][n];
            load(a, from, i);
            if (!Method::invert(a)) return false;
            store(a, to, i);
            return true;
        };
        const auto one = [&](i32 i) VOKM_INLINE_LAMBDA -> vokStatus {
            if constexpr (pairs) {
                if (i % 2 == 1) return vokStatusOk;  // went with the object before it
                if (i + 1 < count) {
                    return ownvokmInvert_m_32f_4x4_loop2(from.object(i, shape), from.object(i + 1, shape), to.object(i, shape),
                                                         to.object(i + 1, shape));
                }
            }
            return invertOne<Method>(from.object(i, shape), to.object(i, shape));
        };
        return walkFailing<T>(done, count, safe, pack, one);
    };
    if constexpr (mayBeTight<S> && mayBeTight<D>) {
        if (isTight<n, n>(src) && isTight<n, n>(dst)) return run(asTight<n, n>(src), asTight<n, n>(dst));
    }
    return run(pinned<n, n>(src), pinned<n, n>(dst));
}

/// One object of any size but 1, by cofactors: each is the determinant of what remains without a row and a column, by
/// elimination in the buffer with the threshold t of the whole. Deliberate: a minor that vanishes counts as t, not as 0.
template <class T, class S, class D> vokStatus invertGeneral(S src, T* buffer, D dst, i32 n)
{
    const Workspace<T> a(buffer, n);
    const T t = sizeThreshold<T>(n);
    const auto byReciprocal = [](T pivot) { return [r = T(1) / pivot](T x) { return x * r; }; };
    // Copies the source without a row and a column; n leaves out none.
    const auto copyBut = [&](i32 row, i32 column) {
        for (i32 r = 0, w = 0; r < n; ++r) {
            if (r == row) continue;
            T* to = a.w + i64(w) * n;
            for (i32 c = 0; c < n; ++c) {
                if (c != column) *to++ = src(r, c);
            }
            a.p[w] = w;
            ++w;
        }
    };
    copyBut(n, n);
    const Eliminated<T> whole = eliminateInScratch(a, n, t, byReciprocal);
    if (!whole.complete) {
        buffer[0] = 0;
        return vokStatusSingular;
    }
    const T det = whole.product * (whole.sign * a.at(n - 1, n - 1));
    if (t >= magnitude(det)) return vokStatusSingular;
    const T rd = T(1) / det;
    for (i32 i = 0; i < n; ++i) {
        for (i32 j = 0; j < n; ++j) {
            copyBut(i, j);
            Eliminated<T> part = eliminateInScratch(a, n - 1, t, byReciprocal);
            if (!part.complete) part.product = t;
            const T last = a.at(n - 2, n - 2);
            const T minor = magnitude(last) > t ? part.product * (last * part.sign) : t;
            dst(j, i) = (minor * rd) * ((i + j) % 2 == 0 ? T(1) : T(-1));
        }
    }
    return vokStatusOk;
}

}  // namespace vokm

// The general routines under their documented names: one for dense rows, one for any stride2, one for pointer tables.
#define INVERT_GENERAL(ty, T, suffix, Object)                                                                            \
    extern "C" VOKM_NAMED ownvokmInvert_m_##ty##suffix(vokm::Object<const T> src, T* buffer, vokm::Object<T> dst, int32_t n) \
    {                                                                                                                    \
        return vokm::invertGeneral<T>(src, buffer, dst, n);                                                              \
    }                                                                                                                    \
    namespace vokm {                                                                                                     \
    static vokStatus invertAnySize(Object<const T> src, T* buffer, Object<T> dst, i32 n)                                 \
    {                                                                                                                    \
        return ownvokmInvert_m_##ty##suffix(src, buffer, dst, n);                                                        \
    }                                                                                                                    \
    }
#define INVERT_GENERALS(ty, T)                 \
    INVERT_GENERAL(ty, T, _com, DenseObject)   \
    INVERT_GENERAL(ty, T, _S2_com, AnyObject)  \
    INVERT_GENERAL(ty, T, _P_com, PointedObject)
INVERT_GENERALS(32f, float)
INVERT_GENERALS(64f, double)

namespace vokm {

template <class T, Variant variant, class S, class D>
VOKM_INLINE vokStatus invert(const S& src, T* buffer, const D& dst, i32 n, i32 count)
{
    const auto fixed = [&](auto size) VOKM_INLINE_LAMBDA -> vokStatus {
        constexpr int k = decltype(size)::value;
        using Method = typename MethodsOf<T, variant, S::array>::template of<k>;
        if constexpr (!S::array) {
            return invertOne<Method>(src.object(0, Shape{k, k}), dst.object(0, Shape{k, k}));
        } else {
            if constexpr (std::is_same_v<Method, ByCramer> && variant == Variant::plain) {
                if (inPairs(src, dst)) return invertFixed<Method, k, true, T>(src, dst, count);
            }
            return invertFixed<Method, k, false, T>(src, dst, count);
        }
    };
    return onFixed(n, fixed, [&]() VOKM_INLINE_LAMBDA -> vokStatus {
        for (i32 i = 0; i < count; ++i) {
            const auto status = invertAnySize(src.object(i, Shape{n, n}), buffer, dst.object(i, Shape{n, n}), n);
            if (status) return status;
        }
        return vokStatusOk;
    });
}

/// Numbers, the matrices of size 1: no kernel and no threads. NaN is singular here.
template <const Row& row, Layout layout, class T, class S, class D>
vokStatus invertNumbers(const S& src, const Scratch<T>& buffer, const D& dst, const Sizes<1>& sizes, Count count = {1})
{
    vokStatus status;
    if constexpr (S::array) {
        status = check<row, layout, T>(src, buffer, dst, sizes, count);
    } else {
        status = check<row, layout, T>(src, buffer, dst, sizes);
    }
    if (status) return status;
    const Shape shape{1, 1};
    for (i32 i = 0; i < count.n; ++i) {
        const T a = src.object(i, shape)(0, 0);
        if (!(magnitude(a) > sizeThreshold<T>(1))) return vokStatusSingular;
        dst.object(i, shape)(0, 0) = T(1) / a;
    }
    return vokStatusOk;
}

}  // namespace vokm

#define INVERT_EXPORT(ENTER, fam, form, row, L, ty, T, exp, k1, k2, SHAPE, ...)                                        \
    vokStatus VOKM_EXPORT(fam, form, ty, exp)(SHAPE##_PARAMS(L, T, __VA_ARGS__))                                       \
    {                                                                                                                  \
        if (widthHeight == 1) return vokm::invertNumbers<row, vokm::Layout::L, T>(SHAPE##_ARGS(L, T, __VA_ARGS__));    \
        return ENTER(SHAPE##_ARGS(L, T, __VA_ARGS__));                                                                 \
    }
#define INVERT_EXPORT_SINGLE(fam, form, row, L, ty, T, exp, k1, k2, ...)                                                    \
    INVERT_EXPORT((vokm::enterSingle<row, vokm::Layout::L, T, VOKM_KERNEL(fam, form, ty, k1), VOKM_KERNEL(fam, form, ty, k2)>), \
        fam, form, row, L, ty, T, exp, k1, k2, __VA_ARGS__)
#define INVERT_EXPORT_ARRAY(fam, form, row, L, ty, T, exp, k1, k2, ...)                                                    \
    INVERT_EXPORT((vokm::enterArray<row, vokm::Layout::L, T, VOKM_KERNEL(fam, form, ty, k1), VOKM_KERNEL(fam, form, ty, k2), \
                      VOKM_WRAPPER(fam, form, ty, exp)>),                                                                  \
        fam, form, row, L, ty, T, exp, k1, k2, __VA_ARGS__)
#define INVERT_SINGLE_EXPORTS(...) VOKM_OVER_SINGLE(INVERT_EXPORT_SINGLE, INVERT_EXPORT_SINGLE, __VA_ARGS__)
#define INVERT_ARRAY_EXPORTS(...) VOKM_OVER_ARRAY(INVERT_EXPORT_ARRAY, INVERT_EXPORT_ARRAY, INVERT_EXPORT_ARRAY, __VA_ARGS__)

extern "C" {
INVERT_FORMS_SINGLE(VOKM_SINGLE_KERNELS)
INVERT_FORMS_ARRAY(VOKM_ARRAY_KERNELS)
INVERT_FORMS_SINGLE(INVERT_SINGLE_EXPORTS)
INVERT_FORMS_ARRAY(INVERT_ARRAY_EXPORTS)
}
