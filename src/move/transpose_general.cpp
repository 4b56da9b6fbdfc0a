// The transposers for sizes without straight code: in blocks of rows for 4-byte words, past the cache where the job outgrows
// it, and column by column for 8-byte words.
#include "../frame/pack.h"
#include "../frame/stream.h"
#include "transpose.h"

using namespace vokm;

extern "C" {

void ownm_Transpose_32s(
    const float* src, int32_t srcStep, float* dst, int32_t dstStep, int32_t width, int32_t height, int32_t nonTemporal)
{
    bool past = nonTemporal != 0;
    if (!past && width >= 129 && height >= 129) {
        i32 cache = 0;
        vokGetMaxCacheSizeB(&cache);
        past = cache != 0 && cache < (Wrap(width) * height * 8).value();
    }
    // 64 rows stay in the cache while their columns are walked. Past the cache it takes whole lines of both sides for that.
    const bool whole = past && (width % 16 != 0 || height < 64);
    const i32 block = whole ? height : std::min(64, height);
    for (i32 r = 0; r < height; r += block) {
        const i32 rows = std::min(block, height - r);
        (past ? owniTranspose_32s_NT : owniTranspose_32s_asm)(src, srcStep, dst, dstStep, width, rows);
        src = byBytes(src, i64(rows) * srcStep);
        dst += rows;
    }
}

/// Whether the rows of the result lie apart from one another and from the source: then no order of the walk can be seen.
static bool orderUnseen(const float* src, i64 srcStep, const float* dst, i64 dstStep, i64 width, i64 rows)
{
    const auto begin = [](const float* p) { return reinterpret_cast<std::uintptr_t>(p); };
    const i64 gap = static_cast<i64>(begin(dst) - begin(src));
    return dstStep >= rows * 4 && (gap >= (rows - 1) * srcStep + width * 4 || -gap >= (width - 1) * dstStep + rows * 4);
}

// Four columns at a time, and of these four rows at a time in registers, where both sides are aligned for that. Elsewhere column
// after column, in 16-byte pieces of the row that takes it; a caller sees the difference if rows of the result overlap.
void owniTranspose_32s_asm(const float* src, int32_t srcStep, float* dst, int32_t dstStep, int32_t width, int32_t rows)
{
    const auto row = [&](i32 r) { return byBytes(src, i64(r) * srcStep); };
    const auto result = [&](i32 c) { return byBytes(dst, i64(c) * dstStep); };
    const auto from = reinterpret_cast<std::uintptr_t>(src) | static_cast<std::uintptr_t>(srcStep);
    const auto to16 = reinterpret_cast<std::uintptr_t>(dst) | static_cast<std::uintptr_t>(dstStep);
    const bool byFour = (from % 8 == 0 && to16 % 16 == 0) || orderUnseen(src, srcStep, dst, dstStep, width, rows);
    i32 c = 0;
    for (; byFour && c + 4 <= width; c += 4) {
        float* const to[4] = {result(c), result(c + 1), result(c + 2), result(c + 3)};
        i32 r = 0;
        for (; r + 4 <= rows; r += 4) {
            Pack<float> turned[4];
            turnRuns<4>(turned, Fetch<float>{{row(r) + c, row(r + 1) + c, row(r + 2) + c, row(r + 3) + c}}, false);
            for (int k = 0; k < 4; ++k) storeLanes(to[k] + r, turned[k]);
        }
        for (; r < rows; ++r) {
            for (int k = 0; k < 4; ++k) to[k][r] = row(r)[c + k];
        }
    }
    for (; c < width; ++c) {
        float* const to = result(c);
        i32 r = 0;
        for (; r < rows && reinterpret_cast<std::uintptr_t>(to + r) % 16 != 0; ++r) to[r] = row(r)[c];
        for (; r + 4 <= rows; r += 4) storeLanes(to + r, Pack<float>{row(r)[c], row(r + 1)[c], row(r + 2)[c], row(r + 3)[c]});
        for (; r < rows; ++r) to[r] = row(r)[c];
    }
}

// Two neighbouring columns at a time, so that each row of the result grows by whole lines.
void owniTranspose_32s_NT(const float* src, int32_t srcStep, float* dst, int32_t dstStep, int32_t width, int32_t rows)
{
    const auto row = [&](i32 r) { return byBytes(src, i64(r) * srcStep); };
    const auto result = [&](i32 c) { return byBytes(dst, i64(c) * dstStep); };
    for (i32 c = 0; c < width; c += 2) {
        const bool pair = c + 1 < width;
        for (i32 r = 0; r < rows; ++r) {
            const float one = row(r)[c], other = pair ? row(r)[c + 1] : 0;
            storePastCache(result(c) + r, one);
            if (pair) storePastCache(result(c + 1) + r, other);
        }
    }
    finishStoresPastCache();
}

// Column by column, eight rows a round.
void ownm_iTranspose_16u_C4R_M7(
    const double* src, int32_t srcStep, double* dst, int32_t dstStep, int32_t width, int32_t height)
{
    const auto row = [&](i32 r) { return byBytes(src, i64(r) * srcStep); };
    for (i32 c = 0; c < width; ++c) {
        double* const to = byBytes(dst, i64(c) * dstStep);
        i32 r = 0;
        for (; r + 8 <= height; r += 8) {
            Pack<double> words[4];
            for (int k = 0; k < 4; ++k) words[k] = Pack<double>{row(r + 2 * k)[c], row(r + 2 * k + 1)[c]};
            for (int k = 0; k < 4; ++k) storeLanes(to + r + 2 * k, words[k]);
        }
        for (; r < height; ++r) to[r] = row(r)[c];
    }
}
}
