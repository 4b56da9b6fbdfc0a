// vokmExtract: objects of any layout into one dense block, in ascending order of object, row and column.
#include "direct.h"

namespace vokm {

inline constexpr Row rowExtractArray{{"NZCS", "NZCOS", "NZCOS"}, {"NZCS", "NZCOS", "NZCOS"}};
// Deliberate: in the pointer layout these test the sizes before the pointers, but not 32f vectors.
inline constexpr Row rowExtractMatrix{{"NZS", "ZNO", ""}, {"NZS", "ZNO", ""}};
inline constexpr Row rowExtractVector{{"NZS", "NZO", ""}, {"NZS", "ZNO", ""}};

struct ExtractObjects {
    template <class S, class T, int k>
    void operator()(const S& src, Packed<T> dst, const Sizes<k>& sizes, Count count = {1}) const
    {
        const Shape shape = shapeOf(sizes);
        T* to = dst.base;
        if constexpr (requires { src.table; } && S::code == Code::m) {
            // One run over the table; its length is formed in 32 bits, and one that wrapped to nothing means no work.
            const Shape run{1, (Wrap(shape.rows) * shape.cols).value()};
            const auto from = src.object(0, run);
            for (i32 j = 0; j < run.cols; ++j) *to++ = from(0, j);
        } else if constexpr (requires { src.table; } && (S::code == Code::va || S::code == Code::ta)) {
            // A table entry serves all objects: positions outside, objects inside.
            const i64 elements = i64(shape.rows) * shape.cols;
            for (i32 r = 0; r < shape.rows; ++r) {
                for (i32 c = 0; c < shape.cols; ++c, ++to) {
                    const T* from = &src.object(0, shape)(r, c);
                    for (i32 i = 0; i < count.n; ++i) to[i * elements] = *byBytes(from, i64(i) * src.stride0);
                }
            }
        } else {
            for (i32 i = 0; i < count.n; ++i) {
                const auto from = src.object(i, shape);
                for (i32 r = 0; r < shape.rows; ++r) {
                    for (i32 c = 0; c < shape.cols; ++c) *to++ = from(r, c);
                }
            }
        }
    }
};

}  // namespace vokm

#define EXTRACT_PARAMS(L, T, code, kind) VOKM_PARAM(L, code, const T, src), T *dst, SIZES_PARAMS_##kind
#define EXTRACT_ARGS(L, T, code, kind) VOKM_VIEW(L, code, const T, src), vokm::Packed<T>{dst, 0}, SIZES_ARGS_##kind
#define EXTRACT_WORK ExtractObjects{}
#define EXTRACTS_PARAMS(L, T, ...) EXTRACT_PARAMS(L, T, __VA_ARGS__), int32_t count
#define EXTRACTS_ARGS(L, T, ...) EXTRACT_ARGS(L, T, __VA_ARGS__), vokm::Count{count}
#define EXTRACTS_WORK EXTRACT_WORK

extern "C" {
VOKM_EXPORTS_DIRECT_SINGLE(Extract, v, vokm::rowExtractVector, EXTRACT, v, v)
VOKM_EXPORTS_DIRECT_SINGLE(Extract, m, vokm::rowExtractMatrix, EXTRACT, m, m)
VOKM_EXPORTS_DIRECT_SINGLE(Extract, t, vokm::rowExtractMatrix, EXTRACT, t, m)
VOKM_EXPORTS_DIRECT_ARRAY(Extract, va, vokm::rowExtractArray, EXTRACTS, va, v)
VOKM_EXPORTS_DIRECT_ARRAY(Extract, ma, vokm::rowExtractArray, EXTRACTS, ma, m)
VOKM_EXPORTS_DIRECT_ARRAY(Extract, ta, vokm::rowExtractArray, EXTRACTS, ta, m)
}
