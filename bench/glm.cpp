// GLM, the mathematics of graphics programs: vectors and matrices of 3 and 4. Its matrices are columns of vectors.
#include "peer.h"

#include <type_traits>

#include <glm/glm.hpp>

namespace bench {

namespace {

template <class T, int n> using Vec = glm::vec<n, T>;
template <class T, int n> using Mat = glm::mat<n, n, T>;
template <class V> const V* in(const Operands& o, int i) {
    return static_cast<const V*>(o.in[i]);
}
template <class V> V* out(const Operands& o) {
    return static_cast<V*>(o.out[0]);
}

template <class T, int n> struct Rows {
    using V = Vec<T, n>;
    using M = Mat<T, n>;
    static_assert(sizeof(V) == n * sizeof(T) && sizeof(M) == n * n * sizeof(T), "an array of them has to be dense");

    template <class... A> static constexpr bool matrices = (std::is_same_v<A, M> || ...);

    // Rows of f(A's object, B's object), where a single operand stays where it is.
    template <class A, class B, class R, bool singleA, bool singleB, class F> static void row(Add add, const char* name, F) {
        add({name, sizeof(T) == 4 ? 'f' : 'd', n, "objects",
             [](const Operands& o) {
                 const A* a = in<A>(o, 0);
                 const B* b = in<B>(o, 1);
                 R* r = out<R>(o);
                 for (long i = 0; i < o.count; ++i) r[i] = F{}(a[singleA ? 0 : i], b[singleB ? 0 : i]);
             },
             matrices<A, B>});
    }
    template <class A, class R, class F> static void row(Add add, const char* name, F) {
        add({name, sizeof(T) == 4 ? 'f' : 'd', n, "objects",
             [](const Operands& o) {
                 const A* a = in<A>(o, 0);
                 R* r = out<R>(o);
                 for (long i = 0; i < o.count; ++i) r[i] = F{}(a[i]);
             },
             matrices<A>});
    }
    static void rows(Add add) {
        const auto sum = [](const auto& a, const auto& b) { return a + b; };
        const auto product = [](const auto& a, const auto& b) { return a * b; };
        row<V, V, V, false, false>(add, "Add_vava", sum);
        row<V, V, V, false, true>(add, "Add_vav", sum);
        row<V, V, T, false, false>(add, "DotProduct_vava", [](const V& a, const V& b) { return glm::dot(a, b); });
        row<V, T>(add, "L2Norm_va", [](const V& a) { return glm::length(a); });
        if constexpr (n == 3) row<V, V, V, false, false>(add, "CrossProduct_vava", [](const V& a, const V& b) { return glm::cross(a, b); });
        row<M, M, M, false, false>(add, "Add_mama", sum);
        row<M, M, M, false, false>(add, "Mul_mama", product);
        row<M, M, M, false, true>(add, "Mul_mam", product);
        row<M, M, M, true, false>(add, "Mul_mma", product);
        row<M, V, V, false, false>(add, "Mul_mava", product);
        row<M, V, V, true, false>(add, "Mul_mva", product);
        row<M, V, V, false, true>(add, "Mul_mav", product);
        row<M, M, M, false, false>(add, "Mul_mata", [](const M& a, const M& b) { return a * glm::transpose(b); });
        row<M, M>(add, "Transpose_ma", [](const M& a) { return glm::transpose(a); });
        row<M, T>(add, "Det_ma", [](const M& a) { return glm::determinant(a); });
        row<M, M>(add, "Invert_ma", [](const M& a) { return glm::inverse(a); });
    }
};

} // namespace

} // namespace bench

void benchGlm(bench::Add add) {
    bench::Rows<float, 3>::rows(add);
    bench::Rows<float, 4>::rows(add);
    bench::Rows<double, 3>::rows(add);
    bench::Rows<double, 4>::rows(add);
}
