// vokmCopy: arrays from one layout to another, element by element in ascending order of object, row and column, so that a
// copy onto an overlapping array gives what that order gives.
#include "../frame/overlap.h"
#include "direct.h"

namespace vokm {

// One order for both sides, so it stands in the column of the stride layout. Deliberate: two functions of 32f test the shifts
// before the strides.
inline constexpr Row copyStrides{{"NZCSs", "", ""}, {"NZCSs", "", ""}};
inline constexpr Row copyLists{{"NZCSO", "", ""}, {"NZCSO", "", ""}};
inline constexpr Row copyTables{{"NZCOs", "", ""}, {"NZCOs", "", ""}};
inline constexpr Row copyMixed{{"NZCSOs", "", ""}, {"NZCSOs", "", ""}};
inline constexpr Row copyShiftsFirst{{"NZCOSs", "", ""}, {"NZCSOs", "", ""}};

template <class S, class D> inline void copyEach(const S& src, const D& dst, Shape shape, i32 count)
{
    for (i32 i = 0; i < count; ++i) {
        const auto from = src.object(i, shape);
        const auto to = dst.object(i, shape);
        for (i32 r = 0; r < shape.rows; ++r) {
            for (i32 c = 0; c < shape.cols; ++c) to(r, c) = from(r, c);
        }
    }
}

struct CopyObjects {
    template <class S, class D, int k> void operator()(const S& src, const D& dst, const Sizes<k>& sizes, Count count) const
    {
        const bool denseRows = src.contiguous() && dst.contiguous();
        denseRows ? copyEach(dense(src), dense(dst), shapeOf(sizes), count.n) : copyEach(src, dst, shapeOf(sizes), count.n);
    }
};

}  // namespace vokm

//                                 matrices           vectors
#define COPY_PAIRS(FORM)                                           \
    FORM(S, S, vokm::copyStrides, vokm::copyStrides)               \
    FORM(S, P, vokm::copyMixed, vokm::copyShiftsFirst)             \
    FORM(S, L, vokm::copyMixed, vokm::copyMixed)                   \
    FORM(P, S, vokm::copyMixed, vokm::copyMixed)                   \
    FORM(P, P, vokm::copyTables, vokm::copyTables)                 \
    FORM(P, L, vokm::copyMixed, vokm::copyMixed)                   \
    FORM(L, S, vokm::copyMixed, vokm::copyMixed)                   \
    FORM(L, P, vokm::copyMixed, vokm::copyShiftsFirst)             \
    FORM(L, L, vokm::copyLists, vokm::copyLists)

#define COPY_EXPORT(X, Y, row, code, kind, ty, T)                                                                      \
    vokStatus vokmCopy_##code##_##ty##_##X##Y(                                                                         \
        VOKM_PARAM(X, code, const T, src), VOKM_PARAM(Y, code, T, dst), SIZES_PARAMS_##kind, int32_t count)            \
    {                                                                                                                  \
        return vokm::enterDirect<row, vokm::Layout::S, T>(vokm::CopyObjects{}, VOKM_VIEW(X, code, const T, src),       \
                                                          VOKM_VIEW(Y, code, T, dst), SIZES_ARGS_##kind,               \
                                                          vokm::Count{count});                                         \
    }
#define COPY_EXPORTS(X, Y, rowMa, rowVa)              \
    COPY_EXPORT(X, Y, rowMa, ma, m, 32f, float)       \
    COPY_EXPORT(X, Y, rowMa, ma, m, 64f, double)      \
    COPY_EXPORT(X, Y, rowVa, va, v, 32f, float)       \
    COPY_EXPORT(X, Y, rowVa, va, v, 64f, double)

extern "C" {
COPY_PAIRS(COPY_EXPORTS)
}
