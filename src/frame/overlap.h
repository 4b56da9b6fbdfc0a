// Overlap: whether a pack of objects may be read before the first of them is written.
//
// Objects are finished in ascending order, one before the next is begun; that is what a caller sees whose result overlaps an
// operand. The tests take their operands by value, so that the kernel's own copies can stay in registers. A pack reads all its objects before it writes one, which gives the same results unless a result of the pack lies
// where a later object of the pack is read, or two results of the pack share memory. The guard here decides that once for the
// stride and pointer layouts, and for each pack in the list layout; where it says no, the objects go one by one.
#pragma once

#include <algorithm>

#include "pack.h"

namespace vokm {

using Address = std::uintptr_t;

/// The bytes from `low` up to, not including, `high`.
struct Extent {
    Address low, high;
    bool disjoint(const Extent& other) const { return high <= other.low || other.high <= low; }
    Extent shifted(i64 bytes) const { return {low + Address(bytes), high + Address(bytes)}; }
    Extent through(i64 bytes) const { return {low, high + Address(bytes)}; }
    Extent with(const Extent& other) const { return {std::min(low, other.low), std::max(high, other.high)}; }
};

/// An operand and the logical shape of its objects: a copy, so that the kernel's own view stays in registers.
template <class View> struct Shaped {
    View view;
    Shape shape;

    template <class Visit> void eachElement(i32 i, Visit visit) const
    {
        const auto object = view.object(i, shape);
        for (i32 r = 0; r < shape.rows; ++r) {
            for (i32 c = 0; c < shape.cols; ++c) visit(reinterpret_cast<Address>(&object(r, c)));
        }
    }
    Extent extent(i32 i) const
    {
        constexpr Address E = sizeof(typename View::element);
        if constexpr (View::code == Code::ca) {
            const auto at = reinterpret_cast<Address>(&vector().object(i, Shape{1, 1})(0, 0));
            return {at, at + E};
        } else if constexpr (requires { view.table; }) {
            Extent all{~Address(0), 0};
            eachElement(i, [&](Address at) { all = all.with({at, at + E}); });
            return all;
        } else {
            const auto object = view.object(i, shape);
            return {reinterpret_cast<Address>(&object(0, 0)),
                    reinterpret_cast<Address>(&object(shape.rows - 1, shape.cols - 1)) + E};
        }
    }
    // An array of constants as an array of vectors of one element.
    auto vector() const
    {
        if constexpr (requires { view.list; }) {
            return ListView<typename View::element, Code::va>{view.list, view.shift, 0, 0};
        } else {
            return StrideView<typename View::element, Code::va>{view.base, view.stride0, 0, 0};
        }
    }
};

/// All elements of a pack's objects, by position: whether the positions of `a` and `b` are the same or have no byte in common.
template <class A, class B> bool positionsApart(Shaped<A> a, Shaped<B> b, i64 reach)
{
    bool apart = true;
    a.eachElement(0, [&](Address x) {
        b.eachElement(0, [&](Address y) {
            apart = apart && (x == y || Extent{x, x + Address(reach)}.disjoint({y, y + Address(reach)}));
        });
    });
    return apart;
}

template <class View> constexpr bool isList = requires(const View& view) { view.list; };
template <class View> constexpr bool fixedStep = View::array && !isList<View>;

/// Whether the planes of `count` elements that begin at each position of the result follow one another without overlap, by rows
/// or by columns: each element is written once, and no order of the planes can be seen.
template <class D> [[gnu::noinline]] bool planesApart(Shaped<D> dst, i32 count)
{
    const auto object = dst.view.object(0, dst.shape);
    const auto ascending = [&](i32 outer, i32 inner, auto at) {
        Address end = 0;
        for (i32 o = 0; o < outer; ++o) {
            for (i32 i = 0; i < inner; ++i) {
                const auto place = reinterpret_cast<Address>(at(o, i));
                if (place < end) return false;
                end = place + Address(count) * sizeof(typename D::element);
            }
        }
        return true;
    };
    return ascending(dst.shape.rows, dst.shape.cols, [&](i32 r, i32 c) { return &object(r, c); }) ||
           ascending(dst.shape.cols, dst.shape.rows, [&](i32 c, i32 r) { return &object(r, c); });
}

template <class D> [[gnu::noinline]] bool resultsApart(Shaped<D> dst)
{
    constexpr i64 E = sizeof(typename D::element), N = packLanes<typename D::element>;
    const Extent one = dst.extent(0);
    const i64 step = dst.view.stride0;
    if (Address(step) >= one.high - one.low) return true;
    if (planesApart(dst, static_cast<i32>((N - 1) * step / E + 1))) return true;
    i32 position = 0, same = 0;  // a table may name one place twice
    dst.eachElement(0, [&](Address x) {
        ++position;
        dst.eachElement(0, [&](Address y) { same += x == y; });
    });
    return same == position && positionsApart(dst, dst, (N - 1) * step + E);
}

/// Whether no two elements of an object share memory: then its rows can be written in any order.
template <class D> [[gnu::noinline]] bool elementsApart(Shaped<D> dst)
{
    constexpr Address E = sizeof(typename D::element);
    if constexpr (requires { dst.view.table; }) {
        i32 apart = 0, elements = 0;
        dst.eachElement(0, [&](Address x) {
            ++elements;
            dst.eachElement(0, [&](Address y) { apart += y - x + E - 1 >= 2 * E - 1; });
        });
        return apart == elements * (elements - 1);
    } else {
        const i64 rowStep = dst.view.stride1, colStep = dst.view.stride2;
        return rowStep >= dst.shape.cols * colStep || colStep >= dst.shape.rows * rowStep;
    }
}

template <class D> VOKM_INLINE bool resultsApartIfArray(const Shaped<D>& dst)
{
    if constexpr (fixedStep<D>) {
        return resultsApart(dst);
    } else {
        return true;
    }
}

template <class D, class S> [[gnu::noinline]] bool sourceSafe(i32 count, Shaped<D> dst, Shaped<S> src)
{
    constexpr i64 E = sizeof(typename D::element), N = packLanes<typename D::element>;
    const Extent d = dst.extent(0), s = src.extent(0);
    const i64 dStep = dst.view.stride0;
    if constexpr (!S::array) {
        return d.through((count - 1) * dStep).disjoint(s);
    } else {
        const i64 sStep = src.view.stride0;
        if (d.through((count - 1) * dStep).disjoint(s.through((count - 1) * sStep))) return true;
        if (sStep != dStep) return false;
        bool apart = true;
        for (i64 lag = 1; lag < N; ++lag) apart = apart && d.disjoint(s.shifted(lag * sStep));
        if (apart) return true;
        if constexpr (S::code == Code::ca) {
            return false;
        } else {
            return positionsApart(dst, src, (N - 1) * sStep + E);
        }
    }
}

/// Whether the results of a stride or pointer layout lie apart from the source as a whole.
template <class D, class S> [[gnu::noinline]] bool wholesApart(i32 count, Shaped<D> dst, Shaped<S> src)
{
    const i64 objects = count - 1, dStep = D::array ? dst.view.stride0 : 0, sStep = S::array ? src.view.stride0 : 0;
    return dst.extent(0).through(objects * dStep).disjoint(src.extent(0).through(objects * sStep));
}

/// Whether nothing that is written is read at another place: the results lie apart from the source as a whole, or exactly on it.
/// Then no order of the walk can be seen. Lists are not searched: they count as not separate.
template <class D, class S> [[gnu::noinline]] bool separate(i32 count, Shaped<D> dst, Shaped<S> src)
{
    if constexpr (S::code == Code::c) {
        return true;
    } else if constexpr (isList<D> || isList<S>) {
        return false;
    } else {
        if (wholesApart(count, dst, src)) return true;
        const i64 dStep = D::array ? dst.view.stride0 : 0, sStep = S::array ? src.view.stride0 : 0;
        if constexpr (requires { dst.view.table == src.view.table; }) {
            return dst.view.table == src.view.table && dst.view.shift == src.view.shift && dStep == sStep && !isTransposed(S::code) &&
                   dst.shape.cols == src.shape.cols;
        } else if constexpr (requires { dst.view.base == src.view.base; } && S::code != Code::ca) {
            return dst.view.base == src.view.base && dStep == sStep && dst.view.stride1 == src.view.stride1 &&
                   dst.view.stride2 == src.view.stride2 && !isTransposed(S::code);
        } else {
            return false;
        }
    }
}

/// The list layout: the N objects from i on, each with its own address.
template <class D, class S> bool laterSourcesApart(i32 i, const Shaped<D>& dst, const Shaped<S>& src)
{
    if constexpr (S::code == Code::c) {
        return true;
    } else {
        constexpr int N = packLanes<typename D::element>;
        Extent s[N], allResults = dst.extent(i), allSources = src.extent(i);
        for (int k = 1; k < N; ++k) allResults = allResults.with(dst.extent(i + k));
        for (int k = 0; k < N; ++k) allSources = allSources.with(s[k] = src.extent(i + k));
        if (allResults.disjoint(allSources)) return true;
        for (int k = 1; k < N; ++k) {
            for (int j = 0; j < k; ++j) {
                if (!dst.extent(i + j).disjoint(s[k])) return false;
            }
        }
        return true;
    }
}

template <class D, class... S> bool packSafe(i32 i, const Shaped<D>& dst, const Shaped<S>&... src)
{
    constexpr int N = packLanes<typename D::element>;
    if constexpr (isList<D>) {
        Extent d[N];
        for (int k = 0; k < N; ++k) d[k] = dst.extent(i + k);
        for (int k = 1; k < N; ++k) {
            for (int j = 0; j < k; ++j) {
                if (!d[j].disjoint(d[k])) return false;
            }
        }
    }
    return (laterSourcesApart(i, dst, src) && ...);
}

/// Whether no object of the pack from i on shares memory with the source of its own result.
template <class D, class S> [[gnu::noinline]] bool objectsApart(i32 i, Shaped<D> dst, Shaped<S> src)
{
    for (int k = 0; k < packLanes<typename D::element>; ++k) {
        if (!dst.extent(i + k).disjoint(src.extent(i + k))) return false;
    }
    return true;
}

template <class View> constexpr bool isConstant = View::code == Code::c;

/// One answer for all packs of a call.
struct ConstantGuard {
    bool safe;
    VOKM_INLINE bool operator()(i32) const { return safe; }
};

/// The guard of a call: guard(i) says whether the pack from object i on may be taken at once. Constants by value are safe.
template <class D, class... S> VOKM_INLINE auto packGuard(i32 count, const Shaped<D>& dst, const Shaped<S>&... src)
{
    const bool enough = count >= packLanes<typename D::element>;
    if constexpr (fixedStep<D> && ((fixedStep<S> || !S::array) && ...)) {
        const auto test = [&](const auto& source) VOKM_INLINE_LAMBDA {
            if constexpr (isConstant<std::decay_t<decltype(source.view)>>) {
                return true;
            } else {
                return sourceSafe(count, dst, source);
            }
        };
        return ConstantGuard{enough && (test(src) && ...) && resultsApart(dst)};
    } else {
        const bool results = enough && resultsApartIfArray(dst);
        return [=](i32 i) { return results && packSafe(i, dst, src...); };
    }
}

/// The guard that make() returns, made only if there are enough objects for a pack: a call on one object costs nothing here.
template <class T, class Make> VOKM_INLINE auto lazyGuard(i32 count, Make make)
{
    if constexpr (std::is_same_v<decltype(make()), ConstantGuard>) {
        ConstantGuard guard{false};
        if (count >= packLanes<T>) guard = make();
        return guard;
    } else {
        return make();
    }
}

/// Walks the objects in ascending order, in packs where the guard allows.
template <class T, class Guard, class Body> VOKM_INLINE void walkGuarded(i32 count, const Guard& guard, Body body)
{
    constexpr i32 N = packLanes<T>;
    for (i32 i = 0; i < count;) {
        for (; i + N <= count && guard(i); i += N) body(As<Pack<T>>{}, i);
        for (const i32 end = std::min(count, i + N); i < end; ++i) {
            asm volatile("");  // a few objects at the most: not worth the compiler's own vectorised loop
            body(As<T>{}, i);
        }
    }
}

}  // namespace vokm
