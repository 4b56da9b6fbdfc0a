// Movement: exact bits, sequential copies under overlap, wrapping sizes, and when a transpose asks for the cache.
#include <algorithm>

#include "harness/groups.h"
#include "harness/patterns.h"
#include "harness/threads.h"

using namespace harness;

namespace {

// Where the element (r, c) of the source goes.
int64_t target(const Job& job, int i, int r, int c)
{
    const Operand& src = job.operands.at("src");
    const Operand& dst = job.operands.at("dst");
    if (job.function.family == "vokmExtract") {
        return dst.offset(i, 0, r * src.logicalCols() + c);
    }
    return job.function.family == "vokmTranspose" ? dst.offset(i, c, r) : dst.offset(i, r, c);
}

std::vector<std::string> groupsOf(const std::set<std::string>& families)
{
    std::vector<std::string> found;
    for (const std::string& group : declaredGroups()) {
        if (families.count(group.substr(0, group.find('_')))) {
            found.push_back(group);
        }
    }
    return found;
}

class Moves : public GroupTest {};

// Signalling and other not-a-numbers keep their bits, which the comparison of values would forgive.
TEST_P(Moves, EveryBitArrives)
{
    for (const Function* function : functions()) {
        for (int draw = 0; draw < 300; ++draw) {
            JobPlan plan;
            plan.seed = seedOf(*function, draw);
            Random random(plan.seed);
            plan.sizes = equalSizes(*function, 1 + int(random() % 12), 1 + int(random() % 9));
            if (plan.sizes.count("width") && draw % 2) {
                plan.sizes["width"] = 1 + int(random() % 24);
            }
            drawPatterns(plan, *function, drawStyle(random), random);
            Job job(*function, plan);
            const Operand& src = job.operands.at("src");
            const uint64_t quiet = function->isDouble ? 0x7FF0000000000001u : 0x7F800001u;
            for (int i = 0; i < src.shape.objects; ++i) {
                for (int e = 0; e < src.shape.rows * src.shape.cols; ++e) {
                    uint64_t bits = quiet + (random() & 0xFFF);
                    std::memcpy(job.arena.live() + src.storedOffset(i, e / src.shape.cols, e % src.shape.cols), &bits,
                        size_t(function->elementSize()));
                }
            }
            job.runLibrary();
            int wrong = 0;
            for (int i = 0; i < src.shape.objects; ++i) {
                for (int r = 0; r < src.logicalRows(); ++r) {
                    for (int c = 0; c < src.logicalCols(); ++c) {
                        wrong += std::memcmp(job.arena.live() + src.offset(i, r, c), job.arena.live() + target(job, i, r, c),
                                     size_t(function->elementSize())) != 0;
                    }
                }
            }
            if (wrong && !report(job.describe() + ": " + std::to_string(wrong) + " elements lost bits")) {
                return;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Form, Moves, testing::ValuesIn(groupsOf({"vokmCopy", "vokmExtract", "vokmTranspose"})), groupName);

class OverlappingCopies : public GroupTest {};

// One element after the other, so a forward overlap repeats what was there before.
TEST_P(OverlappingCopies, AreSequential)
{
    for (const Function* function : functions()) {
        for (int draw = 0; draw < 200; ++draw) {
            JobPlan plan;
            plan.seed = seedOf(*function, draw);
            Random random(plan.seed);
            plan.sizes = equalSizes(*function, 1 + int(random() % 6), 1 + int(random() % 9));
            drawPatterns(plan, *function, drawStyle(random), random);
            plan.overlay["dst"] = {"src", int64_t(random() % 24) * function->elementSize()};
            if (!report(Job(*function, plan).check())) {
                return;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Form, OverlappingCopies, testing::ValuesIn(groupsOf({"vokmCopy", "vokmExtract"})), groupName);

// Rows one element apart: a row is cleared whole before its one is set, rows ascend.
TEST(LoadIdentity, OverlappingRows)
{
    for (const Function* function : functionsOf("vokmLoadIdentity_ma")) {
        for (auto [width, height] : {std::pair{2, 3}, {3, 2}, {5, 5}, {2, 7}, {7, 7}}) {
            JobPlan plan;
            plan.sizes = {{"width", width}, {"height", height}, {"count", 3}};
            Job job(*function, plan);
            Operand& dst = job.operands.at("dst");
            for (int r = 0; r < height && dst.isTable(); ++r) {
                for (int c = 0; c < width; ++c) {
                    dst.places[size_t(r * width + c)] = dst.base + (r + c) * dst.elementSize;
                    dst.entries[size_t(r * width + c)] = job.arena.live() + dst.places[size_t(r * width + c)];
                }
            }
            dst.entriesBefore = dst.entries;
            dst.stride1 = dst.elementSize;
            job.arguments.integers["dstStride1"] = dst.elementSize;
            EXPECT_EQ(job.check(), "");
        }
    }
}

// The pointer layout counts its elements in 32 bits: a product that wraps below 1 is no work at all, not even a read.
TEST(Extract, WrappedSizeOfATable)
{
    for (const char* name : {"vokmExtract_m_32f_P", "vokmExtract_m_64f_P"}) {
        if (!isDeclared(name)) {
            GTEST_SKIP();
        }
        for (auto [width, height, entries] :
            {std::tuple{65536, 65536, 0}, {65536, 32768, 0}, {46341, 46341, 0}, {65537, 65536, 65536}}) {
            std::vector<double> cells(65536 + 2), result(65536 + 2, -1.0);
            std::vector<void*> table(cells.size());
            int size = functionNamed(name).elementSize();
            for (size_t i = 0; i < cells.size(); ++i) {
                cells[i] = double(i) + 0.25;
                table[i] = &cells[cells.size() - 1 - i];
            }
            Arguments arguments;
            arguments.pointers = {{"src", entries ? table.data() : static_cast<void*>(&cells)}, {"dst", result.data()}};
            arguments.integers = {{"srcObjShift", 0}, {"width", width}, {"height", height}};
            EXPECT_EQ(call(name, arguments), 0);
            int wrong = 0;
            char* out = reinterpret_cast<char*>(result.data());
            for (int i = 0; i < entries; ++i) {
                wrong += std::memcmp(out + int64_t(i) * size, table[size_t(i)], size_t(size)) != 0;
            }
            EXPECT_EQ(wrong, 0) << name << " " << width << "x" << height;
            double behind = -1.0;
            EXPECT_EQ(std::memcmp(out + int64_t(entries) * size / 8 * 8, &behind, 8), 0);
        }
    }
}

struct Question {
    const char* functions;  // those of the list answer alike
    int width, height, count, unit, cache, questions;
};

constexpr int plenty = 1 << 30;
const char* const single = "vokmTranspose_m_32f";
const char* const arrays = "vokmTranspose_ma_32f vokmTranspose_ma_32f_L";
const char* const never = "vokmTranspose_m_64f vokmTranspose_ma_64f vokmTranspose_ma_64f_L vokmTranspose_m_32f_P "
                          "vokmTranspose_ma_32f_P vokmTranspose_m_64f_P vokmTranspose_ma_64f_P";
const char* const dense = "vokmTranspose_m_32f vokmTranspose_ma_32f vokmTranspose_ma_32f_L";

const Question questions[] = {
    // one matrix: both sizes at least 129
    {single, 200, 200, 1, 1, 100000, 1},
    {single, 200, 200, 1, 1, 0, 1},
    {single, 129, 129, 1, 1, plenty, 1},
    {single, 128, 1000, 1, 1, 100000, 0},
    {single, 1000, 128, 1, 1, 100000, 0},
    {single, 5, 5, 1, 1, 10, 0},
    // an array: above 131072 bytes of reading and writing, but not for sizes with straight code
    {arrays, 8, 8, 256, 1, 10, 0},
    {arrays, 8, 8, 257, 1, 10, 1},
    {arrays, 7, 9, 260, 1, 10, 0},
    {arrays, 7, 9, 261, 1, 10, 1},
    {arrays, 3, 3, 3000, 1, 10, 0},
    {arrays, 4, 4, 3000, 1, 10, 0},
    {arrays, 6, 6, 3000, 1, 10, 0},
    {arrays, 3, 4, 3000, 1, 10, 1},
    // once more for each object with both sizes at least 129, unless the first answer has settled it: 399384 bytes here
    {arrays, 129, 129, 3, 1, 0, 4},
    {arrays, 129, 129, 3, 1, plenty, 4},
    {arrays, 129, 129, 3, 1, 1000, 1},
    {arrays, 129, 129, 3, 1, 532512, 4},
    {arrays, 129, 129, 3, 1, 532511, 4},
    {arrays, 129, 129, 3, 1, 532510, 1},
    {arrays, 129, 129, 1, 1, plenty, 2},
    {arrays, 128, 129, 3, 1, plenty, 1},
    {arrays, 129, 128, 3, 1, 0, 1},
    // nobody else asks
    {never, 200, 150, 2, 1, 1000, 0},
    {dense, 200, 150, 2, 2, 1000, 0},
    {never, 8, 8, 400, 1, 10, 0},
};

TEST(Transpose, AsksForTheCache)
{
    for (const Question& question : questions) {
        std::stringstream names(question.functions);
        for (std::string name; names >> name;) {
            if (!isDeclared(name)) {
                continue;
            }
            const Function& function = functionNamed(name);
            JobPlan plan;
            plan.sizes = {{"width", question.width}, {"height", question.height}};
            if (function.array) {
                plan.sizes["count"] = question.count;
            }
            plan.patterns[""].unit = question.unit;
            Job job(function, plan);
            setCacheBytes(question.cache);
            EXPECT_EQ(job.check(), "");
            EXPECT_EQ(cacheQuestions(), question.questions) << job.describe() << " cache " << question.cache;
        }
    }
    setCacheBytes(0);
}

// Blocks of rows, ordinary and non-temporal stores: all sizes and alignments give the same elements.
TEST(Transpose, LargeMatrices)
{
    for (const char* name : {"vokmTranspose_m_32f", "vokmTranspose_ma_32f", "vokmTranspose_ma_32f_L", "vokmTranspose_m_64f"}) {
        for (int draw = 0; draw < 120 && isDeclared(name); ++draw) {
            const Function& function = functionNamed(name);
            JobPlan plan;
            plan.seed = seedOf(function, draw);
            Random random(plan.seed);
            auto size = [&] {
                return random() % 2 ? 1 + int(random() % 260) : 16 * (1 + int(random() % 14)) + int(random() % 2);
            };
            plan.sizes = {{"width", size()}, {"height", size()}};
            if (function.array) {
                plan.sizes["count"] = 1 + int(random() % 3);
            }
            drawPatterns(plan, function, random() % 2 ? Style::aligned : Style::dense, random);
            Job job(function, plan);
            setCacheBytes(draw % 3 == 0 ? 0 : draw % 3 == 1 ? 4096 : plenty);
            EXPECT_EQ(job.check(), "");
        }
    }
    setCacheBytes(0);
}

// The bytes of a job are counted in 32 bits. Rows one element apart make the largest of jobs fit into little memory.
TEST(Transpose, WrappedBytesAskForNothing)
{
    if (!isDeclared("vokmTranspose_ma_32f")) {
        GTEST_SKIP();
    }
    constexpr int width = 128, height = 1 << 21;
    std::vector<float> src(width + height), dst(width + height + 4, -1.0f);
    for (size_t i = 0; i < src.size(); ++i) {
        src[i] = float(i);
    }
    Arguments arguments;
    arguments.pointers = {{"src", src.data()}, {"dst", dst.data()}};
    arguments.integers = {{"srcStride0", 4}, {"srcStride1", 4}, {"srcStride2", 4}, {"width", width}, {"height", height},
        {"dstStride0", 4}, {"dstStride1", 4}, {"dstStride2", 4}, {"count", 1}};
    setCacheBytes(1000);
    EXPECT_EQ(call("vokmTranspose_ma_32f", arguments), 0);
    EXPECT_EQ(cacheQuestions(), 0);
    constexpr size_t last = width + height - 2;
    EXPECT_TRUE(std::equal(src.begin(), src.begin() + last + 1, dst.begin()));
    EXPECT_EQ(dst[last + 1], -1.0f);
    setCacheBytes(0);
}

// Rows of the result may overlap: then the order of the stores shows. Column after column, but for four columns and four rows
// at a time where both sides are aligned for that.
TEST(Transpose, OverlappingRowsOfTheResult)
{
    if (!isDeclared("vokmTranspose_m_32f")) {
        GTEST_SKIP();
    }
    constexpr int width = 11, height = 26;
    for (int step : {1, 3, 4, 5, 8, 20}) {
        for (int offset : {0, 1, 2}) {
            alignas(16) float src[width * 2 * height], dst[width * 20 + height + 2] = {}, expected[std::size(dst)] = {};
            for (float& value : src) {
                value = float(&value - src);
            }
            const bool byFour = offset == 0 && step % 4 == 0;
            int c = 0;
            for (const int four = byFour ? width / 4 * 4 : 0; c < four; c += 4) {
                for (int r = 0; r < height; r += 4) {
                    for (int k = 0; k < 16; ++k) {
                        const bool whole = r + 4 <= height;  // the rows left go one by one
                        const int row = r + (whole ? k % 4 : k / 4), column = c + (whole ? k / 4 : k % 4);
                        if (row < height) {
                            expected[offset + column * step + row] = src[row * width * 2 + column];
                        }
                    }
                }
            }
            for (; c < width; ++c) {
                for (int r = 0; r < height; ++r) {
                    expected[offset + c * step + r] = src[r * width * 2 + c];
                }
            }
            Arguments arguments;
            arguments.pointers = {{"src", src}, {"dst", dst + offset}};
            arguments.integers = {{"srcStride1", width * 8}, {"srcStride2", 4}, {"width", width}, {"height", height},
                {"dstStride1", step * 4}, {"dstStride2", 4}};
            EXPECT_EQ(call("vokmTranspose_m_32f", arguments), 0);
            EXPECT_TRUE(std::equal(std::begin(dst), std::end(dst), expected)) << "step " << step << " offset " << offset;
        }
    }
}

// At the sizes with straight code they are finished one after the other.
TEST(Transpose, OverlappingRowsOfSmallResults)
{
    for (const char* group : {"vokmTranspose_m", "vokmTranspose_ma"}) {
        for (const Function* function : functionsOf(group)) {
            for (int draw = 0; draw < 4 * 5 && function->layout() != 'P'; ++draw) {
                JobPlan plan;
                plan.sizes = equalSizes(*function, 3 + draw / 5, 3);
                Job job(*function, plan);
                Operand& dst = job.operands.at("dst");
                dst.stride1 = (1 + draw % 5) * dst.elementSize;
                job.arguments.integers["dstStride1"] = dst.stride1;
                EXPECT_EQ(job.check(), "");
            }
        }
    }
}

// Aligned 4x4 objects of an array are read whole before they are written, so they can be turned where they stand.
TEST(Transpose, AlignedFourByFourInPlace)
{
    if (!isDeclared("vokmTranspose_ma_32f")) {
        GTEST_SKIP();
    }
    alignas(16) float objects[3 * 16];
    for (int k = 0; k < 48; ++k) {
        objects[k] = float(k);
    }
    Arguments arguments;
    arguments.pointers = {{"src", objects}, {"dst", objects}};
    arguments.integers = {{"srcStride0", 64}, {"srcStride1", 16}, {"srcStride2", 4}, {"width", 4}, {"height", 4},
        {"dstStride0", 64}, {"dstStride1", 16}, {"dstStride2", 4}, {"count", 3}};
    EXPECT_EQ(call("vokmTranspose_ma_32f", arguments), 0);
    for (int k = 0; k < 48; ++k) {
        EXPECT_EQ(objects[k], float(k / 16 * 16 + k % 4 * 4 + k / 4 % 4)) << k;
    }
}

}  // namespace
