// vokmMul of two matrices: rows, paths, kernels' declarations, forms. Every element is a sum over ascending k in the element
// type; paths for fixed sizes start it with the first product, general ones with +0.0, which shows in the sign of a zero.
#pragma once

#include "general_products.h"
#include "planar_products.h"
#include "row_products.h"
#include "wide_rows.h"

namespace vokm {

/// Size tests that depart from the rule, each in one kernel of one form. They are deliberate.
enum class OddTest {
    none,
    heightOfThree,    // plain 32f: the 4x4 path asks for a src2Height of 3
    joinedOf32f,      // P 32f: the sizes are joined by OR, then compared with 3
    joinedOf64f,      // P 64f: likewise
};

/// The square sizes with a path, by kernel: at[0] for 32f, at[1] for 64f, each in the order of Variant.
struct ProductPaths {
    SizeSet at[2][5];
    OddTest odd = OddTest::none;
    template <class T> constexpr SizeSet of(Variant variant) const { return at[sizeof(T) == 4 ? 0 : 1][static_cast<int>(variant)]; }
    template <class T> constexpr OddTest oddTest(Variant variant) const
    {
        const bool here = odd == OddTest::heightOfThree ? variant == Variant::plain && sizeof(T) == 4
                          : odd == OddTest::joinedOf32f ? variant == Variant::P && sizeof(T) == 4
                                                        : variant == Variant::P && sizeof(T) == 8;
        return here ? odd : OddTest::none;
    }
};

namespace paths {
constexpr SizeSet all = allFixed, s3 = only(3), s345 = only(3, 4, 5), s356 = only(3, 5, 6), g = generalOnly;
// clang-format off
//                          32f plain  S2    P    L    LS2   64f plain  S2   P    L    LS2
constexpr ProductPaths mm  {{{all,  all,  all, g,   g},    {all,  all, all, g,   g}}, OddTest::joinedOf32f};
constexpr ProductPaths mt  {{{all,  all,  all, g,   g},    {all,  all, all, g,   g}}};
constexpr ProductPaths tm  {{{s345, all,  all, g,   g},    {all,  all, all, g,   g}}};
constexpr ProductPaths tt  {{{all,  all,  all, g,   g},    {all,  all, all, g,   g}}, OddTest::joinedOf64f};
constexpr ProductPaths mam {{{all,  all,  s3,  all, s3},   {all,  all, all, all, all}}};
constexpr ProductPaths mat {{{s356, s3,   s3,  all, s3},   {all,  all, all, all, all}}, OddTest::heightOfThree};
constexpr ProductPaths tam {{{all,  s3,   s3,  all, s3},   {all,  all, all, all, all}}};
constexpr ProductPaths tat {{{all,  all,  all, all, s3},   {all,  all, all, all, all}}};
constexpr ProductPaths mma {{{all,  all,  all, all, all},  {all,  all, all, all, all}}};
constexpr ProductPaths mta {{{all,  all,  all, g,   all},  {all,  all, all, all, all}}};
constexpr ProductPaths tma {{{all,  all,  all, all, all},  {all,  all, all, all, all}}};
constexpr ProductPaths tta {{{all,  all,  all, g,   all},  {all,  all, all, g,   all}}};
constexpr ProductPaths mama{{{all,  s345, all, all, all},  {all,  all, all, all, all}}};
constexpr ProductPaths mata{{{all,  all,  all, all, all},  {all,  all, all, all, all}}};
constexpr ProductPaths tama{{{all,  all,  all, all, all},  {all,  all, all, all, all}}};
constexpr ProductPaths tata{{{all,  all,  all, all, all},  {all,  all, all, all, all}}};
// clang-format on
}  // namespace paths

inline constexpr Row rowMulMm = ProductForm<Code::m, Code::m>::row(), rowMulMt = ProductForm<Code::m, Code::t>::row(),
                     rowMulTm = ProductForm<Code::t, Code::m>::row(), rowMulTt = ProductForm<Code::t, Code::t>::row(),
                     rowMulMam = ProductForm<Code::ma, Code::m>::row(), rowMulMat = ProductForm<Code::ma, Code::t>::row(),
                     rowMulTam = ProductForm<Code::ta, Code::m>::row(), rowMulTat = ProductForm<Code::ta, Code::t>::row(),
                     rowMulMma = ProductForm<Code::m, Code::ma>::row(), rowMulMta = ProductForm<Code::m, Code::ta>::row(),
                     rowMulTma = ProductForm<Code::t, Code::ma>::row(), rowMulTta = ProductForm<Code::t, Code::ta>::row(),
                     rowMulMama = ProductForm<Code::ma, Code::ma>::row(), rowMulMata = ProductForm<Code::ma, Code::ta>::row(),
                     rowMulTama = ProductForm<Code::ta, Code::ma>::row(), rowMulTata = ProductForm<Code::ta, Code::ta>::row();

/// How a product of square matrices of size n goes.
enum class Way {
    rows,      // contiguous rows: by rows in registers, one object after another
    tiles,     // contiguous rows: several objects a pack where they may
    elements,  // anything else: row by row, several objects a pack where they may
};
template <class T, int n, class D> constexpr Way wayOf()
{
    if (!D::dense) return Way::elements;
    return D::array && !isList<D> && n == 3 && sizeof(T) == 4 ? Way::tiles : Way::rows;
}

template <class D> VOKM_INLINE bool rowsOverlap(const D& dst, int n)
{
    if constexpr (D::dense) return dst.stride1 < n * static_cast<i32>(sizeof(typename D::element));
    return false;
}

/// Small sizes that come to 3 when they are joined: the 3x3 path, whatever they are. Each table is read with its own width.
template <class T, class X, class Y, class Z> [[gnu::noinline]] void joinedProduct(X x, Y y, Z z)
{
    T a[3][3], b[3][3], d[3][3];
    for (int r = 0; r < 3; ++r) {
        for (int c = 0; c < 3; ++c) {
            a[r][c] = x(r, c);
            b[r][c] = y(r, c);
        }
    }
    multiply<Order::chain>(a, b, d);
    for (int r = 0; r < 3; ++r) {
        for (int c = 0; c < 3; ++c) z(r, c) = d[r][c];
    }
}

template <const auto& table, Variant variant, class T, class A, class B, class D>
VOKM_INLINE vokStatus matrixProducts(A a, B b, D dst, const i32* sizes, i32 count)
{
    using Form = ProductForm<A::code, B::code>;
    constexpr SizeSet withPath = table.template of<T>(variant);
    constexpr OddTest odd = table.template oddTest<T>(variant);
    const Shape result{Form::rows(sizes), Form::cols(sizes)};
    const i32 inner = Form::inner(sizes);
    const auto general = [&]() VOKM_INLINE_LAMBDA -> vokStatus {
        generalProducts<T>(a, b, dst, result, inner, count);
        return vokStatusOk;
    };
    const auto path = [&]<int n, Order order>() VOKM_INLINE_LAMBDA -> vokStatus {
        const Operands<n, A, B, NoAddend, D> of{a, b, NoAddend{}, dst};
        if constexpr (mayBeTight<D>) {
            if (allWide<order>(of, count)) return vokStatusOk;
        } else if constexpr (n == 3 && D::array && !D::dense && !isList<D>) {
            if (count >= wideLanes<T> && of.planes() && alongPlanes<order>(of, count)) return vokStatusOk;
        }
        if constexpr (wayOf<T, n, D>() == Way::rows) {
            productsOfRows<order>(of, count);
        } else if constexpr (wayOf<T, n, D>() == Way::tiles) {
            productsOfTiles<order>(of, count);
        } else {
            productsRowByRow<order>(of, count);
        }
        return vokStatusOk;
    };
    const auto fixed = [&](auto size) VOKM_INLINE_LAMBDA -> vokStatus {
        constexpr int n = decltype(size)::value;
        // Without a path of its own a size goes the way of the others, but from +0.0; rows that overlap show the general order.
        if (!withPath.has(n) && rowsOverlap(dst, n)) return general();
        return path.template operator()<n, withPath.has(n) ? Order::chain : Order::rising>();
    };
    if constexpr (odd == OddTest::heightOfThree) {
        if (sizes[0] == 4 && sizes[1] == 4 && sizes[3] == 3) return path.template operator()<4, Order::chain>();
    }
    if constexpr (odd == OddTest::joinedOf32f || odd == OddTest::joinedOf64f) {
        if ((sizes[0] | sizes[1] | sizes[2] | sizes[3]) == 3) {
            joinedProduct<T>(a.object(0, Shape{result.rows, inner}), b.object(0, Shape{inner, result.cols}), dst.object(0, result));
            return vokStatusOk;
        }
    }
    if (result.rows != inner || result.cols != inner) return general();
    return onFixed(inner, fixed, general);
}

}  // namespace vokm

// The signature shape of two matrices with sizes of their own and a destination.
#define PRODUCT_PARAMS(L, T, c1, c2, cd, ...)                                                                        \
    VOKM_PARAM(L, c1, const T, src1), int32_t src1Width, int32_t src1Height, VOKM_PARAM(L, c2, const T, src2),       \
        int32_t src2Width, int32_t src2Height, VOKM_PARAM(L, cd, T, dst)
#define PRODUCT_ARGS(L, T, c1, c2, cd, ...)                                                                          \
    VOKM_VIEW(L, c1, const T, src1), VOKM_VIEW(L, c2, const T, src2), VOKM_VIEW(L, cd, T, dst),                      \
        vokm::Sizes{src1Width, src1Height, src2Width, src2Height}
#define PRODUCT_TYPES(D, L, T, c1, c2, cd, ...)                                                                      \
    D<VOKM_TYPE(L, c1, const T)> src1, D<VOKM_TYPE(L, c2, const T)> src2, D<VOKM_TYPE(L, cd, T)> dst, vokm::Sizes<4> sizes
#define PRODUCT_NAMES(...) src1, src2, dst, sizes
#define PRODUCT_KERNEL(row, T, variant, c1, c2, cd, table) vokm::matrixProducts<table, variant, T>(src1, src2, dst, sizes.n, 1)

#define PRODUCTS_PARAMS(L, T, ...) PRODUCT_PARAMS(L, T, __VA_ARGS__), int32_t count
#define PRODUCTS_ARGS(L, T, ...) PRODUCT_ARGS(L, T, __VA_ARGS__), vokm::Count{count}
#define PRODUCTS_TYPES(D, L, T, ...) PRODUCT_TYPES(D, L, T, __VA_ARGS__), vokm::Count count
#define PRODUCTS_NAMES(...) PRODUCT_NAMES(__VA_ARGS__), count
#define PRODUCTS_KERNEL(row, T, variant, c1, c2, cd, table) \
    vokm::matrixProducts<table, variant, T>(src1, src2, dst, sizes.n, count.n)

#define PRODUCT_MM(FORM)                                                       \
    FORM(Mul, mm, vokm::rowMulMm, PRODUCT, m, m, m, vokm::paths::mm)           \
    FORM(Mul, mt, vokm::rowMulMt, PRODUCT, m, t, m, vokm::paths::mt)           \
    FORM(Mul, tm, vokm::rowMulTm, PRODUCT, t, m, m, vokm::paths::tm)           \
    FORM(Mul, tt, vokm::rowMulTt, PRODUCT, t, t, m, vokm::paths::tt)
#define PRODUCT_MAM(FORM)                                                      \
    FORM(Mul, mam, vokm::rowMulMam, PRODUCTS, ma, m, ma, vokm::paths::mam)     \
    FORM(Mul, mat, vokm::rowMulMat, PRODUCTS, ma, t, ma, vokm::paths::mat)     \
    FORM(Mul, tam, vokm::rowMulTam, PRODUCTS, ta, m, ma, vokm::paths::tam)     \
    FORM(Mul, tat, vokm::rowMulTat, PRODUCTS, ta, t, ma, vokm::paths::tat)
#define PRODUCT_MMA(FORM)                                                      \
    FORM(Mul, mma, vokm::rowMulMma, PRODUCTS, m, ma, ma, vokm::paths::mma)     \
    FORM(Mul, mta, vokm::rowMulMta, PRODUCTS, m, ta, ma, vokm::paths::mta)     \
    FORM(Mul, tma, vokm::rowMulTma, PRODUCTS, t, ma, ma, vokm::paths::tma)     \
    FORM(Mul, tta, vokm::rowMulTta, PRODUCTS, t, ta, ma, vokm::paths::tta)
#define PRODUCT_MAMA(FORM)                                                     \
    FORM(Mul, mama, vokm::rowMulMama, PRODUCTS, ma, ma, ma, vokm::paths::mama) \
    FORM(Mul, mata, vokm::rowMulMata, PRODUCTS, ma, ta, ma, vokm::paths::mata) \
    FORM(Mul, tama, vokm::rowMulTama, PRODUCTS, ta, ma, ma, vokm::paths::tama) \
    FORM(Mul, tata, vokm::rowMulTata, PRODUCTS, ta, ta, ma, vokm::paths::tata)

extern "C" {
PRODUCT_MM(VOKM_DECLARE_SINGLE_KERNELS)
PRODUCT_MAM(VOKM_DECLARE_ARRAY_KERNELS)
PRODUCT_MMA(VOKM_DECLARE_ARRAY_KERNELS)
PRODUCT_MAMA(VOKM_DECLARE_ARRAY_KERNELS)
PRODUCT_MAM(VOKM_DECLARE_ARRAY_WRAPPERS)
PRODUCT_MMA(VOKM_DECLARE_ARRAY_WRAPPERS)
PRODUCT_MAMA(VOKM_DECLARE_ARRAY_WRAPPERS)
}
