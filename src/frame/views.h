// Views: what an operand is to the library, one small value type per operand code and layout.
//
// A view knows its own checks, whether its rows are contiguous, how to move to a share of the objects, and hands out
// objects: view.object(i, shape)(r, c) is element (r, c) of object i. A vector is a matrix of one row. Views whose rows are
// known to be contiguous are a type of their own (Dense), so that the compiler sees the element distance as a constant.
#pragma once

#include <type_traits>

#include "types.h"

namespace vokm {

template <class T> constexpr bool badStride(i32 stride) { return stride < 1 || stride % static_cast<i32>(sizeof(T)) != 0; }
template <class T> constexpr bool badShift(i32 shift) { return shift < 0 || shift % static_cast<i32>(sizeof(T)) != 0; }

/// Which of the two distances inside an object is known to be one element.
enum class Unit { none, column, row };

/// One object whose elements lie at fixed distances in bytes.
template <class T, Unit theUnit> struct StridedObject {
    static constexpr Unit unit = theUnit;
    T* base;
    i64 rowStep, colStep;
    VOKM_INLINE T& operator()(i32 r, i32 c) const
    {
        constexpr i64 E = sizeof(T);
        return *byBytes(base, r * (unit == Unit::row ? E : rowStep) + c * (unit == Unit::column ? E : colStep));
    }
};

/// One object whose elements are found through a table of pointers, each behind the same shift.
template <class T, bool transposed> struct TableObject {
    static constexpr Unit unit = Unit::none;
    T* const* table;
    i64 shift;
    i32 width;  // of a stored row
    VOKM_INLINE T& operator()(i32 r, i32 c) const { return *byBytes(table[transposed ? c * width + r : r * width + c], shift); }
};

/// One constant, the same at every position.
template <class T> struct ConstantObject {
    T value;
    VOKM_INLINE T operator()(i32, i32) const { return value; }
};

template <class T, Code code, bool denseRows> VOKM_INLINE auto stridedObject(T* base, i32 stride1, i32 stride2)
{
    if constexpr (code == Code::ca) {
        return ConstantObject<std::remove_const_t<T>>{*base};
    } else if constexpr (isTransposed(code)) {
        return StridedObject<T, denseRows ? Unit::row : Unit::none>{base, stride2, stride1};
    } else {
        return StridedObject<T, denseRows ? Unit::column : Unit::none>{base, stride1, stride2};
    }
}

/// What the operands with strides inside an object have in common.
template <class T, Code theCode, bool denseRows> struct InnerStrides {
    using element = T;
    static constexpr Code code = theCode;
    static constexpr bool array = isArray(code), dense = denseRows, hasInner = code != Code::ca;
    i32 stride1, stride2;

    bool contiguous() const { return !hasInner || stride2 == static_cast<i32>(sizeof(T)); }
    bool badInner() const
    {
        return (isMatrix(code) && vokm::badStride<T>(stride1)) || (hasInner && vokm::badStride<T>(stride2));
    }
};

/// Stride layout, and the single operands of the list layout.
template <class T, Code theCode, bool denseRows = false> struct StrideView : InnerStrides<T, theCode, denseRows> {
    using Base = InnerStrides<T, theCode, denseRows>;
    using Base::array, Base::stride1, Base::stride2;
    T* base;
    i32 stride0;

    StrideView(T* pointer, i32 s0, i32 s1, i32 s2) : Base{s1, s2}, base(pointer), stride0(s0) {}
    bool null() const { return base == nullptr; }
    bool badStride0() const { return array && vokm::badStride<T>(stride0); }
    bool badShift() const { return false; }
    StrideView<T, theCode, true> asDense() const { return {base, stride0, stride1, stride2}; }
    StrideView from(i32 start) const { return {array ? byBytes(base, i64(start) * stride0) : base, stride0, stride1, stride2}; }
    VOKM_INLINE auto object(i32 i, Shape) const
    {
        return stridedObject<T, theCode, denseRows>(array ? byBytes(base, i64(i) * stride0) : base, stride1, stride2);
    }
};

/// List layout: one pointer per object.
template <class T, Code theCode, bool denseRows = false> struct ListView : InnerStrides<T, theCode, denseRows> {
    using Base = InnerStrides<T, theCode, denseRows>;
    using Base::stride1, Base::stride2;
    T* const* list;
    i32 shift;

    ListView(T* const* pointers, i32 objShift, i32 s1, i32 s2) : Base{s1, s2}, list(pointers), shift(objShift) {}
    bool null() const { return list == nullptr; }
    bool badStride0() const { return false; }
    bool badShift() const { return vokm::badShift<T>(shift); }
    ListView<T, theCode, true> asDense() const { return {list, shift, stride1, stride2}; }
    ListView from(i32 start) const { return {list + start, shift, stride1, stride2}; }
    VOKM_INLINE auto object(i32 i, Shape) const
    {
        return stridedObject<T, theCode, denseRows>(byBytes(list[i], shift), stride1, stride2);
    }
};

/// Pointer layout: one pointer per element position, which serves all objects.
template <class T, Code theCode> struct TableView {
    using element = T;
    static constexpr Code code = theCode;
    static constexpr bool array = isArray(code), dense = false;
    T* const* table;
    i32 shift, stride0;

    bool null() const { return table == nullptr; }
    bool contiguous() const { return true; }
    bool badInner() const { return false; }
    bool badStride0() const { return array && vokm::badStride<T>(stride0); }
    bool badShift() const { return vokm::badShift<T>(shift); }
    TableView asDense() const { return *this; }
    TableView from(i32 start) const { return {table, array ? (Wrap(shift) + Wrap(start) * stride0).value() : shift, stride0}; }
    VOKM_INLINE auto object(i32 i, Shape shape) const
    {
        constexpr bool transposed = isTransposed(theCode);
        const i64 distance = shift + (array ? i64(i) * stride0 : 0);
        return TableObject<T, transposed>{table, distance, transposed ? shape.rows : shape.cols};
    }
};

/// A constant by value.
template <class T> struct Constant {
    using element = T;
    static constexpr Code code = Code::c;
    static constexpr bool array = false, dense = true;
    T value;
    VOKM_INLINE auto object(i32, Shape) const { return ConstantObject<std::remove_const_t<T>>{value}; }
};

/// A plain pointer to `per` elements for each object, packed: scalar results, eigenvalues, pivot index arrays.
template <class T> struct Packed {
    T* base;
    i32 per;
    bool null() const { return base == nullptr; }
    Packed from(i32 start) const { return {base + i64(start) * per, per}; }
};

/// Working memory: the caller's buffer on the calling thread, a slab of the wrapper's block in a team.
template <class T> struct Scratch {
    T* base;
    i64 slab = 0;  // bytes for one thread
    bool null() const { return base == nullptr; }
    Scratch ofThread(i32 thread) const { return {byBytes(base, thread * slab), slab}; }
};

/// The number of objects.
struct Count {
    i32 n;
};

/// The size arguments, in the order of the argument list.
template <int k> struct Sizes {
    i32 n[k];
    constexpr i32 operator[](int which) const { return n[which]; }
};
template <class... I> Sizes(I...) -> Sizes<sizeof...(I)>;

/// The view of an operand code in a layout.
template <Layout layout, Code code, class T> struct ViewOf {
    using type = StrideView<T, code>;
};
template <Layout layout, class T> struct ViewOf<layout, Code::c, T> {
    using type = Constant<T>;
};
template <Code code, class T>
    requires(isArray(code))
struct ViewOf<Layout::L, code, T> {
    using type = ListView<T, code>;
};
template <Code code, class T>
    requires(code != Code::c && code != Code::ca)
struct ViewOf<Layout::P, code, T> {
    using type = TableView<T, code>;
};
template <Layout layout, Code code, class T> using View = typename ViewOf<layout, code, T>::type;

/// The same argument for a kernel that relies on contiguous rows.
template <class A> constexpr auto dense(const A& a)
{
    if constexpr (requires { a.asDense(); }) {
        return a.asDense();
    } else {
        return a;
    }
}
template <class A> using Dense = decltype(dense(std::declval<A>()));
// As parameters of a named function: by reference, since a view copied to the next frame as a whole would have to wait for
// its fields to be stored one by one.
template <class A> using DenseArgument = const Dense<A>&;
template <class A> using Argument = const A&;

template <class A> bool contiguous(const A& a)
{
    if constexpr (requires { a.contiguous(); }) {
        return a.contiguous();
    } else {
        return true;
    }
}

/// The argument as thread `thread` hands it to a kernel for the `n` objects from `start` on.
template <class A> A moved(const A& a, i32 start, i32 n, i32 thread)
{
    if constexpr (std::is_same_v<A, Count>) {
        return Count{n};
    } else if constexpr (requires { a.from(start); }) {
        return a.from(start);
    } else if constexpr (requires { a.ofThread(thread); }) {
        return a.ofThread(thread);
    } else {
        return a;
    }
}

}  // namespace vokm
