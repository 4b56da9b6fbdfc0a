// The routines of LAPACK that are used here, and a name for each that is the same in both precisions.
#pragma once

#include <cstddef>

namespace bench {

extern "C" {
#define ROUTINES(T, p)                                                                                                                 \
    void p##getrf_(const int* m, const int* n, T* a, const int* lda, int* pivot, int* info);                                            \
    void p##getrs_(const char* trans, const int* n, const int* columns, const T* a, const int* lda, const int* pivot, T* b,             \
                   const int* ldb, int* info, std::size_t);                                                                             \
    void p##getri_(const int* n, T* a, const int* lda, const int* pivot, T* work, const int* lwork, int* info);                         \
    void p##potrf_(const char* half, const int* n, T* a, const int* lda, int* info, std::size_t);                                       \
    void p##potrs_(const char* half, const int* n, const int* columns, const T* a, const int* lda, T* b, const int* ldb, int* info,     \
                   std::size_t);                                                                                                        \
    void p##geqrf_(const int* m, const int* n, T* a, const int* lda, T* tau, T* work, const int* lwork, int* info);                     \
    void p##ormqr_(const char* side, const char* trans, const int* m, const int* n, const int* k, const T* a, const int* lda,           \
                   const T* tau, T* c, const int* ldc, T* work, const int* lwork, int* info, std::size_t, std::size_t);                 \
    void p##orgqr_(const int* m, const int* n, const int* k, T* a, const int* lda, const T* tau, T* work, const int* lwork, int* info); \
    void p##trtrs_(const char* half, const char* trans, const char* diagonal, const int* n, const int* columns, const T* a,             \
                   const int* lda, T* b, const int* ldb, int* info, std::size_t, std::size_t, std::size_t);                             \
    void p##syev_(const char* job, const char* half, const int* n, T* a, const int* lda, T* w, T* work, const int* lwork, int* info,    \
                  std::size_t, std::size_t);                                                                                            \
    void p##geev_(const char* left, const char* right, const int* n, T* a, const int* lda, T* re, T* im, T* vl, const int* ldvl, T* vr, \
                  const int* ldvr, T* work, const int* lwork, int* info, std::size_t, std::size_t);
ROUTINES(float, s)
ROUTINES(double, d)
#undef ROUTINES
}

template <class T> struct Lapack;
#define NAMES(T, p)                                                                                                                    \
    template <> struct Lapack<T> {                                                                                                     \
        static constexpr auto getrf = p##getrf_;                                                                                       \
        static constexpr auto getrs = p##getrs_;                                                                                       \
        static constexpr auto getri = p##getri_;                                                                                       \
        static constexpr auto potrf = p##potrf_;                                                                                       \
        static constexpr auto potrs = p##potrs_;                                                                                       \
        static constexpr auto geqrf = p##geqrf_;                                                                                       \
        static constexpr auto ormqr = p##ormqr_;                                                                                       \
        static constexpr auto orgqr = p##orgqr_;                                                                                       \
        static constexpr auto trtrs = p##trtrs_;                                                                                       \
        static constexpr auto syev = p##syev_;                                                                                         \
        static constexpr auto geev = p##geev_;                                                                                         \
    };
NAMES(float, s)
NAMES(double, d)
#undef NAMES

} // namespace bench
