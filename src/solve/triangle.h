// Lower triangles of square matrices: the elements (r, c) with c <= r, in tiles of which nothing else is used. Above the
// diagonal memory belongs to the caller: it is never written, and read only inside objects whose rows follow one another, where
// it lies between elements of the triangle. A pointer table's entries up there are not even followed, so that they may repeat
// those below or point nowhere.
#pragma once

#include "../frame/fixed.h"
#include "../frame/overlap.h"
#include "unrolled.h"

namespace vokm {

/// A pointer table's lower triangle, read once: a table of its own, n*(n+1)/2 entries, row behind row.
template <class T, Code theCode, int n> struct LowerPlanes {
    using element = T;
    static constexpr Code code = theCode;
    static constexpr bool array = isArray(code), dense = false;
    static constexpr int entries = n * (n + 1) / 2;
    T* at[entries];
    i32 stride0;

    struct Object {
        T* const* at;
        i64 distance;
        VOKM_INLINE T& operator()(int r, int c) const { return *byBytes(at[r * (r + 1) / 2 + c], distance); }
    };

    VOKM_INLINE explicit LowerPlanes(const TableView<T, theCode>& view) : stride0(view.stride0)
    {
        for (int r = 0, k = 0; r < n; ++r) {
            for (int c = 0; c <= r; ++c) at[k++] = byBytes(view.table[r * n + c], view.shift);
        }
    }
    VOKM_INLINE Object object(i32 i, Shape) const { return {at, array ? i64(i) * stride0 : 0}; }
    /// As a vector to an object, for the questions of overlap.
    VOKM_INLINE auto shaped() const
    {
        using Vector = TableView<T, array ? Code::va : Code::v>;
        return Shaped<Vector>{{at, 0, stride0}, {1, entries}};
    }
};

/// The view as a walk over lower triangles uses it, and as the questions of overlap see it.
template <int n, class View> VOKM_INLINE auto lowerPart(const View& view) { return view; }
template <int n, class T, Code code> VOKM_INLINE auto lowerPart(const TableView<T, code>& view)
{
    return LowerPlanes<T, code, n>(view);
}
template <int n, class View> VOKM_INLINE auto shapedLower(const View& view)
{
    if constexpr (requires { view.shaped(); }) {
        return view.shaped();
    } else {
        return Shaped<View>{view, {n, n}};
    }
}

/// Calls row(r, first elements of row r of the lanes' objects), r as At<r>.
template <int n, class View, class Row> VOKM_INLINE void overLowerRuns(const View& view, i32 i, Row row)
{
    using T = typename View::element;
    constexpr int N = packLanes<std::remove_const_t<T>>;
    T* at[N];
    firstElements<n, n>(at, view, i);
    over(At<0>{}, At<n>{}, [&](auto r) VOKM_INLINE_LAMBDA {
        row(r, at);
        for (int lane = 0; lane < N; ++lane) at[lane] = byBytes(at[lane], view.stride1);
    });
}

template <class T, int n, class View> VOKM_INLINE void loadLowerRuns(Pack<T> (&tile)[n][n], const View& view, i32 i)
{
    Fetch<T> from;
    if (view.stride1 == n * static_cast<i32>(sizeof(T))) {
        firstElements<n, n>(from.at, view, i);
        return turnRuns<n * n>(&tile[0][0], from, false);
    }
    overLowerRuns<n>(view, i, [&](auto r, auto* const* at) VOKM_INLINE_LAMBDA {
        for (int lane = 0; lane < packLanes<T>; ++lane) from.at[lane] = at[lane];
        turnRuns<r + 1>(tile[r], from, false);
    });
}

/// Loads the lower triangle of object i, or of the pack of objects from i on; a single operand goes to every lane.
template <class V, int n, class View> VOKM_INLINE void loadLower(V (&tile)[n][n], const View& view, i32 i)
{
    constexpr Shape shape{n, n};
    const auto each = [&](auto element) VOKM_INLINE_LAMBDA {
        for (int r = 0; r < n; ++r) {
            for (int c = 0; c <= r; ++c) tile[r][c] = element(r, c);
        }
    };
    if constexpr (!isPack<V> || !View::array) {
        const auto object = view.object(i, shape);
        each([&](int r, int c) VOKM_INLINE_LAMBDA { return splat<V>(object(r, c)); });
    } else if (planar(view)) {
        const auto object = view.object(i, shape);
        each([&](int r, int c) VOKM_INLINE_LAMBDA { return loadLanes<V>(&object(r, c)); });
    } else if constexpr (View::dense) {
        loadLowerRuns<Element<V>>(tile, view, i);
    } else {
        each([&](int r, int c) VOKM_INLINE_LAMBDA { return gather<V>(view, i, shape, r, c); });
    }
}

/// Stores the lower triangle of object i, or of the pack of objects from i on.
template <class V, int n, class View> VOKM_INLINE void storeLower(const V (&tile)[n][n], const View& view, i32 i)
{
    constexpr Shape shape{n, n};
    const auto each = [&](const auto& object, auto put) VOKM_INLINE_LAMBDA {
        for (int r = 0; r < n; ++r) {
            for (int c = 0; c <= r; ++c) put(object(r, c), tile[r][c]);
        }
    };
    if constexpr (!isPack<V>) {
        each(view.object(i, shape), [](auto& to, V x) VOKM_INLINE_LAMBDA { to = x; });
    } else if (planar(view)) {
        each(view.object(i, shape), [](auto& to, V x) VOKM_INLINE_LAMBDA { storeLanes(&to, x); });
    } else if constexpr (View::dense) {
        overLowerRuns<n>(view, i, [&](auto r, auto* const* at) VOKM_INLINE_LAMBDA { turnBack<r + 1>(at, tile[r], false); });
    } else {
        for (int lane = 0; lane < lanesIn<V>; ++lane) {
            each(view.object(i + lane, shape), [&](auto& to, V x) VOKM_INLINE_LAMBDA { to = x[lane]; });
        }
    }
}

/// The lower triangle of a single operand, held over the walk once as scalars and once spread over the lanes.
template <class T, int n> struct HeldLower {
    T one[n][n];
    Pack<T> spread[n][n];
    template <class View> VOKM_INLINE HeldLower(const View& view, bool packs)
    {
        loadLower(one, view, 0);
        if (packs) loadLower(spread, view, 0);
    }
    template <class V> VOKM_INLINE const auto& as() const
    {
        if constexpr (isPack<V>) {
            return spread;
        } else {
            return one;
        }
    }
};

}  // namespace vokm
