// Matrices of all shapes against the slow evaluation; results in place where that is promised; and the kernels whose size
// tests or loop limits let them touch more than the objects of the call.
#include <algorithm>

#include "harness/dense.h"
#include "harness/expression.h"
#include "harness/groups.h"
#include "harness/patterns.h"
#include "harness/promises.h"

using namespace harness;

namespace {

bool isMatrixForm(const std::string& group)
{
    std::string family = group.substr(0, group.find('_')), form = group.substr(group.find('_') + 1);
    static const std::set<std::string> whole = {
        "vokmCopy", "vokmExtract", "vokmLoadIdentity", "vokmTranspose", "vokmTrace", "vokmFrobNorm", "vokmGaxpy"};
    bool arithmetic = family == "vokmAdd" || family == "vokmSub" || family == "vokmMul";
    return whole.count(family) || (arithmetic && form.find_first_of("mt") != std::string::npos);
}

std::vector<std::string> matrixGroups()
{
    std::vector<std::string> groups = declaredGroups();
    groups.erase(std::remove_if(groups.begin(), groups.end(), [](auto& group) { return !isMatrixForm(group); }), groups.end());
    return groups;
}

// Sizes around one with straight code, so that one of them alone may keep a product from it.
std::map<std::string, int32_t> drawSizesAround(const Function& function, Random& random)
{
    int near = 3 + int(random() % 4);
    std::map<std::string, int32_t> sizes = equalSizes(function, near, 1 + int(random() % 9));
    do {
        for (auto& [name, value] : sizes) {
            value = name == "count" ? value : near + (random() % 4 ? 0 : random() % 2 ? 1 : -1);
        }
    } while (!evaluate(function.match, [&](const std::string& name) { return sizes.at(name); }));
    return sizes;
}

// Rows of 16 bytes and their multiples, from which at most one operand departs: the conditions of the aligned paths.
void drawNearlyAligned(JobPlan& plan, const Function& function, Random& random)
{
    Pattern common;
    common.pad = int(random() % 4);
    common.roundObject = 16;
    std::vector<std::string> names;
    for (const ArgRecord& arg : function.args) {
        if (arg.kind != ArgKind::real && arg.kind != ArgKind::integer) {
            plan.patterns[arg.name] = common;
            plan.patterns[arg.name].align = int(random() % 4) * 16;
            names.push_back(arg.name);
        }
    }
    Pattern& one = plan.patterns[names[random() % names.size()]];
    switch (random() % 5) {
    case 0: one.align += function.elementSize() * (1 + int(random() % 3)); break;
    case 1: one.pad = int(random() % 4); break;
    case 2: one.roundObject = 0; break;
    }
}

class Matrices : public GroupTest {};

TEST_P(Matrices, AlignedRows)
{
    for (const Function* function : functions()) {
        for (int draw = 0; draw < 800; ++draw) {
            JobPlan plan;
            plan.seed = seedOf(*function, draw);
            Random random(plan.seed);
            plan.sizes = draw % 2 ? drawSizesAround(*function, random) : drawAgreeingSizes(*function, random);
            plan.values = draw % 4 ? Values::ordinary : draw % 8 ? Values::special : Values::zeros;
            drawNearlyAligned(plan, *function, random);
            if (!report(Job(*function, plan).check())) {
                return;
            }
        }
    }
}

TEST_P(Matrices, InPlace)
{
    for (const Function* function : functions()) {
        bool elementwise = function->family == "vokmAdd" || function->family == "vokmSub" || function->family == "vokmMul";
        for (const ArgRecord& source : function->args) {
            if (!elementwise || source.written || source.kind != ArgKind::object) {
                continue;
            }
            for (int draw = 0; draw < 300; ++draw) {
                JobPlan plan;
                plan.seed = seedOf(*function, draw);
                Random random(plan.seed);
                int n = 1 + int(random() % 8);
                plan.sizes = equalSizes(*function, n, source.array ? 1 + int(random() % 9) : 1);
                if (plan.sizes.count("width") && random() % 2) {
                    plan.sizes["width"] = 1 + int(random() % 8);
                }
                drawPatterns(plan, *function, drawStyle(random), random);
                Pattern& shared = plan.patterns[source.name];
                shared.sequence = 'a';
                plan.patterns["dst"] = shared;
                plan.overlay["dst"] = {source.name, 0};
                Job job(*function, plan);
                if (matrixMayBeInPlace(*function, job.kernel, source, n) && !report(job.check())) {
                    return;
                }
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Form, Matrices, testing::ValuesIn(matrixGroups()), groupName);

class OddKernels : public GroupTest {
protected:
    // All draws of one group with given sizes; `prepare` may touch the job before it runs.
    template <class Prepare> void run(const std::string& group, const std::map<std::string, int32_t>& sizes, Prepare prepare)
    {
        for (const Function* function : functionsOf(group)) {
            for (int draw = 0; draw < 100; ++draw) {
                JobPlan plan;
                plan.seed = seedOf(*function, draw);
                Random random(plan.seed);
                plan.gap = 512;
                plan.sizes = sizes;
                if (function->array) {
                    plan.sizes["count"] = 1 + draw % 9;
                }
                if (draw % 2) {
                    drawPatterns(plan, *function, drawStyle(random), random);
                } else {
                    drawNearlyAligned(plan, *function, random);
                }
                Job job(*function, plan);
                prepare(job);
                if (!report(job.check())) {
                    return;
                }
            }
        }
    }
};

// Four rows by three: the dense kernel of 32f computes a fourth column from the row behind the second operand.
TEST_F(OddKernels, ProductWithThreeColumnsStoresAFourth)
{
    if (!isDeclared("vokmMul_mat_32f")) {
        GTEST_SKIP() << "no matrix products";
    }
    std::map<std::string, int32_t> sizes = {{"src1Width", 4}, {"src1Height", 4}, {"src2Width", 4}, {"src2Height", 3}};
    int stored = 0;
    run("vokmMul_mat", sizes, [&](Job& job) {
        if (job.function.name != "vokmMul_mat_32f" || job.kernel != "") {
            return;
        }
        for (int k = 0; k < 4; ++k) {
            job.put<float>("src2", 0, k, 3, 0.5f + float(k));
        }
        const Operand& dst = job.operands.at("dst");
        const char* behind = job.arena.live() + dst.offset(dst.shape.objects - 1, 3, 3);
        float before = load<float>(behind);
        job.runLibrary();
        stored += load<float>(behind) != before;
        std::memcpy(job.arena.live(), job.arena.model(), job.arena.size());
    });
    EXPECT_GT(stored, 40);
}

// Sizes of 1 to 3 that give 3 when joined by OR run through the 3x3 code of two pointer kernels.
TEST_F(OddKernels, SizesJoinedByOr)
{
    for (const char* form : {"mm", "tt"}) {
        const std::string group = std::string("vokmMul_") + form;
        const std::vector<const Function*> members = functionsOf(group);
        for (int sizes = 0; sizes < 81; ++sizes) {
            std::map<std::string, int32_t> drawn = {{"src1Width", 1 + sizes % 3}, {"src1Height", 1 + sizes / 3 % 3},
                {"src2Width", 1 + sizes / 9 % 3}, {"src2Height", 1 + sizes / 27}};
            for (const Function* function : members) {
                if (!evaluate(function->match, [&](const std::string& name) { return drawn.at(name); })) {
                    continue;
                }
                JobPlan plan;
                plan.seed = seedOf(*function, uint64_t(sizes));
                Random random(plan.seed);
                plan.sizes = drawn;
                drawPatterns(plan, *function, drawStyle(random), random);
                if (!report(Job(*function, plan).check())) {
                    return;
                }
            }
        }
    }
}

// With an odd count and everything on 16 bytes, one object is computed behind the last.
TEST_F(OddKernels, TransposedArraysGoInTwos)
{
    if (!isDeclared("vokmMul_tava_32f")) {
        GTEST_SKIP();
    }
    const Function& function = functionNamed("vokmMul_tava_32f");
    for (int count = 1; count <= 9; ++count) {
        for (const char* misplaced : {"", "src1", "src2", "dst"}) {
            JobPlan plan;
            plan.seed = uint64_t(count);
            plan.gap = 512;
            plan.sizes = equalSizes(function, 3, count);
            Pattern rows;
            rows.pad = 1;
            rows.roundObject = 16;
            plan.patterns[""] = rows;
            if (*misplaced) {
                rows.align = 4;
                plan.patterns[misplaced] = rows;
            }
            Job job(function, plan);
            job.put<float>("src1", count, 1, 1, 3.0f);
            job.put<float>("src2", count, 0, 1, 5.0f);
            const char* behind = job.arena.live() + job.operands.at("dst").offset(count, 0, 1);
            float before = load<float>(behind);
            report(job.check());
            bool stored = load<float>(behind) != before;
            EXPECT_EQ(stored, count % 2 == 1 && !*misplaced) << "count " << count << " misplaced " << misplaced;
        }
    }
}

// Rows of a general product that overlap show in which order it is stored: four rows a time, columns ascending; then the last
// of an odd number of columns; then the rows that are left.
template <class T> void overlappingRows(int rows, int inner, int cols)
{
    const int size = int(sizeof(T));
    Random random(uint64_t(rows * 64 + cols));
    std::vector<T> a(size_t(rows * inner)), b(size_t(inner * cols)), apart(size_t(rows * cols)), got(apart.size(), T(77)), wanted = got;
    for (T& x : a) x = T(random() % 1000);
    for (T& x : b) x = T(random() % 1000);
    Arguments arguments;
    arguments.integers = {{"src1Width", inner}, {"src1Height", rows}, {"src2Width", cols}, {"src2Height", inner},
        {"src1Stride1", inner * size}, {"src2Stride1", cols * size}, {"dstStride1", cols * size}, {"src1Stride2", size},
        {"src2Stride2", size}, {"dstStride2", size}};
    arguments.pointers = {{"src1", a.data()}, {"src2", b.data()}, {"dst", apart.data()}};
    const std::string name = named<T>("vokmMul_mm");
    ASSERT_EQ(call(name, arguments), 0);
    arguments.pointers["dst"] = got.data();
    arguments.integers["dstStride1"] -= size;
    ASSERT_EQ(call(name, arguments), 0);
    auto put = [&](int r, int c) { wanted[size_t(r * (cols - 1) + c)] = apart[size_t(r * cols + c)]; };
    const int whole = rows & ~3;
    for (int r = 0; r < whole; r += 4) {
        for (int c = 0; c < (cols & ~1); ++c) {
            for (int i = 0; i < 4; ++i) put(r + i, c);
        }
    }
    for (int r = 0; r < whole && cols % 2; ++r) put(r, cols - 1);
    for (int c = 0; c < cols; ++c) {
        for (int r = whole; r < rows; ++r) put(r, c);
    }
    EXPECT_EQ(got, wanted) << name << " " << rows << "x" << inner << "x" << cols;
}

TEST(GeneralProducts, AreStoredInTheOrderOfBlocks)
{
    for (int rows = 4; rows < 14; ++rows) {
        for (int cols = 4; cols < 14; ++cols) {
            overlappingRows<float>(rows, 7 + rows % 2, cols);
            overlappingRows<double>(rows, 7 + rows % 2, cols);
        }
    }
}

// General traces store each partial sum, which shows where the result lies on the diagonal itself.
TEST_F(OddKernels, TraceOntoItsDiagonal)
{
    for (const Function* function : functionsOf("vokmTrace_m")) {
        for (int n : {1, 2, 7, 8}) {
            for (int k = 0; k < n; ++k) {
                for (int unit : {1, 2}) {
                    JobPlan plan;
                    plan.sizes = {{"widthHeight", n}};
                    plan.patterns[""].unit = unit;
                    plan.overlay["dst"] = {"src", int64_t(k) * (n + 1) * unit * function->elementSize()};
                    report(Job(*function, plan).check());
                }
            }
        }
    }
}

}  // namespace
