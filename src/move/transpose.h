// vokmTranspose: row, the routines for sizes without straight code, kernels' declarations, forms.
#pragma once

#include "../frame/row.h"
#include "../frame/stamp.h"
#include "../frame/stream.h"

extern "C" int32_t vokGetMaxCacheSizeB(int32_t* bytes);  // the core library: the largest cache, 0 if unknown

namespace vokm {

inline constexpr Row rowTranspose{{"NCZS", "NCZSO", "NCZSO"}, {"NCZS", "NCZSO", "NCZSO"}};
inline constexpr Row rowTransposeSingle{{"NZS", "NZO", ""}, {"NZS", "NZO", ""}};

}  // namespace vokm

// The sizes stand between the operands: they are those of the source.
#define TRANSPOSE_PARAMS(L, T, cs, cd) VOKM_PARAM(L, cs, const T, src), int32_t width, int32_t height, VOKM_PARAM(L, cd, T, dst)
#define TRANSPOSE_ARGS(L, T, cs, cd) \
    VOKM_VIEW(L, cs, const T, src), vokm::Sizes{width, height}, VOKM_VIEW(L, cd, T, dst)
#define TRANSPOSE_TYPES(D, L, T, cs, cd) D<VOKM_TYPE(L, cs, const T)> src, vokm::Sizes<2> sizes, D<VOKM_TYPE(L, cd, T)> dst
#define TRANSPOSE_KERNEL(row, T, variant, cs, cd) vokm::transpose<variant, T>(src, dst, sizes[0], sizes[1], 1)
#define TRANSPOSES_PARAMS(L, T, ...) TRANSPOSE_PARAMS(L, T, __VA_ARGS__), int32_t count
#define TRANSPOSES_ARGS(L, T, ...) TRANSPOSE_ARGS(L, T, __VA_ARGS__), vokm::Count{count}
#define TRANSPOSES_TYPES(D, L, T, ...) TRANSPOSE_TYPES(D, L, T, __VA_ARGS__), vokm::Count count
#define TRANSPOSES_KERNEL(row, T, variant, cs, cd) vokm::transpose<variant, T>(src, dst, sizes[0], sizes[1], count.n)

#define TRANSPOSE_SINGLE(STAMPS) STAMPS(Transpose, m, vokm::rowTransposeSingle, TRANSPOSE, m, m)
#define TRANSPOSE_ARRAY(STAMPS) STAMPS(Transpose, ma, vokm::rowTranspose, TRANSPOSES, ma, ma)

extern "C" {
TRANSPOSE_SINGLE(VOKM_DECLARE_SINGLE_KERNELS)
TRANSPOSE_ARRAY(VOKM_DECLARE_ARRAY_KERNELS)

// One matrix of `height` rows of `width` words each; steps are the distances of rows in bytes. Words are only moved.
void ownm_Transpose_32s(
    const float* src, int32_t srcStep, float* dst, int32_t dstStep, int32_t width, int32_t height, int32_t nonTemporal);
void owniTranspose_32s_asm(const float* src, int32_t srcStep, float* dst, int32_t dstStep, int32_t width, int32_t rows);
void owniTranspose_32s_NT(const float* src, int32_t srcStep, float* dst, int32_t dstStep, int32_t width, int32_t rows);
void ownm_iTranspose_16u_C4R_M7(
    const double* src, int32_t srcStep, double* dst, int32_t dstStep, int32_t width, int32_t height);
}
