// When a call asks for threads, how often, and what a team then computes: both sides of every limit, and the shares.
#include <algorithm>
#include <optional>

#include "harness/expression.h"
#include "harness/groups.h"
#include "harness/patterns.h"
#include "harness/threads.h"

using namespace harness;

namespace {

using Sizes = std::map<std::string, int32_t>;

bool agree(const Function& function, const Sizes& sizes)
{
    return evaluate(function.match, [&](const std::string& name) { return sizes.at(name); }) != 0;
}

bool above(const Function& function, const Sizes& sizes, int limit)
{
    int work = workValue(function, sizes);
    return function.parallelAtLimit ? work >= limit : work > limit;
}

// The job that comes closest to the limit from one side. Sizes with straight code come first and win ties.
class ClosestJob {
public:
    ClosestJob(const Function& f, int boundary, bool upper) : function(f), limit(boundary), wantAbove(upper)
    {
        for (const ArgRecord& arg : f.args) {
            if (arg.kind == ArgKind::integer && arg.name != "count") {
                names.push_back(arg.name);
            }
        }
        walk(0);
    }
    Sizes best;

private:
    void walk(size_t at)
    {
        static const std::vector<int> many = {3, 4, 5, 6, 1, 2, 7, 8, 9, 10, 11, 12, 16, 24, 32, 48, 64},
                                      few = {3, 4, 5, 6, 1, 2, 8};
        if (at == names.size()) {
            consider();
            return;
        }
        for (int value : names.size() > 2 ? few : many) {
            sizes[names[at]] = value;
            walk(at + 1);
        }
    }

    void consider()
    {
        if (!agree(function, sizes)) {
            return;
        }
        int low = 0, high = 1 << 16;  // below low: serial, at high: parallel
        while (high - low > 1) {
            int middle = (low + high) / 2;
            sizes["count"] = middle;
            (above(function, sizes, limit) ? high : low) = middle;
        }
        sizes["count"] = wantAbove ? high : low;
        int distance = low < 1 ? 1 << 30 : std::abs(workValue(function, sizes) - limit);
        if (distance < bestDistance) {
            bestDistance = distance;
            best = sizes;
        }
    }

    const Function& function;
    int limit;
    bool wantAbove;
    std::vector<std::string> names;
    Sizes sizes;
    int bestDistance = 1 << 30;
};

std::vector<std::string> groupsWithLimits()
{
    std::vector<std::string> found;
    for (const std::string& group : declaredGroups()) {
        if (!functionsOf(group)[0]->work.empty()) {
            found.push_back(group);
        }
    }
    return found;
}

class Limits : public GroupTest {
protected:
    void SetUp() override
    {
        if (!Oracle::find(GetParam())) {
            GTEST_SKIP() << "no oracle";
        }
    }

    bool run(const Function& function, const Sizes& sizes, bool dense, int threads, int later, uint64_t salt)
    {
        JobPlan plan;
        plan.sizes = sizes;
        plan.seed = seedOf(function, salt);
        Random random(plan.seed);
        drawPatterns(plan, function, dense ? Style::dense : Style::any, random);
        if (!dense) {
            for (auto& [name, pattern] : plan.patterns) {
                pattern.nest = "cro";
                pattern.unit = 2;
                break;  // one strided operand is enough
            }
        }
        plan.threads = threads;
        plan.laterThreads = later;
        return report(Job(function, plan).check());
    }
};

TEST_P(Limits, BothSides)
{
    for (const Function* function : functions()) {
        for (bool dense : {true, false}) {
            if (!dense && function->layout() == 'P') {
                continue;
            }
            int limit = dense ? function->limitDense : function->limitStrided;
            ClosestJob below(*function, limit, false), over(*function, limit, true);
            ASSERT_FALSE(below.best.empty() || over.best.empty()) << function->name;
            run(*function, below.best, dense, 3, -1, 1);
            run(*function, over.best, dense, 3, -1, 2);
            run(*function, over.best, dense, 1, -1, 3);                          // one thread: asked once, no team
            run(*function, over.best, dense, over.best.at("count") + 1, -1, 4);  // fewer objects than threads: likewise
            run(*function, over.best, dense, 4, 2, 5);                           // the answer changes in between
            run(*function, over.best, dense, 2, 1, 6);
        }
    }
}

// Few long objects, so that shares of unequal size and threads without an object occur.
TEST_P(Limits, FewObjects)
{
    for (const Function* function : functions()) {
        // A trace would need matrices of gigabytes.
        const int longest = function->form.find_first_of("mt") == std::string::npos ? 50000 : 400;
        const bool scratch = std::any_of(
            function->args.begin(), function->args.end(), [](const ArgRecord& arg) { return arg.kind == ArgKind::scratch; });
        for (auto [count, threads, later] : {std::tuple{10, 4, -1}, {4, 4, -1}, {3, 4, -1}, {7, 2, -1}, {3, 2, 5}}) {
            Sizes sizes = equalSizes(*function, 4, count);
            for (int n = 4; n < longest && !above(*function, sizes, function->limitDense); n = n * 5 / 4 + 1) {
                sizes = equalSizes(*function, n, count);
            }
            if (above(*function, sizes, function->limitDense)) {
                // Scratch is sized by the first answer, so a larger team would go beyond it.
                run(*function, sizes, true, threads, scratch ? -1 : later, 100 + count);
            }
        }
    }
}

// Rules that look at addresses or at the count hold for each share by itself.
TEST_P(Limits, SharesAreKernelCalls)
{
    for (const Function* function : functions()) {
        for (int draw = 0; draw < 14; ++draw) {
            Random random(seedOf(*function, 1000 + draw));
            int n = draw < 3 ? 3 : draw < 11 ? 3 + draw % 4 : 1 + int(random() % 12);
            JobPlan plan;
            plan.seed = random();
            plan.sizes = equalSizes(*function, n, 1);
            while (plan.sizes["count"] < 60000 && !above(*function, plan.sizes, function->limitDense)) {
                plan.sizes["count"] += 1 + plan.sizes["count"] / 40;
            }
            plan.sizes["count"] += int(random() % 9);
            plan.threads = 2 + int(random() % 4);
            plan.values = random() % 4 ? Values::ordinary : Values::special;
            drawPatterns(plan, *function, draw < 4 ? Style::aligned : drawStyle(random), random);
            if (!report(Job(*function, plan).check())) {
                return;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Form, Limits, testing::ValuesIn(groupsWithLimits()), groupName);

// 3*length*count beyond 2^31 comes out negative, so the biggest of jobs stays on the calling thread.
TEST(WrappingWork, HugeJobStaysSerial)
{
    const Function& function = functionNamed("vokmAdd_vava_32f");
    constexpr int n = 26755;
    std::vector<float> a(2 * n, 1.5f), b(2 * n, 2.25f), sum(2 * n, 0.0f);  // objects one element apart
    Arguments arguments;
    arguments.pointers = {{"src1", a.data()}, {"src2", b.data()}, {"dst", sum.data()}};
    arguments.integers = {{"length", n}, {"count", n}};
    for (const char* operand : {"src1", "src2", "dst"}) {
        arguments.integers[std::string(operand) + "Stride0"] = 4;
        arguments.integers[std::string(operand) + "Stride2"] = 4;
    }
    ASSERT_LT(workValue(function, arguments.integers), 0);
    setThreads(4);
    EXPECT_EQ(call(function.name, arguments), 0);
    EXPECT_EQ(threadQuestions(), 0);
    EXPECT_EQ(sum[0], 3.75f);
    EXPECT_EQ(sum[2 * n - 2], 3.75f);
    EXPECT_EQ(sum[2 * n - 1], 0.0f);
}

}  // namespace
